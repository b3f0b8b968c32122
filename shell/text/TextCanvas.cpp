#include "shell/text/TextCanvas.h"

#include "shell/text/Cells.h"

#include <algorithm>
#include <cmath>

namespace keyfluent::shell
{
namespace
{

constexpr int caretWidth = 2;
constexpr int thumbWidth = 3;
constexpr int leastThumbLength = 12;
constexpr int leastPageHeight = 48; // a lower field is for one row, whatever its font
constexpr int leastPixelSize = 8;   // of a font made smaller to fit a low field
// A letter without a width of its own is still seen to be selected.
constexpr int leastCellWidth = 3;

} // namespace

TextCanvas::TextCanvas(const QFont& base) : base_(base)
{
    Reflow();
}

bool TextCanvas::Resize(QSize size)
{
    if (size == size_) {
        return false;
    }
    size_ = size;
    Reflow();
    return true;
}

bool TextCanvas::SetLook(int points, bool rightToLeft)
{
    if (points == points_ && rightToLeft == flow_.RightToLeft()) {
        return false;
    }
    points_ = points;
    flow_.SetLook(font_, flow_.Width(), rightToLeft);
    Reflow();
    return true;
}

bool TextCanvas::FitHeight(int height)
{
    if (height == fitHeight_) {
        return false;
    }
    fitHeight_ = height;
    Reflow();
    return true;
}

void TextCanvas::ChooseFont()
{
    const bool rightToLeft = flow_.RightToLeft();
    const int room = (fitHeight_ > 0 ? fitHeight_ : size_.height()) - 2 * frameWidth;
    font_ = FieldFont(base_, points_, rightToLeft);
    measures_ = MeasuresOf(font_, rightToLeft);
    while (measures_.inkTop + measures_.inkBottom > room && font_.pixelSize() > leastPixelSize) {
        font_.setPixelSize(font_.pixelSize() - 1);
        measures_ = MeasuresOf(font_, rightToLeft);
    }
}

// Whole lines only, and what is left of the height is given to them.
void TextCanvas::Reflow()
{
    ChooseFont();
    const QRect inside = Inside();
    flow_.SetLook(font_, inside.width() - 2 * sidePadding - measures_.blank, flow_.RightToLeft());
    const int height = inside.height() - 2 * topPadding;
    const int tallest = measures_.height * 5 / 4;
    rows_ = size_.height() < leastPageHeight ? 1 : std::max(height / measures_.height, 1);
    rowHeight_ = std::clamp(height / rows_, 1, tallest);
    const int left = rows_ == 1 ? height - rowHeight_ : height - rows_ * rowHeight_;
    firstTop_ = inside.top() + topPadding + (rows_ == 1 || left < rows_ ? left / 2 : 0);
    LimitTopLine();
    allDamaged_ = true;
}

TextChange TextCanvas::SetText(std::u16string_view text)
{
    const std::u16string_view shown = flow_.Text();
    const auto differs = std::mismatch(shown.begin(), shown.end(), text.begin(), text.end()).first;
    const auto start = static_cast<std::size_t>(differs - shown.begin());
    const std::size_t most = std::min(shown.size(), text.size()) - start;
    const auto tail = static_cast<std::size_t>(
        std::mismatch(shown.rbegin(), shown.rbegin() + static_cast<std::ptrdiff_t>(most),
                      text.rbegin())
            .first -
        shown.rbegin());

    TextChange change;
    change.position = static_cast<int>(start);
    change.removed = shown.substr(start, shown.size() - tail - start);
    change.inserted = text.substr(start, text.size() - tail - start);
    if (!change.Empty()) {
        Replace(change.position, static_cast<int>(change.removed.size()), change.inserted);
    }
    return change;
}

void TextCanvas::Replace(int position, int removed, std::u16string_view inserted)
{
    damagedLines_.push_back(flow_.Replace(position, removed, inserted));
    Select(anchor_, caret_);
    LimitTopLine();
}

void TextCanvas::Select(int anchor, int caret)
{
    anchor_ = std::clamp(anchor, 0, Size());
    caret_ = std::clamp(caret, 0, Size());
}

void TextCanvas::Underline(int start, int length)
{
    underlineStart_ = start;
    underlineLength_ = length;
}

void TextCanvas::Follow(int position, int context)
{
    const int line = flow_.LineOf(position);
    const int room = std::clamp(context, 0, (rows_ - 1) / 2);
    topLine_ = std::clamp(topLine_, line + room - rows_ + 1, line - room);
    LimitTopLine();
}

void TextCanvas::ScrollBy(int lines)
{
    topLine_ += lines;
    LimitTopLine();
}

void TextCanvas::LimitTopLine()
{
    topLine_ = std::max(topLine_, 0);
    if (topLine_ > 0 && !flow_.HasLine(topLine_ + rows_ - 1)) {
        topLine_ = std::max(flow_.LineAt(topLine_ + rows_).index - rows_ + 1, 0);
    }
}

QRegion TextCanvas::TakeDamage()
{
    QRegion damage;
    for (const LineRange& range : damagedLines_) {
        const int first = std::max(range.first - topLine_, 0);
        const int last = std::min(range.last - topLine_, rows_ - 1);
        if (first <= last) {
            damage += RowRect(first).united(RowRect(last));
        }
    }
    damagedLines_.clear();

    const QRegion selection = RegionOf(SelectionStart(), SelectionEnd());
    damage += selection.xored(shownSelection_);
    shownSelection_ = selection;
    AddChange(damage, shownCaret_, caretShown_ ? CaretRect(caret_) : QRect());
    AddChange(damage, shownThumb_, ThumbRect());
    if (allDamaged_ || topLine_ != shownTopLine_) {
        damage = QRect(QPoint(0, 0), size_);
    }
    allDamaged_ = false;
    shownTopLine_ = topLine_;
    return damage;
}

void TextCanvas::AddChange(QRegion& damage, QRect& shown, const QRect& now)
{
    if (now != shown) {
        damage += now;
        damage += shown;
        shown = now;
    }
}

void TextCanvas::Paint(QPainter& painter, const QRegion& region)
{
    const QRect inside = Inside();
    painter.fillRect(region.boundingRect(), fieldPaper);
    if (!inside.contains(region.boundingRect())) {
        for (const QRect& side : QRegion(QRect(QPoint(0, 0), size_)) - inside) {
            painter.fillRect(side, fieldFrame);
        }
    }
    painter.setClipRect(inside);
    PaintRows(painter, region, fieldInk);
    PaintUnderline(painter);
    // The selected letters are painted over in their own ink and cut out by their places: colouring
    // them by a format would part them from the letters they join.
    const QRegion selection = shownSelection_ & region;
    if (!selection.isEmpty()) {
        painter.setClipRegion(selection & inside);
        painter.fillRect(selection.boundingRect(), selectedPaper);
        PaintRows(painter, selection, selectedInk);
        painter.setClipRect(inside);
    }
    painter.fillRect(shownCaret_, fieldInk);
    painter.fillRect(shownThumb_, fieldThumb);
    painter.setClipping(false);
}

void TextCanvas::PaintRows(QPainter& painter, const QRegion& region, const QColor& ink)
{
    painter.setPen(ink);
    for (int row = 0; row < rows_ && flow_.HasLine(topLine_ + row); ++row) {
        const QRect rect = RowRect(row);
        const FlowLine line = flow_.LineAt(topLine_ + row);
        if (line.layout && region.intersects(rect)) {
            line.line.draw(&painter, {OriginX(), BaseLine(rect) - line.line.ascent()});
        }
    }
}

void TextCanvas::PaintUnderline(QPainter& painter)
{
    if (underlineLength_ == 0) {
        return;
    }
    for (const QRect& rect : RegionOf(underlineStart_, underlineStart_ + underlineLength_)) {
        painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    }
}

int TextCanvas::PositionAt(QPointF point)
{
    const int row = static_cast<int>(std::floor((point.y() - firstTop_) / rowHeight_));
    const FlowLine line = flow_.LineAt(topLine_ + std::clamp(row, 0, rows_ - 1));
    return keyfluent::shell::PositionAt(line, point.x() - OriginX());
}

QRect TextCanvas::CaretRect(int position)
{
    const int index = flow_.LineOf(position);
    if (index < topLine_ || index >= topLine_ + rows_) {
        return {};
    }
    const QRect row = RowRect(index - topLine_);
    const double edge = OriginX() + EdgeAt(flow_.LineAt(index), position, flow_);
    const int left = qRound(edge) - (flow_.RightToLeft() ? 0 : 1);
    return QRect(left, row.top() + 1, caretWidth, row.height() - 2) & Inside();
}

QRect TextCanvas::ThumbRect() const
{
    const int lines = flow_.ApproximateLineCount();
    const int hidden = lines - rows_;
    if (rows_ == 1 || hidden <= 0) {
        return {};
    }
    const QRect track = Inside().adjusted(1, topPadding, -1, -topPadding);
    const int length = std::max(track.height() * rows_ / lines, leastThumbLength);
    const int above = (track.height() - length) * std::min(topLine_, hidden) / hidden;
    const int left = flow_.RightToLeft() ? track.left() : track.right() + 1 - thumbWidth;
    return {left, track.top() + above, thumbWidth, length};
}

QRect TextCanvas::LetterRect(int position)
{
    return RegionOf(position, position + 1).boundingRect();
}

QRect TextCanvas::Inside() const
{
    return QRect(QPoint(0, 0), size_).adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth);
}

