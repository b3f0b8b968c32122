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
        painter.setPen(QPen(QColor(0x1F, 0x3A, 0x4D), 1, Qt::DotLine));
        painter.drawRoundedRect(rect().adjusted(2, 2, -3, -3), 4, 4);
    }
}

void ImageControl::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    down_ = true;
    emit pressed();
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
    const Qt::FocusReason reason = event->reason();
    showsFocus_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    QWidget::focusInEvent(event);
    update();
}

void ImageControl::focusOutEvent(QFocusEvent* event)
{
    showsFocus_ = false;
    QWidget::focusOutEvent(event);
    update();
}

} // namespace keyfluent::shell
