#include "shell/platform/KeyMap.h"

#include "keyboard/KeyCodes.h"
#include "keyboard/Layouts.h"
#include "tests/shell/FailOnWarning.h"

#include <QKeyEvent>

#include <map>
#include <set>
#include <vector>

namespace keyfluent::shell
{
namespace
{

constexpr quint32 numLock = 0x10;

// clang-format off

// A key of a real keyboard as X11 and Wayland tell it, and the number that it has.
struct Key {
    quint32 scanCode;
    int number;
    const char* name;
};

constexpr Key keys[] = {
    {9, 27, "ESC"}, {10, 49, "1"}, {11, 50, "2"}, {12, 51, "3"}, {13, 52, "4"}, {14, 53, "5"},
    {15, 54, "6"}, {16, 55, "7"}, {17, 56, "8"}, {18, 57, "9"}, {19, 48, "0"}, {20, 189, "MINUS"},
    {21, 187, "EQUAL"}, {22, 8, "BACKSPACE"}, {23, 9, "TAB"}, {24, 81, "Q"}, {25, 87, "W"},
    {26, 69, "E"}, {27, 82, "R"}, {28, 84, "T"}, {29, 89, "Y"}, {30, 85, "U"}, {31, 73, "I"},
    {32, 79, "O"}, {33, 80, "P"}, {34, 219, "LEFTBRACE"}, {35, 221, "RIGHTBRACE"},
    {36, 13, "ENTER"}, {37, 17, "LEFTCTRL"}, {38, 65, "A"}, {39, 83, "S"}, {40, 68, "D"},
    {41, 70, "F"}, {42, 71, "G"}, {43, 72, "H"}, {44, 74, "J"}, {45, 75, "K"}, {46, 76, "L"},
    {47, 186, "SEMICOLON"}, {48, 222, "APOSTROPHE"}, {49, 192, "GRAVE"}, {50, 16, "LEFTSHIFT"},
    {51, 220, "BACKSLASH"}, {52, 90, "Z"}, {53, 88, "X"}, {54, 67, "C"}, {55, 86, "V"},
    {56, 66, "B"}, {57, 78, "N"}, {58, 77, "M"}, {59, 188, "COMMA"}, {60, 190, "DOT"},
    {61, 191, "SLASH"}, {62, 16, "RIGHTSHIFT"}, {63, 106, "KPASTERISK"}, {64, 18, "LEFTALT"},
    {65, 32, "SPACE"}, {66, 20, "CAPSLOCK"}, {67, 112, "F1"}, {68, 113, "F2"}, {69, 114, "F3"},
    {70, 115, "F4"}, {71, 116, "F5"}, {72, 117, "F6"}, {73, 118, "F7"}, {74, 119, "F8"},
    {75, 120, "F9"}, {76, 121, "F10"}, {77, 144, "NUMLOCK"}, {78, 145, "SCROLLLOCK"},
    {79, 103, "KP7"}, {80, 104, "KP8"}, {81, 105, "KP9"}, {82, 109, "KPMINUS"}, {83, 100, "KP4"},
    {84, 101, "KP5"}, {85, 102, "KP6"}, {86, 107, "KPPLUS"}, {87, 97, "KP1"}, {88, 98, "KP2"},
    {89, 99, "KP3"}, {90, 96, "KP0"}, {91, 110, "KPDOT"}, {94, 226, "102ND"}, {95, 122, "F11"},
    {96, 123, "F12"}, {97, 193, "RO"}, {104, 13, "KPENTER"}, {105, 17, "RIGHTCTRL"},
    {106, 111, "KPSLASH"}, {107, 44, "SYSRQ"}, {108, 18, "RIGHTALT"}, {110, 36, "HOME"},
    {111, 38, "UP"}, {112, 33, "PAGEUP"}, {113, 37, "LEFT"}, {114, 39, "RIGHT"}, {115, 35, "END"},
    {116, 40, "DOWN"}, {117, 34, "PAGEDOWN"}, {118, 45, "INSERT"}, {119, 46, "DELETE"},
    {127, 19, "PAUSE"}, {133, 91, "LEFTMETA"}, {134, 92, "RIGHTMETA"}, {135, 93, "COMPOSE"},
};

struct PadKey {
    quint32 scanCode;
    int withoutNumLock;
    const char* name;
};

constexpr PadKey padKeys[] = {
    {79, 36, "Home"}, {80, 38, "Up"}, {81, 33, "Page Up"}, {83, 37, "Left"}, {84, 12, "Clear"},
    {85, 39, "Right"}, {87, 35, "End"}, {88, 40, "Down"}, {89, 34, "Page Down"},
    {90, 45, "Insert"}, {91, 46, "Delete"},
};

// What the keys give on a US and on an Arabic keyboard of X11, plain and with Shift; 0 is nothing.
struct Levels {
    int number;
    char16_t latin[2];
    char16_t arabic[2];
};

constexpr Levels levels[] = {
    {49, {u'1', u'!'}, {u'1', u'!'}},
    {50, {u'2', u'@'}, {u'2', u'@'}},
    {51, {u'3', u'#'}, {u'3', u'#'}},
    {52, {u'4', u'$'}, {u'4', u'$'}},
    {53, {u'5', u'%'}, {u'5', u'%'}},
    {54, {u'6', u'^'}, {u'6', u'^'}},
    {55, {u'7', u'&'}, {u'7', u'&'}},
    {56, {u'8', u'*'}, {u'8', u'*'}},
    {57, {u'9', u'('}, {u'9', u')'}},
    {48, {u'0', u')'}, {u'0', u'('}},
    {189, {u'-', u'_'}, {u'-', u'_'}},
    {187, {u'=', u'+'}, {u'=', u'+'}},
    {81, {u'q', u'Q'}, {u'\u0636', u'\u064E'}},
    {87, {u'w', u'W'}, {u'\u0635', u'\u064B'}},
    {69, {u'e', u'E'}, {u'\u062B', u'\u064F'}},
    {82, {u'r', u'R'}, {u'\u0642', u'\u064C'}},
    {84, {u't', u'T'}, {u'\u0641', u'\uFEF9'}},
    {89, {u'y', u'Y'}, {u'\u063A', u'\u0625'}},
    {85, {u'u', u'U'}, {u'\u0639', u'`'}},
    {73, {u'i', u'I'}, {u'\u0647', u'\u00F7'}},
    {79, {u'o', u'O'}, {u'\u062E', u'\u00D7'}},
    {80, {u'p', u'P'}, {u'\u062D', u'\u061B'}},
    {219, {u'[', u'{'}, {u'\u062C', u'<'}},
    {221, {u']', u'}'}, {u'\u062F', u'>'}},
    {65, {u'a', u'A'}, {u'\u0634', u'\u0650'}},
    {83, {u's', u'S'}, {u'\u0633', u'\u064D'}},
    {68, {u'd', u'D'}, {u'\u064A', u']'}},
    {70, {u'f', u'F'}, {u'\u0628', u'['}},
    {71, {u'g', u'G'}, {u'\u0644', u'\uFEF7'}},
    {72, {u'h', u'H'}, {u'\u0627', u'\u0623'}},
    {74, {u'j', u'J'}, {u'\u062A', u'\u0640'}},
    {75, {u'k', u'K'}, {u'\u0646', u'\u060C'}},
    {76, {u'l', u'L'}, {u'\u0645', u'/'}},
    {186, {u';', u':'}, {u'\u0643', u':'}},
    {222, {u'\'', u'"'}, {u'\u0637', u'"'}},
    {192, {u'`', u'~'}, {u'\u0630', u'\u0651'}},
    {220, {u'\\', u'|'}, {u'\\', u'\u2026'}},
    {90, {u'z', u'Z'}, {u'\u0626', u'~'}},
    {88, {u'x', u'X'}, {u'\u0621', u'\u0652'}},
    {67, {u'c', u'C'}, {u'\u0624', u'}'}},
    {86, {u'v', u'V'}, {u'\u0631', u'{'}},
    {66, {u'b', u'B'}, {u'\uFEFB', u'\uFEF5'}},
    {78, {u'n', u'N'}, {u'\u0649', u'\u0622'}},
    {77, {u'm', u'M'}, {u'\u0629', u'\''}},
    {188, {u',', u'<'}, {u'\u0648', u','}},
    {190, {u'.', u'>'}, {u'\u0632', u'.'}},
    {191, {u'/', u'?'}, {u'\u0638', u'\u061F'}},
    {32, {u' ', 0}, {u' ', 0}},
    {226, {0, 0}, {0, u'\u00A6'}},
};

// clang-format on

std::uint16_t ByPlace(quint32 scanCode, quint32 nativeModifiers = numLock)
{
    // Whatever the input language makes of the key must not count.
    return KeyNumber(scanCode, nativeModifiers, Qt::Key_Eacute, Qt::ShiftModifier,
                     QStringLiteral("é"), true);
}

std::uint16_t BySymbol(char16_t symbol, bool arabicExercise)
{
    return KeyNumber(0, 0, symbol, Qt::NoModifier, QString(QChar(symbol)), arabicExercise);
}

std::uint16_t ByName(int qtKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return KeyNumber(0, 0, qtKey, modifiers, QString(), false);
}

} // namespace

class KeyMapTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void EveryPlaceHasItsNumber()
    {
        QCOMPARE(std::size(keys), std::size_t{106});
        for (const Key& key : keys) {
            QVERIFY2(ByPlace(key.scanCode) == key.number, key.name);
        }
    }

