#include "course/Lessons.h"

#include <array>

namespace keyfluent::course
{
namespace
{

struct NamePair {
    std::u16string_view english;
    std::u16string_view arabic;
};

// Meant: lessons 2 and 3, 5 and 6, 9 and 10 share a name.
constexpr std::array<NamePair, lessonCount> names = {{
    {u"Guide Row", u"صف الارتكاز"},
    {u"Top Row", u"الصف العلوي"},
    {u"Top Row", u"الصف العلوي"},
    {u"Pinkie & Ring", u"خنصر وبنصر"},
    {u"Bottom Row", u"الصف الأسفل"},
    {u"Bottom Row", u"الصف الأسفل"},
    {u"Special Characters", u"حروف خاصة"},
    {u"Punctuation Marks", u"النقاط"},
    {u"Signs", u"الإشارات"},
    {u"Signs", u"الإشارات"},
    {u"Numbers", u"الأرقام"},
    {u"Sets", u"المجموعات"},
    {u"Shift Key", u"مفتاح العالي"},
    {u"Revision", u"مراجعة"},
    {u"End & Mouse", u"نهاية وماوس"},
}};

struct SpecialPlace {
    int lesson;
    int exercise;
    SpecialKind kind;
};

// The Arabic anagram stands in the English list: it is the only place to start it from.
constexpr SpecialPlace specialPlaces[] = {
    {8, 5, SpecialKind::EnglishAnagram},  {9, 5, SpecialKind::ArabicAnagram},
    {10, 4, SpecialKind::EnglishAnagram}, {10, 5, SpecialKind::ArabicAnagram},
    {11, 5, SpecialKind::ArabicAnagram},  {12, 3, SpecialKind::EnglishAnagram},
    {12, 4, SpecialKind::FreeText},       {12, 5, SpecialKind::ArabicAnagram},
    {13, 3, SpecialKind::EnglishAnagram}, {13, 4, SpecialKind::FreeText},
    {13, 5, SpecialKind::ArabicAnagram},  {14, 3, SpecialKind::EnglishAnagram},
    {14, 4, SpecialKind::FreeText},       {14, 5, SpecialKind::ArabicAnagram},
    {15, 3, SpecialKind::EnglishAnagram}, {15, 4, SpecialKind::FreeText},
    {15, 5, SpecialKind::ArabicAnagram},
};

} // namespace

std::u16string_view LessonName(int lesson, bool arabicInterface)
{
    if (lesson < 1 || lesson > lessonCount) {
        return {};
    }
    const NamePair& name = names[static_cast<std::size_t>(lesson - 1)];
    return arabicInterface ? name.arabic : name.english;
}

SpecialKind SpecialKindOf(int lesson, int exercise, bool arabicList)
{
    if (arabicList) {
        return SpecialKind::None;
    }
    for (const SpecialPlace& place : specialPlaces) {
        if (place.lesson == lesson && place.exercise == exercise) {
            return place.kind;
        }
    }
    return SpecialKind::None;
}

bool IsSpecialExercise(int lesson, int exercise, bool arabicList)
{
    return SpecialKindOf(lesson, exercise, arabicList) != SpecialKind::None;
}

std::u16string_view SpecialCaption(SpecialKind kind)
{
    switch (kind) {
    case SpecialKind::None:
        return {};
    case SpecialKind::EnglishAnagram:
        return u"Anagram";
    case SpecialKind::ArabicAnagram:
        return u"-الجناس-";
    case SpecialKind::FreeText:
        return u"Free Text";
    }
    return {};
}

} // namespace keyfluent::course
