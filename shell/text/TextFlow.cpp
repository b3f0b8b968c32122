#include "shell/text/TextFlow.h"

#include "shell/platform/TextConversion.h"

#include <QTextOption>

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

// Units of a paragraph that are laid out together, a few lines of a field.
constexpr int pieceUnits = 256;

// Pieces laid out behind an edit in the hope that their lines fall in with the lines of before.
// Beyond them the text is laid out when it is looked at.
constexpr int piecesBehindEdit = 2;

std::unique_ptr<QTextLayout> LayOut(std::u16string_view text, const QFont& font, double width,
                                    bool rightToLeft)
{
    auto layout = std::make_unique<QTextLayout>(ToQString(text), font);
    QTextOption option;
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment((rightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
    // Without the flag the places of the letters are off by the blank's width in wrapped
    // right-to-left lines.
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, 0});
    }
    layout->endLayout();
    return layout;
}

// A line as the units from start to next stand on it.
struct Extent {
    int start;
    int next;
    bool wraps;
};

int StartOfLine(int pieceStart, const QTextLayout* layout, int line)
{
    return pieceStart + (line == 0 ? 0 : layout->lineAt(line).textStart());
}

template <typename Iterator> std::vector<Extent> ExtentsOf(Iterator piece, Iterator last)
{
    std::vector<Extent> extents;
    for (; piece != last; ++piece) {
        for (int line = 0; line < piece->lines; ++line) {
            const bool lastLine = line + 1 == piece->lines;
            extents.push_back({StartOfLine(piece->start, piece->layout.get(), line),
                               lastLine ? piece->Next()
                                        : StartOfLine(piece->start, piece->layout.get(), line + 1),
                               !lastLine || piece->wraps});
        }
    }
    return extents;
}

} // namespace

void TextFlow::SetLook(const QFont& font, double width, bool rightToLeft)
{
    font_ = font;
    width_ = std::max(width, 1.0);
    rightToLeft_ = rightToLeft;
    pieces_.clear();
    next_ = 0;
}

LineRange TextFlow::Replace(int position, int removed, std::u16string_view inserted)
{
    position = std::clamp(position, 0, static_cast<int>(text_.size()));
    removed = std::clamp(removed, 0, static_cast<int>(text_.size()) - position);
    if (removed == 0 && inserted.empty()) {
        return {};
    }
    const int delta = static_cast<int>(inserted.size()) - removed;

    Former former = TakePieces(position);
    text_.replace(static_cast<std::size_t>(position), static_cast<std::size_t>(removed), inserted);
    map_.Replace(text_, position, removed, static_cast<int>(inserted.size()));

    const std::size_t first = pieces_.size();
    LayAgain(former, position, removed, delta);
    const std::size_t last = pieces_.size();
    if (former.resumed < former.pieces.size()) {
        Resume(former, delta);
    }
    return Compare(former, first, last, position, removed, delta);
}

TextFlow::Former TextFlow::TakePieces(int position)
{
    const auto first = pieces_.begin() + FirstPieceToLayAgain(position);
    Former former;
    former.pieces.assign(std::make_move_iterator(first), std::make_move_iterator(pieces_.end()));
    former.next = next_;
    former.resumed = former.pieces.size();
    pieces_.erase(first, pieces_.end());
    if (!former.pieces.empty()) {
        next_ = former.pieces.front().start;
    }
    return former;
}

// A word at the start of a line may now fit on the line above, and a CR and a LF may have come
// together or have parted.
int TextFlow::FirstPieceToLayAgain(int position) const
{
    if (pieces_.empty()) {
        return 0;
    }
    const int index = PieceAt(std::max(position - 1, 0));
    const Piece& piece = pieces_[static_cast<std::size_t>(index)];
    const bool onFirstLine =
        piece.lines < 2 || position <= StartOfLine(piece.start, piece.layout.get(), 1);
    const bool follows = index > 0 && pieces_[static_cast<std::size_t>(index - 1)].wraps;
    return onFirstLine && follows ? index - 1 : index;
}

void TextFlow::LayAgain(Former& former, int position, int removed, int delta)
{
    const auto holds =
        std::find_if(former.pieces.begin(), former.pieces.end(),
                     [&](const Piece& piece) { return piece.start >= position + removed; });
    former.resumed = static_cast<std::size_t>(holds - former.pieces.begin());
    int behind = 0;
    while (next_ && behind <= piecesBehindEdit) {
        LayNextPiece();
        if (CutWhereOneHolds(former, delta)) {
            return;
        }
        behind += next_.value_or(0) > position ? 1 : 0;
    }
    former.resumed = former.pieces.size();
}

// True where the last piece laid out, cut short if need be, ends where a former one starts.
bool TextFlow::CutWhereOneHolds(Former& former, int delta)
{
    Piece& piece = pieces_.back();
    for (std::size_t& i = former.resumed; i < former.pieces.size(); ++i) {
        const int start = former.pieces[i].start + delta;
        if (next_ && start == *next_) {
            return true;
        }
        if (start >= piece.Next()) {
            return false;
        }
        for (int line = 1; line < piece.lines; ++line) {
            if (StartOfLine(piece.start, piece.layout.get(), line) == start) {
                piece.lines = line;
                piece.length = start - piece.start;
                piece.lineEnd = 0;
                piece.wraps = true;
                next_ = start;
                return true;
            }
        }
    }
    return false;
}

void TextFlow::Resume(Former& former, int delta)
{
    next_ = former.next ? std::optional(*former.next + delta) : std::nullopt;
    for (std::size_t i = former.resumed; i < former.pieces.size(); ++i) {
        Piece& piece = former.pieces[i];
        piece.start += delta;
        piece.firstLine = LaidLines();
        pieces_.push_back(std::move(piece));
    }
}

