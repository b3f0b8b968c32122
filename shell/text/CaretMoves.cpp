#include "shell/text/CaretMoves.h"

#include "shell/text/Cells.h"

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

enum class Class { Word, Blank, Sign, LineEnd };

Class ClassAt(const std::u16string& text, int position)
{
    const auto at = static_cast<std::size_t>(position);
    const QChar unit(text[at]);
    if (LineEndAt(text, position) > 0) {
        return Class::LineEnd;
    }
    if (unit.isSpace()) {
        return Class::Blank;
    }
    const bool word = unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate() ||
                      unit.category() == QChar::Other_Format || unit == QLatin1Char('_');
    return word ? Class::Word : Class::Sign;
}

const Paragraph& ParagraphAt(TextCanvas& canvas, int position)
{
    const PositionMap& map = canvas.Flow().Map();
    return map.ParagraphOf(map.ParagraphAt(position));
}

int NextLetter(TextCanvas& canvas, int from)
{
    const Paragraph& paragraph = ParagraphAt(canvas, from);
    if (from >= paragraph.End()) {
        return paragraph.Next();
    }
    const FlowLine line = canvas.Flow().LineAt(canvas.Flow().LineOf(from));
    const int next = line.base + line.layout->nextCursorPosition(from - line.base);
    return std::clamp(next, from + 1, line.end);
}

int EndOfParagraphBefore(TextCanvas& canvas, int start)
{
    return start == 0 ? 0 : ParagraphAt(canvas, start - 1).End();
}

int PreviousLetter(TextCanvas& canvas, int from)
{
    const int start = ParagraphAt(canvas, from).start;
    if (from <= start) {
        return EndOfParagraphBefore(canvas, start);
    }
    const FlowLine line = canvas.Flow().LineAt(canvas.Flow().LineOf(from - 1));
    const int previous = line.base + line.layout->previousCursorPosition(from - line.base);
    return std::clamp(previous, line.start, from - 1);
}

int PreviousUnit(TextCanvas& canvas, int from)
{
    const int start = ParagraphAt(canvas, from).start;
    if (from <= start) {
        return EndOfParagraphBefore(canvas, start);
    }
    const std::u16string& text = canvas.Text();
    const auto at = static_cast<std::size_t>(from);
    const bool pair = from - start > 1 && QChar::isLowSurrogate(text[at - 1]) &&
                      QChar::isHighSurrogate(text[at - 2]);
    return from - (pair ? 2 : 1);
}

int NextWord(TextCanvas& canvas, int from)
{
    const Paragraph& paragraph = ParagraphAt(canvas, from);
    if (from >= paragraph.End()) {
        return paragraph.Next();
    }
    const std::u16string& text = canvas.Text();
    int at = from;
    for (const Class here = ClassAt(text, at); at < paragraph.End() && ClassAt(text, at) == here;) {
        ++at;
    }
    while (at < paragraph.End() && ClassAt(text, at) == Class::Blank) {
        ++at;
    }
    return at;
}

int PreviousWord(TextCanvas& canvas, int from)
{
    const int start = ParagraphAt(canvas, from).start;
    if (from <= start) {
        return EndOfParagraphBefore(canvas, start);
    }
    const std::u16string& text = canvas.Text();
    int at = from;
    while (at > start && ClassAt(text, at - 1) == Class::Blank) {
        --at;
    }
    if (at == start) {
        return at;
    }
    for (const Class here = ClassAt(text, at - 1); at > start && ClassAt(text, at - 1) == here;) {
        --at;
    }
    return at;
}

// Behind the last letter of a line that wraps the caret would stand on the line below.
int EndOfLine(TextCanvas& canvas, int from)
{
    const FlowLine line = canvas.Flow().LineAt(canvas.Flow().LineOf(from));
    return line.wraps ? PreviousLetter(canvas, line.end) : line.end;
}

int LinesDown(TextCanvas& canvas, int from, int lines, double wantedX)
{
    const int here = canvas.Flow().LineOf(from);
    const FlowLine line = canvas.Flow().LineAt(here + lines);
    return line.index == here ? from : PositionAt(line, wantedX);
}

} // namespace

bool IsVertical(Move move)
{
    return move == Move::LineUp || move == Move::LineDown || move == Move::PageUp ||
           move == Move::PageDown;
}

int Destination(TextCanvas& canvas, Move move, int from, double wantedX)
{
    const int page = std::max(canvas.Rows() - 1, 1);
    switch (move) {
    case Move::NextLetter:
        return NextLetter(canvas, from);
    case Move::PreviousLetter:
        return PreviousLetter(canvas, from);
    case Move::PreviousUnit:
        return PreviousUnit(canvas, from);
    case Move::NextWord:
        return NextWord(canvas, from);
    case Move::PreviousWord:
        return PreviousWord(canvas, from);
    case Move::LineStart:
        return canvas.Flow().LineAt(canvas.Flow().LineOf(from)).start;
    case Move::LineEnd:
        return EndOfLine(canvas, from);
    case Move::LineUp:
        return LinesDown(canvas, from, -1, wantedX);
    case Move::LineDown:
        return LinesDown(canvas, from, 1, wantedX);
    case Move::PageUp:
        return LinesDown(canvas, from, -page, wantedX);
    case Move::PageDown:
        return LinesDown(canvas, from, page, wantedX);
    case Move::TextStart:
        return 0;
    case Move::TextEnd:
        return canvas.Size();
    case Move::None:
        break;
    }
    return from;
}

double HorizontalPlace(TextCanvas& canvas, int position)
{
    TextFlow& flow = canvas.Flow();
    return EdgeAt(flow.LineAt(flow.LineOf(position)), position, flow);
}

std::pair<int, int> WordAround(const TextCanvas& canvas, int position)
{
    const std::u16string& text = canvas.Text();
    if (position >= canvas.Size() || ClassAt(text, position) == Class::LineEnd) {
        if (position == 0 || ClassAt(text, position - 1) == Class::LineEnd) {
            return {position, position};
        }
        --position;
    }
    const Class here = ClassAt(text, position);
    int start = position;
    while (start > 0 && ClassAt(text, start - 1) == here) {
        --start;
    }
    int end = position;
    while (end < canvas.Size() && ClassAt(text, end) == here) {
        ++end;
    }
    return {start, end};
}

} // namespace keyfluent::shell
