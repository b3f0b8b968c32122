// A text on a window. It is plain whatever characters it holds, its lines break anywhere rather
// than be cut off, and its side is told and never mirrored by the toolkit.
#pragma once

#include <QLabel>
#include <QTextOption>

#include <string_view>

namespace keyfluent::shell
{

enum class Side { Left, Centre, Right };

class TextLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TextLabel(QWidget* parent);

    // CR stands for a line break.
    void SetCaption(std::u16string_view caption);
    void SetSide(Side side);
    void SetRightToLeft(bool rightToLeft);
    // Right to left and at the right side in Arabic; left to right and at the left side otherwise.
    void SetReading(bool arabic);

    // What the text takes at a width, in pixels.
    QSize NeededSize(int width) const;
    // Keeps left, top and width and takes the height that the text needs; returns that height.
    int FitHeight();
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTextOption Option() const;

    Side side_ = Side::Left;
};

} // namespace keyfluent::shell
