#include "keyboard/KeyWords.h"

#include "context/CodePage1256.h"
#include "context/Text.h"
#include "keyboard/Fingers.h"
#include "keyboard/KeyJudging.h"
#include "keyboard/Layouts.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace keyfluent::keyboard
{
namespace
{

// clang-format off

struct Name {
    char16_t character;
    std::u16string_view english;
    std::u16string_view arabic;
};

constexpr Name names[] = {
    // Keys of their own.
    {u' ', u"Space", u"المسافة"},
    {context::lineEndMark, u"Return", u"إدخال"},

    // Arabic letters.
    {u'ا', u"alef", u"ألف"},
    {u'أ', u"alef with hamza above", u"همزة فوق الألف"},
    {u'إ', u"alef with hamza below", u"همزة تحت الألف"},
    {u'آ', u"alef with madda", u"ألف عليها مدة"},
    {u'ب', u"beh", u"باء"},
    {u'ت', u"teh", u"تاء"},
    {u'ة', u"teh marbuta", u"تاء مربوطة"},
    {u'ث', u"theh", u"ثاء"},
    {u'ج', u"jeem", u"جيم"},
    {u'ح', u"hah", u"حاء"},
    {u'خ', u"khah", u"خاء"},
    {u'د', u"dal", u"دال"},
    {u'ذ', u"thal", u"ذال"},
    {u'ر', u"reh", u"راء"},
    {u'ز', u"zain", u"زاي"},
    {u'س', u"seen", u"سين"},
    {u'ش', u"sheen", u"شين"},
    {u'ص', u"sad", u"صاد"},
    {u'ض', u"dad", u"ضاد"},
    {u'ط', u"tah", u"طاء"},
    {u'ظ', u"zah", u"ظاء"},
    {u'ع', u"ain", u"عين"},
    {u'غ', u"ghain", u"غين"},
    {u'ف', u"feh", u"فاء"},
    {u'ق', u"qaf", u"قاف"},
    {u'ك', u"kaf", u"كاف"},
    {u'ل', u"lam", u"لام"},
    {u'م', u"meem", u"ميم"},
    {u'ن', u"noon", u"نون"},
    {u'ه', u"heh", u"هاء"},
    {u'و', u"waw", u"واو"},
    {u'ي', u"yeh", u"ياء"},
    {u'ى', u"alef maksura", u"ألف مقصورة"},
    {u'ء', u"hamza", u"همزة"},
    {u'ؤ', u"waw with hamza", u"همزة على الواو"},
    {u'ئ', u"yeh with hamza", u"همزة على الياء"},
    {u'\u0640', u"tatweel", u"تطويل"},

    // Marks over and under Arabic letters.
    {u'\u064B', u"fathatan", u"تنوين الفتح"},
    {u'\u064C', u"dammatan", u"تنوين الضم"},
    {u'\u064D', u"kasratan", u"تنوين الكسر"},
    {u'\u064E', u"fatha", u"فتحة"},
    {u'\u064F', u"damma", u"ضمة"},
    {u'\u0650', u"kasra", u"كسرة"},
    {u'\u0651', u"shadda", u"شدة"},
    {u'\u0652', u"sukun", u"سكون"},

    // Punctuation of both languages.
    {u'.', u"full stop", u"نقطة"},
    {u',', u"comma", u"فاصلة إنجليزية"},
    {u'،', u"Arabic comma", u"فاصلة"},
    {u':', u"colon", u"نقطتان"},
    {u';', u"semicolon", u"فاصلة منقوطة إنجليزية"},
    {u'؛', u"Arabic semicolon", u"فاصلة منقوطة"},
    {u'?', u"question mark", u"علامة استفهام إنجليزية"},
    {u'؟', u"Arabic question mark", u"علامة استفهام"},
    {u'!', u"exclamation mark", u"علامة تعجب"},
    {u'\'', u"apostrophe", u"فاصلة عليا"},
    {u'\u2019', u"curly apostrophe", u"فاصلة عليا معقوفة"},
    {u'"', u"quotation mark", u"علامة تنصيص"},
    {u'`', u"grave accent", u"نبرة"},

    // Brackets, named after what they do in the text: how they are drawn turns with its direction.
    {u'(', u"opening bracket", u"قوس فتح"},
    {u')', u"closing bracket", u"قوس إغلاق"},
    {u'[', u"opening square bracket", u"قوس فتح مربع"},
    {u']', u"closing square bracket", u"قوس إغلاق مربع"},
    {u'{', u"opening curly bracket", u"قوس فتح معقوف"},
    {u'}', u"closing curly bracket", u"قوس إغلاق معقوف"},
    {u'<', u"less-than sign", u"علامة أصغر من"},
    {u'>', u"greater-than sign", u"علامة أكبر من"},

    // Signs.
    {u'-', u"hyphen", u"شرطة"},
    {u'_', u"underscore", u"شرطة سفلية"},
    {u'=', u"equals sign", u"علامة يساوي"},
    {u'+', u"plus sign", u"علامة زائد"},
    {u'*', u"asterisk", u"نجمة"},
    {u'/', u"slash", u"شرطة مائلة"},
    {u'\\', u"backslash", u"شرطة مائلة معكوسة"},
    {u'|', u"vertical bar", u"خط عمودي"},
    {u'×', u"multiplication sign", u"علامة الضرب"},
    {u'÷', u"division sign", u"علامة القسمة"},
    {u'@', u"at sign", u"علامة البريد"},
    {u'#', u"number sign", u"علامة الرقم"},
    {u'$', u"dollar sign", u"علامة الدولار"},
    {u'%', u"percent sign", u"علامة النسبة المئوية"},
    {u'^', u"caret", u"علامة الأس"},
    {u'&', u"ampersand", u"علامة العطف"},
    {u'~', u"tilde", u"علامة التقريب"},
};

struct Words {
    std::u16string_view english;
    std::u16string_view arabic;

    constexpr std::u16string_view In(bool arabicWords) const
    {
        return arabicWords ? arabic : english;
    }
};

// In the order of their numbers.
constexpr Words fingers[] = {
    {u"at rest", u"في وضع الراحة"},
    {u"thumb", u"الإبهام"},
    {u"index finger", u"السبابة"},
    {u"middle finger", u"الوسطى"},
    {u"ring finger", u"البنصر"},
    {u"little finger", u"الخنصر"},
};

constexpr Words withShift{u" with Shift", u" مع العالي"};
constexpr Words withLeftShift{u" with left Shift", u" مع العالي الأيسر"};
constexpr Words withRightShift{u" with right Shift", u" مع العالي الأيمن"};

// clang-format on

constexpr char16_t firstPrintable = u' ';

const Words& ShiftWords(int shiftCap)
{
    switch (shiftCap) {
    case capLeftShift:
        return withLeftShift;
    case capRightShift:
        return withRightShift;
    default:
        return withShift;
    }
}

} // namespace

std::u16string CharacterName(char16_t character, bool arabicWords)
{
    if (character < firstPrintable) {
        return {};
    }
    const auto found = std::ranges::find(names, character, &Name::character);
    if (found == std::end(names)) {
        return std::u16string(1, character);
    }
    return std::u16string(arabicWords ? found->arabic : found->english);
}

bool WantsShift(char16_t character, std::int32_t keyboardKind, bool arabicExercise)
{
    const std::uint8_t code = context::ToCodePage1256(character);
    const auto typed = [=](bool shiftDown) {
        return std::ranges::any_of(characterKeys, [=](const CharacterKey& key) {
            return IsValidKey(key.keyCode, code, shiftDown, false, keyboardKind, arabicExercise);
        });
    };
    return typed(true) && !typed(false);
}

std::u16string KeyWords(std::u16string_view character, std::int32_t keyboardKind,
                        bool arabicExercise, bool arabicWords)
{
    if (character.size() != 1) {
        return {};
    }
    std::u16string words = CharacterName(character[0], arabicWords);
    if (!words.empty() && WantsShift(character[0], keyboardKind, arabicExercise)) {
        const int shiftCap = FingersOf(character, keyboardKind, arabicExercise).shiftCap;
        words += ShiftWords(shiftCap).In(arabicWords);
    }
    return words;
}

std::u16string_view FingerName(int finger, bool arabicWords)
{
    return fingers[static_cast<std::size_t>(finger)].In(arabicWords);
}

} // namespace keyfluent::keyboard
