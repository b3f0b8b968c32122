// The console's commands, each a function from its arguments to its answer. One source file holds
// those of one subject; Console.cpp has the table of their words.
#pragma once

#include "headless/Arguments.h"
#include "headless/Console.h"

#include <string>

namespace keyfluent::headless
{

using Command = std::string (*)(Console&, const Arguments&);

struct Commands {
    // Time, chance and the context (MachineCommands.cpp).
    static std::string Now(Console&, const Arguments&);
    static std::string Wait(Console&, const Arguments&);
    static std::string Date(Console&, const Arguments&);
    static std::string Random(Console&, const Arguments&);
    static std::string CapsLock(Console&, const Arguments&);
    static std::string Events(Console&, const Arguments&);
    static std::string Set(Console&, const Arguments&);
    static std::string Get(Console&, const Arguments&);
    static std::string Record(Console&, const Arguments&);
    static std::string SetRecord(Console&, const Arguments&);

    // The course and the keyboard (CourseCommands.cpp).
    static std::string Rows(Console&, const Arguments&);
    static std::string LessonName(Console&, const Arguments&);
    static std::string LessonNote(Console&, const Arguments&);
    static std::string ExerciseNote(Console&, const Arguments&);
    static std::string HelpText(Console&, const Arguments&);
    static std::string Recommendation(Console&, const Arguments&);
    static std::string StopNote(Console&, const Arguments&);
    static std::string Special(Console&, const Arguments&);
    static std::string Free(Console&, const Arguments&);
    static std::string Options(Console&, const Arguments&);
    static std::string Turn(Console&, const Arguments&);
    static std::string ValidKey(Console&, const Arguments&);
    static std::string CapOf(Console&, const Arguments&);

    // Marks, files and the texts about them (ProgressCommands.cpp).
    static std::string ChecksLate(Console&, const Arguments&);
    static std::string SpeedBonus(Console&, const Arguments&);
    static std::string StandardMark(Console&, const Arguments&);
    static std::string PassingMark(Console&, const Arguments&);
    static std::string RecordBase(Console&, const Arguments&);
    static std::string LessonSum(Console&, const Arguments&);
    static std::string ArabicTotal(Console&, const Arguments&);
    static std::string EnglishTotal(Console&, const Arguments&);
    static std::string Passed(Console&, const Arguments&);
    static std::string Result(Console&, const Arguments&);
    static std::string IsNewStudent(Console&, const Arguments&);
    static std::string LoadStudent(Console&, const Arguments&);
    static std::string SaveStudent(Console&, const Arguments&);
    static std::string LoadPrefs(Console&, const Arguments&);
    static std::string OpenPrefs(Console&, const Arguments&);
    static std::string SavePrefs(Console&, const Arguments&);
    static std::string Suggest(Console&, const Arguments&);
    static std::string Welcome(Console&, const Arguments&);
    static std::string Bye(Console&, const Arguments&);
    static std::string Diploma(Console&, const Arguments&);

    // The windows around a lesson (PlaceCommands.cpp).
    static std::string Name(Console&, const Arguments&);
    static std::string Lesson(Console&, const Arguments&);
    static std::string Keyboard(Console&, const Arguments&);
    static std::string Synchronise(Console&, const Arguments&);
    static std::string Next(Console&, const Arguments&);
    static std::string Back(Console&, const Arguments&);
    static std::string Menu(Console&, const Arguments&);
    static std::string Choose(Console&, const Arguments&);
    static std::string Chooser(Console&, const Arguments&);
    static std::string Leave(Console&, const Arguments&);

    // A lesson: what it is told (LessonCommands.cpp).
    static std::string Open(Console&, const Arguments&);
    static std::string Activate(Console&, const Arguments&);
    static std::string Key(Console&, const Arguments&);
    static std::string Up(Console&, const Arguments&);
    static std::string Mouse(Console&, const Arguments&);
    static std::string Click(Console&, const Arguments&);
    static std::string Move(Console&, const Arguments&);
    static std::string LostFocus(Console&, const Arguments&);
    static std::string Edit(Console&, const Arguments&);
    static std::string Enter(Console&, const Arguments&);

    // A lesson: what it shows (LessonPrinting.cpp).
    static std::string Is(Console&, const Arguments&);
    static std::string Row(Console&, const Arguments&);
    static std::string State(Console&, const Arguments&);
    static std::string Field(Console&, const Arguments&);
    static std::string Label(Console&, const Arguments&);
    static std::string Gauge(Console&, const Arguments&);
    static std::string Cap(Console&, const Arguments&);
    static std::string Caps(Console&, const Arguments&);
    static std::string Image(Console&, const Arguments&);
    static std::string Button(Console&, const Arguments&);
    static std::string Timer(Console&, const Arguments&);

    // What several files use.
    static std::string Truth(bool value) { return value ? "true\n" : "false\n"; }
    static std::string Number(std::int64_t number) { return std::to_string(number) + "\n"; }
    static std::string Text(std::u16string_view text);
    static int Byte(const Arguments& arguments, int index);
    static bool ArabicAt(const Arguments& arguments, int index)
    {
        return arguments.Choice(index, "ar", "en");
    }
};

} // namespace keyfluent::headless
