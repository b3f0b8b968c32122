#include "shell/text/EditorKeys.h"

namespace keyfluent::shell
{
namespace
{

struct Binding {
    QKeySequence::StandardKey keys;
    Deed deed;
    Move move;
};

constexpr Binding bindings[] = {
    {QKeySequence::MoveToNextChar, Deed::MoveCaret, Move::NextLetter},
    {QKeySequence::MoveToPreviousChar, Deed::MoveCaret, Move::PreviousLetter},
    {QKeySequence::MoveToNextWord, Deed::MoveCaret, Move::NextWord},
    {QKeySequence::MoveToPreviousWord, Deed::MoveCaret, Move::PreviousWord},
    {QKeySequence::MoveToNextLine, Deed::MoveCaret, Move::LineDown},
    {QKeySequence::MoveToPreviousLine, Deed::MoveCaret, Move::LineUp},
    {QKeySequence::MoveToNextPage, Deed::MoveCaret, Move::PageDown},
    {QKeySequence::MoveToPreviousPage, Deed::MoveCaret, Move::PageUp},
    {QKeySequence::MoveToStartOfLine, Deed::MoveCaret, Move::LineStart},
    {QKeySequence::MoveToEndOfLine, Deed::MoveCaret, Move::LineEnd},
    {QKeySequence::MoveToStartOfDocument, Deed::MoveCaret, Move::TextStart},
    {QKeySequence::MoveToEndOfDocument, Deed::MoveCaret, Move::TextEnd},

    {QKeySequence::SelectNextChar, Deed::ExtendSelection, Move::NextLetter},
    {QKeySequence::SelectPreviousChar, Deed::ExtendSelection, Move::PreviousLetter},
    {QKeySequence::SelectNextWord, Deed::ExtendSelection, Move::NextWord},
    {QKeySequence::SelectPreviousWord, Deed::ExtendSelection, Move::PreviousWord},
    {QKeySequence::SelectNextLine, Deed::ExtendSelection, Move::LineDown},
    {QKeySequence::SelectPreviousLine, Deed::ExtendSelection, Move::LineUp},
    {QKeySequence::SelectNextPage, Deed::ExtendSelection, Move::PageDown},
    {QKeySequence::SelectPreviousPage, Deed::ExtendSelection, Move::PageUp},
    {QKeySequence::SelectStartOfLine, Deed::ExtendSelection, Move::LineStart},
    {QKeySequence::SelectEndOfLine, Deed::ExtendSelection, Move::LineEnd},
    {QKeySequence::SelectStartOfDocument, Deed::ExtendSelection, Move::TextStart},
    {QKeySequence::SelectEndOfDocument, Deed::ExtendSelection, Move::TextEnd},
    {QKeySequence::SelectAll, Deed::SelectAll, Move::None},

    {QKeySequence::Delete, Deed::Erase, Move::NextLetter},
    {QKeySequence::DeleteStartOfWord, Deed::Erase, Move::PreviousWord},
    {QKeySequence::DeleteEndOfWord, Deed::Erase, Move::NextWord},

    {QKeySequence::Copy, Deed::Copy, Move::None},
    {QKeySequence::Cut, Deed::Cut, Move::None},
    {QKeySequence::Paste, Deed::Paste, Move::None},
    {QKeySequence::Undo, Deed::Undo, Move::None},
    {QKeySequence::Redo, Deed::Redo, Move::None},
    {QKeySequence::InsertParagraphSeparator, Deed::BreakLine, Move::None},
    {QKeySequence::InsertLineSeparator, Deed::BreakLine, Move::None},
};

Move Mirrored(Move move)
{
    switch (move) {
    case Move::NextLetter:
        return Move::PreviousLetter;
    case Move::PreviousLetter:
        return Move::NextLetter;
    case Move::NextWord:
        return Move::PreviousWord;
    case Move::PreviousWord:
        return Move::NextWord;
    default:
        return move;
    }
}

bool IsTyped(const QKeyEvent& key)
{
    const QString text = key.text();
    if (text.isEmpty()) {
        return false;
    }
    const Qt::KeyboardModifiers modifiers =
        key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Both together are how some desktops tell of AltGr.
    if (modifiers && modifiers != (Qt::ControlModifier | Qt::AltModifier)) {
        return false;
    }
    const QChar first = text.at(0);
    return first.isPrint() || first.isHighSurrogate() || first == QLatin1Char('\t') ||
           first.category() == QChar::Other_Format;
}

// The keys of lam-alef give one sign on some desktops; a text holds two letters.
std::u16string WithLamAlefApart(const QString& text)
{
    std::u16string result;
    for (const QChar unit : text) {
        switch (unit.unicode()) {
        case 0xFEF5:
            result += u"\u0644\u0622";
            break;
        case 0xFEF7:
            result += u"\u0644\u0623";
            break;
        case 0xFEF9:
            result += u"\u0644\u0625";
            break;
        case 0xFEFB:
            result += u"\u0644\u0627";
            break;
        default:
            result += unit.unicode();
        }
    }
    return result;
}

} // namespace

KeyDeed DeedOf(const QKeyEvent& key, bool rightToLeft)
{
    if (IsTyped(key)) {
        return {Deed::Type, Move::None, WithLamAlefApart(key.text())};
    }
    // The toolkit binds no standard key to it. Shift may still be down from a capital.
    const Qt::KeyboardModifiers besideShift =
        key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (key.key() == Qt::Key_Backspace && !besideShift) {
        return {Deed::Erase, Move::PreviousUnit, {}};
    }
    for (const Binding& binding : bindings) {
        if (key.matches(binding.keys)) {
            const bool arrow = key.key() == Qt::Key_Left || key.key() == Qt::Key_Right;
            return {binding.deed, arrow && rightToLeft ? Mirrored(binding.move) : binding.move, {}};
        }
    }
    return {};
}

} // namespace keyfluent::shell
