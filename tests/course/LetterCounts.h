// Which letters and pairs of letters the texts train, lesson by lesson, and the pairs that matter
// most in each language.
#pragma once

#include "CourseFixtures.h"

#include "course/Lessons.h"

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::course::fixtures
{

// Uses in lesson 1 to 15, [lesson - 1].
using UsesByLesson = std::array<int, lessonCount>;

int Total(const UsesByLesson& uses);

// Single characters and pairs of letters inside a word, by what they are; English capitals count
// as small letters in pairs, and as themselves alone.
std::map<std::u16string, UsesByLesson> CharacterUses(bool arabic);
std::map<std::u16string, UsesByLesson> PairUses(bool arabic);

// The hundred most frequent pairs of letters inside the words of running text, the most frequent
// first.
std::vector<std::u16string> FrequentPairs(bool arabic);

// docs/course-letters.md, whole.
std::string LetterDocument();

} // namespace keyfluent::course::fixtures
