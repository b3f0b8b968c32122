// Whole exercises from the first key to the last: every place of the course on both keyboards, by a
// typist who never errs and by one who does all that a student may do.
#include "Typist.h"
#include "course/Aids.h"
#include "progress/Chooser.h"
#include "progress/StandardMarks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using course::SpecialKind;

constexpr std::int32_t kinds[] = {context::windowsKeyboard, context::macintoshKeyboard};

struct CoursePlace {
    int lesson;
    int exercise;
    bool arabic;
};

std::vector<CoursePlace> AllPlaces()
{
    std::vector<CoursePlace> places;
    for (int lesson = 1; lesson <= course::lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= course::exerciseCount; ++exercise) {
            places.push_back({lesson, exercise, true});
            places.push_back({lesson, exercise, false});
        }
    }
    return places;
}

SpecialKind KindOf(const CoursePlace& place)
{
    return course::SpecialKindOf(place.lesson, place.exercise, place.arabic);
}

std::string Named(const CoursePlace& place, std::int32_t kind)
{
    return std::string(place.arabic ? "Arabic " : "English ") + std::to_string(place.lesson) + "." +
           std::to_string(place.exercise) + (kind == 0 ? ", Macintosh" : ", Windows");
}

// A place chosen and its aids decided as the windows do it, and opened.
void Choose(LessonDriver& driver, const CoursePlace& place, std::int32_t kind)
{
    driver.context.keyboardKind = kind;
    driver.context.lessonNo = static_cast<std::uint8_t>(place.lesson);
    progress::LoadChooser(driver.context);
    progress::ChooseExercise(driver.context, static_cast<std::uint8_t>(place.exercise),
                             place.arabic);
    course::DecideAids(driver.context);
    driver.Open();
}

int KeptMark(const LessonDriver& driver, int lesson, int exercise, bool arabic)
{
    const int base = driver.context.keyboardKind == 0 ? 1 : 16;
    const int field = (arabic ? 0 : 5) + exercise - 1;
    return driver.context.studentTable.Record(base + lesson)[static_cast<std::size_t>(field)];
}

// Keys that a text wants: each of its characters, a line end one with its mark.
int KeysOf(const Lesson& lesson)
{
    int keys = 0;
    for (int number = 1; number <= lesson.rowCount; ++number) {
        for (const char16_t unit : lesson.exerciseRows[number]) {
            keys += unit == u'\r' || unit == u'\n' ? 0 : 1;
        }
    }
    return keys;
}

int MaximumOf(const CoursePlace& place)
{
    const int standard = progress::StandardMark(place.lesson, place.exercise, place.arabic);
    return standard == 0 ? 100 : standard;
}

// The mark with its bonus after an exercise of so many seconds.
int MarkWithBonus(int mark, bool speedCounts, double seconds)
{
    if (!speedCounts) {
        return mark;
    }
    const double bonus = std::nearbyint(mark / std::nearbyint(seconds) * 100) - mark;
    return mark + static_cast<int>(std::min(std::max(bonus, double(-mark)), double(mark)));
}

Events LastOf(const Events& events, std::size_t count)
{
    return count >= events.size() ? events
                                  : Events(events.end() - std::ptrdiff_t(count), events.end());
}

Events EndOf(const CoursePlace& place)
{
    return course::ChecksLate(place.lesson, place.exercise, place.arabic)
               ? Events{"focus txtOrigin", "HideCaret txtTest", "unload frmLesson",
                        "show frmResult"}
               : Events{"focus txtOrigin", "focus txtOrigin", "unload frmLesson", "show frmResult"};
}

class TypistsTest : public LessonFixture
{
};

