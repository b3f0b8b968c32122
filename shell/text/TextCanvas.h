// What a text field shows, apart from the widget it stands in: the text in whole lines, one
// selection, a caret, the part of the text that is in view, and which pixels have to be painted
// anew after a change. Rectangles are in the widget's pixels.
#pragma once

#include "shell/text/FieldLook.h"
#include "shell/text/TextFlow.h"

#include <QPainter>
#include <QRect>
#include <QRegion>

#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::shell
{

// removed has gone from position on, inserted stands there now.
struct TextChange {
    int position = 0;
    std::u16string removed;
    std::u16string inserted;

    bool Empty() const { return removed.empty() && inserted.empty(); }
};

class TextCanvas
{
public:
    // base as FieldFont takes it.
    explicit TextCanvas(const QFont& base);

    // These lay the text out anew and return true where they change anything.
    bool Resize(QSize size);
    bool SetLook(int points, bool rightToLeft);
    // Letters higher than a field of that height are drawn smaller, so that nothing of them is cut
    // off; 0 for the field's own height.
    bool FitHeight(int height);
    QFont Font() const { return font_; }

    const std::u16string& Text() const { return flow_.Text(); }
    int Size() const { return static_cast<int>(flow_.Text().size()); }
    TextFlow& Flow() { return flow_; }
    const TextFlow& Flow() const { return flow_; }

    // Changes the shortest stretch that makes the text equal to text.
    TextChange SetText(std::u16string_view text);
    // The selection stays where it is, limited to the text.
    void Replace(int position, int removed, std::u16string_view inserted);

    // Limited to the text. The caret stands at one end of the selection, the anchor at the other.
    void Select(int anchor, int caret);
    int Anchor() const { return anchor_; }
    int Caret() const { return caret_; }
    int SelectionStart() const { return std::min(anchor_, caret_); }
    int SelectionEnd() const { return std::max(anchor_, caret_); }
    bool HasSelection() const { return anchor_ != caret_; }
    void ShowCaret(bool shown) { caretShown_ = shown; }
    // Text that an input method is still composing is underlined.
    void Underline(int start, int length);

    // Lines that are seen at once, at least 1.
    int Rows() const { return rows_; }
    int TopLine() const { return topLine_; }
    // Scrolls as little as shows the line of position and, where there is room, context lines more
    // on both sides of it.
    void Follow(int position, int context);
    void ScrollBy(int lines);

    // What has to be painted since the last call; empty when nothing looks different.
    QRegion TakeDamage();
    void Paint(QPainter& painter, const QRegion& region);

    // The caret place nearest to a point of the widget.
    int PositionAt(QPointF point);
    // Empty when it is not in view.
    QRect CaretRect(int position);
    // A slim mark at the side where lines end, as long and as high up as the lines in view are
    // among all lines; empty where all are in view.
    QRect ThumbRect() const;
    // Of the letter with its marks, or of the line end, at position. Empty when not in view.
    QRect LetterRect(int position);

private:
    void ChooseFont();
    void Reflow();
    void LimitTopLine();
    QRect Inside() const;
    QRect RowRect(int row) const;
    double BaseLine(const QRect& row) const;
    double OriginX() const;
    // Rectangles of the units from..to that are in view.
    QRegion RegionOf(int from, int to);
    void AddLineRects(QRegion& region, const FlowLine& line, int from, int to) const;
    QRect CellRect(const QRect& row, double left, double right) const;
    static void AddChange(QRegion& damage, QRect& shown, const QRect& now);
    void PaintRows(QPainter& painter, const QRegion& region, const QColor& ink);
    void PaintUnderline(QPainter& painter);

    QFont base_;
    QFont font_;
    LineMeasures measures_;
    QSize size_;
    int points_ = 12;
    int fitHeight_ = 0;
    TextFlow flow_;

    int anchor_ = 0;
    int caret_ = 0;
    bool caretShown_ = false;
    int underlineStart_ = 0;
    int underlineLength_ = 0;

    int topLine_ = 0;
    int rows_ = 1;
    int rowHeight_ = 1;
    int firstTop_ = 0; // top of the first row

    // What the last call of TakeDamage left on the screen.
    bool allDamaged_ = true;
    std::vector<LineRange> damagedLines_;
    int shownTopLine_ = 0;
    QRegion shownSelection_;
    QRect shownCaret_;
    QRect shownThumb_;
};

} // namespace keyfluent::shell
