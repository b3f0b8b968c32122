// The keyboard on the screen: 105 caps as the exercise's record holds them.
#pragma once

#include "session/Controls.h"

#include <QFont>
#include <QWidget>

#include <optional>

namespace keyfluent::shell
{

class KeyboardView : public QWidget
{
    Q_OBJECT

public:
    explicit KeyboardView(QWidget* parent);

    // Shows the caps; only those that differ from what is on show are painted anew. The view places
    // itself where the caps are.
    void Show(const session::CapArray& caps);

    // What the caps show, for tests and for assistive technology: the text of the lit cap.
    QString LitText() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Place(const session::CapArray& caps);
    QRect CapRect(std::size_t cap) const; // in this widget
    void PaintCap(QPainter& painter, std::size_t cap) const;
    QFont FittingFont(std::size_t cap, const QString& text) const;

    std::optional<session::CapArray> shown_;
};

} // namespace keyfluent::shell
