#include "headless/Commands.h"

#include "course/Lessons.h"
#include "course/Notes.h"
#include "keyboard/KeyCodes.h"
#include "keyboard/KeyJudging.h"
#include "session/Letters.h"

namespace keyfluent::headless
{
namespace
{

constexpr std::string_view aidNames[] = {"optKeyCaps", "optHands", "optCounter", "optClock",
                                         "optSound"};

std::string_view RuleName(course::AidRule rule)
{
    switch (rule) {
    case course::AidRule::On:
        return "on";
    case course::AidRule::Off:
        return "off";
    case course::AidRule::Free:
        break;
    }
    return "free";
}

int Only(const Arguments& arguments)
{
    arguments.Expect(1);
    return arguments.Int32(0);
}

} // namespace

std::string Commands::Rows(Console& console, const Arguments& arguments)
{
    arguments.Expect(3);
    course::GetExerciseRows(arguments.Int32(0), Byte(arguments, 1), Byte(arguments, 2),
                            console.context_.arabicExercise, console.rowCount_, console.rows_);
    std::string block = Number(console.rowCount_);
    for (int number = 1; number <= console.rowCount_; ++number) {
        block += Text(console.rows_[number]);
    }
    return block + "end\n";
}

std::string Commands::LessonName(Console& console, const Arguments& arguments)
{
    return Text(course::LessonName(Only(arguments), console.context_.arabicInterface));
}

std::string Commands::LessonNote(Console&, const Arguments& arguments)
{
    return Text(course::LessonNote(Only(arguments)));
}

std::string Commands::ExerciseNote(Console&, const Arguments& arguments)
{
    arguments.Expect(3);
    return Text(
        course::ExerciseNote(arguments.Int32(0), arguments.Int32(1), ArabicAt(arguments, 2)));
}

std::string Commands::HelpText(Console&, const Arguments& arguments)
{
    return Text(course::HelpText(Only(arguments)));
}

std::string Commands::Recommendation(Console&, const Arguments& arguments)
{
    return Text(course::RecommendationText(Only(arguments)));
}

std::string Commands::StopNote(Console&, const Arguments& arguments)
{
    return Text(course::StopNoteText(Only(arguments)));
}

std::string Commands::Special(Console&, const Arguments& arguments)
{
    arguments.Expect(3);
    return Truth(
        course::IsSpecialExercise(arguments.Int32(0), arguments.Int32(1), ArabicAt(arguments, 2)));
}

std::string Commands::Free(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const std::u16string_view typed = arguments.String(0);
    session::OpenLetters(console.context_);
    return session::ConfirmLetters(console.context_, typed) ? "taken\n" : "beep\n";
}

std::string Commands::Options(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    console.plan_ = course::DecideAids(console.context_);
    std::string line;
    for (const course::Aid aid : course::allAids) {
        line += line.empty() ? "" : " ";
        line += aidNames[static_cast<std::size_t>(aid)];
        line += '=';
        line += RuleName(console.plan_[aid]);
    }
    return line + "\n";
}

std::string Commands::Turn(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const int aid =
        arguments.OneOf(0, {aidNames[0], aidNames[1], aidNames[2], aidNames[3], aidNames[4]});
    course::TurnAid(console.context_, console.plan_, static_cast<course::Aid>(aid));
    return {};
}

std::string Commands::ValidKey(Console& console, const Arguments& arguments)
{
    arguments.Expect(4);
    const int key = static_cast<int>(arguments.Integer(0, 0, 65535));
    const auto code = static_cast<std::uint8_t>(Byte(arguments, 1));
    const bool shift = arguments.Choice(2, "shift", "noshift");
    const bool caps = arguments.Choice(3, "caps", "nocaps");
    const context::SessionContext& context = console.context_;
    return Truth(
        keyboard::IsValidKey(key, code, shift, caps, context.keyboardKind, context.arabicExercise));
}

std::string Commands::CapOf(Console&, const Arguments& arguments)
{
    arguments.Expect(1);
    const int cap = keyboard::CapOfKey(static_cast<int>(arguments.Integer(0, 0, 65535)));
    return cap == keyboard::noCap ? "none\n" : Number(cap);
}

} // namespace keyfluent::headless
