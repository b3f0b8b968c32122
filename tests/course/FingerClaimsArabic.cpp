#include "FingerClaims.h"

#include "context/Text.h"
#include "course/Notes.h"

#include <map>
#include <regex>

namespace keyfluent::course::fixtures
{
namespace
{

using keyboard::Fingers;

std::wstring Wide(const std::string& text)
{
    const std::u16string units = context::FromUtf8(text);
    return {units.begin(), units.end()};
}

std::string Narrow(const std::wstring& text)
{
    std::u16string units;
    for (const wchar_t character : text) {
        units += static_cast<char16_t>(character);
    }
    return context::ToUtf8(units);
}

const std::wstring key = L"(?:\\(.\\)|قوس الفتح|قوس الإغلاق|مفتاح الإدخال|مسطرة المسافات)";
const std::wstring finger = L"ب(خنصر|بنصر|وسطى|سبابة|إبهام) اليد (اليمنى|اليسرى)";

std::vector<char16_t> CharactersOf(const std::wstring& list)
{
    static const std::map<std::wstring, char16_t> names{{L"قوس الفتح", u'('},
                                                        {L"قوس الإغلاق", u')'},
                                                        {L"مفتاح الإدخال", u'\u0691'},
                                                        {L"مسطرة المسافات", u' '}};
    static const std::wregex single(key);
    std::vector<char16_t> characters;
    for (std::wsregex_iterator match(list.begin(), list.end(), single), end; match != end;
         ++match) {
        const std::wstring name = match->str();
        characters.push_back(name[0] == L'(' ? static_cast<char16_t>(name[1]) : names.at(name));
    }
    return characters;
}

Fingers Alone(const std::wstring& name, const std::wstring& hand)
{
    static const std::map<std::wstring, int> numbers{{L"خنصر", keyboard::littleFinger},
                                                     {L"بنصر", keyboard::ringFinger},
                                                     {L"وسطى", keyboard::middleFinger},
                                                     {L"سبابة", keyboard::indexFinger},
                                                     {L"إبهام", keyboard::thumb}};
    const int number = numbers.at(name);
    return hand == L"اليسرى" ? Fingers{number, 0, keyboard::noCap}
                             : Fingers{0, number, keyboard::noCap};
}

// The other hand's little finger on its Shift key.
void HoldShift(const std::wstring& hand, Fingers& fingers)
{
    if (hand == L"اليسرى") {
        fingers.left = keyboard::littleFinger;
        fingers.shiftCap = keyboard::capLeftShift;
    } else {
        fingers.right = keyboard::littleFinger;
        fingers.shiftCap = keyboard::capRightShift;
    }
}

// Takes every match of a form out of the text, so that what is left can be looked through.
template <typename Read> void TakeOut(std::wstring& text, const std::wregex& form, const Read& read)
{
    for (std::wsregex_iterator match(text.begin(), text.end(), form), end; match != end; ++match) {
        read(*match);
    }
    text = std::regex_replace(text, form, L"");
}

// "(ق) و(ف) بسبابة اليد اليسرى", with Shift or without it.
void ReadKeys(std::wstring& text, std::optional<bool> windows, Claims& claims)
{
    static const std::wregex form(L"(" + key + L"(?:(?:، و| و|، )" + key + L")*) " + finger +
                                  L"( مع مفتاح العالي بخنصر اليد (اليمنى|اليسرى))?");
    TakeOut(text, form, [&](const std::wsmatch& match) {
        Fingers fingers = Alone(match[2], match[3]);
        if (match[4].matched) {
            HoldShift(match[5], fingers);
        }
        for (const char16_t character : CharactersOf(match[1])) {
            claims.fingers.push_back({character, windows, fingers, Narrow(match.str())});
        }
    });
}

// "الخنصران على (ش) و(ك)": the left hand's key first.
void ReadPairs(std::wstring& text, std::optional<bool> windows, Claims& claims)
{
    static const std::map<std::wstring, std::wstring> singular{{L"الخنصران", L"خنصر"},
                                                               {L"البنصران", L"بنصر"},
                                                               {L"الوسطيان", L"وسطى"},
                                                               {L"السبابتان", L"سبابة"}};
    static const std::wregex form(
        L"(الخنصران|البنصران|الوسطيان|السبابتان) على \\((.)\\) و\\((.)\\)");
    TakeOut(text, form, [&](const std::wsmatch& match) {
        const std::wstring& name = singular.at(match[1]);
        for (const auto& [group, hand] : {std::pair{2u, L"اليسرى"}, std::pair{3u, L"اليمنى"}}) {
            claims.fingers.push_back({static_cast<char16_t>(match[group].str()[0]), windows,
                                      Alone(name, hand), Narrow(match.str())});
        }
    });
}

// "!" and "*": the finger on Shift alone is named, for both keyboards.
void ReadShiftAlone(std::wstring& text, Claims& claims)
{
    static const std::wregex form(
        L"\\(([!*])\\)[^\\r]*اضغط مفتاح العالي (الأيمن|الأيسر) بخنصر اليد (اليمنى|اليسرى)");
    TakeOut(text, form, [&](const std::wsmatch& match) {
        Fingers fingers = Alone(L"خنصر", match[3]);
        fingers.shiftCap = match[2] == L"الأيسر" ? keyboard::capLeftShift : keyboard::capRightShift;
        claims.fingers.push_back(
            {static_cast<char16_t>(match[1].str()[0]), std::nullopt, fingers, Narrow(match.str())});
    });
}

void ReadOf(std::optional<bool> windows, std::wstring text, Claims& claims)
{
    static const std::wregex named(finger);
    ReadPairs(text, windows, claims);
    ReadKeys(text, windows, claims);
    for (std::wsregex_iterator match(text.begin(), text.end(), named), end; match != end; ++match) {
        claims.unread.push_back(Narrow(match->str()));
    }
}

// What is said of one keyboard reaches to the next keyboard's name or the end of the paragraph.
void ReadParagraph(std::wstring text, Claims& claims)
{
    static const std::wregex keyboardName(L"في لوحة مفاتيح (النوافذ|الماكنتوش):|في اللوحتين:");
    ReadShiftAlone(text, claims);
    const std::wstring paragraph = text;
    std::optional<bool> windows;
    auto from = paragraph.begin();
    for (std::wsregex_iterator match(paragraph.begin(), paragraph.end(), keyboardName), end;
         match != end; ++match) {
        const auto to = (*match)[0].first;
        ReadOf(windows, std::wstring(from, to), claims);
        windows.reset();
        if ((*match)[1].matched) {
            windows = (*match)[1] == L"النوافذ";
        }
        from = (*match)[0].second;
    }
    ReadOf(windows, std::wstring(from, paragraph.end()), claims);
}

} // namespace

Claims ArabicClaims(const std::string& note)
{
    Claims claims;
    const std::wstring text = Wide(note);
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(L'\r', at), text.size());
        ReadParagraph(text.substr(at, end - at), claims);
        at = end + 1;
    }
    return claims;
}

Claims ClaimsAt(const Place& place)
{
    const std::string note =
        context::ToUtf8(ExerciseNote(place.lesson, place.exercise, place.arabic));
    return place.arabic ? ArabicClaims(note) : EnglishClaims(note);
}

} // namespace keyfluent::course::fixtures
