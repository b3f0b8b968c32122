#include "keyboard/Highlight.h"

#include "context/KeyboardKind.h"
#include "keyboard/CharacterIndex.h"
#include "keyboard/KeyCaps.h"

namespace keyfluent::keyboard
{
namespace
{

// clang-format off

// The characters that light a cap. Letters of both languages light their caps whatever the language
// of the exercise; the signs stand as in an English exercise.
struct Row {
    int cap;
    std::u16string_view windows;
    std::u16string_view mac;
};

constexpr Row rows[] = {
    // Number row.
    {16, u"ذ", u""},
    {17, u"1!", u"1!"},
    {18, u"2@", u"2@"},
    {19, u"3#", u"3#"},
    {20, u"4$", u"4$"},
    {21, u"5%", u"5%"},
    {22, u"6^", u"6^"},
    {23, u"7&", u"7&"},
    {24, u"8*", u"8*"},
    {25, u"9(", u"9("},
    {26, u"0)", u"0)"},
    {27, u"-_", u"-_"}, // Meant: "_" also where the Arabic Macintosh layout has it on cap 16.
    {28, u"=+", u"=+"},

    // Upper letter row.
    {34, u"qQض", u"qQض"},
    {35, u"wWص", u"wWص"},
    {36, u"eEث", u"eEث"},
    {37, u"rRق", u"rRق"},
    {38, u"tTف", u"tTف"},
    {39, u"yYغإ", u"yYغ"},
    {40, u"uUع", u"uUع"},
    {41, u"iIه", u"iIه"},
    {42, u"oOخ", u"oOخ"},
    {43, u"pPح؛", u"pPح"},
    {44, u"[ج", u"[ج"}, // Meant: the square brackets as in English on the Macintosh in Arabic too.
    {45, u"]د", u"]ة"},

    // Home row.
    {48, u"aAش", u"aAش"},
    {49, u"sSس", u"sSس"},
    {50, u"dDي", u"dDيى"},
    {51, u"fFب", u"fFب"},
    {52, u"gGل", u"gGل"},
    {53, u"hHاأ", u"hHاآ"},
    {54, u"jJت", u"jJت"},
    {55, u"kKن", u"kKن"},
    {56, u"lLم", u"lLم"},
    {57, u";:ك", u";:ك"},
    {58, u"'ط", u"'؛"}, // Meant: the apostrophe as in English on the Arabic Windows layout too.
    {capReturn, u"\u0691", u"\u0691"},

    // Lower letter row.
    {61, u"zZئ", u"zZظ"},
    {62, u"xXء", u"xXط"},
    {63, u"cCؤ", u"cCذئ"},
    {64, u"vVر", u"vVدء"},
    {65, u"bB", u"bBزأ"},
    {66, u"nNىآ", u"nNرإ"},
    {67, u"mMة", u"mMوؤ"},
    {68, u",<و،", u",>،"}, // Meant: "،" beside the comma, though Arabic Windows has it on cap 55.
    {69, u".>ز", u".<"},   // Meant: "<" and ">" crossed on the Macintosh against its English caps.
    {70, u"/?ظ؟", u"/?؟"},

    {capSpace, u" ", u" "},
};

// The seven signs whose cap depends on the language: their caps in an Arabic exercise.
struct ArabicSign {
    char16_t sign;
    int windowsCap;
    int macCap;
};

constexpr ArabicSign arabicSigns[] = {
    {u'(', 26, 26},
    {u')', 25, 25},
    {u'/', 56, 70},
    {u'<', 44, 69},
    {u'>', 45, 68},
    {u'[', 51, 44},
    {u']', 50, 45},
};

// clang-format on

constexpr CharacterIndex MakeIndex(bool windows, bool arabicExercise)
{
    CharacterIndex index;
    for (const Row& row : rows) {
        index.Add(windows ? row.windows : row.mac, row.cap);
    }
    if (arabicExercise) {
        for (const ArabicSign& sign : arabicSigns) {
            index.Replace(sign.sign, windows ? sign.windowsCap : sign.macCap);
        }
    }
    return index;
}

// [Windows][Arabic]
constexpr CharacterIndex indexes[2][2] = {{MakeIndex(false, false), MakeIndex(false, true)},
                                          {MakeIndex(true, false), MakeIndex(true, true)}};

static_assert(CharacterIndex::none == noCap);

} // namespace

int CapOfCharacter(std::u16string_view character, std::int32_t keyboardKind, bool arabicExercise)
{
    return indexes[context::CountsAsWindows(keyboardKind)][arabicExercise].Find(character);
}

} // namespace keyfluent::keyboard
