// A note promises no aid that is not there, and what it says of marks and of the checking of
// errors is what the tables say.
#include "CourseFixtures.h"

#include "context/Text.h"
#include "course/Aids.h"
#include "course/Lessons.h"
#include "course/Notes.h"
#include "course/Regimes.h"
#include "progress/StandardMarks.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>
#include <span>

namespace keyfluent::course::fixtures
{
namespace
{

std::string NoteAt(const Place& place)
{
    return context::ToUtf8(ExerciseNote(place.lesson, place.exercise, place.arabic));
}

AidPlan PlanOf(const Place& place)
{
    return AidsOfPlace(place.lesson, place.exercise, place.arabic);
}

bool Says(const Place& place, std::string_view words)
{
    return NoteAt(place).find(words) != std::string::npos;
}

std::string Named(AidRule rule)
{
    return rule == AidRule::On ? "on" : rule == AidRule::Off ? "off" : "free";
}

struct AidClaim {
    Aid aid;
    AidRule rule;
    std::string words;
};

// A way of naming aids, and what it says of them.
struct Form {
    std::vector<Aid> aids;
    AidRule rule;
    const char* words;
};

// English: a list of aids and what becomes of all of them.
const std::string englishAid = "(?:the |The )?(?:key caps|drawn hands|counter|clock)";
const std::string englishList =
    "((?:" + englishAid + ")(?:(?:, and |, | and )" + englishAid + ")*)";

std::vector<Aid> AidsIn(const std::string& list)
{
    const std::pair<const char*, Aid> names[] = {{"key caps", Aid::KeyCaps},
                                                 {"drawn hands", Aid::Hands},
                                                 {"counter", Aid::Counter},
                                                 {"clock", Aid::Clock}};
    std::vector<Aid> aids;
    for (const auto& [name, aid] : names) {
        if (list.find(name) != std::string::npos) {
            aids.push_back(aid);
        }
    }
    return aids;
}

struct EnglishForm {
    AidRule rule;
    std::string pattern;
};

// What is said of aids; "unread" holds what is said in another way.
struct AidClaims {
    std::vector<AidClaim> claims;
    std::string unread;
};

AidClaims EnglishAidClaims(std::string note)
{
    static const EnglishForm forms[] = {
        {AidRule::Off, englishList + " (?:are|is) gone"},
        {AidRule::On, englishList + " (?:are|is) shown"},
        {AidRule::Free, englishList + " (?:are|is) your choice"},
        {AidRule::Free, "[Tt]urn on " + englishList},
        {AidRule::On, englishList + " stay at rest"},
    };
    AidClaims found;
    for (const EnglishForm& form : forms) {
        const std::regex pattern(form.pattern);
        for (std::sregex_iterator match(note.begin(), note.end(), pattern), end; match != end;
             ++match) {
            for (const Aid aid : AidsIn((*match)[1])) {
                found.claims.push_back({aid, form.rule, match->str()});
            }
        }
        note = std::regex_replace(note, pattern, "");
    }
    std::smatch rest;
    if (std::regex_search(note, rest,
                          std::regex("key caps|drawn hands|\\bcounter\\b|\\bclock\\b"))) {
        found.unread = rest.str();
    }
    return found;
}

AidClaims ArabicAidClaims(std::string note)
{
    const std::vector<Aid> caps{Aid::KeyCaps};
    const std::vector<Aid> hands{Aid::Hands};
    const std::vector<Aid> both{Aid::KeyCaps, Aid::Hands};
    const std::vector<Aid> counters{Aid::Counter, Aid::Clock};
    // The longer form comes first.
    const Form forms[] = {
        {both, AidRule::Off, "بلا مجموعة المفاتيح ولا صورة للأيدي"},
        {both, AidRule::Off, "ما على الشاشة مجموعة مفاتيح ولا صورة للأيدي"},
        {both, AidRule::Off, "تختفي وسائل العون التعليمي"},
        {hands, AidRule::On, "عادت صورة الأيدي"},
        {hands, AidRule::On, "تعود صورة الأيدي"},
        {hands, AidRule::Off, "تغيب صورة الأيدي"},
        {hands, AidRule::Off, "تختفي صورة الأيدي"},
        {hands, AidRule::Off, "لا صورة للأيدي"},
        {hands, AidRule::Free, "صارت صورة الأيدي باختيارك"},
        {hands, AidRule::Free, "صورة الأيدي باختيارك"},
        {hands, AidRule::Free, "لك فيه خيار إظهار صورة الأيدي"},
        {both, AidRule::On, "فالمفتاح المضاء وصورة الأيدي يكفيان"},
        {caps, AidRule::On, "تبقى مجموعة المفاتيح"},
        {caps, AidRule::On, "جدول المفاتيح المرسوم على الشاشة"},
        {counters, AidRule::On, "العداد والكرونومتر"},
    };
    AidClaims found;
    for (const Form& form : forms) {
        const std::string words = form.words;
        for (std::size_t at = note.find(words); at != std::string::npos; at = note.find(words)) {
            for (const Aid aid : form.aids) {
                found.claims.push_back({aid, form.rule, words});
            }
            note.erase(at, words.size());
        }
    }
    for (const char* aid : {"مجموعة المفاتيح", "مجموعة مفاتيح", "الأيدي", "العداد", "الكرونومتر"}) {
        if (note.find(aid) != std::string::npos) {
            found.unread = aid;
        }
    }
    return found;
}

AidClaims AidClaimsAt(const Place& place)
{
    return place.arabic ? ArabicAidClaims(NoteAt(place)) : EnglishAidClaims(NoteAt(place));
}

TEST(NoteAids, WhatIsSaidOfAnAidIsWhatThePlanGives)
{
    std::size_t claims = 0;
    for (const Place& place : TextPlaces()) {
        for (const AidClaim& claim : AidClaimsAt(place).claims) {
            EXPECT_EQ(Named(claim.rule), Named(PlanOf(place)[claim.aid]))
                << Name(place) << ": " << claim.words;
            ++claims;
        }
    }
    EXPECT_GE(claims, 80u);
}

TEST(NoteAids, NoAidIsNamedOutsideTheSteadyForms)
{
    for (const Place& place : TextPlaces()) {
        EXPECT_EQ(AidClaimsAt(place).unread, "") << Name(place);
    }
}

bool IsToldOff(const Place& place, Aid aid)
{
    const AidClaims found = AidClaimsAt(place);
    return std::any_of(found.claims.begin(), found.claims.end(), [aid](const AidClaim& claim) {
        return claim.aid == aid && claim.rule != AidRule::On;
    });
}

// An aid that was on at the text before and is off or free here.
TEST(NoteAids, ANoteWarnsWhenAnAidThatWasOnGoes)
{
    int warnings = 0;
    for (std::size_t i = 1; i < TextPlaces().size(); ++i) {
        const Place& before = TextPlaces()[i - 1];
        const Place& place = TextPlaces()[i];
        if (before.arabic != place.arabic) {
            continue;
        }
        for (const Aid aid : {Aid::KeyCaps, Aid::Hands}) {
            if (PlanOf(before)[aid] == AidRule::On && PlanOf(place)[aid] != AidRule::On) {
                EXPECT_TRUE(IsToldOff(place, aid)) << Name(place);
                ++warnings;
            }
        }
    }
    EXPECT_GE(warnings, 10);
}

TEST(NoteAids, TheSpeedBonusIsNamedWhereSpeedCountsAndNowhereElse)
{
    for (const Place& place : TextPlaces()) {
        const bool isNamed = Says(place, place.arabic ? "مكافأة السرعة" : "speed bonus");
        EXPECT_EQ(isNamed, progress::HasSpeedBonus(place.lesson, place.exercise, place.arabic))
            << Name(place);
        if (!place.arabic && !isNamed) {
            EXPECT_FALSE(Says(place, "bonus")) << Name(place);
        }
    }
}

TEST(NoteAids, WhereSpeedCountsTheNoteDoesNotDenyIt)
{
    for (const Place& place : TextPlaces()) {
        if (!progress::HasSpeedBonus(place.lesson, place.exercise, place.arabic)) {
            continue;
        }
        for (const char* denial : {"peed does not count", "time plays no part", "Time neither adds",
                                   "السرعة فلا تدخل", "فهي لا تدخل في علامتك"}) {
            EXPECT_FALSE(Says(place, denial)) << Name(place) << ": " << denial;
        }
    }
}

TEST(NoteAids, TheLateCheckIsNamedWhereErrorsPassAndNowhereElse)
{
    for (const Place& place : TextPlaces()) {
        const bool isLate = ChecksLate(place.lesson, place.exercise, place.arabic);
        EXPECT_EQ(Says(place, place.arabic ? "تصحيح" : "Backspace"), isLate) << Name(place);
        for (const char* refusal : {"refused", "يرفض الحرف الخطأ فورا"}) {
            EXPECT_FALSE(isLate && Says(place, refusal)) << Name(place) << ": " << refusal;
        }
    }
}

TEST(NoteAids, AStandardMarkInANoteIsTheMarkOfTheTable)
{
    const std::regex mark("standard mark (?:is|of) ([0-9]+)");
    int marks = 0;
    for (const Place& place : TextPlaces()) {
        const std::string note = NoteAt(place);
        for (std::sregex_iterator match(note.begin(), note.end(), mark), end; match != end;
             ++match) {
            EXPECT_EQ(std::stoi((*match)[1]),
                      progress::StandardMark(place.lesson, place.exercise, place.arabic))
                << Name(place);
            ++marks;
        }
    }
    EXPECT_EQ(marks, 5);
}

TEST(NoteAids, TheMarksThatLessonNotesNameAreTheMarksOfTheTable)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        const std::string note = context::ToUtf8(LessonNote(lesson));
        const std::string mark = std::to_string(progress::PassingMark(lesson));
        const bool isSpecial = mark != "500";
        EXPECT_EQ(note.find("علامة النجاح") != std::string::npos, isSpecial) << lesson;
        EXPECT_EQ(note.find(mark) != std::string::npos, isSpecial) << lesson;
    }
}

