// Where the caret goes: the steps of the movement keys, in the order of the text. What lies left
// and what right is the keys' affair.
#pragma once

#include "shell/text/TextCanvas.h"

#include <utility>

namespace keyfluent::shell
{

enum class Move {
    None,
    NextLetter,
    PreviousLetter,
    PreviousUnit, // a mark goes alone, a character of two units whole
    NextWord,
    PreviousWord,
    LineStart,
    LineEnd,
    LineUp,
    LineDown,
    PageUp,
    PageDown,
    TextStart,
    TextEnd,
};

bool IsVertical(Move move);

// The caret place that a step leads to. wantedX is the horizontal place that the vertical steps
// hold on to, in the line's own pixels.
int Destination(TextCanvas& canvas, Move move, int from, double wantedX);

// The horizontal place of a caret place.
double HorizontalPlace(TextCanvas& canvas, int position);

// Start and end of the word, of the stretch of blanks or of the stretch of signs at position.
std::pair<int, int> WordAround(const TextCanvas& canvas, int position);

} // namespace keyfluent::shell
