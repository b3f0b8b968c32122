#include "shell/platform/KeyMap.h"

#include <QKeyEvent>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace keyfluent::shell
{
namespace
{

// clang-format off

// A place on the keyboard: the kernel's code of the key there, and its number.
struct Place {
    int kernelCode;
    int number;
    int numberWithoutNumLock = 0; // 0: the same
};

constexpr Place places[] = {
    // Escape, F1 to F12, Print, Scroll Lock, Pause.
    {1, 27}, {59, 112}, {60, 113}, {61, 114}, {62, 115}, {63, 116}, {64, 117}, {65, 118}, {66, 119},
    {67, 120}, {68, 121}, {87, 122}, {88, 123}, {99, 44}, {70, 145}, {119, 19},

    // Number row: grave accent, 1 to 0, hyphen, equals sign, Backspace.
    {41, 192}, {2, 49}, {3, 50}, {4, 51}, {5, 52}, {6, 53}, {7, 54}, {8, 55}, {9, 56}, {10, 57},
    {11, 48}, {12, 189}, {13, 187}, {14, 8},

    // Tab, Q to P, the two brackets, backslash.
    {15, 9}, {16, 81}, {17, 87}, {18, 69}, {19, 82}, {20, 84}, {21, 89}, {22, 85}, {23, 73},
    {24, 79}, {25, 80}, {26, 219}, {27, 221}, {43, 220},

    // Caps Lock, A to L, semicolon, apostrophe, Enter.
    {58, 20}, {30, 65}, {31, 83}, {32, 68}, {33, 70}, {34, 71}, {35, 72}, {36, 74}, {37, 75},
    {38, 76}, {39, 186}, {40, 222}, {28, 13},

    // Shift, the key that some keyboards have left of Z, Z to M, comma, full stop, slash, the key
    // that some have right of it, Shift.
    {42, 16}, {86, 226}, {44, 90}, {45, 88}, {46, 67}, {47, 86}, {48, 66}, {49, 78}, {50, 77},
    {51, 188}, {52, 190}, {53, 191}, {89, 193}, {54, 16},

    // Ctrl, system, Alt, Space, Alt, system, menu, Ctrl.
    {29, 17}, {125, 91}, {56, 18}, {57, 32}, {100, 18}, {126, 92}, {127, 93}, {97, 17},

    // Insert, Home, Page Up; Delete, End, Page Down; up, left, down, right.
    {110, 45}, {102, 36}, {104, 33}, {111, 46}, {107, 35}, {109, 34},
    {103, 38}, {105, 37}, {108, 40}, {106, 39},

    // Numeric pad, row by row.
    {69, 144}, {98, 111}, {55, 106}, {74, 109},
    {71, 103, 36}, {72, 104, 38}, {73, 105, 33}, {78, 107},
    {75, 100, 37}, {76, 101, 12}, {77, 102, 39},
    {79, 97, 35}, {80, 98, 40}, {81, 99, 34}, {96, 13},
    {82, 96, 45}, {83, 110, 46},
};

// A key that gives symbols: all of them, on a Latin and on an Arabic keyboard, plain and with
// Shift. Within a column each symbol stands once.
struct SymbolKey {
    int number;
    std::u16string_view latin;
    std::u16string_view arabic;
};

constexpr SymbolKey symbolKeys[] = {
    {192, u"`~", u"ذ\u0651"},
    {49, u"1!", u"1!\u0661"},
    {50, u"2@", u"2@\u0662"},
    {51, u"3#", u"3#\u0663"},
    {52, u"4$", u"4$\u0664"},
    {53, u"5%", u"5%\u0665"},
    {54, u"6^", u"6^\u0666"},
    {55, u"7&", u"7&\u0667"},
    {56, u"8*", u"8*\u0668"},
    {57, u"9(", u"9)\u0669"},
    {48, u"0)", u"0(\u0660"},
    {189, u"-_", u"-_"},
    {187, u"=+", u"=+"},

    {81, u"qQ", u"ض\u064E"},
    {87, u"wW", u"ص\u064B"},
    {69, u"eE", u"ث\u064F"},
    {82, u"rR", u"ق\u064C"},
    {84, u"tT", u"ف\uFEF9\uFEFA"},
    {89, u"yY", u"غإ"},
    {85, u"uU", u"ع`\u2018"},
    {73, u"iI", u"ه÷"},
    {79, u"oO", u"خ×"},
    {80, u"pP", u"ح؛"},
    {219, u"[{", u"ج<"},
    {221, u"]}", u"د>"},
    {220, u"\\|", u"\\|\u2026"},

    {65, u"aA", u"ش\u0650"},
    {83, u"sS", u"س\u064D"},
    {68, u"dD", u"ي]"},
    {70, u"fF", u"ب["},
    {71, u"gG", u"ل\uFEF7\uFEF8"},
    {72, u"hH", u"اأ"},
    {74, u"jJ", u"ت\u0640"},
    {75, u"kK", u"ن،"},
    {76, u"lL", u"م/"},
    {186, u";:", u"ك:"},
    {222, u"'\"", u"ط\""},

    {90, u"zZ", u"ئ~"},
    {88, u"xX", u"ء\u0652"},
    {67, u"cC", u"ؤ}"},
    {86, u"vV", u"ر{"},
    {66, u"bB", u"\uFEFB\uFEFC\uFEF5\uFEF6"},
    {78, u"nN", u"ىآ"},
    {77, u"mM", u"ة'"},
    {188, u",<", u"و,"},
    {190, u".>", u"ز."},
    {191, u"/?", u"ظ؟"},
    {226, u"", u"\u00A6"},
    {32, u" ", u" "},
};

// Lam-alef keys may also send their two letters.
struct PairKey {
    std::u16string_view pair;
    int number;
};

constexpr PairKey pairKeys[] = {
    {u"\u0644\u0627", 66}, {u"\u0644\u0622", 66}, {u"\u0644\u0623", 71}, {u"\u0644\u0625", 84},
};

struct NamedKey {
    int qtKey;
    int number;
};

constexpr NamedKey namedKeys[] = {
    {Qt::Key_Escape, 27}, {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9}, {Qt::Key_Backtab, 9},
    {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16}, {Qt::Key_Control, 17}, {Qt::Key_Alt, 18}, {Qt::Key_AltGr, 18},
    {Qt::Key_Meta, 91}, {Qt::Key_Super_L, 91}, {Qt::Key_Super_R, 92}, {Qt::Key_Menu, 93},
    {Qt::Key_CapsLock, 20}, {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145},
    {Qt::Key_Print, 44}, {Qt::Key_SysReq, 44}, {Qt::Key_Pause, 19},
    {Qt::Key_F1, 112}, {Qt::Key_F2, 113}, {Qt::Key_F3, 114}, {Qt::Key_F4, 115},
    {Qt::Key_F5, 116}, {Qt::Key_F6, 117}, {Qt::Key_F7, 118}, {Qt::Key_F8, 119},
    {Qt::Key_F9, 120}, {Qt::Key_F10, 121}, {Qt::Key_F11, 122}, {Qt::Key_F12, 123},
    {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46}, {Qt::Key_Home, 36}, {Qt::Key_End, 35},
    {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}, {Qt::Key_Clear, 12},
    {Qt::Key_Up, 38}, {Qt::Key_Left, 37}, {Qt::Key_Down, 40}, {Qt::Key_Right, 39},
};

// The numeric pad; its arrows and the like are named keys.
constexpr NamedKey padKeys[] = {
    {Qt::Key_0, 96}, {Qt::Key_1, 97}, {Qt::Key_2, 98}, {Qt::Key_3, 99}, {Qt::Key_4, 100},
    {Qt::Key_5, 101}, {Qt::Key_6, 102}, {Qt::Key_7, 103}, {Qt::Key_8, 104}, {Qt::Key_9, 105},
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107}, {Qt::Key_Minus, 109}, {Qt::Key_Slash, 111},
    {Qt::Key_Period, 110}, {Qt::Key_Comma, 110},
};

// clang-format on

constexpr quint32 kernelToScanCode = 8;
constexpr quint32 numLockBit = 0x10;
constexpr std::size_t codeCount = 128;
using NumberTable = std::array<std::uint8_t, codeCount>;

constexpr NumberTable MakeNumberTable(bool numLock)
{
    NumberTable numbers{};
    numbers.fill(unknownKey);
    for (const Place& place : places) {
        const bool other = !numLock && place.numberWithoutNumLock != 0;
        numbers.at(static_cast<std::size_t>(place.kernelCode)) =
            static_cast<std::uint8_t>(other ? place.numberWithoutNumLock : place.number);
    }
    return numbers;
}

std::uint16_t NumberOfPlace(quint32 nativeScanCode, quint32 nativeModifiers)
{
    static constexpr NumberTable withNumLock = MakeNumberTable(true);
    static constexpr NumberTable withoutNumLock = MakeNumberTable(false);
    const std::size_t code = nativeScanCode - kernelToScanCode;
    if (code >= codeCount) {
        return unknownKey;
    }
    return (nativeModifiers & numLockBit) != 0 ? withNumLock[code] : withoutNumLock[code];
}

template <std::size_t count>
std::optional<std::uint16_t> NumberOfName(const NamedKey (&keys)[count], int qtKey)
{
    for (const NamedKey& key : keys) {
        if (key.qtKey == qtKey) {
            return static_cast<std::uint16_t>(key.number);
        }
    }
    return std::nullopt;
}

std::optional<std::uint16_t> NumberOfPair(const QString& text)
{
    for (const PairKey& key : pairKeys) {
        if (text == QStringView(key.pair.data(), static_cast<qsizetype>(key.pair.size()))) {
            return static_cast<std::uint16_t>(key.number);
        }
    }
    return std::nullopt;
}

std::optional<std::uint16_t> NumberOfSymbolOn(std::u16string_view SymbolKey::*keyboard,
                                              char16_t symbol)
{
    for (const SymbolKey& key : symbolKeys) {
        if ((key.*keyboard).find(symbol) != std::u16string_view::npos) {
            return static_cast<std::uint16_t>(key.number);
        }
    }
    return std::nullopt;
}

std::optional<std::uint16_t> NumberOfSymbol(char16_t symbol, bool arabicExercise)
{
    const auto first = arabicExercise ? &SymbolKey::arabic : &SymbolKey::latin;
    const auto second = arabicExercise ? &SymbolKey::latin : &SymbolKey::arabic;
    const auto number = NumberOfSymbolOn(first, symbol);
    return number ? number : NumberOfSymbolOn(second, symbol);
}

// The toolkit's number of a key that gives a symbol is the symbol's code point.
std::uint16_t NumberOfMeaning(int qtKey, Qt::KeyboardModifiers modifiers, const QString& text,
                              bool arabicExercise)
{
    std::optional<std::uint16_t> number;
    if (modifiers.testFlag(Qt::KeypadModifier)) {
        number = NumberOfName(padKeys, qtKey);
    }
    if (!number) {
        number = NumberOfName(namedKeys, qtKey);
    }
    if (!number) {
        number = NumberOfPair(text);
    }
    if (!number && qtKey > 0 && qtKey <= 0xFFFF) {
        number = NumberOfSymbol(static_cast<char16_t>(qtKey), arabicExercise);
    }
    if (!number && text.size() == 1) {
        number = NumberOfSymbol(text.front().unicode(), arabicExercise);
    }
    return number.value_or(unknownKey);
}

} // namespace

std::uint16_t KeyNumber(quint32 nativeScanCode, quint32 nativeModifiers, int qtKey,
                        Qt::KeyboardModifiers modifiers, const QString& text, bool arabicExercise)
{
    if (nativeScanCode > kernelToScanCode) {
        return NumberOfPlace(nativeScanCode, nativeModifiers);
    }
    return NumberOfMeaning(qtKey, modifiers, text, arabicExercise);
}

std::uint16_t KeyNumber(const QKeyEvent& event, bool arabicExercise)
{
    return KeyNumber(event.nativeScanCode(), event.nativeModifiers(), event.key(),
                     event.modifiers(), event.text(), arabicExercise);
}

} // namespace keyfluent::shell
