// The map between positions of a text and places of a document, edited at random. Four bytes are an
// edit: where, how much goes, how much comes, and what comes.
#include "shell/text/PositionMap.h"
#include "tests/fuzz/Target.h"

#include <algorithm>
#include <string>

namespace keyfluent::fuzz
{
namespace
{

using shell::DocumentPosition;
using shell::PositionMap;

constexpr std::size_t editSize = 4;
constexpr std::size_t longestText = 300;

std::u16string Inserted(std::uint8_t length, std::uint8_t draw)
{
    static constexpr std::u16string_view units = u"\r\n\r\na \u2028\u2029\u0644\u0627\u0691\xD83D";
    std::u16string text;
    std::size_t at = draw;
    for (int i = 0; i < length % 8; ++i) {
        text += units[at % units.size()];
        at = at * 5 + 1;
    }
    return text;
}

bool EndsParagraph(char16_t unit)
{
    return unit == u'\r' || unit == u'\n' || unit == u'\u2028' || unit == u'\u2029';
}

// The same question answered by reading the text from its start.
DocumentPosition PlaceByReading(const std::u16string& text, std::size_t position)
{
    DocumentPosition place;
    for (std::size_t at = 0; at < position;) {
        const bool pair = text.compare(at, 2, u"\r\n") == 0;
        if (pair && at + 1 == position) {
            break;
        }
        if (EndsParagraph(text[at])) {
            at += pair ? 2 : 1;
            ++place.paragraph;
            place.column = 0;
        } else {
            ++at;
            ++place.column;
        }
    }
    return place;
}

void CheckParagraphs(const PositionMap& map, const std::u16string& text)
{
    const PositionMap fresh(text);
    Require(map.Size() == static_cast<int>(text.size()), "the map is as long as the text");
    Require(map.ParagraphCount() == fresh.ParagraphCount(), "an edit leaves the right count");
    int next = 0;
    for (int i = 0; i < map.ParagraphCount(); ++i) {
        Require(map.ParagraphOf(i) == fresh.ParagraphOf(i), "an edit leaves the right paragraphs");
        Require(map.ParagraphOf(i).start == next, "paragraphs stand one behind the other");
        next = map.ParagraphOf(i).Next();
    }
    Require(next == static_cast<int>(text.size()), "paragraphs reach to the end");
}

void CheckPositions(const PositionMap& map, const std::u16string& text)
{
    for (std::size_t at = 0; at <= text.size(); ++at) {
        const int position = static_cast<int>(at);
        const DocumentPosition place = map.ToDocument(position);
        Require(place == PlaceByReading(text, at), "a position has the place that reading gives");
        const bool insidePair = at > 0 && text.compare(at - 1, 2, u"\r\n") == 0;
        Require(map.ToText(place) == (insidePair ? position - 1 : position),
                "a place leads back to its position");
        Require(map.CaretPlace(position) == map.ToText(place), "the caret stands at its place");
    }
    const DocumentPosition last = map.ToDocument(map.Size());
    Require(map.ToDocument(-1) == DocumentPosition{}, "before the text is its start");
    Require(map.ToDocument(map.Size() + 1) == last, "behind the text is its end");
    Require(map.ToText({-1, -1}) == 0 && map.ToText({last.paragraph + 1, 1 << 20}) == map.Size(),
            "places beyond the document are limited to it");
}

void CheckLineEnds(const std::u16string& text)
{
    const PositionMap map(text);
    for (const std::u16string_view lineEnd : {u"\r\n", u"\n"}) {
        const std::u16string even = shell::WithLineEnds(text, lineEnd);
        const PositionMap other(even);
        Require(other.ParagraphCount() == map.ParagraphCount(), "line ends are as many");
        for (int i = 0; i < map.ParagraphCount(); ++i) {
            Require(other.ParagraphOf(i).length == map.ParagraphOf(i).length,
                    "what stands between line ends is as it was");
        }
        Require(shell::WithLineEnds(even, lineEnd) == even, "even line ends stay as they are");
    }
}

} // namespace
} // namespace keyfluent::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace keyfluent;
    std::u16string text;
    shell::PositionMap map;
    for (std::size_t at = 0; at + fuzz::editSize <= size; at += fuzz::editSize) {
        const std::size_t position = data[at] % (text.size() + 1);
        const auto removed = std::min<std::size_t>(data[at + 1] % 16, text.size() - position);
        const bool full = text.size() > fuzz::longestText;
        const std::u16string inserted =
            full ? std::u16string() : fuzz::Inserted(data[at + 2], data[at + 3]);
        text.replace(position, removed, inserted);
        map.Replace(text, static_cast<int>(position), static_cast<int>(removed),
                    static_cast<int>(inserted.size()));
        fuzz::CheckParagraphs(map, text);
    }
    fuzz::CheckPositions(map, text);
    fuzz::CheckLineEnds(text);
    return 0;
}
