#include "shell/text/RowView.h"

#include "shell/text/FieldAccessible.h"
#include "shell/text/Wheel.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QWheelEvent>

namespace keyfluent::shell
{
namespace
{

constexpr int linesAround = 1;

} // namespace

RowView::RowView(Keep keep, const QFont& font, QWidget* parent)
    : QWidget(parent), keep_(keep), canvas_(font)
{
    InstallFieldAccessibility();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
    canvas_.Resize(size());
}

void RowView::Show(const session::TextField& field)
{
    // A hidden widget learns of its size only when it is shown.
    const bool otherSize = canvas_.Resize(size());
    const bool otherLook = canvas_.SetLook(field.fontSize, field.rightToLeft) || otherSize;
    const int end = field.SelectionStart() + field.SelectionLength();
    const bool moved = canvas_.Anchor() != field.SelectionStart() || canvas_.Caret() != end;
    const TextChange change = canvas_.SetText(field.Text());
    canvas_.Select(field.SelectionStart(), end);
    if (moved || otherLook || !change.Empty()) {
        FollowField();
    }
    if (moved || !change.Empty()) {
        TellAssistants(this, change, canvas_, Caret());
    }
    UpdateDamage();
}

void RowView::FitHeight(int height)
{
    if (canvas_.FitHeight(height)) {
        FollowField();
        UpdateDamage();
    }
}

void RowView::BringIntoView(int position)
{
    canvas_.Follow(position, linesAround);
    UpdateDamage();
}

int RowView::Caret() const
{
    return keep_ == Keep::End ? canvas_.Size() : canvas_.SelectionStart();
}

void RowView::FollowField()
{
    if (keep_ == Keep::End) {
        canvas_.Follow(canvas_.Size(), 0);
    } else {
        canvas_.Follow(canvas_.SelectionStart(), linesAround);
    }
}

void RowView::UpdateDamage()
{
    const QRegion damage = canvas_.TakeDamage();
    if (!damage.isEmpty()) {
        update(damage);
    }
}

void RowView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    canvas_.Paint(painter, event->region());
}

void RowView::resizeEvent(QResizeEvent*)
{
    canvas_.Resize(size());
    FollowField();
    UpdateDamage();
}

void RowView::mousePressEvent(QMouseEvent* event)
{
    emit pressed(event->button());
}

void RowView::mouseDoubleClickEvent(QMouseEvent* event)
{
    emit pressed(event->button());
}

void RowView::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->position().toPoint())) {
        emit clicked(event->button());
    }
}

void RowView::wheelEvent(QWheelEvent* event)
{
    canvas_.ScrollBy(WheelLines(*event, wheelAngle_));
    UpdateDamage();
}

void RowView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    emit focusLost();
}

} // namespace keyfluent::shell
