#include "FingerClaims.h"

#include <map>
#include <regex>

namespace keyfluent::course::fixtures
{
namespace
{

using keyboard::Fingers;

const std::map<std::string, char16_t> keyNames{
    {"semicolon", u';'},
    {"space bar", u' '},
    {"Return", u'\u0691'},
    {"comma", u','},
    {"period", u'.'},
    {"colon", u':'},
    {"question mark", u'?'},
    {"closing parenthesis", u')'},
    {"hyphen", u'-'},
    {"slash", u'/'},
    {"exclamation point", u'!'},
    {"opening parenthesis", u'('},
    {"equals sign", u'='},
    {"plus sign", u'+'},
    {"asterisk", u'*'},
};

// A longer name comes before the letter that it begins with.
const std::string key =
    "(?:[Tt]he )?(?:semicolon|space bar|Return|comma|period|colon|question mark|closing "
    "parenthesis|hyphen|slash|exclamation point|opening parenthesis|equals sign|plus sign|asterisk|"
    "[A-Z0-9]\\b)";
const std::string keyList = "\\b(" + key + "(?:(?:, and |, | and )" + key + ")*)";

// A letter stands in a note as its capital, as on the cap.
char16_t CharacterOf(const std::string& name)
{
    if (name.size() > 1) {
        return keyNames.at(name);
    }
    const bool isLetter = name[0] >= 'A' && name[0] <= 'Z';
    return static_cast<char16_t>(isLetter ? name[0] - 'A' + 'a' : name[0]);
}

std::vector<char16_t> CharactersOf(const std::string& list)
{
    static const std::regex single(key);
    std::vector<char16_t> characters;
    for (std::sregex_iterator match(list.begin(), list.end(), single), end; match != end; ++match) {
        characters.push_back(
            CharacterOf(std::regex_replace(match->str(), std::regex("^[Tt]he "), "")));
    }
    return characters;
}

int FingerOf(const std::string& name)
{
    static const std::map<std::string, int> numbers{{"little", keyboard::littleFinger},
                                                    {"ring", keyboard::ringFinger},
                                                    {"middle", keyboard::middleFinger},
                                                    {"index", keyboard::indexFinger}};
    return numbers.at(name);
}

Fingers Alone(bool left, int finger)
{
    return left ? Fingers{finger, 0, keyboard::noCap} : Fingers{0, finger, keyboard::noCap};
}

// One pair of round brackets: fingers and ways, divided by commas.
struct Bracket {
    std::vector<std::pair<std::optional<bool>, Fingers>> fingers;
    std::vector<std::pair<int, char16_t>> ways;
    bool isRead = true;
};

void ReadPiece(const std::string& piece, Bracket& bracket)
{
    static const std::regex finger("(left|right) (little|ring|middle|index) finger"
                                   "(?: on the (Windows|Macintosh) keyboard)?");
    static const std::regex way("(up|over|down) from (" + key + ")");
    static const std::regex shift("on the (left|right) Shift");
    std::smatch match;
    if (std::regex_match(piece, match, finger)) {
        std::optional<bool> windows;
        if (match[3].matched) {
            windows = match[3] == "Windows";
        }
        bracket.fingers.emplace_back(windows, Alone(match[1] == "left", FingerOf(match[2])));
    } else if (piece == "right thumb") {
        bracket.fingers.emplace_back(std::nullopt, Alone(false, keyboard::thumb));
    } else if (std::regex_match(piece, match, way)) {
        const int rowsDown = match[1] == "up" ? -1 : match[1] == "down" ? 1 : 0;
        bracket.ways.emplace_back(rowsDown, CharactersOf(match[2]).front());
    } else if (piece == "with the left little finger on Shift" && !bracket.fingers.empty()) {
        bracket.fingers.back().second.left = keyboard::littleFinger;
        bracket.fingers.back().second.shiftCap = keyboard::capLeftShift;
    } else if (std::regex_match(piece, match, shift) && !bracket.fingers.empty()) {
        bracket.fingers.back().second.shiftCap =
            match[1] == "left" ? keyboard::capLeftShift : keyboard::capRightShift;
    } else {
        bracket.isRead = false;
    }
}

Bracket ReadBracket(const std::string& content)
{
    Bracket bracket;
    for (std::size_t at = 0; at <= content.size();) {
        const std::size_t end = std::min(content.find(", ", at), content.size());
        ReadPiece(content.substr(at, end - at), bracket);
        at = end + 2;
    }
    bracket.isRead = bracket.isRead && !bracket.fingers.empty();
    return bracket;
}

// "E and I (left middle finger ..."
void ReadBrackets(const std::string& note, Claims& claims)
{
    static const std::regex bracketed("([^().:;\\r]*)\\(([^)]*)\\)");
    static const std::regex place(" (?:on the [0-9] key|at the end of the bottom row) $");
    static const std::regex trailing(keyList + " $");
    for (std::sregex_iterator match(note.begin(), note.end(), bracketed), end; match != end;
         ++match) {
        const std::string front = std::regex_replace((*match)[1].str(), place, " ");
        const Bracket bracket = ReadBracket((*match)[2]);
        std::smatch keys;
        if (!bracket.isRead || !std::regex_search(front, keys, trailing)) {
            claims.unread.push_back(match->str());
            continue;
        }
        for (const char16_t character : CharactersOf(keys[1])) {
            for (const auto& [windows, fingers] : bracket.fingers) {
                claims.fingers.push_back({character, windows, fingers, match->str()});
            }
            for (const auto& [rowsDown, from] : bracket.ways) {
                claims.ways.push_back({character, rowsDown, from, match->str()});
            }
        }
    }
}

// "F and G belong to the left index finger"
void ReadBelongings(const std::string& note, Claims& claims)
{
    static const std::regex belongs(
        keyList + " belong to the (left|right) (little|ring|middle|index) finger");
    for (std::sregex_iterator match(note.begin(), note.end(), belongs), end; match != end;
         ++match) {
        const Fingers fingers = Alone((*match)[2] == "left", FingerOf((*match)[3]));
        for (const char16_t character : CharactersOf((*match)[1])) {
            claims.fingers.push_back({character, std::nullopt, fingers, match->str()});
        }
    }
}

// What no form has taken up.
void ReadRest(const std::string& note, Claims& claims)
{
    static const std::regex taken(
        "\\([^)]*\\)|belong to the (?:left|right) [a-z]+ finger|For a letter of the left hand the "
        "right little finger is on Shift, for a letter of the right hand the left little finger is "
        "on Shift");
    static const std::regex named("(?:left|right) (?:little|ring|middle|index) finger\\b");
    const std::string rest = std::regex_replace(note, taken, "");
    for (std::sregex_iterator match(rest.begin(), rest.end(), named), end; match != end; ++match) {
        claims.unread.push_back(match->str());
    }
}

} // namespace

Claims EnglishClaims(const std::string& note)
{
    Claims claims;
    ReadBrackets(note, claims);
    ReadBelongings(note, claims);
    ReadRest(note, claims);
    return claims;
}

} // namespace keyfluent::course::fixtures
