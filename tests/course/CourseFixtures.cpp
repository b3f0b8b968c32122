#include "CourseFixtures.h"

#include "context/Text.h"
#include "course/ExerciseRows.h"
#include "course/Lessons.h"

#include <string>
#include <utility>

namespace keyfluent::course::fixtures
{
namespace
{

// The places whose rows are single groups or words, each between blanks.
constexpr std::string_view englishGroups =
    " 1.1 1.2 1.3 1.4 2.1 2.2 2.4 3.1 3.3 4.1 5.1 5.2 5.3 6.1 6.2 7.1 7.2 8.1 8.3 9.2 10.2 11.1 "
    "11.2 12.1 ";
constexpr std::string_view arabicGroups = " 1.1 1.2 1.4 2.1 2.3 5.3 10.3 11.1 11.2 12.1 ";

std::vector<Place> Places(bool withSpecial)
{
    std::vector<Place> places;
    for (const bool arabic : {false, true}) {
        for (int lesson = 1; lesson <= lessonCount; ++lesson) {
            for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
                if (withSpecial || !IsSpecialExercise(lesson, exercise, arabic)) {
                    places.push_back({arabic, lesson, exercise});
                }
            }
        }
    }
    return places;
}

std::string Numbers(const Place& place)
{
    return std::to_string(place.lesson) + "." + std::to_string(place.exercise);
}

} // namespace

const std::vector<Place>& TextPlaces()
{
    static const std::vector<Place> places = Places(false);
    return places;
}

const std::vector<Place>& AllPlaces()
{
    static const std::vector<Place> places = Places(true);
    return places;
}

std::vector<Row> RowsAt(const Place& place)
{
    ExerciseRows stored;
    std::uint8_t count = 0;
    GetExerciseRows(textKeyboard, place.lesson, place.exercise, place.arabic, count, stored);
    std::vector<Row> rows;
    for (int number = 1; number <= count; ++number) {
        rows.push_back(std::as_const(stored)[number]);
    }
    return rows;
}

Kind KindOf(const Place& place)
{
    if (place.lesson == lessonCount) {
        return Kind::Passage;
    }
    const std::string_view groups = place.arabic ? arabicGroups : englishGroups;
    const bool isGroups = groups.find(" " + Numbers(place) + " ") != std::string_view::npos;
    return isGroups ? Kind::GroupsAndWords : Kind::Lines;
}

std::string Name(const Place& place)
{
    return (place.arabic ? "Arabic " : "English ") + Numbers(place);
}

std::string Name(const Place& place, std::size_t number)
{
    const Row row = RowsAt(place).at(number - 1);
    return Name(place) + " row " + std::to_string(number) + " (" + std::to_string(row.size()) +
           " characters): " + context::ToUtf8(row);
}

Row Bare(Row row)
{
    if (row.ends_with(context::lineEndMark)) {
        row.remove_suffix(1);
    }
    return context::TrimBlanks(row);
}

std::vector<std::u16string> LinesAt(const Place& place)
{
    std::u16string text;
    for (const Row row : RowsAt(place)) {
        text += row;
    }
    std::vector<std::u16string> lines(1);
    for (const char16_t character : text) {
        if (character == context::lineEndMark) {
            lines.emplace_back();
        } else if (character != u'\r' && character != u'\n') {
            lines.back() += character;
        }
    }
    if (lines.back().empty()) {
        lines.pop_back();
    }
    for (std::u16string& line : lines) {
        line = std::u16string(context::TrimBlanks(line));
    }
    return lines;
}

std::vector<std::u16string> TokensAt(const Place& place)
{
    std::vector<std::u16string> tokens;
    for (const std::u16string& line : LinesAt(place)) {
        bool inside = false;
        for (const char16_t character : line) {
            if (character == u' ') {
                inside = false;
            } else if (inside) {
                tokens.back() += character;
            } else {
                tokens.emplace_back(1, character);
                inside = true;
            }
        }
    }
    return tokens;
}

std::vector<std::u16string> WordsIn(std::u16string_view line)
{
    std::vector<std::u16string> words;
    std::u16string word;
    const auto close = [&] {
        while (word.ends_with(u'\'')) {
            word.pop_back();
        }
        if (!word.empty()) {
            words.push_back(word);
        }
        word.clear();
    };
    for (const char16_t character : line) {
        const bool inside = character == u'\'' && !word.empty();
        if (inside || IsEnglishLetter(character) || IsArabicLetter(character)) {
            word += character;
        } else {
            close();
        }
    }
    close();
    return words;
}

bool IsEnglishLetter(char16_t character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

bool IsArabicLetter(char16_t character)
{
    return character >= u'ء' && character <= u'ي' && character != u'\u0640';
}

bool IsDigit(char16_t character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace keyfluent::course::fixtures