// What a lesson note says of the places where speed counts and where the check comes late.
struct LessonClaim {
    int lesson;
    const char* words;
    std::string_view arabic; // exercises, as digits
    std::string_view english;
};

std::string Exercises(int lesson, bool arabic, bool (*holds)(int, int, bool))
{
    std::string exercises;
    for (int exercise = 1; exercise <= 5; ++exercise) {
        const bool isText = arabic || !IsSpecialExercise(lesson, exercise, false);
        if (isText && holds(lesson, exercise, arabic)) {
            exercises += static_cast<char>('0' + exercise);
        }
    }
    return exercises;
}

void ExpectLessonClaims(std::span<const LessonClaim> claims, bool (*holds)(int, int, bool))
{
    for (const LessonClaim& claim : claims) {
        const std::string note = context::ToUtf8(LessonNote(claim.lesson));
        EXPECT_NE(note.find(claim.words), std::string::npos) << claim.lesson << ": " << claim.words;
        EXPECT_EQ(Exercises(claim.lesson, true, holds), claim.arabic) << claim.lesson;
        EXPECT_EQ(Exercises(claim.lesson, false, holds), claim.english) << claim.lesson;
    }
}

TEST(NoteAids, LessonNotesTellWhereSpeedCounts)
{
    const LessonClaim claims[] = {
        {1, "ليس للسرعة أي أثر في علامات هذه التمارين", "", ""},
        {2, "ولا تدخل السرعة إلا في علامة التمرين الإنجليزي الخامس", "", "5"},
        {3, "في التمرين الخامس من كل لغة تدخل السرعة في العلامة", "5", "5"},
        {4, "التمرين الخامس في كل لغة جمل كاملة، وللسرعة فيه مكافأة", "5", "5"},
        {5, "وللسرعة مكافأة في التمرينين الرابع والخامس من كل لغة", "45", "45"},
        {6, "للسرعة مكافأة في الرابع والخامس", "45", "45"},
        {7, "في التمرين الخامس من كل لغة مكافأة على السرعة", "5", "5"},
        {8, "لا مكافأة على السرعة إلا في التمرين العربي الخامس", "5", ""},
        {9, "والسرعة لا تدخل إلا في التمرينين الإنجليزيين الأول والرابع", "", "14"},
        {10, "للسرعة مكافأة في التمرينين العربيين الأول والخامس، وفي الإنجليزيين الأول والثالث",
         "15", "13"},
        {11, "وهو الرابع في الإنجليزية والخامس في العربية", "5", "4"},
        {12, "لكل هذه التمارين مكافأة على السرعة", "12345", "12"},
        {13, "وللسرعة فيها مكافأة", "12345", "12"},
        {14, "وللسرعة مكافأة في التمارين العربية كلها، وفي التمرينين الإنجليزيين الأولين", "12345",
         "12"},
        {15, "تحسب العلامة ومكافأة السرعة", "12345", "12"},
    };
    ExpectLessonClaims(claims, progress::HasSpeedBonus);
}

