// What the tests of the course's content share: the places that hold a text, its rows, and how a
// failing row is named.
#pragma once

#include "course/texts/LessonTexts.h"

#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::course::fixtures
{

struct Place {
    bool arabic;
    int lesson;
    int exercise;

    auto operator<=>(const Place&) const = default;
};

// The 133 places with a text, in the order in which a student meets them, English first.
const std::vector<Place>& TextPlaces();
// All 150 places, those of the anagrams and the free texts too.
const std::vector<Place>& AllPlaces();

std::vector<Row> RowsAt(const Place& place);

enum class Kind {
    GroupsAndWords, // one group of keys or one word to a row
    Lines,          // lines of words or sentences, closed by the Return key
    Passage,        // one row with its line ends inside
};
Kind KindOf(const Place& place);

// "Arabic 9.2"
std::string Name(const Place& place);
// "Arabic 9.2 row 4 (114 characters): ..."; number counts from 1.
std::string Name(const Place& place, std::size_t number);

// The row without the mark and the blanks at its end.
Row Bare(Row row);

// The lines of a text as the student sees them on paper: rows that are cut are joined again,
// passages are divided at their line ends. Without marks, and without blanks at the end.
std::vector<std::u16string> LinesAt(const Place& place);

// What stands between blanks and marks, in order, punctuation included.
std::vector<std::u16string> TokensAt(const Place& place);

// The words of a text: runs of letters, with apostrophes inside them; a hyphen divides.
std::vector<std::u16string> WordsIn(std::u16string_view line);

bool IsEnglishLetter(char16_t character);
bool IsArabicLetter(char16_t character);
bool IsDigit(char16_t character);

} // namespace keyfluent::course::fixtures
