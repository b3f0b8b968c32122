#include "shell/text/FieldEditor.h"

#include "shell/platform/TextConversion.h"
#include "shell/text/FieldAccessible.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QPaintEvent>
#include <QStyleHints>

namespace keyfluent::shell
{
namespace
{

constexpr std::u16string_view lineEnd = u"\r\n";

// As much of text as fits, without half a line end or half a character at the end.
std::u16string_view Fitting(std::u16string_view text, int room)
{
    const auto most = static_cast<std::size_t>(std::max(room, 0));
    if (text.size() <= most) {
        return text;
    }
    const bool parted = most > 0 && (text[most] == u'\n' || QChar::isLowSurrogate(text[most]));
    return text.substr(0, parted ? most - 1 : most);
}

int Length(std::u16string_view text)
{
    return static_cast<int>(text.size());
}

} // namespace

FieldEditor::FieldEditor(const QFont& font, QWidget* parent) : QWidget(parent), canvas_(font)
{
    InstallFieldAccessibility();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCursor(Qt::IBeamCursor);
    canvas_.Resize(size());
}

void FieldEditor::AllowInputMethod(bool allowed)
{
    inputMethodAllowed_ = allowed;
    setAttribute(Qt::WA_InputMethodEnabled, InputMethodOn());
    updateMicroFocus(Qt::ImEnabled);
}

void FieldEditor::Show(const session::TextField& field)
{
    const bool keepsHistory = !readOnly_ && !field.readOnly;
    if (readOnly_ != field.readOnly) {
        readOnly_ = field.readOnly;
        AllowInputMethod(inputMethodAllowed_);
        RestartBlinking();
    }
    canvas_.Resize(size());
    canvas_.SetLook(field.fontSize, field.rightToLeft);

    const std::u16string composed = canvas_.Text().substr(
        static_cast<std::size_t>(composedStart_), static_cast<std::size_t>(composedLength_));
    const int composedCaret = canvas_.Caret() - composedStart_;
    DropComposed();
    const TextChange change = canvas_.SetText(field.Text());
    if (!change.Empty()) {
        keepsHistory ? history_.Record(change) : history_.Clear();
        history_.Close();
    }
    const int start = field.SelectionStart();
    const int length = field.SelectionLength();
    const bool moved =
        canvas_.SelectionStart() != start || canvas_.SelectionEnd() != start + length;
    if (moved) {
        canvas_.Select(start, start + length);
    }
    toldStart_ = start;
    toldLength_ = length;
    if (moved || !change.Empty()) {
        TellAssistants(this, change, canvas_, canvas_.Caret());
        KeepCaretSeen();
    } else if (!composed.empty()) {
        ShowComposed(ToQString(composed), composedCaret);
    }
    UpdateDamage();
}

void FieldEditor::Edit(int position, int removed, std::u16string_view inserted)
{
    if (readOnly_) {
        return;
    }
    DropComposed();
    const PositionMap& map = canvas_.Flow().Map();
    const int start = map.CaretPlace(position);
    const int end = std::max(map.CaretPlace(position + std::max(removed, 0)), start);
    const std::u16string whole = WithLineEnds(inserted, lineEnd);
    const std::u16string_view fitting = Fitting(whole, mostUnits - canvas_.Size() + (end - start));

    TextChange change;
    change.position = start;
    change.removed = canvas_.Text().substr(static_cast<std::size_t>(start),
                                           static_cast<std::size_t>(end - start));
    change.inserted = fitting;
    if (Apply(change, start + Length(fitting))) {
        history_.Record(change);
    }
}

// The one way by which the student's doings reach the text.
bool FieldEditor::Apply(const TextChange& change, int caret)
{
    if (change.Empty()) {
        return false;
    }
    canvas_.Replace(change.position, Length(change.removed), change.inserted);
    canvas_.Select(caret, caret);
    toldStart_ = change.position + Length(change.inserted);
    toldLength_ = 0;
    wantedX_ = -1;
    TellAssistants(this, change, canvas_, canvas_.Caret());
    emit edited(change.position, Length(change.removed), change.inserted);
    TellSelection();
    KeepCaretSeen();
    return true;
}

void FieldEditor::Select(int anchor, int caret)
{
    DropComposed();
    const PositionMap& map = canvas_.Flow().Map();
    canvas_.Select(map.CaretPlace(anchor), map.CaretPlace(caret));
    TellSelection();
    KeepCaretSeen();
}

void FieldEditor::TellSelection()
{
    const int start = canvas_.SelectionStart();
    const int length = canvas_.SelectionEnd() - start;
    if (start == toldStart_ && length == toldLength_) {
        return;
    }
    toldStart_ = start;
    toldLength_ = length;
    TellAssistants(this, {}, canvas_, canvas_.Caret());
    emit selected(start, length);
}

void FieldEditor::Do(const KeyDeed& what)
{
    DropComposed();
    switch (what.deed) {
    case Deed::None:
        break;
    case Deed::Type:
        ReplaceSelection(what.text);
        break;
    case Deed::BreakLine:
        if (return_ == Return::IsReported) {
            emit returnPressed();
        } else {
            ReplaceSelection(lineEnd);
        }
        break;
    case Deed::MoveCaret:
        MoveCaret(what.move, false);
        break;
    case Deed::ExtendSelection:
        MoveCaret(what.move, true);
        break;
    case Deed::Erase:
        Erase(what.move);
        break;
    case Deed::SelectAll:
        history_.Close();
        Select(0, canvas_.Size());
        break;
    case Deed::Copy:
        Copy(QClipboard::Clipboard);
        break;
    case Deed::Cut:
        if (!readOnly_ && canvas_.HasSelection()) {
            Copy(QClipboard::Clipboard);
            history_.Close();
            ReplaceSelection({});
        }
        break;
    case Deed::Paste:
        Paste(QClipboard::Clipboard);
        break;
    case Deed::Undo:
    case Deed::Redo:
        UndoOrRedo(what.deed == Deed::Undo);
        break;
    }
}

void FieldEditor::ReplaceSelection(std::u16string_view inserted)
{
    if (canvas_.HasSelection()) {
        history_.Close();
    }
    Edit(canvas_.SelectionStart(), canvas_.SelectionEnd() - canvas_.SelectionStart(), inserted);
    // A selected half of a line end can't be replaced.
    if (!readOnly_ && canvas_.HasSelection()) {
        Select(canvas_.SelectionStart(), canvas_.SelectionStart());
    }
}

void FieldEditor::MoveCaret(Move move, bool extend)
{
    history_.Close();
    const int from = canvas_.Caret();
    const bool sideways = move == Move::NextLetter || move == Move::PreviousLetter;
    if (sideways && !extend && canvas_.HasSelection()) {
        const int to = move == Move::NextLetter ? canvas_.SelectionEnd() : canvas_.SelectionStart();
        wantedX_ = -1;
        Select(to, to);
        return;
    }
    if (!IsVertical(move)) {
        wantedX_ = -1;
    } else if (wantedX_ < 0) {
        wantedX_ = std::max(HorizontalPlace(canvas_, from), 0.0);
    }
    const int to = Destination(canvas_, move, from, wantedX_);
    Select(extend ? canvas_.Anchor() : to, to);
}

void FieldEditor::Erase(Move move)
{
    if (canvas_.HasSelection()) {
        ReplaceSelection({});
        return;
    }
    const int from = canvas_.Caret();
    const int to = Destination(canvas_, move, from, 0);
    Edit(std::min(from, to), std::max(from, to) - std::min(from, to), {});
}

void FieldEditor::UndoOrRedo(bool undo)
{
    if (readOnly_ || !(undo ? history_.CanUndo() : history_.CanRedo())) {
        return;
    }
    const TextChange change = undo ? history_.Undo() : history_.Redo();
    Apply(change, change.position + Length(change.inserted));
}

void FieldEditor::Copy(QClipboard::Mode mode) const
{
    if (!canvas_.HasSelection()) {
        return;
    }
    const auto text =
        std::u16string_view(canvas_.Text())
            .substr(static_cast<std::size_t>(canvas_.SelectionStart()),
                    static_cast<std::size_t>(canvas_.SelectionEnd() - canvas_.SelectionStart()));
    QGuiApplication::clipboard()->setText(ToQString(WithLineEnds(text, u"\n")), mode);
}

void FieldEditor::Paste(QClipboard::Mode mode)
{
    const QMimeData* clip = QGuiApplication::clipboard()->mimeData(mode);
    if (readOnly_ || !clip || !clip->hasText()) {
        return;
    }
    history_.Close();
    ReplaceSelection(FromQString(clip->text()));
    history_.Close();
}

void FieldEditor::KeepCaretSeen()
{
    canvas_.Follow(canvas_.Caret(), 0);
    RestartBlinking();
    UpdateDamage();
    updateMicroFocus();
}

void FieldEditor::RestartBlinking()
{
    const int flash = QGuiApplication::styleHints()->cursorFlashTime();
    blinkOn_ = true;
    if (hasFocus() && !readOnly_ && flash >= 2) {
        blinkTimer_.start(flash / 2, this);
    } else {
        blinkTimer_.stop();
    }
}

void FieldEditor::UpdateDamage()
{
    canvas_.ShowCaret(hasFocus() && !readOnly_ && blinkOn_);
    const QRegion damage = canvas_.TakeDamage();
    if (!damage.isEmpty()) {
        update(damage);
    }
}

void FieldEditor::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    canvas_.Paint(painter, event->region());
}

void FieldEditor::resizeEvent(QResizeEvent*)
{
    canvas_.Resize(size());
    KeepCaretSeen();
}

} // namespace keyfluent::shell