    void NoOtherPlaceHasANumber()
    {
        std::set<quint32> known;
        for (const Key& key : keys) {
            known.insert(key.scanCode);
        }
        for (quint32 scanCode = 9; scanCode <= 0x1000; ++scanCode) {
            if (!known.contains(scanCode)) {
                QCOMPARE(ByPlace(scanCode), unknownKey);
            }
        }
        QCOMPARE(ByPlace(0xFFFFFFFFU), unknownKey);
    }

    void NumericPadIsArrowsWithoutNumLock()
    {
        for (const PadKey& key : padKeys) {
            QVERIFY2(ByPlace(key.scanCode, 0) == key.withoutNumLock, key.name);
            QVERIFY2(ByPlace(key.scanCode, 0xEF) == key.withoutNumLock, key.name);
        }
    }

    void NumLockChangesNothingBesideTheNumericPad()
    {
        std::set<quint32> pad;
        for (const PadKey& key : padKeys) {
            pad.insert(key.scanCode);
        }
        for (const Key& key : keys) {
            QCOMPARE(ByPlace(key.scanCode, 0) == key.number, !pad.contains(key.scanCode));
        }
    }

    void UnknownKeyHasNoCap()
    {
        QCOMPARE(keyboard::CapOfKey(unknownKey), keyboard::noCap);
        for (const Key& key : keys) {
            QVERIFY(key.number != unknownKey);
        }
    }

