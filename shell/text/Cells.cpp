#include "shell/text/Cells.h"

#include <QGlyphRun>

#include <algorithm>
#include <cmath>
#include <deque>

namespace keyfluent::shell
{
namespace
{

// A letter as the font draws it.
struct Sign {
    Cell cell;
    quint32 glyph = 0;
    QPointF place; // of the glyph
    bool hasGlyph = false;
};

int NextLetter(const FlowLine& line, int position)
{
    return std::min(line.base + line.layout->nextCursorPosition(position - line.base), line.end);
}

int PreviousLetter(const FlowLine& line, int position)
{
    return std::max(line.base + line.layout->previousCursorPosition(position - line.base),
                    line.start);
}

Sign Measure(const FlowLine& line, int position, int length)
{
    Sign sign;
    sign.cell.position = position;
    sign.cell.length = length;
    const QList<QGlyphRun> runs = line.line.glyphRuns(position - line.base, length);
    for (const QGlyphRun& run : runs) {
        const QRectF box = run.boundingRect();
        if (!sign.hasGlyph) {
            sign.cell.left = box.left();
            sign.cell.right = box.right();
            sign.cell.rightToLeft = run.isRightToLeft();
        }
        sign.cell.left = std::min(sign.cell.left, box.left());
        sign.cell.right = std::max(sign.cell.right, box.right());
        if (!sign.hasGlyph && !run.glyphIndexes().isEmpty()) {
            sign.glyph = run.glyphIndexes().constFirst();
            sign.place = run.positions().constFirst();
            sign.hasGlyph = true;
        }
    }
    if (runs.isEmpty()) { // a tab
        const double one = line.line.cursorToX(position - line.base);
        const double other = line.line.cursorToX(position - line.base + length);
        sign.cell.left = std::min(one, other);
        sign.cell.right = std::max(one, other);
        sign.cell.rightToLeft = other < one;
    }
    return sign;
}

// An alef of lam-alef has no width of its own in some faces; in others both letters are one sign.
bool SharesSign(const FlowLine& line, const Sign& first, const Sign& second)
{
    if (!first.hasGlyph || !second.hasGlyph) {
        return false;
    }
    const QChar letter = line.layout->text().at(second.cell.position - line.base);
    const bool flat = second.cell.right - second.cell.left < 0.01;
    return (flat && letter.isLetter()) ||
           (first.glyph == second.glyph && first.place == second.place);
}

void ShareOut(const FlowLine& line, std::deque<Sign>& signs, std::size_t first, std::size_t last)
{
    const int start = signs[first].cell.position;
    const Cell whole = Measure(line, start, signs[last].cell.End() - start).cell;
    const double part = (whole.right - whole.left) / static_cast<double>(last - first + 1);
    for (std::size_t i = first; i <= last; ++i) {
        const auto before = static_cast<double>(i - first);
        Cell& cell = signs[i].cell;
        cell.rightToLeft = whole.rightToLeft;
        cell.left =
            whole.rightToLeft ? whole.right - (before + 1) * part : whole.left + before * part;
        cell.right = cell.left + part;
    }
}

} // namespace

std::vector<Cell> CellsOf(const FlowLine& line, int from, int to)
{
    std::vector<Cell> cells;
    if (!line.layout || from >= line.end || to <= line.start) {
        return cells;
    }
    int start = std::max(from, line.start);
    if (!line.layout->isValidCursorPosition(start - line.base)) {
        start = PreviousLetter(line, start);
    }
    const int end = std::min(to, line.end);

    std::deque<Sign> signs;
    const auto measure = [&line](int at, int next) { return Measure(line, at, next - at); };
    const auto next = [&line](int at) { return std::max(NextLetter(line, at), at + 1); };
    for (int at = start; at < end; at = next(at)) {
        signs.push_back(measure(at, next(at)));
    }
    // A sign that the letters asked for share with their neighbours is looked at whole.
    while (signs.front().cell.position > line.start) {
        const int at = signs.front().cell.position;
        signs.push_front(measure(PreviousLetter(line, at), at));
        if (!SharesSign(line, signs[0], signs[1])) {
            break;
        }
    }
    while (signs.back().cell.End() < line.end) {
        const int at = signs.back().cell.End();
        signs.push_back(measure(at, next(at)));
        if (!SharesSign(line, signs[signs.size() - 2], signs.back())) {
            break;
        }
    }
    for (std::size_t first = 0; first < signs.size();) {
        std::size_t last = first;
        while (last + 1 < signs.size() && SharesSign(line, signs[last], signs[last + 1])) {
            ++last;
        }
        if (last > first) {
            ShareOut(line, signs, first, last);
        }
        first = last + 1;
    }
    for (const Sign& sign : signs) {
        if (sign.cell.End() > from && sign.cell.position < to) {
            cells.push_back(sign.cell);
        }
    }
    return cells;
}

double EdgeAt(const FlowLine& line, int position, const TextFlow& flow)
{
    if (line.layout && position < line.end) {
        return CellsOf(line, position, position + 1).front().Leading();
    }
    const double length = line.layout ? line.line.naturalTextWidth() : 0;
    return flow.RightToLeft() ? flow.Width() - length : length;
}

int PositionAt(const FlowLine& line, double x)
{
    const std::vector<Cell> cells = CellsOf(line, line.start, line.end);
    if (cells.empty()) {
        return line.start;
    }
    const auto distance = [x](const Cell& cell) {
        return std::max({cell.left - x, x - cell.right, 0.0});
    };
    const Cell& nearest =
        *std::min_element(cells.begin(), cells.end(), [&](const Cell& one, const Cell& other) {
            return distance(one) < distance(other);
        });
    const bool behind = std::abs(x - nearest.Trailing()) < std::abs(x - nearest.Leading());
    const bool leavesLine = line.wraps && nearest.End() == line.end;
    return behind && !leavesLine ? nearest.End() : nearest.position;
}

} // namespace keyfluent::shell
