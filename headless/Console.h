// The console: the whole program without its windows. It reads a command a line and answers each
// in turn; `docs/console.md` lists the commands.
#pragma once

#include "context/SessionContext.h"
#include "course/Aids.h"
#include "course/ExerciseRows.h"
#include "headless/Arguments.h"
#include "headless/VirtualMachine.h"
#include "progress/Place.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace keyfluent::headless
{

class Console
{
public:
    // appFolder is in UTF-8.
    explicit Console(std::string_view appFolder);

    // Carries out one line, without its line feed. Returns what it answers: nothing, or lines that
    // each end in a line feed. Throws UsageError for a mistake and context::FatalError for a
    // failure that ends the program; nothing is answered then.
    std::string Execute(std::string_view line);

    context::SessionContext& Context() { return context_; }
    VirtualMachine& Machine() { return machine_; }

private:
    friend struct Commands;

    // The lesson that is open; throws where there is none.
    session::Lesson& OpenLesson();

    context::SessionContext context_;
    VirtualMachine machine_;
    // Kept between calls, as a caller's own variables are.
    course::ExerciseRows rows_;
    std::uint8_t rowCount_ = 0;
    // The last decision of the options dialog.
    course::AidPlan plan_{course::AidRule::Off, course::AidRule::Off, course::AidRule::Off,
                          course::AidRule::Off, course::AidRule::Off};
    // The main window's step buttons: as they show now, and as the last loading left them.
    progress::StepButtons shownButtons_;
    progress::StepButtons loadedButtons_;
};

} // namespace keyfluent::headless
