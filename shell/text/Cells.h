// Where the letters of a line stand: what the toolkit's own selections and caret places get wrong
// in text with vowel marks, in lam-alef and where the direction of the text changes.
#pragma once

#include "shell/text/TextFlow.h"

#include <vector>

namespace keyfluent::shell
{

// The place of one letter with its marks. Horizontal places are in the line's own pixels, with 0 at
// the left edge of the flow.
struct Cell {
    int position = 0;
    int length = 0; // units
    double left = 0;
    double right = 0;
    bool rightToLeft = false;

    int End() const { return position + length; }
    double Leading() const { return rightToLeft ? right : left; }
    double Trailing() const { return rightToLeft ? left : right; }
};

// The cells of the letters that have a unit in from..to, in the order of the text. Letters that
// share one sign, as lam and alef do, have an equal part of it each. No cell is for the line end.
std::vector<Cell> CellsOf(const FlowLine& line, int from, int to);

// The leading edge of the letter at position; at or behind the line's last letter the place where
// the next one will come.
double EdgeAt(const FlowLine& line, int position, const TextFlow& flow);

// The caret place nearest to x. It is on the line: where the text wraps, before the last letter.
int PositionAt(const FlowLine& line, double x);

} // namespace keyfluent::shell
