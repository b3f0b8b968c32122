#include "session/Letters.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using context::SessionContext;

SessionContext Speaking(bool arabic)
{
    SessionContext context;
    context.arabicInterface = arabic;
    return context;
}

TEST(Letters, EachOpeningStartsWithoutLettersAndOnArabic)
{
    SessionContext context;
    context.freeTextChars = u"asdf";
    context.anagramLanguage = false;
    context.arabicExercise = false;
    OpenLetters(context);
    EXPECT_EQ(context.freeTextChars, u"");
    EXPECT_TRUE(context.anagramLanguage);
    context.freeTextChars = u"x";
    context.anagramLanguage = false;
    OpenLetters(context);
    EXPECT_TRUE(context.anagramLanguage);
}

TEST(Letters, ATextOfUpToTenCharactersIsTakenAsItIs)
{
    for (const bool arabic : {false, true}) {
        SessionContext context = Speaking(arabic);
        EXPECT_TRUE(ConfirmLetters(context, u"a"));
        EXPECT_EQ(context.freeTextChars, u"a");
        EXPECT_TRUE(ConfirmLetters(context, u"0123456789"));
        EXPECT_EQ(context.freeTextChars, u"0123456789");
    }
}

TEST(Letters, WithTheEnglishInterfaceTheFirstTenAreKept)
{
    SessionContext context = Speaking(false);
    EXPECT_TRUE(ConfirmLetters(context, u"abcdefghijk"));
    EXPECT_EQ(context.freeTextChars, u"abcdefghij");
}

TEST(Letters, WithTheArabicInterfaceTheLastTenAreKept)
{
    SessionContext context = Speaking(true);
    EXPECT_TRUE(ConfirmLetters(context, u"abcdefghijk"));
    EXPECT_EQ(context.freeTextChars, u"bcdefghijk");
    EXPECT_TRUE(ConfirmLetters(context, std::u16string(500, u'a') + u"bcdefghijk"));
    EXPECT_EQ(context.freeTextChars, u"bcdefghijk");
}

TEST(Letters, WhichTenAreKeptDoesNotGoByTheLanguageOfTheLetters)
{
    for (const bool letters : {false, true}) {
        SessionContext context = Speaking(false);
        context.anagramLanguage = letters;
        EXPECT_TRUE(ConfirmLetters(context, u"abcdefghijk"));
        EXPECT_EQ(context.freeTextChars, u"abcdefghij");
        EXPECT_EQ(bool(context.anagramLanguage), letters);
        context = Speaking(true);
        context.anagramLanguage = letters;
        EXPECT_TRUE(ConfirmLetters(context, u"abcdefghijk"));
        EXPECT_EQ(context.freeTextChars, u"bcdefghijk");
    }
}

TEST(Letters, BlanksAloneAreRefused)
{
    for (const bool arabic : {false, true}) {
        SessionContext context = Speaking(arabic);
        context.freeTextChars = u"kept";
        EXPECT_FALSE(ConfirmLetters(context, u""));
        EXPECT_FALSE(ConfirmLetters(context, u" "));
        EXPECT_FALSE(ConfirmLetters(context, std::u16string(30, u' ')));
        EXPECT_EQ(context.freeTextChars, u"kept");
    }
}

TEST(Letters, BlanksRoundTheLettersCount)
{
    SessionContext context = Speaking(false);
    EXPECT_TRUE(ConfirmLetters(context, u"  a b  "));
    EXPECT_EQ(context.freeTextChars, u"  a b  ");
    EXPECT_TRUE(ConfirmLetters(context, u"         abc"));
    EXPECT_EQ(context.freeTextChars, u"         a");
}

TEST(Letters, TheTenThatAreKeptMayBeBlanks)
{
    SessionContext context = Speaking(false);
    EXPECT_TRUE(ConfirmLetters(context, u"          abc"));
    EXPECT_EQ(context.freeTextChars, u"          ");
}

TEST(Letters, NoCharacterIsRefused)
{
    SessionContext context = Speaking(false);
    context.anagramLanguage = false;
    EXPECT_TRUE(ConfirmLetters(context, u"شس\t\u20AC"));
    EXPECT_EQ(context.freeTextChars, u"شس\t\u20AC");
}

TEST(Letters, CancellingLeavesNone)
{
    SessionContext context;
    context.freeTextChars = u"asdf";
    context.anagramLanguage = true;
    CancelLetters(context);
    EXPECT_EQ(context.freeTextChars, u"");
    EXPECT_TRUE(context.anagramLanguage);
}

} // namespace
} // namespace keyfluent::session
