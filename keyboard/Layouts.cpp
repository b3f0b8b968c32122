#include "keyboard/Layouts.h"

#include "context/KeyboardKind.h"

namespace keyfluent::keyboard
{

// clang-format off

// Columns: cap, key codes; English, with Shift; Arabic on a Windows keyboard, with Shift; Arabic on
// a Macintosh keyboard, with Shift. Marks that combine, the tatweel and the curly quotation mark
// stand as their code points. The round brackets of the Arabic layouts are mirrored against the
// English ones.
constexpr std::array<CharacterKey, 47> characterKeys{{
    // Number row.
    {16, 192, 0, u"`", u"~", u"ذ", u"\u0651", u"_", u""},
    {17, 49, 0, u"1", u"!", u"1", u"!", u"1", u"!"},
    {18, 50, 0, u"2", u"@", u"2", u"@", u"2", u"@"},
    {19, 51, 0, u"3", u"#", u"3", u"#", u"3", u"#"},
    {20, 52, 0, u"4", u"$", u"4", u"$", u"4", u"$"},
    {21, 53, 0, u"5", u"%", u"5", u"%", u"5", u"%"},
    {22, 54, 0, u"6", u"^", u"6", u"^", u"6", u"^"},
    {23, 55, 0, u"7", u"&", u"7", u"&", u"7", u"&"},
    {24, 56, 0, u"8", u"*", u"8", u"*", u"8", u"*"},
    {25, 57, 0, u"9", u"(", u"9", u")", u"9", u")"},
    {26, 48, 0, u"0", u")", u"0", u"(", u"0", u"("},
    {27, 189, 0, u"-", u"_", u"-", u"_", u"-", u"\u0640"},
    {28, 187, 0, u"=", u"+", u"=", u"+", u"=", u"+"},

    // Upper letter row.
    {34, 81, 0, u"q", u"Q", u"ض", u"\u064E", u"ض", u"\u064E"},
    {35, 87, 0, u"w", u"W", u"ص", u"\u064B", u"ص", u"\u064B"},
    {36, 69, 0, u"e", u"E", u"ث", u"\u064F", u"ث", u"\u0650"},
    {37, 82, 0, u"r", u"R", u"ق", u"\u064C", u"ق", u"\u064D"},
    {38, 84, 0, u"t", u"T", u"ف", u"لإ", u"ف", u"\u064F"},
    {39, 89, 0, u"y", u"Y", u"غ", u"إ", u"غ", u"\u064C"},
    {40, 85, 0, u"u", u"U", u"ع", u"'", u"ع", u"\u0652"},
    {41, 73, 0, u"i", u"I", u"ه", u"÷", u"ه", u"\u0651"},
    {42, 79, 0, u"o", u"O", u"خ", u"×", u"خ", u"]"},
    {43, 80, 0, u"p", u"P", u"ح", u"؛", u"ح", u"["},
    {44, 219, 0, u"[", u"{", u"ج", u"<", u"ج", u"}"},
    {45, 221, 0, u"]", u"}", u"د", u">", u"ة", u"{"},
    {46, 220, 226, u"\\", u"|", u"\\", u"|", u"\\", u"|"},

    // Home row.
    {48, 65, 0, u"a", u"A", u"ش", u"\u0650", u"ش", u""},
    {49, 83, 0, u"s", u"S", u"س", u"\u064D", u"س", u""},
    {50, 68, 0, u"d", u"D", u"ي", u"]", u"ي", u"ى"},
    {51, 70, 0, u"f", u"F", u"ب", u"[", u"ب", u""},
    {52, 71, 0, u"g", u"G", u"ل", u"لأ", u"ل", u""},
    {53, 72, 0, u"h", u"H", u"ا", u"أ", u"ا", u"آ"},
    {54, 74, 0, u"j", u"J", u"ت", u"\u0640", u"ت", u""},
    {55, 75, 0, u"k", u"K", u"ن", u"،", u"ن", u""},
    {56, 76, 0, u"l", u"L", u"م", u"/", u"م", u""},
    {57, 186, 0, u";", u":", u"ك", u":", u"ك", u":"},
    {58, 222, 0, u"'", u"\"", u"ط", u"\"", u"؛", u"\""},

    // Lower letter row.
    {61, 90, 0, u"z", u"Z", u"ئ", u"~", u"ظ", u"\u2019"},
    {62, 88, 0, u"x", u"X", u"ء", u"\u0652", u"ط", u""},
    {63, 67, 0, u"c", u"C", u"ؤ", u"}", u"ذ", u"ئ"},
    {64, 86, 0, u"v", u"V", u"ر", u"{", u"د", u"ء"},
    {65, 66, 0, u"b", u"B", u"لا", u"لآ", u"ز", u"أ"},
    {66, 78, 0, u"n", u"N", u"ى", u"آ", u"ر", u"إ"},
    {67, 77, 0, u"m", u"M", u"ة", u"'", u"و", u"ؤ"},
    {68, 188, 0, u",", u"<", u"و", u",", u"،", u">"},
    {69, 190, 0, u".", u">", u"ز", u".", u".", u"<"},
    {70, 191, 0, u"/", u"?", u"ظ", u"؟", u"/", u"؟"},
}};

// Columns: cap; English on Windows, on Macintosh; Arabic on Windows, on Macintosh.
// Meant: the English Macintosh keyboard has the Arabic name on its two command keys, 74 and 76.
constexpr std::array<NamedKey, 13> namedKeys{{
    {29, u"delete", u"delete", u"حذف", u"حذف"},
    {33, u"tab", u"tab", u"الحقول", u"الحقول"},
    {capCapsLock, u"Caps", u"Caps", u"تثبيت", u"تثبيت"},
    {capReturn, u"Return", u"Return", u"إدخال", u"الرجوع"},
    {capLeftShift, u"Shift", u"Shift", u"العالي", u"العالي"},
    {capRightShift, u"Shift", u"Shift", u"العالي", u"العالي"},
    {capLeftCtrl, u"ctrl", u"ctrl", u"تحكم", u"تحكم"},
    {73, u"Start", u"alt", u"ابدأ", u"الاختيار"},
    {74, u"alr", u"الأوامر", u"الاختيار", u"الأوامر"}, // Meant: so spelt.
    {capSpace, u"Space", u"Space", u"المسافة", u"المسافة"},
    {76, u"alt", u"الأوامر", u"الاختيار", u"الأوامر"},
    {77, u"Start", u"alt", u"ابدأ", u"الاختيار"},
    {capRightCtrl, u"ctrl", u"ctrl", u"تحكم", u"تحكم"},
}};

// clang-format on

namespace
{

using CharacterText = std::u16string_view CharacterKey::*;
using NamedText = std::u16string_view NamedKey::*;

// The column of the character keys, or null where they are to stay as they are.
CharacterText CharacterColumn(std::int32_t keyboardKind, bool shifted, bool arabicExercise)
{
    if (!arabicExercise) {
        return shifted ? &CharacterKey::englishShift : &CharacterKey::english;
    }
    switch (keyboardKind) {
    case context::macintoshKeyboard:
        return shifted ? &CharacterKey::arabicMacShift : &CharacterKey::arabicMac;
    case context::windowsKeyboard:
        return shifted ? &CharacterKey::arabicWindowsShift : &CharacterKey::arabicWindows;
    default: // Meant: a kind out of range has English caps, but no Arabic ones.
        return nullptr;
    }
}

NamedText NamedColumn(std::int32_t keyboardKind, bool arabicExercise)
{
    if (context::CountsAsWindows(keyboardKind)) {
        return arabicExercise ? &NamedKey::arabicWindows : &NamedKey::englishWindows;
    }
    return arabicExercise ? &NamedKey::arabicMac : &NamedKey::englishMac;
}

struct Range {
    int first;
    int last;
};

// Caps that read the same on every layout but may have been written on since.
constexpr Range lastingCaps[] = {{0, 15}, {30, 31}, {79, 80}, {87, 101}, {103, 104}};

} // namespace

void WriteCapTexts(std::int32_t keyboardKind, bool shifted, bool arabicExercise,
                   std::span<std::u16string_view, capCount> texts)
{
    const auto at = [texts](int cap) -> std::u16string_view& {
        return texts[static_cast<std::size_t>(cap)];
    };
    if (const CharacterText text = CharacterColumn(keyboardKind, shifted, arabicExercise)) {
        for (const CharacterKey& key : characterKeys) {
            at(key.cap) = key.*text;
        }
    }
    const NamedText name = NamedColumn(keyboardKind, arabicExercise);
    for (const NamedKey& key : namedKeys) {
        at(key.cap) = key.*name;
    }
    for (const Range& range : lastingCaps) {
        for (int cap = range.first; cap <= range.last; ++cap) {
            at(cap) = CapDesigns()[static_cast<std::size_t>(cap)].designText;
        }
    }
}

} // namespace keyfluent::keyboard
