// What reaches the editor from outside: keys, input methods, the mouse and the focus.
#include "shell/text/FieldEditor.h"

#include "shell/platform/TextConversion.h"
#include "shell/text/Wheel.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimerEvent>

namespace keyfluent::shell
{
namespace
{

constexpr int scrollInterval = 50; // milliseconds, of a drag outside the field

} // namespace

bool FieldEditor::event(QEvent* event)
{
    // No shortcut of a window takes away what the field does itself.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (DeedOf(key, canvas_.Flow().RightToLeft()).deed != Deed::None) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

// The Tab key is text where text can be edited.
bool FieldEditor::focusNextPrevChild(bool next)
{
    return readOnly_ && QWidget::focusNextPrevChild(next);
}

void FieldEditor::keyPressEvent(QKeyEvent* event)
{
    const KeyDeed deed = DeedOf(*event, canvas_.Flow().RightToLeft());
    if (deed.deed == Deed::None) {
        event->ignore();
        return;
    }
    CommitComposed();
    Do(deed);
}

QVariant FieldEditor::inputMethodQuery(Qt::InputMethodQuery query) const
{
    TextFlow& flow = canvas_.Flow();
    const FlowLine line = flow.LineAt(flow.LineOf(canvas_.Caret()));
    const auto text = [&](int from, int to) {
        return ToQString(canvas_.Text().substr(static_cast<std::size_t>(from),
                                               static_cast<std::size_t>(std::max(to - from, 0))));
    };
    switch (query) {
    case Qt::ImEnabled:
        return InputMethodOn();
    case Qt::ImHints:
        return static_cast<int>(Qt::ImhMultiLine | Qt::ImhNoPredictiveText);
    case Qt::ImFont:
        return canvas_.Font();
    case Qt::ImCursorRectangle:
        return canvas_.CaretRect(canvas_.Caret());
    case Qt::ImSurroundingText:
        return text(line.start, line.end);
    case Qt::ImCursorPosition:
        return canvas_.Caret() - line.start;
    case Qt::ImAnchorPosition:
        return std::clamp(canvas_.Anchor(), line.start, line.end) - line.start;
    case Qt::ImAbsolutePosition:
        return canvas_.Caret();
    case Qt::ImCurrentSelection:
        return text(canvas_.SelectionStart(), canvas_.SelectionEnd());
    case Qt::ImTextBeforeCursor:
        return text(line.start, canvas_.Caret());
    case Qt::ImTextAfterCursor:
        return text(canvas_.Caret(), line.end);
    default:
        return QWidget::inputMethodQuery(query);
    }
}

void FieldEditor::inputMethodEvent(QInputMethodEvent* event)
{
    if (!InputMethodOn()) {
        event->ignore();
        return;
    }
    DropComposed();
    const bool writes = !event->commitString().isEmpty() || !event->preeditString().isEmpty();
    if (writes && canvas_.HasSelection()) {
        ReplaceSelection({});
    }
    if (!event->commitString().isEmpty() || event->replacementLength() > 0) {
        Edit(std::max(canvas_.Caret() + event->replacementStart(), 0), event->replacementLength(),
             FromQString(event->commitString()));
    }
    int caret = static_cast<int>(event->preeditString().size());
    for (const QInputMethodEvent::Attribute& attribute : event->attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor) {
            caret = std::clamp(attribute.start, 0, caret);
        }
    }
    ShowComposed(event->preeditString(), caret);
    KeepCaretSeen();
}

void FieldEditor::ShowComposed(const QString& text, int caret)
{
    if (text.isEmpty()) {
        return;
    }
    composedStart_ = canvas_.Caret();
    composedLength_ = static_cast<int>(text.size());
    canvas_.Replace(composedStart_, 0, FromQString(text));
    canvas_.Select(composedStart_ + caret, composedStart_ + caret);
    canvas_.Underline(composedStart_, composedLength_);
}

void FieldEditor::DropComposed()
{
    if (composedLength_ > 0) {
        canvas_.Replace(composedStart_, composedLength_, {});
        canvas_.Select(composedStart_, composedStart_);
        canvas_.Underline(0, 0);
        composedStart_ = 0;
        composedLength_ = 0;
    }
}

// Before anything else is done, the input method gives out what it has.
void FieldEditor::CommitComposed()
{
    if (composedLength_ > 0) {
        QGuiApplication::inputMethod()->commit();
        DropComposed();
        UpdateDamage();
    }
}

void FieldEditor::mousePressEvent(QMouseEvent* event)
{
    CommitComposed();
    const int position = canvas_.PositionAt(event->position());
    history_.Close();
    wantedX_ = -1;
    if (event->button() == Qt::LeftButton) {
        const bool third = lastDoubleClick_ >= 0 &&
                           static_cast<qint64>(event->timestamp()) - lastDoubleClick_ <
                               QGuiApplication::styleHints()->mouseDoubleClickInterval() &&
                           (event->position() - doubleClickPoint_).manhattanLength() <
                               QGuiApplication::styleHints()->startDragDistance();
        lastDoubleClick_ = -1;
        grain_ = third ? Grain::Paragraph : Grain::Letter;
        const bool extend = event->modifiers() & Qt::ShiftModifier;
        grainStart_ =
            extend ? std::pair(canvas_.Anchor(), canvas_.Anchor()) : GrainAround(position);
        dragging_ = true;
        DragTo(event->position());
    } else if (event->button() == Qt::MiddleButton && !readOnly_ &&
               QGuiApplication::clipboard()->supportsSelection()) {
        Select(position, position);
        Paste(QClipboard::Selection);
    }
    emit pressed(event->button());
}

void FieldEditor::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    CommitComposed();
    lastDoubleClick_ = static_cast<qint64>(event->timestamp());
    doubleClickPoint_ = event->position();
    grain_ = Grain::Word;
    grainStart_ = GrainAround(canvas_.PositionAt(event->position()));
    dragging_ = true;
    DragTo(event->position());
    emit pressed(event->button());
}

