#include "headless/Commands.h"

#include "course/Regimes.h"
#include "headless/Json.h"
#include "progress/Diploma.h"
#include "progress/Evaluation.h"
#include "progress/Farewell.h"
#include "progress/Preferences.h"
#include "progress/Result.h"
#include "progress/StandardMarks.h"
#include "progress/StudentFile.h"
#include "progress/Welcome.h"

namespace keyfluent::headless
{
namespace
{

// A place of the course, as several commands name it: lesson, exercise, language.
struct PlaceArguments {
    explicit PlaceArguments(const Arguments& arguments)
    {
        arguments.Expect(3);
        lesson = arguments.Int32(0);
        exercise = arguments.Int32(1);
        arabic = Commands::ArabicAt(arguments, 2);
    }

    int lesson = 0;
    int exercise = 0;
    bool arabic = false;
};

int RecordAt(const Arguments& arguments)
{
    arguments.Expect(1);
    return static_cast<int>(arguments.Integer(0, 1, context::StudentTable::recordCount));
}

} // namespace

std::string Commands::ChecksLate(Console&, const Arguments& arguments)
{
    const PlaceArguments place(arguments);
    return Truth(course::ChecksLate(place.lesson, place.exercise, place.arabic));
}

std::string Commands::SpeedBonus(Console&, const Arguments& arguments)
{
    const PlaceArguments place(arguments);
    return Truth(progress::HasSpeedBonus(place.lesson, place.exercise, place.arabic));
}

std::string Commands::StandardMark(Console&, const Arguments& arguments)
{
    const PlaceArguments place(arguments);
    return Number(progress::StandardMark(place.lesson, place.exercise, place.arabic));
}

std::string Commands::PassingMark(Console&, const Arguments& arguments)
{
    arguments.Expect(1);
    return Number(progress::PassingMark(arguments.Int32(0)));
}

std::string Commands::RecordBase(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    return Number(progress::RecordBase(console.context_));
}

std::string Commands::LessonSum(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    return Number(progress::LessonSum(console.context_, arguments.Int32(0)));
}

std::string Commands::ArabicTotal(Console& console, const Arguments& arguments)
{
    return Number(progress::ArabicTotal(console.context_, RecordAt(arguments)));
}

std::string Commands::EnglishTotal(Console& console, const Arguments& arguments)
{
    return Number(progress::EnglishTotal(console.context_, RecordAt(arguments)));
}

std::string Commands::Passed(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    return Truth(progress::LessonPassed(console.context_));
}

std::string Commands::Result(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const progress::ResultTexts texts =
        progress::LoadResult(console.context_, console.machine_.Platform());
    JsonObject object;
    object.Add("lblTitle", texts.title).Add("lblRes", texts.res).Add("lblBonus", texts.bonus);
    object.Add("lblResult", texts.result).Add("lblNote", texts.note);
    return object.Add("lblNoteVisible", texts.noteVisible).Line() + "\n";
}

std::string Commands::IsNewStudent(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    console.context_.studentName = arguments.String(0);
    return Truth(progress::IsNewStudent(console.context_));
}

std::string Commands::LoadStudent(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    progress::LoadStudent(console.context_);
    return {};
}

std::string Commands::SaveStudent(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    progress::SaveStudent(console.context_);
    return {};
}

std::string Commands::LoadPrefs(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    progress::LoadPreferences(console.context_);
    return {};
}

std::string Commands::OpenPrefs(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const progress::Preferences shown = progress::OpenPreferences(console.context_);
    JsonObject object;
    object.Add("arabicInterface", bool(shown.arabicInterface));
    object.Add("keyboardKind", shown.keyboardKind).Add("fontSize", shown.fontSize);
    object.Add("trueKeyColour", shown.trueKeyColour).Add("errKeyColour", shown.errKeyColour);
    return object.Add("colouredHands", bool(shown.colouredHands)).Line() + "\n";
}

std::string Commands::SavePrefs(Console& console, const Arguments& arguments)
{
    arguments.Expect(6);
    progress::PreferencesForm form;
    form.arabicInterface = arguments.Boolean(0);
    form.keyboardKind = arguments.Int32(1);
    form.size = arguments.String(2);
    form.trueKeyColour = arguments.Int32(3);
    form.errKeyColour = arguments.Int32(4);
    form.colouredHands = arguments.Boolean(5);
    progress::SavePreferences(console.context_, form);
    return {};
}

std::string Commands::Suggest(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const progress::Suggestion suggestion = progress::SuggestExercise(console.context_);
    return std::to_string(suggestion.exercise) + " " + std::to_string(suggestion.percent) + " " +
           Truth(suggestion.isArabic);
}

std::string Commands::Welcome(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    return Text(progress::WelcomeText(console.context_, console.machine_.Platform()));
}

std::string Commands::Bye(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const progress::ByeTexts texts =
        progress::ByeMessage(console.context_, console.machine_.Platform());
    return Quoted(texts.caption) + " " + Text(texts.message);
}

std::string Commands::Diploma(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const progress::DiplomaTexts texts = progress::LoadDiploma(console.context_);
    JsonObject object;
    object.Add("lblName", texts.name).Add("lblDate", texts.date);
    return object.Add("lblCourse", texts.course).Line() + "\n";
}

} // namespace keyfluent::headless
