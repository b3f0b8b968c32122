// A script for the console. A line that is a mistake is passed over, which asks more of the console
// than ending there; a failure that ends the program ends the script.
#include "context/FatalError.h"
#include "context/Text.h"
#include "headless/Console.h"
#include "tests/fuzz/ConsoleGrammar.h"
#include "tests/fuzz/Folder.h"
#include "tests/fuzz/Target.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace keyfluent::fuzz
{
namespace
{

constexpr int mostLines = 400;
constexpr std::int64_t mostWaited = 10'000'000; // milliseconds in one script: a long lesson
constexpr std::string_view fileCommands[] = {"loadstudent", "savestudent", "isnewstudent",
                                             "loadprefs",   "openprefs",   "saveprefs",
                                             "leave",       "name",        "set"};

// The folder of the program is the place that a script can not choose.
bool IsForbidden(std::string_view line)
{
    return line.find("appFolder") != std::string_view::npos;
}

std::int64_t WaitOf(std::string_view line)
{
    const std::size_t word = line.find("wait");
    if (word == std::string_view::npos) {
        return 0;
    }
    const std::string digits(line.substr(word + 4));
    return std::max<std::int64_t>(0, std::strtoll(digits.c_str(), nullptr, 10));
}

bool IsUtf8(std::string_view text)
{
    return context::ToUtf8(context::FromUtf8(text)) == text;
}

// Answers are whole lines of text that hold no control character.
void RequireWellFormed(const std::string& answer)
{
    Require(answer.empty() || answer.back() == '\n', "an answer ends in a line feed");
    Require(std::ranges::none_of(
                answer, [](char byte) { return byte >= 0 && byte < 0x20 && byte != '\n'; }),
            "an answer holds no control character");
    Require(IsUtf8(answer), "an answer is UTF-8");
}

void RequireSound(headless::Console& console)
{
    if (!console.Machine().HasLesson()) {
        return;
    }
    const session::Lesson& lesson = console.Machine().Lesson();
    const auto within = [](double low, double value, double high) {
        return low <= value && value <= high;
    };
    Require(lesson.caretPos >= 0, "the caret is not negative");
    Require(lesson.totalCount == lesson.correctCount + lesson.errorCount, "the counts add up");
    Require(within(0, double(lesson.pbMark.value), double(lesson.pbMark.maximum)),
            "the mark is in its range");
    Require(within(0, double(lesson.pbSpeed.value), double(lesson.pbSpeed.maximum)),
            "the speed is in its range");
    Require(lesson.clockSeconds < 60 && lesson.clockMinutes <= 99, "the clock shows a time");
    const auto limit = [](const session::TextField& field) {
        return field.SelectionStart() >= 0 &&
               field.SelectionStart() + field.SelectionLength() <= field.Size();
    };
    Require(limit(lesson.txtOrigin) && limit(lesson.txtTest), "a selection lies in its text");
}

void RunScript(const Folder& folder, std::string_view script)
{
    headless::Console console(folder.Path().string());
    std::int64_t waited = 0;
    for (int lines = 0; lines < mostLines && !script.empty(); ++lines) {
        const std::size_t end = std::min(script.find('\n'), script.size());
        const std::string_view line = script.substr(0, end);
        script.remove_prefix(std::min(end + 1, script.size()));
        waited += WaitOf(line);
        if (IsForbidden(line) || waited > mostWaited) {
            continue;
        }
        try {
            RequireWellFormed(console.Execute(line));
        } catch (const headless::UsageError&) {
            continue;
        } catch (const context::FatalError& failure) {
            Require(std::string_view(failure.what()).find('\n') == std::string_view::npos,
                    "a failure is told in one line");
            return;
        }
        RequireSound(console);
    }
}

bool TouchesFiles(std::string_view script)
{
    return std::ranges::any_of(fileCommands, [script](std::string_view command) {
        return script.find(command) != std::string_view::npos;
    });
}

} // namespace
} // namespace keyfluent::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace keyfluent::fuzz;
    static const Folder folder;
    const std::string_view script(reinterpret_cast<const char*>(data), size);
    RunScript(folder, script);
    if (TouchesFiles(script)) {
        folder.RequireOnlyOwnFiles();
        folder.Empty();
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed)
{
    using namespace keyfluent::fuzz;
    const std::string script(reinterpret_cast<const char*>(data), size);
    const std::string changed = ChangedScript(script, seed);
    const std::size_t length = std::min(changed.size(), maxSize);
    std::copy_n(changed.begin(), length, data);
    return length;
}