    void EveryCharacterKeyCanBePressed()
    {
        std::set<int> numbers;
        for (const Key& key : keys) {
            numbers.insert(key.number);
        }
        for (const keyboard::CharacterKey& key : keyboard::characterKeys) {
            QVERIFY(numbers.contains(key.keyCode));
            QVERIFY(key.secondKeyCode == 0 || numbers.contains(key.secondKeyCode));
        }
    }

    void SymbolOfTheExercisesLanguageFindsItsKey()
    {
        for (const Levels& level : levels) {
            for (int shift = 0; shift < 2; ++shift) {
                if (level.latin[shift] != 0) {
                    QCOMPARE(BySymbol(level.latin[shift], false), level.number);
                }
                if (level.arabic[shift] != 0) {
                    QCOMPARE(BySymbol(level.arabic[shift], true), level.number);
                }
            }
        }
    }

    void SymbolThatOnlyTheOtherLanguageHasFindsItsKeyThere()
    {
        for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
            QCOMPARE(BySymbol(letter, true), letter - u'a' + 'A');
        }
        QCOMPARE(BySymbol(u'ش', false), 65);
        QCOMPARE(BySymbol(u'ظ', false), 191);
        QCOMPARE(BySymbol(u'؟', false), 191);
    }

    void ExerciseDecidesWhereASymbolOnTwoKeysStands()
    {
        const struct {
            char16_t symbol;
            int latin;
            int arabic;
        } ambiguous[] = {
            {u'/', 191, 76},  {u';', 186, 186}, {u',', 188, 188}, {u'.', 190, 190},
            {u'<', 188, 219}, {u'>', 190, 221}, {u'[', 219, 70},  {u']', 221, 68},
            {u'{', 219, 86},  {u'}', 221, 67},  {u'~', 192, 90},  {u'`', 192, 85},
            {u'\'', 222, 77}, {u'(', 57, 48},   {u')', 48, 57},   {u'"', 222, 222},
        };
        for (const auto& each : ambiguous) {
            QCOMPARE(BySymbol(each.symbol, false), each.latin);
            QCOMPARE(BySymbol(each.symbol, true), each.arabic);
        }
    }

    void LamAlefComesInEveryForm()
    {
        const struct {
            std::u16string_view text;
            int number;
        } forms[] = {
            {u"\uFEFB", 66}, {u"\uFEFC", 66}, {u"\uFEF5", 66}, {u"\uFEF6", 66},
            {u"\uFEF7", 71}, {u"\uFEF8", 71}, {u"\uFEF9", 84}, {u"\uFEFA", 84},
            {u"لا", 66},     {u"لآ", 66},     {u"لأ", 71},     {u"لإ", 84},
        };
        for (const auto& form : forms) {
            const QString text = QString::fromUtf16(form.text.data(), qsizetype(form.text.size()));
            QCOMPARE(KeyNumber(0, 0, text.front().unicode(), Qt::NoModifier, text, true),
                     form.number);
            QCOMPARE(KeyNumber(0, 0, 0, Qt::NoModifier, text, true), form.number);
        }
    }

    void NamedKeysNeedNoPlace()
    {
        const std::map<int, int> named = {
            {Qt::Key_Escape, 27},  {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},
            {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},
            {Qt::Key_Shift, 16},   {Qt::Key_Control, 17},  {Qt::Key_Alt, 18},
            {Qt::Key_AltGr, 18},   {Qt::Key_Space, 32},    {Qt::Key_CapsLock, 20},
            {Qt::Key_F1, 112},     {Qt::Key_F2, 113},      {Qt::Key_F3, 114},
            {Qt::Key_F4, 115},     {Qt::Key_F5, 116},      {Qt::Key_F6, 117},
            {Qt::Key_F7, 118},     {Qt::Key_F8, 119},      {Qt::Key_F9, 120},
            {Qt::Key_F10, 121},    {Qt::Key_F11, 122},     {Qt::Key_F12, 123},
            {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},   {Qt::Key_Home, 36},
            {Qt::Key_End, 35},     {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34},
            {Qt::Key_Up, 38},      {Qt::Key_Left, 37},     {Qt::Key_Down, 40},
            {Qt::Key_Right, 39},   {Qt::Key_Print, 44},    {Qt::Key_SysReq, 44},
            {Qt::Key_Pause, 19},   {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145},
            {Qt::Key_Clear, 12},   {Qt::Key_Meta, 91},     {Qt::Key_Super_L, 91},
            {Qt::Key_Super_R, 92}, {Qt::Key_Menu, 93},
        };
        for (const auto& [qtKey, number] : named) {
            QCOMPARE(ByName(qtKey), number);
        }
    }

    void NumericPadWithoutAPlaceIsToldByItsModifier()
    {
        for (int digit = 0; digit <= 9; ++digit) {
            QCOMPARE(ByName(Qt::Key_0 + digit, Qt::KeypadModifier), 96 + digit);
        }
        QCOMPARE(ByName(Qt::Key_Asterisk, Qt::KeypadModifier), 106);
        QCOMPARE(ByName(Qt::Key_Plus, Qt::KeypadModifier), 107);
        QCOMPARE(ByName(Qt::Key_Minus, Qt::KeypadModifier), 109);
        QCOMPARE(ByName(Qt::Key_Period, Qt::KeypadModifier), 110);
        QCOMPARE(ByName(Qt::Key_Comma, Qt::KeypadModifier), 110);
        QCOMPARE(ByName(Qt::Key_Slash, Qt::KeypadModifier), 111);
        QCOMPARE(ByName(Qt::Key_Enter, Qt::KeypadModifier), 13);
        QCOMPARE(ByName(Qt::Key_Home, Qt::KeypadModifier), 36);
        QCOMPARE(ByName(Qt::Key_Clear, Qt::KeypadModifier), 12);
    }

    void DigitsOfEitherScriptAreTheNumberRow()
    {
        for (int digit = 0; digit <= 9; ++digit) {
            QCOMPARE(BySymbol(static_cast<char16_t>(u'0' + digit), true), '0' + digit);
            QCOMPARE(BySymbol(static_cast<char16_t>(0x0660 + digit), true), '0' + digit);
        }
    }

    void TextHelpsWhereTheToolkitKnowsNoKey()
    {
        QCOMPARE(KeyNumber(0, 0, 0, Qt::NoModifier, QStringLiteral("k"), false), 75);
        QCOMPARE(KeyNumber(0, 0, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("ن"), true), 75);
    }

    void NothingKnownIsTheUnknownKey()
    {
        QCOMPARE(ByName(0), unknownKey);
        QCOMPARE(ByName(-1), unknownKey);
        QCOMPARE(ByName(Qt::Key_unknown), unknownKey);
        QCOMPARE(ByName(Qt::Key_VolumeMute), unknownKey);
        QCOMPARE(ByName(Qt::Key_Dead_Circumflex), unknownKey);
        QCOMPARE(BySymbol(u'é', false), unknownKey);
        QCOMPARE(KeyNumber(0, 0, 0, Qt::NoModifier, QString(QChar(0)), false), unknownKey);
        QCOMPARE(KeyNumber(0, 0, 0, Qt::NoModifier, QStringLiteral("ab"), false), unknownKey);
    }

    // X servers lend code 8 to symbols that are on no key; the symbol is all there is to go by.
    void LentScanCodeTellsNoPlace()
    {
        QCOMPARE(KeyNumber(8, 0, u'ش', Qt::NoModifier, QStringLiteral("ش"), true), 65);
    }

    void EventIsTakenApart()
    {
        const QKeyEvent placed(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, 24, 0x61, 0,
                               QStringLiteral("a"));
        QCOMPARE(KeyNumber(placed, false), 81);
        const QKeyEvent pad(QEvent::KeyPress, Qt::Key_7, Qt::KeypadModifier, 79, 0, numLock,
                            QStringLiteral("7"));
        QCOMPARE(KeyNumber(pad, false), 103);
        const QKeyEvent symbol(QEvent::KeyPress, Qt::Key_Slash, Qt::NoModifier,
                               QStringLiteral("/"));
        QCOMPARE(KeyNumber(symbol, false), 191);
        QCOMPARE(KeyNumber(symbol, true), 76);
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::KeyMapTest)

#include "KeyMapTest.moc"