// The lines of pieces first to last, last excluded, beside those that stood there before.
LineRange TextFlow::Compare(const Former& former, std::size_t first, std::size_t last, int position,
                            int removed, int delta) const
{
    const auto at = [](const std::vector<Piece>& pieces, std::size_t index) {
        return pieces.begin() + static_cast<std::ptrdiff_t>(index);
    };
    const auto before = ExtentsOf(former.pieces.begin(), at(former.pieces, former.resumed));
    const auto after = ExtentsOf(at(pieces_, first), at(pieces_, last));
    const int count = static_cast<int>(std::min(before.size(), after.size()));

    const auto untouched = [&](const Extent& one, const Extent& other) {
        return one.start == other.start && one.next == other.next && one.wraps == other.wraps &&
               (one.next < position || (one.next == position && !one.wraps));
    };
    const auto moved = [&](const Extent& one, const Extent& other) {
        return one.start >= position + removed && one.start + delta == other.start &&
               one.next + delta == other.next && one.wraps == other.wraps;
    };

    LineRange range;
    int same = 0;
    while (same < count && untouched(before[static_cast<std::size_t>(same)],
                                     after[static_cast<std::size_t>(same)])) {
        ++same;
    }
    range.first = same + (first < pieces_.size() ? pieces_[first].firstLine : LaidLines());
    const bool whole = former.resumed < former.pieces.size() || (Finished() && !former.next);
    if (before.size() != after.size() || !whole) {
        range.last = LineRange::toEnd;
        return range;
    }
    int left = count;
    while (left > same && moved(before[static_cast<std::size_t>(left - 1)],
                                after[static_cast<std::size_t>(left - 1)])) {
        --left;
    }
    range.last = range.first + left - same - 1;
    return range;
}

int TextFlow::LaidLines() const
{
    return pieces_.empty() ? 0 : pieces_.back().firstLine + pieces_.back().lines;
}

// The last piece that starts at position or before it.
int TextFlow::PieceAt(int position) const
{
    const auto after = std::upper_bound(pieces_.begin() + 1, pieces_.end(), position,
                                        [](int at, const Piece& next) { return at < next.start; });
    return static_cast<int>(after - pieces_.begin()) - 1;
}

void TextFlow::LayNextPiece()
{
    Piece piece = MakePiece(*next_, pieceUnits);
    piece.firstLine = LaidLines();
    const bool last = !piece.wraps && piece.lineEnd == 0;
    next_ = last ? std::nullopt : std::optional(piece.Next());
    pieces_.push_back(std::move(piece));
}

TextFlow::Piece TextFlow::MakePiece(int start, int window) const
{
    const Paragraph& paragraph = map_.ParagraphOf(map_.ParagraphAt(start));
    Piece piece;
    piece.start = start;
    piece.length = std::min(window, paragraph.End() - start);
    piece.lines = 1;
    if (piece.length > 0) {
        piece.layout =
            LayOut(std::u16string_view(text_).substr(static_cast<std::size_t>(start),
                                                     static_cast<std::size_t>(piece.length)),
                   font_, width_, rightToLeft_);
        piece.lines = piece.layout->lineCount();
    }
    if (start + piece.length == paragraph.End()) {
        piece.lineEnd = paragraph.lineEnd;
        return piece;
    }
    if (piece.lines == 1) {
        return MakePiece(start, 2 * window);
    }
    // More may fit on the last line than the window shows.
    --piece.lines;
    piece.length = piece.layout->lineAt(piece.lines).textStart();
    piece.wraps = true;
    return piece;
}

int TextFlow::LineOf(int position)
{
    const int at = std::clamp(position, 0, static_cast<int>(text_.size()));
    while (next_ && *next_ <= at) {
        LayNextPiece();
    }
    const Piece& piece = pieces_[static_cast<std::size_t>(PieceAt(at))];
    int line = piece.lines - 1;
    while (line > 0 && StartOfLine(piece.start, piece.layout.get(), line) > at) {
        --line;
    }
    return piece.firstLine + line;
}

bool TextFlow::HasLine(int index)
{
    while (next_ && LaidLines() <= index) {
        LayNextPiece();
    }
    return index < LaidLines();
}

FlowLine TextFlow::LineAt(int index)
{
    index = HasLine(std::max(index, 0)) ? std::max(index, 0) : LaidLines() - 1;
    const auto after =
        std::upper_bound(pieces_.begin() + 1, pieces_.end(), index,
                         [](int at, const Piece& next) { return at < next.firstLine; });
    const Piece& piece = *(after - 1);
    const int inPiece = index - piece.firstLine;
    const bool last = inPiece + 1 == piece.lines;

    FlowLine line;
    line.index = index;
    line.start = StartOfLine(piece.start, piece.layout.get(), inPiece);
    line.end = last ? piece.start + piece.length
                    : StartOfLine(piece.start, piece.layout.get(), inPiece + 1);
    line.lineEnd = last ? piece.lineEnd : 0;
    line.wraps = !last || piece.wraps;
    line.layout = piece.layout.get();
    line.base = piece.start;
    if (line.layout) {
        line.line = line.layout->lineAt(inPiece);
    }
    return line;
}

int TextFlow::ApproximateLineCount() const
{
    if (!next_) {
        return LaidLines();
    }
    constexpr int guessedUnits = 60;
    const int units = LaidLines() > 0 ? std::max(*next_ / LaidLines(), 1) : guessedUnits;
    return LaidLines() + (static_cast<int>(text_.size()) - *next_) / units + 1;
}

} // namespace keyfluent::shell
