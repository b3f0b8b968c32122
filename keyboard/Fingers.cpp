#include "keyboard/Fingers.h"

#include "context/KeyboardKind.h"
#include "keyboard/CharacterIndex.h"

namespace keyfluent::keyboard
{
namespace
{

constexpr Fingers Left(int finger)
{
    return {finger, handAtRest, noCap};
}
constexpr Fingers Right(int finger)
{
    return {handAtRest, finger, noCap};
}
// With Shift, which the little finger of the other hand holds.
constexpr Fingers LeftShifted(int finger)
{
    return {finger, littleFinger, capRightShift};
}
constexpr Fingers RightShifted(int finger)
{
    return {littleFinger, finger, capLeftShift};
}

struct Row {
    Fingers fingers;
    std::u16string_view windows;
    std::u16string_view mac;
};

// clang-format off

// As in an Arabic exercise; for the signs that differ in an English one see below. The hands rest
// for the quotation marks, the square and curly brackets, most signs over the digits and the marks
// that combine, although there are keys for them.
// Meant: the round brackets as on the Arabic layouts in English exercises too; "؛" with the ring
// finger, though its key is one of the little finger's.
constexpr Row rows[] = {
    {Left(indexFinger), u"56bfgrtvبرفقل", u"56bfgrtvبدزفقل"},
    {LeftShifted(indexFinger), u"BFGRTV", u"BFGRTVءأ"},
    {Left(middleFinger), u"4cdeؤثي", u"4cdeثذي"},
    {LeftShifted(middleFinger), u"CDE", u"CDEئى"},
    {Left(ringFinger), u"3swxءسص", u"3swxسصط"},
    {LeftShifted(ringFinger), u"SWX", u"SWX"},
    {Left(littleFinger), u"12aqzئذشض", u"12aqzشضظ"},
    {LeftShifted(littleFinger), u"AQZ", u"AQZ"},
    {{littleFinger, handAtRest, capLeftShift}, u"*", u"*"}, // Meant: no digit's finger.

    {Right(thumb), u" ", u" "},
    {Right(indexFinger), u"78hjmnuyاةتعغى", u"78hjmnuyاترعغو"},
    {RightShifted(indexFinger), u"HJMNUYآأإ\u0640", u"HJMNUYآؤإ"},
    {Right(middleFinger), u"9ikنهو", u"9ik,،نه"},
    {RightShifted(middleFinger), u"),،IK", u")<IK"},
    {Right(ringFinger), u"0loخزم", u"0lo.خم"},
    {RightShifted(ringFinger), u"(./LO؛", u"(>LO؛"},
    {Right(littleFinger), u"-;=pجحدطظك\u0691", u"-/;=pةجحك\u0691"},
    {RightShifted(littleFinger), u"+:<>?P_؟", u"+:?P_؟\u0640"},
    {{handAtRest, littleFinger, capRightShift}, u"!", u"!"}, // Meant: not the left hand's key 1.
};

// The signs of an English exercise on a Windows keyboard that differ from the table.
struct EnglishSign {
    char16_t sign;
    Fingers fingers;
};

constexpr EnglishSign windowsEnglishSigns[] = {
    {u',', Right(middleFinger)},
    {u'،', Right(middleFinger)},
    {u'.', Right(ringFinger)},
    {u'/', Right(ringFinger)}, // Meant: not the little finger, whose key it is.
    {u'<', RightShifted(middleFinger)},
    {u'>', RightShifted(ringFinger)},
};

// clang-format on

constexpr int RowOf(const Fingers& fingers)
{
    int number = 0;
    for (const Row& row : rows) {
        if (row.fingers == fingers) {
            return number;
        }
        ++number;
    }
    return CharacterIndex::none;
}

constexpr CharacterIndex MakeIndex(bool windows, bool arabicExercise)
{
    CharacterIndex index;
    int number = 0;
    for (const Row& row : rows) {
        index.Add(windows ? row.windows : row.mac, number++);
    }
    if (windows && !arabicExercise) {
        for (const EnglishSign& sign : windowsEnglishSigns) {
            index.Replace(sign.sign, RowOf(sign.fingers));
        }
    }
    return index;
}

constexpr CharacterIndex macIndex = MakeIndex(false, true); // in both languages
constexpr CharacterIndex windowsArabicIndex = MakeIndex(true, true);
constexpr CharacterIndex windowsEnglishIndex = MakeIndex(true, false);

const CharacterIndex& IndexFor(std::int32_t keyboardKind, bool arabicExercise)
{
    if (!context::CountsAsWindows(keyboardKind)) {
        return macIndex;
    }
    return arabicExercise ? windowsArabicIndex : windowsEnglishIndex;
}

} // namespace

Fingers FingersOf(std::u16string_view character, std::int32_t keyboardKind, bool arabicExercise)
{
    const int row = IndexFor(keyboardKind, arabicExercise).Find(character);
    return row == CharacterIndex::none ? Fingers{} : rows[row].fingers;
}

} // namespace keyfluent::keyboard
