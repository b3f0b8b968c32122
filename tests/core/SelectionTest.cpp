#include "session/Selection.h"

#include "LessonFixture.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;

using SelectionTest = LessonFixture;

TEST_F(SelectionTest, SelectsTheOneExpectedCharacter)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    It().caretPos = 2;
    SelectCurrentChar(It());
    EXPECT_EQ(State(), "1/1 as[d]f  |  | 0+0 waiting");
}

TEST_F(SelectionTest, LightsTheKeyOfTheCharacter)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    It().caretPos = 2;
    SelectCurrentChar(It());
    EXPECT_EQ(Looks(), "50 lit");
    EXPECT_EQ(It().litChar, u"d");
}

TEST_F(SelectionTest, BeyondTheEndNothingIsExpected)
{
    OpenRows(1, 1, Language::English, {u"as"});
    for (const int caret : {2, 3, 32767}) {
        It().caretPos = static_cast<std::int16_t>(caret);
        SelectCurrentChar(It());
        EXPECT_EQ(State(), "1/1 as[] |  | 0+0 waiting");
        EXPECT_EQ(It().caretPos, caret);
        EXPECT_EQ(It().litChar, u"");
        EXPECT_EQ(Looks(), "");
    }
}

TEST_F(SelectionTest, NotesTheCaretAsText)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    EXPECT_EQ(It().text1, u"0");
    It().caretPos = 4;
    SelectCurrentChar(It());
    EXPECT_EQ(It().text1, u"4");
    It().caretPos = 32767;
    SelectCurrentChar(It());
    EXPECT_EQ(It().text1, u"32767");
}

TEST_F(SelectionTest, GivesTheModelTheFocus)
{
    Open();
    SelectCurrentChar(It());
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin"}));
}

TEST_F(SelectionTest, LeavesTheFocusWithTheCautionWhileItStands)
{
    Open();
    It().notAllowedVisible = true;
    It().caretPos = 1;
    SelectCurrentChar(It());
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(It().txtOrigin.SelectionStart(), 1);
}

TEST_F(SelectionTest, InFreeTextItOnlyGivesTheFocus)
{
    context.freeText = true;
    Open(12, 4, Language::English);
    It().txtOrigin.SetText(u"typed");
    It().txtOrigin.Select(5, 0);
    It().text1 = u"untouched";
    SelectCurrentChar(It());
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin"}));
    EXPECT_EQ(It().txtOrigin.SelectionStart(), 5);
    EXPECT_EQ(It().text1, u"untouched");
    EXPECT_EQ(Looks(), "");
}

TEST_F(SelectionTest, InTheReviewItDoesNothing)
{
    OpenRows(15, 1, Language::English, {u"ab"});
    It().reviewMode = true;
    EXPECT_TRUE(Reviewing(It()));
    It().caretPos = 1;
    SelectCurrentChar(It());
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(It().txtOrigin.SelectionStart(), 0);
    EXPECT_EQ(It().litChar, u"a");
}

TEST_F(SelectionTest, OnlyTheLastLessonHasAReview)
{
    OpenRows(14, 1, Language::English, {u"ab"});
    It().reviewMode = true;
    EXPECT_FALSE(Reviewing(It()));
    It().caretPos = 1;
    SelectCurrentChar(It());
    EXPECT_EQ(It().txtOrigin.SelectionStart(), 1);
}

TEST_F(SelectionTest, TheNextRowReplacesBothFields)
{
    OpenRows(1, 1, Language::English, {u"as ", u"df "});
    It().txtTest.SetText(u"as ");
    It().currentRow = 2;
    It().caretPos = 0;
    ShowNextRow(It());
    EXPECT_EQ(State(), "2/2 [d]f  |  | 0+0 waiting");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin"}));
    EXPECT_EQ(It().litChar, u"d");
}

} // namespace
} // namespace keyfluent::session