void FieldEditor::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragging_ || !(event->buttons() & Qt::LeftButton)) {
        dragging_ = false;
        scrollTimer_.stop();
        return;
    }
    DragTo(event->position());
    const bool inside = event->position().y() >= 0 && event->position().y() < height();
    if (inside) {
        scrollTimer_.stop();
    } else if (!scrollTimer_.isActive()) {
        scrollTimer_.start(scrollInterval, this);
    }
}

void FieldEditor::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        dragging_ = false;
        scrollTimer_.stop();
        if (QGuiApplication::clipboard()->supportsSelection()) {
            Copy(QClipboard::Selection);
        }
    }
    if (rect().contains(event->position().toPoint())) {
        emit clicked(event->button());
    }
}

std::pair<int, int> FieldEditor::GrainAround(int position) const
{
    if (grain_ == Grain::Word) {
        return WordAround(canvas_, position);
    }
    if (grain_ == Grain::Paragraph) {
        const PositionMap& map = canvas_.Flow().Map();
        const Paragraph& paragraph = map.ParagraphOf(map.ParagraphAt(position));
        return {paragraph.start, paragraph.Next()};
    }
    return {position, position};
}

void FieldEditor::DragTo(QPointF point)
{
    dragPoint_ = point;
    const std::pair<int, int> here = GrainAround(canvas_.PositionAt(point));
    if (here.first < grainStart_.first) {
        Select(grainStart_.second, here.first);
    } else {
        Select(grainStart_.first, std::max(here.second, grainStart_.second));
    }
}

void FieldEditor::wheelEvent(QWheelEvent* event)
{
    canvas_.ScrollBy(WheelLines(*event, wheelAngle_));
    UpdateDamage();
}

void FieldEditor::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    RestartBlinking();
    UpdateDamage();
}

void FieldEditor::focusOutEvent(QFocusEvent* event)
{
    CommitComposed();
    QWidget::focusOutEvent(event);
    RestartBlinking();
    UpdateDamage();
    emit focusLost();
}

void FieldEditor::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == blinkTimer_.timerId()) {
        blinkOn_ = !blinkOn_;
        UpdateDamage();
    } else if (event->timerId() == scrollTimer_.timerId()) {
        canvas_.ScrollBy(dragPoint_.y() < 0 ? -1 : 1);
        DragTo(dragPoint_);
    }
}

} // namespace keyfluent::shell
