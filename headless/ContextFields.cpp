#include "headless/ContextFields.h"

#include "headless/Json.h"

#include <limits>
#include <type_traits>
#include <variant>

namespace keyfluent::headless
{
namespace
{

using context::Boolean16;
using context::SessionContext;

using FieldPointer = std::variant<std::u16string SessionContext::*, Boolean16 SessionContext::*,
                                  std::uint8_t SessionContext::*, std::int16_t SessionContext::*,
                                  std::int32_t SessionContext::*>;

struct NamedField {
    std::string_view name;
    FieldPointer pointer;
};

const NamedField fields[] = {
    {"appFolder", &SessionContext::appFolder},
    {"studentName", &SessionContext::studentName},
    {"studentNameCopy", &SessionContext::studentNameCopy},
    {"keyboardKind", &SessionContext::keyboardKind},
    {"exerciseNo", &SessionContext::exerciseNo},
    {"lessonNo", &SessionContext::lessonNo},
    {"lastLessonWin", &SessionContext::lastLessonWin},
    {"lastLessonMac", &SessionContext::lastLessonMac},
    {"reachedLessonMac", &SessionContext::reachedLessonMac},
    {"reachedLessonWin", &SessionContext::reachedLessonWin},
    {"arabicInterface", &SessionContext::arabicInterface},
    {"arabicExercise", &SessionContext::arabicExercise},
    {"sessionRun", &SessionContext::sessionRun},
    {"trueKeyColour", &SessionContext::trueKeyColour},
    {"errKeyColour", &SessionContext::errKeyColour},
    {"fontSize", &SessionContext::fontSize},
    {"colouredHands", &SessionContext::colouredHands},
    {"stopCount", &SessionContext::stopCount},
    {"lessonNoteText", &SessionContext::lessonNoteText},
    {"optKeyCaps", &SessionContext::optKeyCaps},
    {"optHands", &SessionContext::optHands},
    {"optCounter", &SessionContext::optCounter},
    {"optClock", &SessionContext::optClock},
    {"optSound", &SessionContext::optSound},
    {"exerciseMark", &SessionContext::exerciseMark},
    {"accuracyMark", &SessionContext::accuracyMark},
    {"speedBonus", &SessionContext::speedBonus},
    {"recommendPage", &SessionContext::recommendPage},
    {"helpPage", &SessionContext::helpPage},
    {"helpMode", &SessionContext::helpMode},
    {"leaveNoSave", &SessionContext::leaveNoSave},
    {"leaveConfirmed", &SessionContext::leaveConfirmed},
    {"inExercise", &SessionContext::inExercise},
    {"arabicAnagram", &SessionContext::arabicAnagram},
    {"englishAnagram", &SessionContext::englishAnagram},
    {"freeText", &SessionContext::freeText},
    {"freeTextChars", &SessionContext::freeTextChars},
    {"anagramLanguage", &SessionContext::anagramLanguage},
    {"loggedOut", &SessionContext::loggedOut},
    {"quitting", &SessionContext::quitting},
    {"courseDoneArabicMac", &SessionContext::courseDoneArabicMac},
    {"courseDoneEnglishMac", &SessionContext::courseDoneEnglishMac},
    {"courseDoneArabicWin", &SessionContext::courseDoneArabicWin},
    {"courseDoneEnglishWin", &SessionContext::courseDoneEnglishWin},
    {"gradeArabicMac", &SessionContext::gradeArabicMac},
    {"gradeEnglishMac", &SessionContext::gradeEnglishMac},
    {"gradeArabicWin", &SessionContext::gradeArabicWin},
    {"gradeEnglishWin", &SessionContext::gradeEnglishWin},
    {"blankText", &SessionContext::blankText},
};

const NamedField& FieldOf(std::string_view name)
{
    for (const NamedField& field : fields) {
        if (field.name == name) {
            return field;
        }
    }
    throw UsageError("there is no field " + std::string(name));
}

void Assign(std::u16string& value, const Arguments& arguments)
{
    value = arguments.String(1);
}

void Assign(Boolean16& value, const Arguments& arguments)
{
    value = arguments.Boolean(1);
}

template <typename Integer> void Assign(Integer& value, const Arguments& arguments)
{
    using Limits = std::numeric_limits<Integer>;
    value = static_cast<Integer>(arguments.Integer(1, Limits::min(), Limits::max()));
}

std::string Print(const std::u16string& value)
{
    return Quoted(value);
}

std::string Print(const Boolean16& value)
{
    return value ? "true" : "false";
}

template <typename Integer> std::string Print(Integer value)
{
    return std::to_string(value);
}

} // namespace

void SetField(context::SessionContext& context, const Arguments& arguments)
{
    arguments.Expect(2);
    std::visit([&](auto pointer) { Assign(context.*pointer, arguments); },
               FieldOf(arguments.Word(0)).pointer);
}

std::string PrintField(const context::SessionContext& context, const Arguments& arguments)
{
    arguments.Expect(1);
    return std::visit([&](auto pointer) { return Print(context.*pointer); },
                      FieldOf(arguments.Word(0)).pointer);
}

} // namespace keyfluent::headless