TEST(NoteAids, LessonNotesTellWhereTheCheckComesLate)
{
    const LessonClaim claims[] = {
        {3, "وفي التمرين الإنجليزي الخامس تغيب صورة الأيدي، ولا يكشف الخطأ إلا في آخر السطر", "",
         "5"},
        {11, "لا يكشف الخطأ إلا في آخر السطر", "5", "4"},
        {12,
         "في التمرين الأول من كل لغة لا يكشف الخطأ إلا في نهاية الكلمة، وفي الثاني إلا في نهاية "
         "السطر",
         "12", "12"},
        {13, "في التمرينين العربيين الرابع والخامس، وفي الإنجليزيين الأول والثاني", "45", "12"},
        {14, "لا يكشف الخطأ في هذا الدرس إلا في آخر السطر", "12345", "12"},
        {15, "ثم يظهر عدد الأخطاء", "12345", "12"},
    };
    ExpectLessonClaims(claims, ChecksLate);
}

TEST(NoteAids, TheFirstPlacesOfSpeedAreTold)
{
    EXPECT_TRUE(ExerciseNote(3, 5, false)
                    .starts_with(u"Your typing speed begins to enter into your score in this "
                                 u"exercise.\r"));
    EXPECT_TRUE(ExerciseNote(6, 5, false).starts_with(u"Hey, where did the keyboard go?\r"));
    EXPECT_TRUE(Says({true, 3, 5}, "تدخل السرعة في علامتك أول مرة"));
}

} // namespace
} // namespace keyfluent::course::fixtures