TEST_F(TypistsTest, APerfectOneEndsEveryTextOfTheCourseWithItsFullMark)
{
    int texts = 0;
    for (const std::int32_t kind : kinds) {
        for (const CoursePlace& place : AllPlaces()) {
            if (KindOf(place) != SpecialKind::None) {
                continue;
            }
            ++texts;
            SCOPED_TRACE(Named(place, kind));
            Choose(*this, place, kind);
            const int keys = KeysOf(It());
            PerfectTypist typist(*this);
            ASSERT_TRUE(typist.TypeToTheEnd(keys)) << State();
            EXPECT_EQ(It().correctCount, keys);
            EXPECT_EQ(It().errorCount, 0);
            EXPECT_FALSE(It().reviewMode);
            EXPECT_EQ(It().currentRow, It().rowCount + 1);
            EXPECT_EQ(LastOf(TakeEvents(), 4), EndOf(place));
            EXPECT_TRUE(context.inExercise);
            EXPECT_EQ(context.accuracyMark, MaximumOf(place));
            const bool star = progress::HasSpeedBonus(place.lesson, place.exercise, place.arabic);
            const double seconds = (keys - 1) * 0.120;
            EXPECT_EQ(context.exerciseMark, MarkWithBonus(MaximumOf(place), star, seconds));
            EXPECT_EQ(KeptMark(*this, place.lesson, place.exercise, place.arabic),
                      context.exerciseMark);
        }
    }
    EXPECT_EQ(texts, 2 * 133);
}

TEST_F(TypistsTest, AClumsyOneEndsEveryTextOfTheCourse)
{
    std::uint32_t seed = 1;
    for (const std::int32_t kind : kinds) {
        for (const CoursePlace& place : AllPlaces()) {
            if (KindOf(place) != SpecialKind::None) {
                continue;
            }
            SCOPED_TRACE(Named(place, kind) + ", seed " + std::to_string(seed));
            context.studentTable = {};
            context.inExercise = false;
            Choose(*this, place, kind);
            const int keys = KeysOf(It());
            ClumsyTypist typist(*this, seed++, 25);
            ASSERT_TRUE(typist.TypeToTheEnd(40L * keys + 20000)) << State();
            const bool late = course::ChecksLate(place.lesson, place.exercise, place.arabic);
            if (!late) {
                EXPECT_EQ(It().correctCount, keys);
            } else if (place.lesson != course::lessonCount) {
                EXPECT_GE(It().correctCount + It().errorCount, keys);
            }
            const double percent = 100.0 * It().correctCount / It().totalCount;
            EXPECT_EQ(It().accuracyPercent, std::nearbyint(percent));
            EXPECT_EQ(context.accuracyMark,
                      std::nearbyint(It().accuracyPercent * (MaximumOf(place) / 100.0)));
            EXPECT_EQ(context.exerciseMark, context.accuracyMark + context.speedBonus);
            EXPECT_EQ(KeptMark(*this, place.lesson, place.exercise, place.arabic),
                      std::max(context.exerciseMark, 0));
            if (!It().reviewMode) {
                EXPECT_EQ(LastOf(TakeEvents(), 2), (Events{"unload frmLesson", "show frmResult"}));
                EXPECT_TRUE(context.inExercise);
            }
            machine.events.clear();
        }
    }
}

TEST_F(TypistsTest, AClumsyOneComesThroughTheReviewOfThePassages)
{
    int reviews = 0;
    for (std::uint32_t seed = 1000; seed < 1040; ++seed) {
        for (const bool arabic : {false, true}) {
            const CoursePlace place{15, 1 + static_cast<int>(seed % 2), arabic};
            SCOPED_TRACE(Named(place, kinds[0]) + ", seed " + std::to_string(seed));
            Choose(*this, place, kinds[seed / 2 % 2]);
            ClumsyTypist typist(*this, seed, 12);
            ASSERT_TRUE(typist.TypeToTheEnd(40000)) << State();
            reviews += It().reviewMode ? 1 : 0;
            machine.events.clear();
        }
    }
    EXPECT_GE(reviews, 20);
}

// The letters of a drill, in the script of its keys.
std::u16string_view LettersOf(bool arabic)
{
    return arabic ? u"شسيبلاتنمك" : u"asdfjkl;Ae";
}

