#include "shell/base/ImageControl.h"

#include "shell/base/Pictures.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace keyfluent::shell
{

ImageControl::ImageControl(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
}

void ImageControl::SetBitmap(int id)
{
    if (id == bitmap_) {
        return;
    }
    bitmap_ = id;
    resize(LoadBitmap(id, devicePixelRatioF()).deviceIndependentSize().toSize());
    update();
}

void ImageControl::SetKind(Kind kind)
{
    kind_ = kind;
    setFocusPolicy(kind == Kind::Picture ? Qt::NoFocus : Qt::TabFocus);
}

void ImageControl::SetChecked(bool checked)
{
    if (checked == checked_) {
        return;
    }
    checked_ = checked;
    QAccessible::State state;
    state.checked = true;
    QAccessibleStateChangeEvent event(this, state);
    QAccessible::updateAccessibility(&event);
}

void ImageControl::Press()
{
    if (!isEnabled() || !isVisible()) {
        return;
    }
    emit pressed();
    emit clicked();
}

void ImageControl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (bitmap_ != 0) {
        painter.drawPixmap(0, 0, LoadBitmap(bitmap_, devicePixelRatioF()));
    }
    if (showsFocus_) {
        PaintFocus(painter);
    }
}

// Dark dots on a light line, so that it is seen on every picture and on every colour.
void ImageControl::PaintFocus(QPainter& painter) const
{
    const QRect place = rect().adjusted(3, 3, -4, -4);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRoundedRect(place, 4, 4);
    painter.setPen(QPen(QColor(0x1F, 0x3A, 0x4D), 1, Qt::DotLine));
    painter.drawRoundedRect(place, 4, 4);
}

// Another button than the left one does nothing here, and nothing to the window beneath.
void ImageControl::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        down_ = true;
        emit pressed();
    }
}

void ImageControl::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasDown = down_ && event->button() == Qt::LeftButton;
    down_ = down_ && event->button() != Qt::LeftButton;
    if (wasDown && rect().contains(event->position().toPoint())) {
        emit clicked();
    }
}

void ImageControl::mouseMoveEvent(QMouseEvent* event)
{
    emit hovered(down_, rect().contains(event->position().toPoint()));
}

void ImageControl::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && kind_ != Kind::Picture && !event->isAutoRepeat()) {
        Press();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ImageControl::focusInEvent(QFocusEvent* event)
{
    TakeFocusReason(event->reason(), true);
    QWidget::focusInEvent(event);
}

void ImageControl::focusOutEvent(QFocusEvent* event)
{
    TakeFocusReason(event->reason(), false);
    QWidget::focusOutEvent(event);
}

// The frame shows where the keyboard has led to, and stays while another window, a menu or a list
// is in front for a time.
void ImageControl::TakeFocusReason(Qt::FocusReason reason, bool comes)
{
    switch (reason) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return;
    default:
        break;
    }
    showsFocus_ = comes && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason);
    update();
}

} // namespace keyfluent::shell
