// A text field that only shows: the row to copy with its one lit letter, or what has been typed of
// it. The record it shows is the truth; nothing is read back.
#pragma once

#include "session/Controls.h"
#include "shell/text/TextCanvas.h"

#include <QWidget>

namespace keyfluent::shell
{

class RowView : public QWidget
{
    Q_OBJECT

public:
    // What stays in view when the text is taller than the field.
    enum class Keep {
        Selection, // the first selected letter, with a line more on both sides
        End        // the end of the text
    };

    // font is bold or not as it shall be drawn, its families an Arabic face and then a Latin one;
    // its size is the field's.
    RowView(Keep keep, const QFont& font, QWidget* parent = nullptr);

    // Text, selection, font size and direction; place, visibility and pointer are the window's.
    // Paints only what differs from what was shown before, nothing where nothing does. Scrolls only
    // where text or selection differ.
    void Show(const session::TextField& field);

    // The lower height of two fields that shall show their text in one size, in pixels. A font too
    // large for it is made smaller; without it the field's own height counts.
    void FitHeight(int height);

    // Scrolls so that a position of the text can be seen.
    void BringIntoView(int position);

    TextCanvas& Canvas() { return canvas_; }

    // Where the next letter goes, which no caret shows here: the lit letter's position, or the end
    // of what has been typed.
    int Caret() const;

signals:
    // A mouse button has gone down, and was let go above the field.
    void pressed(Qt::MouseButton button);
    void clicked(Qt::MouseButton button);
    void focusLost();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void FollowField();
    void UpdateDamage();

    Keep keep_;
    TextCanvas canvas_;
    int wheelAngle_ = 0;
};

} // namespace keyfluent::shell