TEST_F(TypistsTest, APerfectOneEndsEveryAnagram)
{
    int drills = 0;
    for (const std::int32_t kind : kinds) {
        for (const CoursePlace& place : AllPlaces()) {
            const SpecialKind special = KindOf(place);
            if (special == SpecialKind::None || special == SpecialKind::FreeText) {
                continue;
            }
            for (const bool arabicLetters : {false, true}) {
                ++drills;
                SCOPED_TRACE(Named(place, kind) + (arabicLetters ? ", Arabic" : ", English"));
                context.freeTextChars = LettersOf(arabicLetters);
                context.anagramLanguage = arabicLetters;
                context.studentTable = {};
                context.inExercise = false;
                Choose(*this, place, kind);
                ASSERT_EQ(It().rowCount, 1);
                const int keys = KeysOf(It());
                PerfectTypist typist(*this);
                ASSERT_TRUE(typist.TypeToTheEnd(keys)) << State();
                EXPECT_EQ(It().correctCount, keys);
                EXPECT_EQ(It().errorCount, 0);
                const bool late = course::ChecksLate(place.lesson, place.exercise, arabicLetters);
                EXPECT_EQ(LastOf(TakeEvents(), 2),
                          late ? (Events{"HideCaret txtTest", "unload frmLesson"})
                               : (Events{"focus txtOrigin", "unload frmLesson"}));
                EXPECT_EQ(bool(context.inExercise), late);
                EXPECT_EQ(KeptMark(*this, place.lesson, place.exercise, true) > 0, late);
                EXPECT_EQ(KeptMark(*this, place.lesson, place.exercise, false), 0);
            }
        }
    }
    EXPECT_EQ(drills, 2 * 13 * 2);
}

TEST_F(TypistsTest, AClumsyOneEndsEveryAnagram)
{
    std::uint32_t seed = 500;
    for (const std::int32_t kind : kinds) {
        for (const CoursePlace& place : AllPlaces()) {
            const SpecialKind special = KindOf(place);
            if (special == SpecialKind::None || special == SpecialKind::FreeText) {
                continue;
            }
            for (const bool arabicLetters : {false, true}) {
                SCOPED_TRACE(Named(place, kind) + ", seed " + std::to_string(seed));
                context.freeTextChars = LettersOf(arabicLetters);
                context.anagramLanguage = arabicLetters;
                Choose(*this, place, kind);
                ClumsyTypist typist(*this, seed++, 10);
                ASSERT_TRUE(typist.TypeToTheEnd(20000)) << State();
                const Events events = TakeEvents();
                EXPECT_EQ(events.back(), "unload frmLesson");
                EXPECT_EQ(std::count(events.begin(), events.end(), "show frmResult"), 0);
            }
        }
    }
}

TEST_F(TypistsTest, FreeTextEndsAtItsLimit)
{
    for (const std::int32_t kind : kinds) {
        for (int lesson = 12; lesson <= 15; ++lesson) {
            for (const bool lastLetters : {false, true}) {
                const CoursePlace place{lesson, 4, false};
                SCOPED_TRACE(Named(place, kind));
                context.anagramLanguage = lastLetters;
                context.inExercise = false;
                Choose(*this, place, kind);
                ASSERT_EQ(State(), "1/1 [] |  | 0+0 waiting");
                int keys = 0;
                while (IsOpen() && keys < 16000) {
                    Wait(100);
                    const int code = ++keys % 50 == 0 ? keyboard::keyEnter : 'A';
                    Key(code);
                    const bool enter = code == keyboard::keyEnter;
                    EditField(It().txtOrigin, It().txtOrigin.Size(), 0, enter ? u"\r\n" : u"aa");
                }
                EXPECT_EQ(keys, 15002); // two characters a key, and the key that finds too many
                EXPECT_EQ(It().correctCount, keys);
                EXPECT_TRUE(context.inExercise);
                EXPECT_EQ(TakeEvents().back(), "unload frmLesson");
            }
        }
    }
}

TEST_F(TypistsTest, APlaceWithoutATextReachedWithoutItsFlagEndsWithItsFirstKey)
{
    int places = 0;
    for (const std::int32_t kind : kinds) {
        for (const CoursePlace& place : AllPlaces()) {
            if (KindOf(place) == SpecialKind::None) {
                continue;
            }
            ++places;
            SCOPED_TRACE(Named(place, kind));
            context = {};
            context.keyboardKind = kind;
            Place(place.lesson, place.exercise, Language::English);
            Open();
            ASSERT_EQ(State(), "1/1 [] |  | 0+0 waiting");
            for (const int code : {8, 9, 16, 17, 18, 20, 37}) {
                Wait(100);
                Key(code);
                Up(code);
            }
            ASSERT_TRUE(IsOpen());
            Key('A');
            EXPECT_EQ(State(), "2/1 [] | a | 0+1 ended");
            EXPECT_EQ(LastOf(TakeEvents(), 2), (Events{"unload frmLesson", "show frmResult"}));
            EXPECT_EQ(context.exerciseMark, 0);
            EXPECT_TRUE(context.inExercise);
        }
    }
    EXPECT_EQ(places, 2 * 17);
}

} // namespace
} // namespace keyfluent::session