QRect TextCanvas::RowRect(int row) const
{
    const QRect inside = Inside();
    return QRect(inside.left(), firstTop_ + row * rowHeight_, inside.width(), rowHeight_);
}

double TextCanvas::BaseLine(const QRect& row) const
{
    const int space = row.height() - measures_.inkTop - measures_.inkBottom;
    return row.top() + std::floor(space / 2.0) + measures_.inkTop;
}

double TextCanvas::OriginX() const
{
    // Room for the blank that a wrapped line may end with.
    return frameWidth + sidePadding + (flow_.RightToLeft() ? measures_.blank : 0);
}

QRegion TextCanvas::RegionOf(int from, int to)
{
    QRegion region;
    if (from >= to) {
        return region;
    }
    for (int row = 0; row < rows_ && flow_.HasLine(topLine_ + row); ++row) {
        const FlowLine line = flow_.LineAt(topLine_ + row);
        if (line.start < to && line.end + line.lineEnd > from) {
            AddLineRects(region, line, from, to);
        }
    }
    return region;
}

void TextCanvas::AddLineRects(QRegion& region, const FlowLine& line, int from, int to) const
{
    const QRect row = RowRect(line.index - topLine_);
    for (const Cell& cell : CellsOf(line, from, to)) {
        region += CellRect(row, cell.left, cell.right);
    }
    // A selected line end shows as a blank.
    if (line.lineEnd > 0 && line.end + line.lineEnd > from && line.end < to) {
        const double edge = EdgeAt(line, line.end, flow_);
        const double other = edge + (flow_.RightToLeft() ? -measures_.blank : measures_.blank);
        region += CellRect(row, std::min(edge, other), std::max(edge, other));
    }
}

QRect TextCanvas::CellRect(const QRect& row, double left, double right) const
{
    const int from = qRound(OriginX() + left);
    const int width = std::max(qRound(OriginX() + right) - from, leastCellWidth);
    return QRect(from, row.top(), width, row.height()) & Inside();
}

} // namespace keyfluent::shell
