#include "shell/text/PositionMap.h"

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

// Appends the paragraphs of text from position start on that end before position end, and returns
// where the next one starts.
int AppendParagraphs(std::vector<Paragraph>& paragraphs, std::u16string_view text, int start,
                     int end)
{
    int from = start;
    for (int at = start; at < end;) {
        const int lineEnd = LineEndAt(text, at);
        if (lineEnd == 0) {
            ++at;
            continue;
        }
        paragraphs.push_back({from, at - from, lineEnd});
        at += lineEnd;
        from = at;
    }
    return from;
}

} // namespace

int LineEndAt(std::u16string_view text, int position)
{
    const auto at = static_cast<std::size_t>(position);
    if (at >= text.size()) {
        return 0;
    }
    switch (text[at]) {
    case u'\r':
        return at + 1 < text.size() && text[at + 1] == u'\n' ? 2 : 1;
    case u'\n':
    case u'\u2028':
    case u'\u2029':
        return 1;
    default:
        return 0;
    }
}

std::u16string WithLineEnds(std::u16string_view text, std::u16string_view lineEnd)
{
    std::u16string result;
    result.reserve(text.size());
    const int size = static_cast<int>(text.size());
    for (int at = 0; at < size;) {
        if (const int units = LineEndAt(text, at)) {
            result += lineEnd;
            at += units;
        } else {
            result += text[static_cast<std::size_t>(at++)];
        }
    }
    return result;
}

void PositionMap::Reset(std::u16string_view text)
{
    const int size = static_cast<int>(text.size());
    paragraphs_.clear();
    const int last = AppendParagraphs(paragraphs_, text, 0, size);
    paragraphs_.push_back({last, size - last, 0});
}

void PositionMap::Replace(std::u16string_view text, int position, int removed, int inserted)
{
    const int delta = inserted - removed;
    // One unit more on both sides, as a CR and a LF may have come together or have parted. Only
    // paragraphs whose line end lies there can have changed their ends.
    const auto first = paragraphs_.begin() + ParagraphAt(std::max(position - 1, 0));
    const auto last = paragraphs_.begin() + ParagraphAt(std::min(position + removed, Size()));
    const int firstStart = first->start;
    const bool reachesEnd = last->lineEnd == 0;
    const int oldEnd = last->Next();

    // Line ends can only have come between these two places of the new text.
    const int lookFrom = std::max(std::min(position - 1, first->End()), firstStart);
    const int lookTo = std::min(position + inserted + 1, oldEnd + delta);
    std::vector<Paragraph> fresh;
    const int from = AppendParagraphs(fresh, text, lookFrom, lookTo);
    if (fresh.empty()) {
        fresh.push_back({firstStart, 0, 0});
    } else {
        fresh.front().length += fresh.front().start - firstStart;
        fresh.front().start = firstStart;
        if (from < oldEnd + delta || reachesEnd) {
            fresh.push_back({from, 0, 0});
        }
    }
    if (Paragraph& open = fresh.back(); open.lineEnd == 0) {
        open.lineEnd = reachesEnd ? 0 : last->lineEnd;
        open.length = oldEnd + delta - open.lineEnd - open.start;
    }

    for (auto it = last + 1; it != paragraphs_.end(); ++it) {
        it->start += delta;
    }
    const auto common = std::min<std::ptrdiff_t>(last + 1 - first, std::ssize(fresh));
    const auto rest = std::copy(fresh.begin(), fresh.begin() + common, first);
    if (common < std::ssize(fresh)) {
        paragraphs_.insert(rest, fresh.begin() + common, fresh.end());
    } else {
        paragraphs_.erase(rest, last + 1);
    }
}

int PositionMap::ParagraphAt(int position) const
{
    const auto after =
        std::upper_bound(paragraphs_.begin() + 1, paragraphs_.end(), position,
                         [](int at, const Paragraph& next) { return at < next.start; });
    return static_cast<int>(after - paragraphs_.begin()) - 1;
}

DocumentPosition PositionMap::ToDocument(int position) const
{
    const int at = std::clamp(position, 0, Size());
    const int index = ParagraphAt(at);
    const Paragraph& paragraph = ParagraphOf(index);
    return {index, std::min(at - paragraph.start, paragraph.length)};
}

int PositionMap::ToText(DocumentPosition place) const
{
    const Paragraph& paragraph = ParagraphOf(std::clamp(place.paragraph, 0, ParagraphCount() - 1));
    return paragraph.start + std::clamp(place.column, 0, paragraph.length);
}

} // namespace keyfluent::shell
