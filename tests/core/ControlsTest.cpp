#include "session/Controls.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

TextField FieldWith(std::u16string_view text, int start = 0, int length = 0)
{
    TextField field;
    field.SetText(text);
    field.Select(start, length);
    return field;
}

void ExpectSelection(const TextField& field, int start, int length)
{
    EXPECT_EQ(field.SelectionStart(), start);
    EXPECT_EQ(field.SelectionLength(), length);
}

TEST(TextField, IsReadOnlyAndEmptyAtFirst)
{
    const TextField field;
    EXPECT_TRUE(field.readOnly);
    EXPECT_TRUE(field.visible);
    EXPECT_FALSE(field.rightToLeft);
    EXPECT_EQ(field.cursor, plainPointer);
    EXPECT_EQ(field.Size(), 0);
    EXPECT_EQ(field.SelectedText(), u"");
}

TEST(TextField, EachChangeOfTheTextPutsTheSelectionToTheFront)
{
    TextField field = FieldWith(u"asdf ", 2, 1);
    field.SetText(u"jkl; ");
    EXPECT_EQ(field.Text(), u"jkl; ");
    ExpectSelection(field, 0, 0);

    field.Select(2, 1);
    field.Append(u"ab");
    EXPECT_EQ(field.Text(), u"jkl; ab");
    ExpectSelection(field, 0, 0);

    field.Select(2, 1);
    field.Append(u'c');
    EXPECT_EQ(field.Text(), u"jkl; abc");
    ExpectSelection(field, 0, 0);

    field.Select(2, 1);
    field.RemoveLast(1);
    EXPECT_EQ(field.Text(), u"jkl; ab");
    ExpectSelection(field, 0, 0);
}

TEST(TextField, TakesAwayAtMostWhatThereIs)
{
    TextField field = FieldWith(u"ab");
    field.RemoveLast(3);
    EXPECT_EQ(field.Text(), u"");
    field.RemoveLast(1);
    EXPECT_EQ(field.Text(), u"");
}

TEST(TextField, ASelectionIsLimitedToTheText)
{
    TextField field = FieldWith(u"asdf ");
    field.Select(4, 1);
    EXPECT_EQ(field.SelectedText(), u" ");
    field.Select(4, 9);
    ExpectSelection(field, 4, 1);
    field.Select(5, 1);
    ExpectSelection(field, 5, 0);
    EXPECT_EQ(field.SelectedText(), u"");
    field.Select(700, 1);
    ExpectSelection(field, 5, 0);
    field.Select(-3, 2);
    ExpectSelection(field, 0, 2);
    EXPECT_EQ(field.SelectedText(), u"as");
    field.Select(1, -2);
    ExpectSelection(field, 1, 0);
}

TEST(TextField, AnEditLeavesTheCaretBehindWhatWasInserted)
{
    TextField field = FieldWith(u"one two");
    field.Replace(4, 3, u"three");
    EXPECT_EQ(field.Text(), u"one three");
    ExpectSelection(field, 9, 0);
    field.Replace(0, 0, u"x");
    EXPECT_EQ(field.Text(), u"xone three");
    ExpectSelection(field, 1, 0);
    field.Replace(0, 1, u"");
    EXPECT_EQ(field.Text(), u"one three");
    ExpectSelection(field, 0, 0);
}

TEST(TextField, AnEditBeyondTheTextIsLimitedToIt)
{
    TextField field = FieldWith(u"ab");
    field.Replace(9, 4, u"c");
    EXPECT_EQ(field.Text(), u"abc");
    field.Replace(-2, 1, u"d");
    EXPECT_EQ(field.Text(), u"dbc");
    field.Replace(1, 99, u"");
    EXPECT_EQ(field.Text(), u"d");
    field.Replace(0, -1, u"e");
    EXPECT_EQ(field.Text(), u"ed");
}

TEST(TextField, ALineEndIsTwoCharacters)
{
    const TextField field = FieldWith(u"a\u0691\r\nb", 2, 1);
    EXPECT_EQ(field.Size(), 5);
    EXPECT_EQ(field.SelectedText(), u"\r");
}

TEST(Image, OutOfReachWhenHiddenOrDisabled)
{
    Image image;
    EXPECT_TRUE(image.Reachable());
    image.visible = false;
    EXPECT_FALSE(image.Reachable());
    image.visible = true;
    image.enabled = false;
    EXPECT_FALSE(image.Reachable());
}

TEST(Timer, StandsStillUntilItIsStarted)
{
    Timer timer(90);
    EXPECT_EQ(timer.Interval(), 90);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(timer.Starts(), 0U);
    timer.Start();
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(timer.Starts(), 1U);
    timer.Stop();
    EXPECT_FALSE(timer.Enabled());
}

TEST(Timer, StartingARunningTimerStartsNothingAnew)
{
    Timer timer(60);
    timer.Start();
    timer.Start();
    EXPECT_EQ(timer.Starts(), 1U);
    timer.Stop();
    timer.Stop();
    timer.Start();
    EXPECT_EQ(timer.Starts(), 2U);
}

TEST(Colours, BlackIsNoughtAndWhiteIsAllBits)
{
    EXPECT_EQ(black, 0);
    EXPECT_EQ(white, 16777215);
}

} // namespace
} // namespace keyfluent::session
