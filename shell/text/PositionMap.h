// Where the paragraphs of a text stand: the one place that turns a position of the string, where a
// line end is CR LF and counts two, into a place of the document, where it is a border between two
// paragraphs, and back. Free of widgets.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::shell
{

// A caret place: before the column-th unit of a paragraph, 0 to the paragraph's length.
struct DocumentPosition {
    int paragraph = 0;
    int column = 0;

    bool operator==(const DocumentPosition&) const = default;
};

// A text has one paragraph more than line ends. CR LF, CR alone, LF alone, U+2028 and U+2029 end
// one each.
struct Paragraph {
    int start = 0;
    int length = 0;  // without its line end
    int lineEnd = 0; // units of the line end behind it: 2, 1, or 0 for the last paragraph

    int End() const { return start + length; }
    int Next() const { return End() + lineEnd; }
    bool operator==(const Paragraph&) const = default;
};

class PositionMap
{
public:
    explicit PositionMap(std::u16string_view text = {}) { Reset(text); }

    void Reset(std::u16string_view text);

    // Follows one replacement. text is what stands after it; removed units have gone from position
    // on and inserted units stand there now. Looks only at what was inserted and at its neighbours.
    void Replace(std::u16string_view text, int position, int removed, int inserted);

    int Size() const { return paragraphs_.back().End(); }
    int ParagraphCount() const { return static_cast<int>(paragraphs_.size()); }
    const Paragraph& ParagraphOf(int index) const
    {
        return paragraphs_[static_cast<std::size_t>(index)];
    }
    // The paragraph that position stands in; a line end belongs to the paragraph before it.
    int ParagraphAt(int position) const;

    // Positions beyond the text are limited to it. A position between CR and LF is the one before
    // the CR.
    DocumentPosition ToDocument(int position) const;
    // A column beyond its paragraph is limited to it.
    int ToText(DocumentPosition place) const;
    // position, or the caret place before the line end that it stands inside of.
    int CaretPlace(int position) const { return ToText(ToDocument(position)); }

private:
    std::vector<Paragraph> paragraphs_;
};

// Units of the line end that begins at position: 2, 1, or 0 where none does.
int LineEndAt(std::u16string_view text, int position);

// Every line end of text becomes lineEnd.
std::u16string WithLineEnds(std::u16string_view text, std::u16string_view lineEnd);

} // namespace keyfluent::shell
