#include "keyboard/KeyJudging.h"

#include "context/CodePage1256.h"
#include "context/KeyboardKind.h"

#include <array>
#include <string_view>

namespace keyfluent::keyboard
{
namespace
{

// clang-format off

// The characters that a key is right for, by keyboard and Shift. A character may stand in several
// rows: each of the keys is right then. Latin letters follow a rule of their own and stand in none.
// The table is that of an Arabic exercise; for the signs that differ in an English one see below.
// Columns: key code; Windows, with Shift; Macintosh, with Shift.
struct Row {
    int keyCode;
    std::u16string_view windows;
    std::u16string_view windowsShift;
    std::u16string_view mac;
    std::u16string_view macShift;
};

constexpr Row rows[] = {
    {13, u"\u0691", u"\u0691", u"\u0691", u"\u0691"}, // Enter
    {32, u" ", u" ", u" ", u" "},

    // Number row: the digits, and the three signs over them that the course teaches.
    {48, u"0", u"(", u"0", u"("},
    {49, u"1", u"!", u"1", u"!"},
    {50, u"2", u"", u"2", u""},
    {51, u"3", u"", u"3", u""},
    {52, u"4", u"", u"4", u""},
    {53, u"5", u"", u"5", u""},
    {54, u"6", u"", u"6", u""},
    {55, u"7", u"", u"7", u""},
    {56, u"8", u"*", u"8", u"*"},
    {57, u"9", u")", u"9", u")"},

    // Letter keys, by the Latin letter of the place, A to Z.
    // Meant: the brackets, "~", "×", "÷" and the quotation mark U+2018 have the places of the
    // Arabic Windows layout on every keyboard and in English too, even where the cap of that key
    // shows something else.
    {65, u"ش", u"\u0650", u"ش", u""},
    {66, u"", u"", u"ز", u"أ"}, // Windows: the key of lam with alef, right for neither letter
    {67, u"ؤ", u"}", u"ذ", u"}ئ"},
    {68, u"ي", u"]", u"ي", u"]ى"},
    {69, u"ث", u"\u064F", u"ث", u"\u0650"},
    {70, u"ب", u"[", u"ب", u"["},
    {71, u"ل", u"", u"ل", u""},
    {72, u"ا", u"أ", u"ا", u"آ"},
    {73, u"ه", u"÷", u"ه", u"÷\u0651"},
    {74, u"ت", u"\u0640", u"ت", u""},
    {75, u"ن", u",،", u"ن", u""},
    {76, u"م", u"/", u"م", u""},
    {77, u"ة", u"", u"و", u"ؤ"},
    {78, u"ى", u"آ", u"ر", u"إ"},
    {79, u"خ", u"×", u"خ", u"×"},
    {80, u"ح", u"؛", u"ح", u""},
    {81, u"ض", u"\u064E", u"ض", u"\u064E"},
    {82, u"ق", u"\u064C", u"ق", u"\u064D"},
    {83, u"س", u"\u064D", u"س", u""},
    {84, u"ف", u"", u"ف", u"\u064F"},
    {85, u"ع", u"\u2018", u"ع", u"\u2018\u0652"},
    {86, u"ر", u"{", u"د", u"{ء"},
    {87, u"ص", u"\u064B", u"ص", u"\u064B"},
    {88, u"ء", u"\u0652", u"ط", u""},
    {89, u"غ", u"إ", u"غ", u"\u064C"},
    {90, u"ئ", u"~", u"ظ", u"~"},

    {106, u"*", u"", u"*", u""}, // numeric pad; its digits are right for nothing

    // The other keys of the main block.
    {186, u";ك", u":", u";ك", u":"},
    {187, u"=", u"+", u"=", u"+"},
    {188, u"و", u",،", u",،", u">"},
    {189, u"-", u"", u"-", u"\u0640"},
    {190, u"ز", u".", u".", u"<"},
    {191, u"ظ", u"?؟", u"/", u"?؟"},
    {192, u"ذ", u"\u0651", u"", u""},
    {219, u"ج", u"<", u"ج", u""},
    {220, u"\\", u"|", u"\\", u"|"},
    {221, u"د", u">", u"ة", u""},
    {222, u"'ط", u"\"", u"'؛", u"\""},
    {226, u"\\", u"|", u"\\", u"|"}, // the same key as 220
};

// The signs of an English exercise that differ from the table: the one key that is right.
// Meant: on a Macintosh keyboard "<" and ">" stay crossed against the English caps.
struct EnglishSign {
    char16_t sign;
    int keyCode;
    bool shift;
    bool onMac; // where false the table holds on the Macintosh
};

constexpr EnglishSign englishSigns[] = {
    {u'(', 57, true, true},
    {u')', 48, true, true},
    {u',', 188, false, false},
    {u'،', 188, false, false},
    {u'.', 190, false, false},
    {u'/', 191, false, false},
    {u'<', 188, true, false},
    {u'>', 188, true, false}, // Meant: the key of "<", not the one whose cap shows ">".
};

// clang-format on

constexpr int noRow = -1;

constexpr auto rowOfKey = [] {
    std::array<std::int8_t, 256> numbers{};
    numbers.fill(noRow);
    std::int8_t number = 0;
    for (const Row& row : rows) {
        numbers[static_cast<std::size_t>(row.keyCode)] = number++;
    }
    return numbers;
}();

std::u16string_view RightCharacters(int keyCode, bool shiftDown, bool windows)
{
    if (keyCode < 0 || keyCode >= static_cast<int>(rowOfKey.size())) {
        return u"";
    }
    const int number = rowOfKey[static_cast<std::size_t>(keyCode)];
    if (number == noRow) {
        return u"";
    }
    const Row& row = rows[number];
    if (windows) {
        return shiftDown ? row.windowsShift : row.windows;
    }
    return shiftDown ? row.macShift : row.mac;
}

const EnglishSign* FindEnglishSign(char16_t character, bool windows)
{
    for (const EnglishSign& sign : englishSigns) {
        if (sign.sign == character && (windows || sign.onMac)) {
            return &sign;
        }
    }
    return nullptr;
}

bool IsSmallLatin(char16_t character)
{
    return character >= u'a' && character <= u'z';
}
bool IsCapitalLatin(char16_t character)
{
    return character >= u'A' && character <= u'Z';
}

} // namespace

bool IsValidKey(int keyCode, std::uint8_t expectedCode, bool shiftDown, bool capsOn,
                std::int32_t keyboardKind, bool arabicExercise)
{
    if (expectedCode == 0) {
        return false;
    }
    const char16_t expected = context::FromCodePage1256(expectedCode);
    // A letter's key has the number of its capital. Meant: with Caps Lock on, small and capital
    // letters are both right, with Shift and without.
    if (IsSmallLatin(expected)) {
        return keyCode == expected - u'a' + u'A' && (!shiftDown || capsOn);
    }
    if (IsCapitalLatin(expected)) {
        return keyCode == expected && (shiftDown || capsOn);
    }
    const bool windows = context::CountsAsWindows(keyboardKind);
    if (!arabicExercise) {
        if (const EnglishSign* sign = FindEnglishSign(expected, windows)) {
            return keyCode == sign->keyCode && shiftDown == sign->shift;
        }
    }
    return RightCharacters(keyCode, shiftDown, windows).find(expected) != std::u16string_view::npos;
}

} // namespace keyfluent::keyboard
