// The lines of a text at a width. Text is laid out in pieces that end where a line ends: a piece is
// a paragraph or, in a long one, a few of its lines, so that the cost of an edit stays that of a
// piece however long its paragraph is. What nobody has looked at yet is not laid out.
#pragma once

#include "shell/text/PositionMap.h"

#include <QFont>
#include <QTextLayout>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::shell
{

// One line on show. Valid until the flow changes.
struct FlowLine {
    int index = 0;
    int start = 0;   // position of its first unit
    int end = 0;     // position behind its last unit, without a line end
    int lineEnd = 0; // units of the line end behind it, 0 where the text wraps or ends
    bool wraps = false;
    const QTextLayout* layout = nullptr; // of its piece
    QTextLine line;                      // in layout
    int base = 0;                        // position of the layout's first unit
};

// Lines that look different after a change: first to last, or to the end of the text.
struct LineRange {
    static constexpr int toEnd = 1 << 30;

    int first = 0;
    int last = -1;

    bool Empty() const { return last < first; }
};

class TextFlow
{
public:
    // Lines begin at x = 0 and are aligned to the left edge, or to the right edge at width. Blanks
    // at a line's end may stand beyond the other edge. Drops the layout.
    void SetLook(const QFont& font, double width, bool rightToLeft);

    const std::u16string& Text() const { return text_; }
    const PositionMap& Map() const { return map_; }
    bool RightToLeft() const { return rightToLeft_; }
    double Width() const { return width_; }

    LineRange Replace(int position, int removed, std::u16string_view inserted);

    // The line that the caret place position stands on; at a wrap the lower one.
    int LineOf(int position);
    bool HasLine(int index);
    // index 0 to the last line; beyond them the nearest one.
    FlowLine LineAt(int index);

    // Lines of the whole text, guessed for what is not laid out.
    int ApproximateLineCount() const;

private:
    struct Piece {
        int start = 0;
        int length = 0;  // without the line end
        int lineEnd = 0; // of the paragraph where the piece is its last
        int firstLine = 0;
        int lines = 0;
        bool wraps = false; // its paragraph goes on
        std::unique_ptr<QTextLayout> layout;

        int Next() const { return start + length + lineEnd; }
    };
    // What an edit may have changed: the pieces from the edit on, as they were before it.
    struct Former {
        std::vector<Piece> pieces;
        std::optional<int> next;
        std::size_t resumed = 0; // the first of pieces that still holds; all behind it do, too
    };

    bool Finished() const { return !next_; }
    int LaidLines() const;
    int PieceAt(int position) const;
    int FirstPieceToLayAgain(int position) const;
    void LayNextPiece();
    Piece MakePiece(int start, int window) const;
    Former TakePieces(int position);
    void LayAgain(Former& former, int position, int removed, int delta);
    bool CutWhereOneHolds(Former& former, int delta);
    void Resume(Former& former, int delta);
    LineRange Compare(const Former& former, std::size_t first, std::size_t last, int position,
                      int removed, int delta) const;

    std::u16string text_;
    PositionMap map_;
    QFont font_;
    double width_ = 100;
    bool rightToLeft_ = false;
    std::vector<Piece> pieces_;   // of the text from its start on
    std::optional<int> next_ = 0; // where the first text stands that is not laid out
};

} // namespace keyfluent::shell
