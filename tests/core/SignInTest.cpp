#include "progress/SignIn.h"

#include "tests/core/ProgressSupport.h"

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;

TEST(SignIn, AChangeOfTheNameTrimsTheBlanksAtBothEnds)
{
    struct Row {
        std::u16string text;
        std::u16string name;
    };
    const Row rows[] = {
        {u"Ali", u"Ali"},
        {u"  Ali  ", u"Ali"},
        {u"Ali Ben", u"Ali Ben"},
        {u" a  b ", u"a  b"},
        {u"", u""},
        {u"     ", u""},
        {u"\tAli\t", u"\tAli\t"},
        {u"\u00A0x", u"\u00A0x"},
        {u" ../x/ ", u"../x/"},
        {u" \u200Fعلي ", u"\u200Fعلي"},
        {u"*?<b>&", u"*?<b>&"},
        {u" \r\n ", u"\r\n"},
    };
    for (const Row& row : rows) {
        SessionContext context;
        context.studentName = u"before";
        EXPECT_FALSE(ChangeName(context, row.text));
        EXPECT_EQ(Shown(context.studentName), Shown(row.name));
        EXPECT_EQ(Shown(context.studentNameCopy), Shown(row.name));
    }
}

TEST(SignIn, From57UnitsOfTheUntrimmedTextOnEachChangeBeeps)
{
    SessionContext context;
    for (std::size_t length = 0; length <= 70; ++length) {
        EXPECT_EQ(ChangeName(context, std::u16string(length, u'ع')), length >= 57) << length;
        EXPECT_EQ(context.studentName.size(), length);
        EXPECT_EQ(ChangeName(context, std::u16string(length, u' ')), length >= 57) << length;
        EXPECT_TRUE(context.studentName.empty());
    }
    std::u16string pairs;
    for (int i = 0; i < 28; ++i) {
        pairs += u"\U0001F600";
    }
    EXPECT_FALSE(ChangeName(context, pairs));
    EXPECT_TRUE(ChangeName(context, pairs + u"x"));
    EXPECT_EQ(nameLimit, 60U);
}

TEST(SignIn, ANameOfBlanksIsNone)
{
    SessionContext context;
    EXPECT_FALSE(HasName(context));
    context.studentName = u"   ";
    EXPECT_FALSE(HasName(context));
    context.studentName = u" a ";
    EXPECT_TRUE(HasName(context));
}

TEST(SignIn, ASignInGivenUpRestoresTheNameAtItsOpening)
{
    SessionContext context;
    ChangeName(context, u"x");
    CancelSignIn(context, u"");
    EXPECT_TRUE(context.studentName.empty());
    ChangeName(context, u"second");
    CancelSignIn(context, u"first");
    EXPECT_EQ(Shown(context.studentName), "first");
}

TEST(SignIn, TheQuestionForTheNameIsAnotherAfterALogout)
{
    SessionContext context;
    EXPECT_EQ(Shown(NameQuestion(context)), "Hello, How are you, what is your name?");
    context.loggedOut = true;
    EXPECT_EQ(Shown(NameQuestion(context)), "How are you, your name?");
    context.arabicInterface = true;
    EXPECT_EQ(Shown(NameQuestion(context)), "كيف حالك، مااسمك؟");
    context.loggedOut = false;
    EXPECT_EQ(Shown(NameQuestion(context)), "السلام عليكم وأهلا وسهلا, ما اسمك؟");
}

TEST(SignIn, ANewNameIsGreetedInBothLanguages)
{
    SessionContext context;
    context.studentName = u"Ali";
    EXPECT_EQ(Shown(NewStudentGreeting(context)),
              "I could'nt recognize you Ali. \r\rWhould you like to be one of my new students?");
    context.arabicInterface = true;
    EXPECT_EQ(Shown(NewStudentGreeting(context)),
              "لم يحصل لي الشرف بمعرفتك يا Ali. \r\rهل تود أن تصبح أحد طلابي الجدد؟");
}

} // namespace
} // namespace keyfluent::progress
