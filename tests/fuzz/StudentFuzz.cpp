// A student's file of any content and any length. The first four bytes are the place in the course
// and the languages; the rest is the file.
#include "context/FatalError.h"
#include "context/Platform.h"
#include "context/Random.h"
#include "context/Text.h"
#include "progress/Chooser.h"
#include "progress/Diploma.h"
#include "progress/Evaluation.h"
#include "progress/Place.h"
#include "progress/Records.h"
#include "progress/Result.h"
#include "progress/StudentFile.h"
#include "progress/Welcome.h"
#include "tests/fuzz/Folder.h"
#include "tests/fuzz/Target.h"

#include <algorithm>

namespace keyfluent::fuzz
{
namespace
{

constexpr std::size_t headSize = 4;
constexpr std::size_t fileSize = 620;
constexpr std::string_view fileName = "Students/any.W";

context::SessionContext Context(const Folder& folder, std::span<const std::uint8_t> head)
{
    context::SessionContext context;
    context.appFolder = context::FromUtf8(folder.Path().string());
    context.studentName = u"any";
    context.keyboardKind = head[0] % 2 == 0 ? 192 : 0;
    context.arabicInterface = (head[0] & 2) != 0;
    context.arabicExercise = (head[0] & 4) != 0;
    context.lessonNo = head[1];
    context.exerciseNo = head[2];
    context.exerciseMark = head[3];
    return context;
}

context::Platform Machine(context::RandomGenerator& generator)
{
    context::Platform machine;
    machine.secondsSinceMidnight = [] { return 36000.0; };
    machine.today = [] { return context::CalendarDate{2026, 1, 31}; };
    machine.seedRandom = [](double) {};
    machine.random = [&generator] { return generator.Next(); };
    machine.capsLockState = [] { return std::int16_t{0}; };
    return machine;
}

void RequireAsRead(const context::SessionContext& context, const Bytes& file)
{
    std::size_t at = 0;
    for (const context::StudentRecord& record : context.studentTable.records) {
        for (const std::int16_t field : record) {
            const int low = at < file.size() ? file[at] : 0;
            const int high = at + 1 < file.size() ? file[at + 1] : 0;
            Require(field == static_cast<std::int16_t>(low | high << 8),
                    "a field is the file's two bytes, and zero beyond its end");
            at += 2;
        }
    }
    const context::StudentRecord& header = context.studentTable.Record(progress::headerRecord);
    Require(context.reachedLessonMac == header[progress::HeaderField::reachedLessonMac] &&
                context.reachedLessonWin == header[progress::HeaderField::reachedLessonWin],
            "the reached lessons are the file's");
}

void RequireKept(const Bytes& before, const Bytes& after)
{
    Require(after.size() == std::max(before.size(), fileSize), "the file keeps its length");
    const auto common = static_cast<std::ptrdiff_t>(std::min(before.size(), fileSize));
    Require(std::equal(before.begin(), before.begin() + common, after.begin()),
            "what was read is written back");
    if (before.size() > fileSize) {
        Require(std::equal(before.begin() + fileSize, before.end(), after.begin() + fileSize),
                "further bytes are kept");
    }
}

// Everything that is shown of a student.
void Look(context::SessionContext& context, const context::Platform& machine)
{
    const auto shown = [](auto look) {
        try {
            look();
        } catch (const context::FatalError&) {
            // A sum of marks that leaves its range ends the program with a report.
        }
    };
    const int enabled = progress::EnabledLessons(context);
    Require(enabled >= 0 && enabled <= 15, "there are fifteen lessons at most");
    shown([&] { progress::WelcomeText(context, machine); });
    shown([&] { progress::SuggestExercise(context); });
    shown([&] { progress::LoadDiploma(context); });
    shown([&] { progress::LoadChooser(context); });
    shown([&] { progress::LessonPassed(context); });
    const int reachedMac = context.reachedLessonMac;
    const int reachedWin = context.reachedLessonWin;
    shown([&] { progress::EvaluateExercise(context, machine, 50, 35000); });
    shown([&] { progress::LoadResult(context, machine); });
    Require(context.reachedLessonMac >= reachedMac && context.reachedLessonWin >= reachedWin,
            "a reached lesson never falls");
    shown([&] { progress::EnterMainWindow(context); });
    shown([&] { progress::SynchroniseKeyboard(context, context.keyboardKind); });
}

void RunFile(const Folder& folder, std::span<const std::uint8_t> head, const Bytes& file)
{
    context::RandomGenerator generator;
    const context::Platform machine = Machine(generator);
    context::SessionContext context = Context(folder, head);
    folder.Write(fileName, file);
    Require(!progress::IsNewStudent(context), "a student with a file is known");
    try {
        progress::LoadStudent(context);
    } catch (const context::FatalError&) {
        Require(folder.Read(fileName) == file, "a file that cannot be used stays as it is");
        return;
    }
    RequireAsRead(context, file);
    progress::SaveStudent(context);
    const Bytes saved = folder.Read(fileName);
    RequireKept(file, saved);
    Look(context, machine);
    progress::SaveStudent(context);
    context::SessionContext again = Context(folder, head);
    try {
        progress::LoadStudent(again);
    } catch (const context::FatalError&) {
        return; // marks that have grown beyond what a sum can hold
    }
    Require(again.studentTable.records == context.studentTable.records,
            "what is saved is what is loaded");
}

} // namespace
} // namespace keyfluent::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace keyfluent::fuzz;
    static const Folder folder;
    if (size < headSize) {
        return 0;
    }
    const std::span<const std::uint8_t> input(data, size);
    const auto file = input.subspan(headSize);
    RunFile(folder, input.first(headSize), Bytes(file.begin(), file.end()));
    folder.RequireOnlyOwnFiles();
    return 0;
}
