// The keyboard on the screen: 105 caps as the exercise's record holds them. To assistive technology
// it is one picture, whose name tells the lit cap.
#pragma once

#include "session/Controls.h"

#include <QFont>
#include <QPixmap>
#include <QWidget>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <tuple>

namespace keyfluent::shell
{

class KeyboardView : public QWidget
{
    Q_OBJECT

public:
    explicit KeyboardView(QWidget* parent);

    // Shows the caps; only those that differ from what is on show are painted anew. The view places
    // itself where the caps are, and hides where they lie outside its parent.
    void Show(const session::CapArray& caps);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Place(const session::CapArray& caps);
    QRect CapRect(std::size_t cap) const; // in this widget
    const QPixmap& FaceOf(std::size_t cap);
    void PaintBackground(QPainter& painter, QPoint origin, const QRect& place) const;
    QPixmap DrawFace(std::size_t cap) const;
    QFont FittingFont(std::size_t cap, const QString& text) const;

    // What decides how a cap looks. Its texts are constants, so their addresses tell them apart.
    using Look = std::tuple<std::size_t, const char16_t*, std::int32_t, std::int32_t, bool>;

    std::optional<session::CapArray> shown_;
    // Each look is drawn once: a key changes few caps, and these between few looks.
    std::map<Look, QPixmap> faces_;
    qreal facesRatio_ = 0; // of the screen for which they were drawn
};

} // namespace keyfluent::shell
