// Each finger that a note names is the finger of the table, and each new key is named with its
// finger.
#include "FingerClaims.h"
#include "TaughtFingers.h"
#include "TaughtKeys.h"

#include "context/KeyboardKind.h"
#include "context/Text.h"
#include "course/Notes.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace keyfluent::keyboard
{

static void PrintTo(const Fingers& fingers, std::ostream* out)
{
    *out << "left " << fingers.left << " right " << fingers.right << " Shift " << fingers.shiftCap;
}

} // namespace keyfluent::keyboard

namespace keyfluent::course::fixtures
{
namespace
{

using keyboard::Fingers;

std::int32_t KindOfKeyboard(bool windows)
{
    return windows ? context::windowsKeyboard : context::macintoshKeyboard;
}

std::string OnKeyboard(bool windows)
{
    return windows ? " on the Windows keyboard" : " on the Macintosh keyboard";
}

Fingers TableFingers(char16_t character, bool windows, bool arabic)
{
    return keyboard::FingersOf(std::u16string_view(&character, 1), KindOfKeyboard(windows), arabic);
}

std::string Shown(char16_t character)
{
    return "'" + context::ToUtf8(std::u16string(1, character)) + "'";
}

TEST(NoteFingers, TheTwoStatementsOfTheFingersAgree)
{
    for (const bool arabic : {false, true}) {
        for (const bool windows : {false, true}) {
            std::u16string keys(TeachableKeys(arabic));
            keys += u" \u0691";
            for (const char16_t key : keys) {
                if (key == u'\'') {
                    continue; // the hands rest for it, see below
                }
                EXPECT_EQ(TaughtFingers(key, windows, arabic), TableFingers(key, windows, arabic))
                    << (arabic ? "Arabic " : "English ") << Shown(key) << OnKeyboard(windows);
            }
        }
    }
}

TEST(NoteFingers, EveryNamedFingerIsTheFingerOfTheKey)
{
    for (const Place& place : TextPlaces()) {
        for (const FingerClaim& claim : ClaimsAt(place).fingers) {
            for (const bool windows : {false, true}) {
                if (claim.windows && *claim.windows != windows) {
                    continue;
                }
                const std::string where = Name(place) + ": " + Shown(claim.character) +
                                          OnKeyboard(windows) + " in " + claim.words;
                EXPECT_EQ(claim.fingers, TableFingers(claim.character, windows, place.arabic))
                    << where;
                EXPECT_EQ(claim.fingers, TaughtFingers(claim.character, windows, place.arabic))
                    << where;
            }
        }
    }
}

TEST(NoteFingers, EveryWayLeadsFromAKeyOfTheSameFinger)
{
    std::size_t ways = 0;
    for (const Place& place : TextPlaces()) {
        for (const WayClaim& way : ClaimsAt(place).ways) {
            for (const bool windows : {false, true}) {
                const Fingers there = TaughtFingers(way.character, windows, place.arabic);
                const Fingers home = TaughtFingers(way.from, windows, place.arabic);
                EXPECT_EQ(std::max(there.left, there.right), std::max(home.left, home.right))
                    << Name(place) << ": " << way.words;
                const int down = KeyRow(way.character, windows, place.arabic) -
                                 KeyRow(way.from, windows, place.arabic);
                if (way.character != u'\u0691') {
                    EXPECT_EQ(down < 0, way.rowsDown < 0) << Name(place) << ": " << way.words;
                    EXPECT_EQ(down > 0, way.rowsDown > 0) << Name(place) << ": " << way.words;
                }
            }
            ++ways;
        }
    }
    EXPECT_GE(ways, 20u);
}

TEST(NoteFingers, NoFingerIsNamedOutsideTheSteadyForms)
{
    std::size_t claims = 0;
    for (const Place& place : TextPlaces()) {
        const Claims found = ClaimsAt(place);
        claims += found.fingers.size();
        for (const std::string& words : found.unread) {
            ADD_FAILURE() << Name(place) << ": " << words;
        }
    }
    EXPECT_GE(claims, 200u);
}

// Keys that a note brings without a finger.
bool HasNoNamedFinger(char16_t key, const Place& place, bool windows)
{
    if (key == u'\'') {
        return true; // the hands rest for it, and the note says so
    }
    if (key >= u'A' && key <= u'Z') {
        return true; // told by the rule of Shift
    }
    // Meant: the hands show it where it stands on other layouts; the note tells its place.
    return key == u'؛' && place.arabic && !windows;
}

TEST(NoteFingers, EveryNewKeyIsNamedWithItsFingerOnBothKeyboards)
{
    for (const Place& place : TextPlaces()) {
        const std::vector<FingerClaim> claims = ClaimsAt(place).fingers;
        for (const char16_t key : NewKeysAt(place)) {
            for (const bool windows : {false, true}) {
                const bool isNamed =
                    std::any_of(claims.begin(), claims.end(), [&](const FingerClaim& claim) {
                        return claim.character == key && claim.windows.value_or(windows) == windows;
                    });
                EXPECT_TRUE(isNamed || HasNoNamedFinger(key, place, windows))
                    << Name(place) << ": " << Shown(key) << OnKeyboard(windows);
            }
        }
    }
}

TEST(NoteFingers, TheRuleOfShiftHoldsForEveryCapital)
{
    const std::string note = context::ToUtf8(ExerciseNote(7, 4, false));
    EXPECT_NE(note.find("For a letter of the left hand the right little finger is on Shift, for a "
                        "letter of the right hand the left little finger is on Shift."),
              std::string::npos);
    for (const bool windows : {false, true}) {
        for (char16_t capital = u'A'; capital <= u'Z'; ++capital) {
            const Fingers small =
                TableFingers(static_cast<char16_t>(capital - u'A' + u'a'), windows, false);
            const Fingers large = TableFingers(capital, windows, false);
            if (small.left != keyboard::handAtRest) {
                EXPECT_EQ(large,
                          (Fingers{small.left, keyboard::littleFinger, keyboard::capRightShift}))
                    << Shown(capital);
            } else {
                EXPECT_EQ(large,
                          (Fingers{keyboard::littleFinger, small.right, keyboard::capLeftShift}))
                    << Shown(capital);
            }
        }
    }
}

TEST(NoteFingers, TheHandsRestForTheApostropheAsItsNoteSays)
{
    EXPECT_NE(ExerciseNote(8, 1, false).find(u"The drawn hands stay at rest for it"),
              std::u16string_view::npos);
    for (const bool windows : {false, true}) {
        EXPECT_EQ(TableFingers(u'\'', windows, false), Fingers{});
        EXPECT_EQ(KeyRow(u'\'', windows, false), KeyRow(u';', windows, false));
    }
}

// "on the key of": where a sign shares a key with a letter, the note says with which.
struct SharedKey {
    Place place;
    bool windows;
    char16_t character;
    char16_t with;
    std::u16string_view words;
};

TEST(NoteFingers, AKeyThatIsNamedByItsLetterIsThatKey)
{
    const SharedKey keys[] = {
        {{true, 7, 4}, false, u'ء', u'د', u"على مفتاح الدال"},
        {{true, 7, 5}, true, u'أ', u'ا', u"على مفتاح الألف"},
        {{true, 7, 5}, false, u'أ', u'ز', u"على مفتاح الزاي"},
        {{true, 8, 2}, true, u'آ', u'ى', u"(آ) على مفتاح الألف المقصورة"},
        {{true, 8, 2}, true, u'إ', u'غ', u"(إ) على مفتاح الغين"},
        {{true, 8, 2}, false, u'آ', u'ا', u"(آ) على مفتاح الألف"},
        {{true, 8, 2}, false, u'إ', u'ر', u"(إ) على مفتاح الراء"},
        {{true, 9, 1}, true, u':', u'ك', u"على مفتاح الكاف"},
        {{true, 9, 1}, false, u':', u'ك', u"على مفتاح الكاف"},
        {{true, 9, 4}, true, u'<', u'ج', u"على مفتاحي الجيم والدال"},
        {{true, 9, 4}, true, u'>', u'د', u"على مفتاحي الجيم والدال"},
        {{true, 9, 5}, true, u'=', u'+', u"على مفتاح واحد"},
        {{true, 9, 5}, false, u'=', u'+', u"على مفتاح واحد"},
        {{true, 10, 1}, true, u'!', u'1', u"فوق الرقم 1"},
        {{true, 10, 1}, false, u'!', u'1', u"فوق الرقم 1"},
        {{true, 10, 3}, true, u'(', u'0', u"على مفتاحي 0 و9"},
        {{true, 10, 3}, false, u')', u'9', u"على مفتاحي 0 و9"},
        {{true, 11, 3}, true, u'*', u'8', u"مفتاح الرقم 8"},
        {{true, 11, 3}, false, u'*', u'8', u"مفتاح الرقم 8"},
        {{false, 7, 2}, true, u':', u';', u"strike the semicolon key"},
        {{false, 7, 2}, false, u':', u';', u"strike the semicolon key"},
        {{false, 8, 1}, true, u')', u'0', u"closing parenthesis on the 0 key"},
        {{false, 8, 1}, false, u')', u'0', u"closing parenthesis on the 0 key"},
        {{false, 9, 2}, true, u'!', u'1', u"It sits above 1"},
        {{false, 9, 2}, false, u'!', u'1', u"It sits above 1"},
        {{false, 10, 2}, true, u'(', u'9', u"opening parenthesis on the 9 key"},
        {{false, 10, 2}, false, u'(', u'9', u"opening parenthesis on the 9 key"},
        {{false, 11, 3}, true, u'*', u'8', u"asterisk on the 8 key"},
        {{false, 11, 3}, false, u'*', u'8', u"asterisk on the 8 key"},
    };
    for (const SharedKey& key : keys) {
        const Place& place = key.place;
        EXPECT_NE(ExerciseNote(place.lesson, place.exercise, place.arabic).find(key.words),
                  std::u16string_view::npos)
            << Name(place) << ": " << context::ToUtf8(key.words);
        EXPECT_TRUE(ShareAKey(key.character, key.with, key.windows, place.arabic))
            << Name(place) << ": " << Shown(key.character) << OnKeyboard(key.windows);
    }
}

} // namespace
} // namespace keyfluent::course::fixtures
