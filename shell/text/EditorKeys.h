// What the keys of an editable field do.
#pragma once

#include "shell/text/CaretMoves.h"

#include <QKeyEvent>

#include <string>

namespace keyfluent::shell
{

enum class Deed {
    None, // the key is not the field's
    Type,
    BreakLine,
    MoveCaret,
    ExtendSelection,
    Erase, // the selection, or as far as the move goes
    SelectAll,
    Copy,
    Cut,
    Paste,
    Undo,
    Redo,
};

struct KeyDeed {
    Deed deed = Deed::None;
    Move move = Move::None;
    std::u16string text; // of Type
};

// In a right-to-left field the left arrow goes on in the text and the right arrow goes back.
KeyDeed DeedOf(const QKeyEvent& key, bool rightToLeft);

} // namespace keyfluent::shell
