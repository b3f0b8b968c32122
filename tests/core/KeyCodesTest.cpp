#include "keyboard/KeyCodes.h"

#include "KeyboardFixtures.h"

#include <gtest/gtest.h>
#include <limits>
#include <map>

namespace keyfluent::keyboard
{
namespace
{

// Every key code that has a cap, by what stands on an English keyboard: a letter and a digit have
// the number of their character.
std::map<int, int> CapsByPlace()
{
    std::map<int, int> caps;
    const auto enterRow = [&caps](std::string_view keys, int cap) {
        for (char key : keys) {
            caps[key] = cap++;
        }
    };
    enterRow("1234567890", 17);
    enterRow("QWERTYUIOP", 34);
    enterRow("ASDFGHJKL", 48);
    enterRow("ZXCVBNM", 61);
    const std::map<int, int> signs{{192, 16}, {189, 27}, {187, 28}, {219, 44},
                                   {221, 45}, {220, 46}, {226, 46}, {186, 57},
                                   {222, 58}, {188, 68}, {190, 69}, {191, 70}};
    const std::map<int, int> others{{13, 59}, {27, 0}, {32, 75}, {106, 90}};
    caps.insert(signs.begin(), signs.end());
    caps.insert(others.begin(), others.end());
    for (int number = 1; number <= 12; ++number) {
        caps[111 + number] = number;
    }
    return caps;
}

TEST(KeyCodes, EveryNumberOfSixteenBitsGivesItsCapOrNone)
{
    const std::map<int, int> caps = CapsByPlace();
    ASSERT_EQ(caps.size(), 48U + 4U + 12U);
    for (int keyCode = 0; keyCode <= 0xFFFF; ++keyCode) {
        const auto cap = caps.find(keyCode);
        ASSERT_EQ(CapOfKey(keyCode), cap == caps.end() ? -1 : cap->second) << "key " << keyCode;
    }
}

TEST(KeyCodes, KeysOfTheCharacterTableHaveTheCapsOfTheTable)
{
    for (const CharacterKey& key : characterKeys) {
        EXPECT_EQ(CapOfKey(key.keyCode), key.cap);
        if (key.secondKeyCode != 0) {
            EXPECT_EQ(CapOfKey(key.secondKeyCode), key.cap);
        }
    }
}

TEST(KeyCodes, ModifiersEditingKeysArrowsAndThePadHaveNoCap)
{
    for (int keyCode : {keyBackspace, 9, keyShift, keyCtrl, 18, keyCapsLock, 45, 46, 107}) {
        EXPECT_EQ(CapOfKey(keyCode), noCap) << "key " << keyCode;
    }
    for (int keyCode = 33; keyCode <= 40; ++keyCode) {
        EXPECT_EQ(CapOfKey(keyCode), noCap) << "key " << keyCode;
    }
    for (int keyCode = 96; keyCode <= 105; ++keyCode) {
        EXPECT_EQ(CapOfKey(keyCode), noCap) << "key " << keyCode;
    }
    for (int keyCode = 109; keyCode <= 111; ++keyCode) {
        EXPECT_EQ(CapOfKey(keyCode), noCap) << "key " << keyCode;
    }
}

TEST(KeyCodes, ANumberThatIsNoKeyHasNoCap)
{
    for (int keyCode : {-1, 256, 65536, 65536 + 65, std::numeric_limits<int>::min(),
                        std::numeric_limits<int>::max()}) {
        EXPECT_EQ(CapOfKey(keyCode), noCap) << "key " << keyCode;
    }
}

TEST(KeyCodes, NamedKeysHaveTheirNumbers)
{
    EXPECT_EQ(keyBackspace, 8);
    EXPECT_EQ(keyEnter, 13);
    EXPECT_EQ(keyShift, 16);
    EXPECT_EQ(keyCtrl, 17);
    EXPECT_EQ(keyCapsLock, 20);
    EXPECT_EQ(CapOfKey(keyEnter), capReturn);
    EXPECT_EQ(CapOfKey(keyEscape), capEscape);
    EXPECT_EQ(CapOfKey(keySpace), capSpace);
    EXPECT_EQ(CapOfKey(keyLamAlef), capLamAlef);
    EXPECT_EQ(CapOfKey(keyPadMultiply), capPadMultiply);
    EXPECT_EQ(CapOfKey(keyF1), capF1);
    EXPECT_EQ(CapOfKey(keyF12), capF12);
}

} // namespace
} // namespace keyfluent::keyboard
