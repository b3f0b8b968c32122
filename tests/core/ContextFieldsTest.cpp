#include "headless/ContextFields.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace keyfluent::headless
{
namespace
{

// All fields but the student's table, by their type.
const std::vector<std::string> stringFields = {"appFolder",      "studentName",   "studentNameCopy",
                                               "lessonNoteText", "freeTextChars", "blankText"};
const std::vector<std::string> booleanFields = {"arabicInterface",
                                                "arabicExercise",
                                                "sessionRun",
                                                "colouredHands",
                                                "optKeyCaps",
                                                "optHands",
                                                "optCounter",
                                                "optClock",
                                                "optSound",
                                                "helpMode",
                                                "leaveNoSave",
                                                "leaveConfirmed",
                                                "inExercise",
                                                "arabicAnagram",
                                                "englishAnagram",
                                                "freeText",
                                                "anagramLanguage",
                                                "loggedOut",
                                                "quitting",
                                                "courseDoneArabicMac",
                                                "courseDoneEnglishMac",
                                                "courseDoneArabicWin",
                                                "courseDoneEnglishWin"};
const std::vector<std::string> byteFields = {
    "exerciseNo",       "lessonNo",         "lastLessonWin",  "lastLessonMac",
    "reachedLessonMac", "reachedLessonWin", "recommendPage",  "helpPage",
    "gradeArabicMac",   "gradeEnglishMac",  "gradeArabicWin", "gradeEnglishWin"};
const std::vector<std::string> longFields = {"keyboardKind", "trueKeyColour", "errKeyColour",
                                             "fontSize",     "stopCount",     "exerciseMark",
                                             "accuracyMark"};
const std::string shortField = "speedBonus";

class ContextFieldsTest : public ::testing::Test
{
protected:
    void Set(const std::string& field, const std::string& value)
    {
        SetField(context, Arguments("set " + field + " " + value));
    }
    std::string Get(const std::string& field)
    {
        return PrintField(context, Arguments("get " + field));
    }
    void ExpectRefused(const std::string& field, std::initializer_list<std::string> values)
    {
        const std::string before = Get(field);
        for (const std::string& value : values) {
            EXPECT_THROW(Set(field, value), UsageError) << field << " " << value;
        }
        EXPECT_EQ(Get(field), before);
    }

    std::vector<std::string> AllFields()
    {
        std::vector<std::string> fields{shortField};
        for (const auto& group : {stringFields, booleanFields, byteFields, longFields}) {
            fields.insert(fields.end(), group.begin(), group.end());
        }
        return fields;
    }

    context::SessionContext context;
};

TEST_F(ContextFieldsTest, AFreshProcessHasNoughtsEmptyTextsAndFalse)
{
    for (const std::string& field : stringFields) {
        EXPECT_EQ(Get(field), "\"\"") << field;
    }
    for (const std::string& field : booleanFields) {
        EXPECT_EQ(Get(field), "false") << field;
    }
    for (const auto& group : {byteFields, longFields}) {
        for (const std::string& field : group) {
            EXPECT_EQ(Get(field), "0") << field;
        }
    }
    EXPECT_EQ(Get(shortField), "0");
}

TEST_F(ContextFieldsTest, EachIsAFieldOfItsOwn)
{
    const std::vector<std::string> fields = AllFields();
    EXPECT_EQ(fields.size(), 49U);
    for (const std::string& field : fields) {
        context = {};
        std::vector<std::string> before;
        for (const std::string& other : fields) {
            before.push_back(Get(other));
        }
        const std::string now = Get(field);
        Set(field, now == "\"\"" ? "\"x\"" : now == "false" ? "true" : "1");
        int changed = 0;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            changed += Get(fields[i]) != before[i] ? 1 : 0;
        }
        EXPECT_EQ(changed, 1) << field;
        EXPECT_NE(Get(field), now) << field;
    }
}

TEST_F(ContextFieldsTest, StringsTakeAnyText)
{
    for (const std::string& field : stringFields) {
        Set(field, R"("علي \"b\"\r\n")");
        EXPECT_EQ(Get(field), R"("علي \"b\"\r\n")") << field;
        ExpectRefused(field, {"word", "5", "true"});
    }
}

TEST_F(ContextFieldsTest, BooleansAreTrueOrFalse)
{
    for (const std::string& field : booleanFields) {
        Set(field, "true");
        EXPECT_EQ(Get(field), "true") << field;
        ExpectRefused(field, {"1", "on", "\"true\"", "-1", "TRUE"});
        Set(field, "false");
        EXPECT_EQ(Get(field), "false") << field;
    }
}

TEST_F(ContextFieldsTest, NumbersFillTheirType)
{
    for (const std::string& field : byteFields) {
        Set(field, "255");
        EXPECT_EQ(Get(field), "255") << field;
        ExpectRefused(field, {"256", "-1", "1.5", "x", "\"1\""});
        Set(field, "0");
        EXPECT_EQ(Get(field), "0") << field;
    }
    for (const std::string& field : longFields) {
        Set(field, "-2147483648");
        EXPECT_EQ(Get(field), "-2147483648") << field;
        Set(field, "2147483647");
        EXPECT_EQ(Get(field), "2147483647") << field;
        ExpectRefused(field, {"2147483648", "-2147483649", "x"});
    }
    Set(shortField, "-32768");
    EXPECT_EQ(Get(shortField), "-32768");
    Set(shortField, "32767");
    ExpectRefused(shortField, {"32768", "-32769"});
}

TEST_F(ContextFieldsTest, UnknownNamesAreMistakes)
{
    for (const std::string field : {"studentTable", "LessonNo", "lesson", "x"}) {
        EXPECT_THROW(Set(field, "1"), UsageError) << field;
        EXPECT_THROW(Get(field), UsageError) << field;
    }
    EXPECT_THROW(Get("\"lessonNo\""), UsageError);
}

TEST_F(ContextFieldsTest, TheNumberOfArgumentsCounts)
{
    EXPECT_THROW(SetField(context, Arguments("set lessonNo")), UsageError);
    EXPECT_THROW(SetField(context, Arguments("set lessonNo 1 2")), UsageError);
    EXPECT_THROW(PrintField(context, Arguments("get")), UsageError);
    EXPECT_THROW(PrintField(context, Arguments("get lessonNo 1")), UsageError);
}

} // namespace
} // namespace keyfluent::headless
