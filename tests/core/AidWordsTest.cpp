#include "session/AidWords.h"

#include "LessonFixture.h"
#include "session/Review.h"

namespace keyfluent::session
{
namespace
{

using fixtures::Language;
using fixtures::Utf8;

} // namespace

class AidWords : public fixtures::LessonFixture
{
protected:
    std::string Keyboard() { return Utf8(KeyboardWords(It())); }
    std::string Left() { return Utf8(HandWords(It(), Hand::Left)); }
    std::string Right() { return Utf8(HandWords(It(), Hand::Right)); }
    std::string Said() { return Utf8(Announcement(It())); }
};

TEST_F(AidWords, TellTheFirstKeyBeforeAnythingIsTyped)
{
    OpenRows(1, 1, Language::English, {u"asdf"});
    EXPECT_EQ(Keyboard(), "Keyboard. Next key: a");
    EXPECT_EQ(Left(), "Left hand: little finger");
    EXPECT_EQ(Right(), "Right hand: at rest");
    EXPECT_EQ(Said(), "Next key: a. Left hand: little finger");
}

TEST_F(AidWords, SpeakTheLanguageOfTheInterface)
{
    context.arabicInterface = true;
    OpenRows(1, 1, Language::English, {u"asdf"});
    EXPECT_EQ(Keyboard(), "لوحة المفاتيح. المفتاح التالي: a");
    EXPECT_EQ(Left(), "اليد اليسرى: الخنصر");
    EXPECT_EQ(Right(), "اليد اليمنى: في وضع الراحة");
    OpenRows(1, 1, Language::Arabic, {u"نب"});
    EXPECT_EQ(Said(), "المفتاح التالي: نون. اليد اليمنى: الوسطى");
    context.arabicInterface = false;
    EXPECT_EQ(Said(), "Next key: noon. Right hand: middle finger");
}

TEST_F(AidWords, FollowTheMarkedLetter)
{
    OpenRows(1, 1, Language::English, {u"af", u"j "});
    Type(u"a");
    EXPECT_EQ(Said(), "Next key: f. Left hand: index finger");
    EXPECT_EQ(Keyboard(), "Keyboard. Next key: f");
    Type(u"f");
    EXPECT_EQ(Said(), "Next key: j. Right hand: index finger");
    Type(u"j");
    EXPECT_EQ(Said(), "Next key: Space. Right hand: thumb");
}

TEST_F(AidWords, StayWhenAKeyIsRefused)
{
    OpenRows(1, 1, Language::English, {u"asdf"});
    Key('J');
    EXPECT_EQ(Said(), "Next key: a. Left hand: little finger");
    EXPECT_EQ(Keyboard(), "Keyboard. Next key: a");
    Wait(1000);
    EXPECT_EQ(Said(), "Next key: a. Left hand: little finger");
}

TEST_F(AidWords, TellBothHandsWhereOneHoldsShift)
{
    OpenRows(13, 1, Language::English, {u"Ha"});
    EXPECT_EQ(Said(), "Next key: H with left Shift. Left hand: little finger. "
                      "Right hand: index finger");
    EXPECT_EQ(Left(), "Left hand: little finger");
    EXPECT_EQ(Right(), "Right hand: index finger");
}

TEST_F(AidWords, TellTheColouredHandsAsThePlainOnes)
{
    context.colouredHands = true;
    OpenRows(1, 1, Language::English, {u"k"});
    EXPECT_EQ(Left(), "Left hand: at rest");
    EXPECT_EQ(Right(), "Right hand: middle finger");
}

// The hands are an aid that the student or the exercise may do without; the letter is marked
// always.
TEST_F(AidWords, TellNoFingerWhereTheHandsAreNotShown)
{
    context.optHands = false;
    context.optKeyCaps = false;
    OpenRows(1, 1, Language::English, {u"asdf"});
    EXPECT_EQ(Said(), "Next key: a");
}

TEST_F(AidWords, TellTheMessageInTheReview)
{
    OpenRows(15, 1, Language::English, {u"as"});
    Type(u"a");
    Wait(1000);
    Type(u"d");
    ASSERT_TRUE(It().reviewMode);
    EXPECT_EQ(Said(), "No of Errors: 1. Please correct the text.");
    It().txtOrigin.Select(0, 1);
    EXPECT_EQ(Keyboard(), "Keyboard");
}

TEST_F(AidWords, HaveNothingToTellInFreeText)
{
    context.freeText = true;
    Open(1, 1, Language::English);
    EXPECT_EQ(Said(), "");
    EXPECT_EQ(Keyboard(), "Keyboard");

    // What the student selects is not a key to type.
    EditField(It().txtOrigin, 0, 0, u"as");
    It().txtOrigin.Select(0, 1);
    EXPECT_EQ(Said(), "");
}

} // namespace keyfluent::session
