#include "keyboard/KeyCaps.h"

#include "KeyboardFixtures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace keyfluent::keyboard
{
namespace
{

using fixtures::CodePoints;

const CapDesign& Design(int cap)
{
    return CapDesigns().at(static_cast<std::size_t>(cap));
}

int Right(int cap)
{
    return Design(cap).left + Design(cap).width;
}
int Bottom(int cap)
{
    return Design(cap).top + Design(cap).height;
}

// The left edges of a row of caps, each written out.
struct Row {
    int top;
    std::map<int, int> leftOfCap;
};

const std::vector<Row> rows{
    {1815,
     {{0, 1305},
      {1, 1980},
      {2, 2385},
      {3, 2790},
      {4, 3195},
      {5, 3855},
      {6, 4260},
      {7, 4665},
      {8, 5070},
      {9, 5745},
      {10, 6150},
      {11, 6555},
      {12, 6960},
      {13, 7620},
      {14, 8025},
      {15, 8430},
      {86, 10305}}},
    {2295, {{16, 1305}, {17, 1710}, {18, 2115}, {19, 2520}, {20, 2925}, {21, 3330}, {22, 3735},
            {23, 4140}, {24, 4545}, {25, 4950}, {26, 5355}, {27, 5760}, {29, 6570}, {30, 7635},
            {31, 8040}, {32, 8445}, {87, 9090}, {88, 9510}, {89, 9915}, {90, 10320}}},
    {2280, {{28, 6165}}},
    {2670, {{33, 1305}, {34, 1920}, {35, 2325}, {36, 2730}, {37, 3135}, {38, 3540}, {39, 3945},
            {40, 4350}, {41, 4755}, {42, 5160}, {43, 5565}, {44, 5970}, {45, 6375}, {46, 6780},
            {79, 7635}, {80, 8040}, {81, 8445}, {91, 9105}, {92, 9510}, {93, 9915}, {94, 10320}}},
    {3045,
     {{47, 1305},
      {48, 2055},
      {49, 2460},
      {50, 2865},
      {51, 3270},
      {52, 3675},
      {53, 4080},
      {54, 4485},
      {55, 4890},
      {56, 5295},
      {57, 5700},
      {58, 6105},
      {59, 6510},
      {95, 9105},
      {96, 9510},
      {97, 9915},
      {98, 10320}}},
    {3420,
     {{60, 1305},
      {61, 2205},
      {62, 2610},
      {63, 3015},
      {64, 3420},
      {65, 3825},
      {66, 4230},
      {67, 4635},
      {68, 5040},
      {69, 5445},
      {70, 5850},
      {71, 6255},
      {82, 8040},
      {99, 9105},
      {100, 9510},
      {101, 9915},
      {102, 10320}}},
    {3795,
     {{72, 1305},
      {73, 1920},
      {74, 2475},
      {75, 3090},
      {76, 5580},
      {77, 6195},
      {78, 6750},
      {83, 7635},
      {84, 8040},
      {85, 8445},
      {103, 9105},
      {104, 9915}}},
};

// All caps but these are 390 wide.
const std::map<int, int> widthOfWideCap{
    {0, 405},  {29, 780}, {33, 600}, {46, 570},  {47, 735}, {59, 840}, {60, 885}, {71, 1095},
    {72, 600}, {73, 540}, {74, 600}, {75, 2475}, {76, 600}, {77, 540}, {78, 600}, {103, 795}};

const std::map<int, std::u16string_view> fixedTexts{
    {0, u"esc"},  {1, u"F1"},   {2, u"F2"},   {3, u"F3"},   {4, u"F4"},   {5, u"F5"},
    {6, u"F6"},   {7, u"F7"},   {8, u"F8"},   {9, u"F9"},   {10, u"F10"}, {11, u"F11"},
    {12, u"F12"}, {13, u"F13"}, {14, u"F14"}, {15, u"F15"}, {30, u"ins"}, {31, u"home"},
    {32, u"p"},   {79, u"del"}, {80, u"end"}, {81, u"q"},   {82, u"h"},   {83, u"f"},
    {84, u"i"},   {85, u"g"},   {87, u"Num"}, {88, u"="},   {89, u"/"},   {90, u"*"},
    {91, u"7"},   {92, u"8"},   {93, u"9"},   {94, u"-"},   {95, u"4"},   {96, u"5"},
    {97, u"6"},   {98, u"+"},   {99, u"1"},   {100, u"2"},  {101, u"3"},  {102, u"\r\n8\r\n"},
    {103, u"0"},  {104, u"."},
};

TEST(KeyCaps, EveryCapStandsInItsRowAtItsPlace)
{
    std::set<int> seen;
    for (const Row& row : rows) {
        for (const auto& [cap, left] : row.leftOfCap) {
            EXPECT_EQ(Design(cap).left, left) << "cap " << cap;
            EXPECT_EQ(Design(cap).top, row.top) << "cap " << cap;
            EXPECT_TRUE(seen.insert(cap).second) << "cap " << cap << " told twice";
        }
    }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(capCount));
}

TEST(KeyCaps, EveryCapHasItsSize)
{
    for (int cap = 0; cap < capCount; ++cap) {
        const auto wide = widthOfWideCap.find(cap);
        EXPECT_EQ(Design(cap).width, wide == widthOfWideCap.end() ? 390 : wide->second)
            << "cap " << cap;
        EXPECT_EQ(Design(cap).height, cap == capPadEnter ? 735 : 360) << "cap " << cap;
    }
}

TEST(KeyCaps, NeighboursInARunAreOnePitchApart)
{
    const std::pair<int, int> runs[] = {{1, 4},   {5, 8},   {9, 12},  {13, 15}, {16, 28},
                                        {30, 32}, {34, 45}, {48, 58}, {61, 70}, {79, 81},
                                        {83, 85}, {88, 90}, {92, 94}, {95, 98}, {99, 102}};
    for (const auto& [first, last] : runs) {
        for (int cap = first; cap < last; ++cap) {
            const int pitch = Design(cap + 1).left - Design(cap).left;
            // The last cap of the number row keeps the pitch though it stands higher.
            EXPECT_EQ(pitch, 405) << "from cap " << cap;
        }
    }
}

TEST(KeyCaps, NoTwoCapsOverlap)
{
    for (int one = 0; one < capCount; ++one) {
        for (int other = one + 1; other < capCount; ++other) {
            const bool apart = Right(one) <= Design(other).left ||
                               Right(other) <= Design(one).left ||
                               Bottom(one) <= Design(other).top || Bottom(other) <= Design(one).top;
            EXPECT_TRUE(apart) << "caps " << one << " and " << other;
        }
    }
}

TEST(KeyCaps, TheRowsOfTheMainBlockEndTogether)
{
    for (int cap : {12, 29, 46, capReturn, capRightShift, capRightCtrl}) {
        EXPECT_EQ(Right(cap), 7350) << "cap " << cap;
    }
    for (int cap : {0, 16, 33, capCapsLock, capLeftShift, capLeftCtrl}) {
        EXPECT_EQ(Design(cap).left, 1305) << "cap " << cap;
    }
}

TEST(KeyCaps, EdgesLieOnWholePixels)
{
    for (int cap = 0; cap < capCount; ++cap) {
        for (int length :
             {Design(cap).left, Design(cap).top, Design(cap).width, Design(cap).height}) {
            EXPECT_EQ(length % 15, 0) << "cap " << cap;
        }
    }
}

TEST(KeyCaps, TheLastCapOfTheNumberRowIsAPixelHigher)
{
    EXPECT_EQ(Design(28).top, Design(27).top - 15);
}

TEST(KeyCaps, ThePadEnterEndsWithTheRowBelowIt)
{
    EXPECT_EQ(Bottom(capPadEnter), Bottom(104));
}

TEST(KeyCaps, EveryCapHasItsFace)
{
    const std::set<int> smallFace{30, 31, 79, 80};
    const std::set<int> symbols{32, 81, 82, 83, 84, 85, 102};
    for (int cap = 0; cap < capCount; ++cap) {
        CapFont face = cap <= 15 ? CapFont::Tahoma9Bold : CapFont::Form;
        if (smallFace.contains(cap)) {
            face = CapFont::Tahoma825Bold;
        }
        if (symbols.contains(cap)) {
            face = CapFont::Symbols975Bold;
        }
        EXPECT_EQ(Design(cap).font, face) << "cap " << cap;
    }
}

TEST(KeyCaps, EveryCapHasItsDesignedText)
{
    std::set<int> characterCaps;
    for (const CharacterKey& key : characterKeys) {
        characterCaps.insert(key.cap);
    }
    for (int cap = 0; cap < capCount; ++cap) {
        std::u16string_view text = characterCaps.contains(cap) ? u"أ" : u"";
        if (const auto fixed = fixedTexts.find(cap); fixed != fixedTexts.end()) {
            text = fixed->second;
        }
        EXPECT_EQ(Design(cap).designText, text)
            << "cap " << cap << ": " << CodePoints(Design(cap).designText);
    }
}

TEST(KeyCaps, TheNumericPadEnterHasItsSignOnTheMiddleOfThreeLines)
{
    const std::u16string_view text = Design(capPadEnter).designText;
    EXPECT_EQ(text.find(u'8'), 2U);
    EXPECT_EQ(std::ranges::count(text, u'\n'), 2);
}

TEST(KeyCaps, TheMainBlockBelowTheFunctionKeysFollowsTheLanguage)
{
    std::set<int> following;
    for (int cap = -1; cap <= capCount; ++cap) {
        if (FollowsExerciseDirection(cap)) {
            following.insert(cap);
        }
    }
    EXPECT_EQ(following.size(), 13U + 46U);
    for (int cap : {16, 28, 33, 34, capReturn, capSpace, 78}) {
        EXPECT_TRUE(following.contains(cap)) << "cap " << cap;
    }
    for (int cap : {-1, 0, 15, 29, 30, 32, 79, 82, 86, 104, 105}) {
        EXPECT_FALSE(following.contains(cap)) << "cap " << cap;
    }
}

TEST(KeyCaps, ASymbolCapShowsAPictureAndNoOtherCapDoes)
{
    const std::map<int, std::u16string_view> pictures{
        {32, u"▲"}, {81, u"▼"}, {82, u"↑"}, {83, u"←"}, {84, u"↓"}, {85, u"→"}, {102, u"↵"}};
    for (int cap = -1; cap <= capCount; ++cap) {
        const auto picture = pictures.find(cap);
        EXPECT_EQ(PictureOnCap(cap), picture == pictures.end() ? u"" : picture->second)
            << "cap " << cap;
    }
}

TEST(KeyCaps, NamedCapsReadAsTheirNames)
{
    const auto texts = fixtures::Written(context::windowsKeyboard, false, false);
    EXPECT_EQ(Design(capEscape).designText, u"esc");
    EXPECT_EQ(Design(capF1).designText, u"F1");
    EXPECT_EQ(Design(capF12).designText, u"F12");
    EXPECT_EQ(Design(capPadMultiply).designText, u"*");
    EXPECT_EQ(Design(capBlank).designText, u"");
    EXPECT_EQ(fixtures::TextOf(texts, capCapsLock), u"Caps");
    EXPECT_EQ(fixtures::TextOf(texts, capReturn), u"Return");
    EXPECT_EQ(fixtures::TextOf(texts, capSpace), u"Space");
    for (int cap : {capLeftShift, capRightShift}) {
        EXPECT_EQ(fixtures::TextOf(texts, cap), u"Shift");
    }
    for (int cap : {capLeftCtrl, capRightCtrl}) {
        EXPECT_EQ(fixtures::TextOf(texts, cap), u"ctrl");
    }
    EXPECT_LT(Design(capLeftShift).left, Design(capRightShift).left);
    EXPECT_LT(Design(capLeftCtrl).left, Design(capRightCtrl).left);
}

} // namespace
} // namespace keyfluent::keyboard
