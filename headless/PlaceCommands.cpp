#include "headless/Commands.h"

#include "context/KeyboardKind.h"
#include "course/Notes.h"
#include "headless/Json.h"
#include "progress/Chooser.h"
#include "progress/Leaving.h"
#include "progress/SignIn.h"

namespace keyfluent::headless
{
namespace
{

std::uint8_t LessonAt(const Arguments& arguments, int index)
{
    return static_cast<std::uint8_t>(arguments.Integer(index, 1, course::lessonCount));
}

} // namespace

std::string Commands::Name(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    return Truth(progress::ChangeName(console.context_, arguments.String(0)));
}

std::string Commands::Lesson(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    context::SessionContext& context = console.context_;
    const std::uint8_t lesson = LessonAt(arguments, 0);
    if (progress::ChooseLesson(context, lesson)) {
        console.shownButtons_ = {};
    }
    context.lessonNoteText = course::LessonNote(lesson);
    return Text(course::LessonNoteTitle(lesson, context.arabicInterface));
}

std::string Commands::Keyboard(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const bool windows = arguments.Choice(0, "win", "mac");
    console.shownButtons_ = {};
    progress::SynchroniseKeyboard(console.context_,
                                  windows ? context::windowsKeyboard : context::macintoshKeyboard);
    return {};
}

std::string Commands::Synchronise(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    progress::SynchroniseKeyboard(console.context_, console.context_.keyboardKind);
    return {};
}

std::string Commands::Next(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    return Truth(progress::StepNext(console.context_));
}

std::string Commands::Back(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    return Truth(progress::StepBack(console.context_));
}

std::string Commands::Menu(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const context::SessionContext& context = console.context_;
    JsonObject object;
    object.Add("enabledLessons", progress::EnabledLessons(context));
    object.Add("checkedLesson", int(context.lessonNo));
    object.AddRaw("checkedKeyboard",
                  context::CountsAsWindows(context.keyboardKind) ? "\"win\"" : "\"mac\"");
    object.Add("viewDiploma", progress::CanViewDiploma(context));
    object.Add("imgNext", console.shownButtons_.next).Add("imgBack", console.shownButtons_.back);
    return object.Add("imgDuplicate", console.shownButtons_.duplicate).Line() + "\n";
}

std::string Commands::Choose(Console& console, const Arguments& arguments)
{
    arguments.Expect(3);
    const std::uint8_t lesson = LessonAt(arguments, 0);
    const auto exercise = static_cast<std::uint8_t>(arguments.Integer(1, 1, course::exerciseCount));
    const bool arabicList = ArabicAt(arguments, 2);
    console.context_.lessonNo = lesson;
    progress::LoadChooser(console.context_);
    progress::ChooseExercise(console.context_, exercise, arabicList);
    return {};
}

std::string Commands::Chooser(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const progress::ChooserTexts texts = progress::LoadChooser(console.context_);
    JsonObject object;
    object.Add("lblLessonTitle", texts.lessonTitle);
    object.Add("lblAMM", texts.arabicStandard).Add("lblEMM", texts.englishStandard);
    object.Add("lblACM", texts.arabicMark).Add("lblECM", texts.englishMark);
    object.Add("lblAExercise", texts.arabicButton).Add("lblEExercise", texts.englishButton);
    return object.Add("lblPMark", texts.passing).Add("lblYourSum", texts.sum).Line() + "\n";
}

std::string Commands::Leave(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    switch (arguments.OneOf(0, {"yes", "no", "cancel"})) {
    case 0:
        progress::LeaveYes(console.context_);
        break;
    case 1:
        progress::LeaveNo(console.context_);
        break;
    default:
        progress::LeaveCancel(console.context_);
    }
    return {};
}

} // namespace keyfluent::headless
