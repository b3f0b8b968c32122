#include "headless/VirtualMachine.h"

#include "headless/Json.h"
#include "session/Loading.h"
#include "session/Ticks.h"

#include <utility>

namespace keyfluent::headless
{
namespace
{

using context::Player;
using context::PlayerCommand;
using session::FieldName;

std::string NameOf(Player player)
{
    constexpr const char* names[] = {"mmcEnter", "mmcChar", "mmcSpace", "mmcCaps", "mmcBack"};
    return names[static_cast<std::size_t>(player)];
}

std::string NameOf(FieldName field)
{
    return field == FieldName::Origin ? "txtOrigin" : "txtTest";
}

session::TimerName TimerAt(int index)
{
    return static_cast<session::TimerName>(index);
}

} // namespace

void TimerQueue::Notice(const session::Lesson& lesson, std::int64_t now)
{
    for (std::size_t i = 0; i < due_.size(); ++i) {
        const session::Timer& timer = lesson.timers[i];
        if (timer.Enabled() && timer.Starts() != startsSeen_[i]) {
            due_[i] = now + timer.Interval();
            startsSeen_[i] = timer.Starts();
        }
    }
}

int TimerQueue::NextDue(const session::Lesson& lesson, std::int64_t latest) const
{
    int next = -1;
    for (int i = 0; i < session::timerCount; ++i) {
        const auto index = static_cast<std::size_t>(i);
        if (lesson.timers[index].Enabled() && due_[index] <= latest &&
            (next < 0 || due_[index] < DueTime(next))) {
            next = i;
        }
    }
    return next;
}

void TimerQueue::Advance(const session::Lesson& lesson, int timer)
{
    const auto index = static_cast<std::size_t>(timer);
    due_[index] += lesson.timers[index].Interval();
}

VirtualMachine::VirtualMachine()
{
    FillPlatform();
    FillWindow();
}

void VirtualMachine::FillPlatform()
{
    platform_.secondsSinceMidnight = [this] { return clock_.SecondsSinceMidnight(); };
    platform_.today = [this] { return date; };
    platform_.seedRandom = [this](double seconds) { generator_.Seed(seconds); };
    platform_.random = [this] {
        if (queuedRandom.empty()) {
            return generator_.Next();
        }
        const double next = queuedRandom.front();
        queuedRandom.pop_front();
        return next;
    };
    platform_.capsLockState = [this] { return static_cast<std::int16_t>(capsLock ? 1 : 0); };
    platform_.openPlayer = [this](Player player, const std::u16string& file) {
        Record(NameOf(player) + " open " + Quoted(file));
    };
    platform_.commandPlayer = [this](Player player, PlayerCommand command) {
        Record(NameOf(player) + (command == PlayerCommand::Prev ? " Prev" : " Play"));
    };
    platform_.beep = [this] { Record("beep"); };
}

void VirtualMachine::FillWindow()
{
    window_.paintBackground = [this] { Record("paint frmLesson"); };
    window_.focusOrigin = [this] { Record("focus txtOrigin"); };
    window_.hideCaret = [this](FieldName field) { Record("HideCaret " + NameOf(field)); };
    window_.showCaret = [this](FieldName field) { Record("ShowCaret " + NameOf(field)); };
    window_.unload = [this] { Record("unload frmLesson"); };
    window_.showResult = [this] { Record("show frmResult"); };
    window_.showStopNote = [this](int note) { Record("show frmStopNote " + std::to_string(note)); };
    window_.showNotAllowed = [this] { Record("show frmNotAllowed"); };
}

void VirtualMachine::OpenLesson(context::SessionContext& context)
{
    lesson_ = std::make_unique<session::Lesson>(context, platform_, window_);
    timers_ = TimerQueue();
    session::Load(*lesson_);
    session::Activate(*lesson_);
    AfterEvent();
}

void VirtualMachine::AfterEvent()
{
    if (lesson_ == nullptr) {
        return;
    }
    if (lesson_->unloaded) {
        lesson_.reset();
        return;
    }
    timers_.Notice(*lesson_, clock_.SinceStart());
}

void VirtualMachine::Wait(std::int64_t milliseconds)
{
    const std::int64_t end = clock_.SinceStart() + milliseconds;
    while (lesson_ != nullptr) {
        const int timer = timers_.NextDue(*lesson_, end);
        if (timer < 0) {
            break;
        }
        clock_.MoveTo(timers_.DueTime(timer));
        timers_.Advance(*lesson_, timer);
        session::Tick(*lesson_, TimerAt(timer));
        AfterEvent();
    }
    clock_.MoveTo(end);
}

std::vector<std::string> VirtualMachine::TakeEvents()
{
    return std::exchange(events_, {});
}

} // namespace keyfluent::headless
