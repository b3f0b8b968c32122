#include "TaughtFingers.h"

#include <optional>
#include <string_view>

namespace keyfluent::course::fixtures
{
namespace
{

using keyboard::Fingers;

constexpr int rowCount = 4;

// The rows of keys from the left, each key by the finger that strikes it: 1 to 4 for the left hand
// from the little finger to the index finger, 5 to 8 for the right hand from there on.
constexpr std::u16string_view fingerRows[rowCount] = {u"1112344556788", u"1234455678888",
                                                      u"12344556788", u"1234455678"};

// A dot stands for a key that gives nothing, or two letters.
struct Layout {
    std::u16string_view plain[rowCount];
    std::u16string_view shifted[rowCount];
};

// clang-format off
constexpr Layout english{
    {u"`1234567890-=", u"qwertyuiop[]\\", u"asdfghjkl;'",  u"zxcvbnm,./"},
    {u"~!@#$%^&*()_+", u"QWERTYUIOP{}|",  u"ASDFGHJKL:\"", u"ZXCVBNM<>?"}};

constexpr Layout arabicWindows{
    {u"ذ1234567890-=", u"ضصثقفغعهخحجد\\", u"شسيبلاتنمكط",  u"ئءؤر.ىةوزظ"},
    {u".!@#$%^&*)(_+", u".....إ'÷×؛<>|",  u"..][.أ.،/:\"", u"~.}{.آ',.؟"}};

// The signs over the comma and the full stop are typed as they are taught, smaller and greater from
// the left, although the caps show them crossed.
constexpr Layout arabicMacintosh{
    {u".1234567890-=", u"ضصثقفغعهخحجة\\", u"شسيبلاتنمك؛",  u"ظطذدزرو،./"},
    {u".!@#$%^&*)(.+", u"........][}{|",  u"..ى..آ...:\"", u"..ئءأإؤ<>؟"}};
// clang-format on

// What is taught otherwise than by the key's place.
std::optional<Fingers> Exception(char16_t character, bool windows, bool isArabic)
{
    constexpr int little = keyboard::littleFinger;
    constexpr int ring = keyboard::ringFinger;
    constexpr int middle = keyboard::middleFinger;
    switch (character) {
    case u'!': // on the right Shift, and the right hand's finger alone is named
        return Fingers{0, little, keyboard::capRightShift};
    case u'*': // the finger on Shift alone is named
        return Fingers{little, 0, keyboard::capLeftShift};
    case u'(': // in English as in Arabic, where it stands over 0
        return Fingers{little, ring, keyboard::capLeftShift};
    case u')':
        return Fingers{little, middle, keyboard::capLeftShift};
    case u'؛':
        return Fingers{little, ring, keyboard::capLeftShift};
    case u'/':
        if (windows && !isArabic) {
            return Fingers{0, ring, keyboard::noCap};
        }
        return {};
    case u',': // the key of the Arabic comma
        if (!windows && isArabic) {
            return Fingers{0, middle, keyboard::noCap};
        }
        return {};
    case u' ':
        return Fingers{0, keyboard::thumb, keyboard::noCap};
    case u'\u0691': // the Return key
        return Fingers{0, little, keyboard::noCap};
    default:
        return {};
    }
}

struct Key {
    int row;
    std::size_t column;
    bool shift;
};

const Layout& LayoutOf(bool windows, bool isArabic)
{
    return !isArabic ? english : windows ? arabicWindows : arabicMacintosh;
}

// The full stop looks like a key that gives nothing, so its key is told here.
Key FullStopKey(bool windows, bool isArabic)
{
    return {3, 8, windows && isArabic};
}

std::optional<Key> KeyOf(char16_t character, bool windows, bool isArabic)
{
    if (character == u'.') {
        return FullStopKey(windows, isArabic);
    }
    const Layout& layout = LayoutOf(windows, isArabic);
    for (int row = 0; row < rowCount; ++row) {
        for (const bool shift : {false, true}) {
            const std::u16string_view keys = (shift ? layout.shifted : layout.plain)[row];
            const std::size_t column = keys.find(character);
            if (column != std::u16string_view::npos) {
                return Key{row, column, shift};
            }
        }
    }
    return {};
}

} // namespace

Fingers TaughtFingers(char16_t character, bool windows, bool isArabic)
{
    if (const auto exception = Exception(character, windows, isArabic)) {
        return *exception;
    }
    const std::optional<Key> key = KeyOf(character, windows, isArabic);
    if (!key) {
        return {};
    }
    const int number = fingerRows[key->row][key->column] - u'0';
    const bool leftHand = number <= 4;
    const int finger = leftHand ? 6 - number : number - 3; // little 5 ... index 2
    const int helper = key->shift ? keyboard::littleFinger : keyboard::handAtRest;
    if (leftHand) {
        return {finger, helper, key->shift ? keyboard::capRightShift : keyboard::noCap};
    }
    return {helper, finger, key->shift ? keyboard::capLeftShift : keyboard::noCap};
}

int KeyRow(char16_t character, bool windows, bool isArabic)
{
    const std::optional<Key> key = KeyOf(character, windows, isArabic);
    return key ? key->row : -1;
}

bool ShareAKey(char16_t one, char16_t other, bool windows, bool isArabic)
{
    const std::optional<Key> first = KeyOf(one, windows, isArabic);
    const std::optional<Key> second = KeyOf(other, windows, isArabic);
    return first && second && first->row == second->row && first->column == second->column;
}

} // namespace keyfluent::course::fixtures
