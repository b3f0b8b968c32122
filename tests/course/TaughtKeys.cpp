#include "TaughtKeys.h"

#include "context/Text.h"

namespace keyfluent::course::fixtures
{
namespace
{

constexpr std::u16string_view capitals = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ";

// clang-format off
constexpr Introduction english[] = {
    {1, 1, u"asdfjkl;"},
    {1, 2, u"ei"},
    {1, 4, u"gh"},
    {2, 1, u"rtyu"},
    {2, 3, u"qwop"},
    {5, 2, u"c"},
    {5, 3, u"nv"},
    {6, 2, u"bmzx"},
    {7, 2, u",.:"},
    {7, 4, capitals},
    {8, 1, u"?')"},
    {8, 3, u"-/"},
    {9, 2, u"!"},
    {10, 2, u"("},
    {11, 1, u"1203"},
    {11, 2, u"456789"},
    {11, 3, u"+*="},
};

// Meant: the Latin comma beside the Arabic one; both are right on both keyboards.
constexpr Introduction arabic[] = {
    {1, 1, u"شسيبتنمك"},
    {1, 2, u"هث"},
    {1, 4, u"لا"},
    {2, 1, u"قفعغ"},
    {2, 3, u"ضصخحج"},
    {5, 1, u"ذ"},
    {5, 3, u"رد"},
    {6, 1, u"طظزو"},
    {7, 2, u"ة"},
    {7, 4, u"ء"},
    {7, 5, u"أ"},
    {8, 1, u"ىؤ"},
    {8, 2, u"آإئ"},
    {8, 3, u"،.؛,"},
    {8, 4, u"/؟"},
    {9, 1, u":"},
    {9, 4, u"<>"},
    {9, 5, u"=+"},
    {10, 1, u"!"},
    {10, 2, u"-"},
    {10, 3, u"()"},
    {11, 1, u"1234567890"},
    {11, 3, u"*"},
};
// clang-format on

} // namespace

std::span<const Introduction> IntroductionsIn(bool isArabic)
{
    return isArabic ? std::span<const Introduction>(arabic)
                    : std::span<const Introduction>(english);
}

std::u16string_view NewKeysAt(const Place& place)
{
    for (const Introduction& introduction : IntroductionsIn(place.arabic)) {
        if (introduction.lesson == place.lesson && introduction.exercise == place.exercise) {
            return introduction.keys;
        }
    }
    return {};
}

std::set<char16_t> KeysKnownAt(const Place& place)
{
    std::set<char16_t> known{u' ', context::lineEndMark};
    if (KindOf(place) == Kind::Passage) {
        known.insert({u'\r', u'\n'});
    }
    for (const Introduction& introduction : IntroductionsIn(place.arabic)) {
        const Place at{place.arabic, introduction.lesson, introduction.exercise};
        if (at <= place) {
            known.insert(introduction.keys.begin(), introduction.keys.end());
        }
    }
    return known;
}

std::u16string_view TeachableKeys(bool isArabic)
{
    return isArabic
               ? u"ابتثجحخدذرزسشصضطظعغفقكلمنهويءآأؤإئةى،؛؟0123456789!()*+-./:<=>,"
               : u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789!'()*+,-./:;=?";
}

} // namespace keyfluent::course::fixtures
