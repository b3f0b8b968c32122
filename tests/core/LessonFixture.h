// What the tests of an exercise share: a machine whose clock only the test moves, a window that
// records what it is asked for, a lesson driven by keys and by time, and its state as one line.
#pragma once

#include "context/KeyboardKind.h"
#include "context/Random.h"
#include "context/Text.h"
#include "keyboard/KeyCodes.h"
#include "keyboard/KeyJudging.h"
#include "session/Keystrokes.h"
#include "session/Lesson.h"
#include "session/Loading.h"
#include "session/Ticks.h"

#include "context/CodePage1256.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace keyfluent::session::fixtures
{

enum class Language { English, Arabic };

// So that a failing comparison prints letters and not numbers.
inline std::string Utf8(std::u16string_view text)
{
    return context::ToUtf8(text);
}

// The platform and the window of a lesson. Time stands still unless the test moves it.
class FakeMachine
{
public:
    FakeMachine()
    {
        FillPlatform();
        FillWindow();
    }
    FakeMachine(const FakeMachine&) = delete;
    FakeMachine& operator=(const FakeMachine&) = delete;

    static constexpr std::int64_t dayLength = 86'400'000; // milliseconds

    void SetTimeOfDay(double seconds) { ofDay = static_cast<std::int64_t>(seconds * 1000); }
    void Pass(std::int64_t milliseconds)
    {
        ofDay = (ofDay + milliseconds) % dayLength;
        sinceStart += milliseconds;
    }
    std::vector<std::string> TakeEvents() { return std::exchange(events, {}); }

    std::int64_t ofDay = 36'000'000; // milliseconds, ten o'clock
    std::int64_t sinceStart = 0;
    context::CalendarDate date{2026, 1, 31};
    std::deque<double> draws; // used first; then the generator
    std::vector<double> seeds;
    std::int16_t capsLockState = 0;
    std::vector<std::string> events;
    bool recording = true;

    context::Platform platform;
    LessonWindow window;

private:
    // Text is joined only while recording, so that a silent machine asks for no memory.
    void Record(const char* what, const char* who)
    {
        if (recording) {
            events.push_back(std::string(what) + " " + who);
        }
    }

    static const char* NameOf(context::Player player)
    {
        constexpr const char* names[] = {"mmcEnter", "mmcChar", "mmcSpace", "mmcCaps", "mmcBack"};
        return names[static_cast<std::size_t>(player)];
    }
    static const char* NameOf(FieldName field)
    {
        return field == FieldName::Origin ? "txtOrigin" : "txtTest";
    }

    void FillPlatform()
    {
        using context::PlayerCommand;
        platform.secondsSinceMidnight = [this] { return static_cast<double>(ofDay) / 1000; };
        platform.today = [this] { return date; };
        platform.seedRandom = [this](double seconds) { seeds.push_back(seconds); };
        platform.random = [this] {
            if (draws.empty()) {
                return generator_.Next();
            }
            const double drawn = draws.front();
            draws.pop_front();
            return drawn;
        };
        platform.capsLockState = [this] { return capsLockState; };
        platform.openPlayer = [this](context::Player player, const std::u16string& file) {
            Record(NameOf(player), ("open " + Utf8(file)).c_str());
        };
        platform.commandPlayer = [this](context::Player player, PlayerCommand command) {
            Record(NameOf(player), command == PlayerCommand::Prev ? "Prev" : "Play");
        };
        platform.beep = [this] { Record("system", "beep"); };
    }

    void FillWindow()
    {
        window.paintBackground = [this] { Record("paint", "frmLesson"); };
        window.focusOrigin = [this] { Record("focus", "txtOrigin"); };
        window.hideCaret = [this](FieldName field) { Record("HideCaret", NameOf(field)); };
        window.showCaret = [this](FieldName field) { Record("ShowCaret", NameOf(field)); };
        window.unload = [this] { Record("unload", "frmLesson"); };
        window.showResult = [this] { Record("show", "frmResult"); };
        window.showStopNote = [this](int note) {
            Record("show frmStopNote", std::to_string(note).c_str());
        };
        window.showNotAllowed = [this] { Record("show", "frmNotAllowed"); };
    }

    context::RandomGenerator generator_;
};

// A key and whether Shift is held with it.
struct Stroke {
    std::uint16_t code = 0;
    bool shift = false;

    bool operator==(const Stroke&) const = default;
};

// Every key, with and without Shift, that is right for a character: found by asking the judge about
// all of them, so that no table of the keyboards is needed to type a text.
inline const std::vector<Stroke>& StrokesFor(char16_t character, std::int32_t kind, bool arabic,
                                             bool capsOn = false)
{
    using Wanted = std::tuple<char16_t, std::int32_t, bool, bool>;
    struct Hash {
        std::size_t operator()(const Wanted& wanted) const
        {
            const auto& [unit, keyboard, language, caps] = wanted;
            return (std::size_t{unit} << 12) ^ (static_cast<std::size_t>(keyboard) << 2) ^
                   (language ? 2U : 0U) ^ (caps ? 1U : 0U);
        }
    };
    static std::unordered_map<Wanted, std::vector<Stroke>, Hash> known;
    const auto [place, isNew] = known.try_emplace({character, kind, arabic, capsOn});
    if (isNew) {
        const std::uint8_t expected = context::ToCodePage1256(character);
        for (std::uint16_t code = 1; code <= 255; ++code) {
            for (const bool shift : {false, true}) {
                if (keyboard::IsValidKey(code, expected, shift, capsOn, kind, arabic)) {
                    place->second.push_back({code, shift});
                }
            }
        }
    }
    return place->second;
}

// Line ends and the like as escapes; the selection, which may be empty, in brackets.
inline std::string ShownField(const TextField& field)
{
    std::u16string shown;
    const auto add = [&shown](char16_t unit) {
        switch (unit) {
        case u'\r':
            shown += u"\\r";
            break;
        case u'\n':
            shown += u"\\n";
            break;
        default:
            shown += unit;
        }
    };
    const int start = field.SelectionStart();
    const int end = start + field.SelectionLength();
    for (int i = 0; i <= field.Size(); ++i) {
        shown += i == start ? u"[" : u"";
        shown += i == end ? u"]" : u"";
        if (i < field.Size()) {
            add(field.Text()[static_cast<std::size_t>(i)]);
        }
    }
    return Utf8(shown);
}

inline const char* PhaseOf(const Lesson& lesson)
{
    if (lesson.unloaded) {
        return "ended";
    }
    if (lesson.reviewMode) {
        return "review";
    }
    if (lesson.paused) {
        return lesson.resumeArmed ? "resumed" : "resting";
    }
    if (lesson.TimerOf(TimerName::ErrKey).Enabled()) {
        return "blinking";
    }
    if (lesson.TimerOf(TimerName::EraseChar).Enabled()) {
        return "erasing";
    }
    return lesson.awaitingFirstKey ? "waiting" : "running";
}

// A lesson as one line: row of rows, the model with its selection, the copy, right and wrong keys,
// the phase, and the modifiers that are down: `1/2 as[d]f | as | 2+1 running shift`.
inline std::string StateLine(const Lesson& lesson)
{
    std::string line = std::to_string(lesson.currentRow) + "/" + std::to_string(lesson.rowCount);
    line += " " + ShownField(lesson.txtOrigin) + " | ";
    TextField copy = lesson.txtTest;
    copy.Select(copy.Size(), 0);
    const std::string shown = ShownField(copy);
    line += shown.substr(0, shown.size() - 2) + " | ";
    line += std::to_string(lesson.correctCount) + "+" + std::to_string(lesson.errorCount);
    line += std::string(" ") + PhaseOf(lesson);
    line += lesson.shiftDown ? " shift" : "";
    line += lesson.capsOn ? " caps" : "";
    return line;
}

// One lesson at a time, told what happens to it and read back afterwards. A lesson that has ended
// stays to be read; what it is told then goes nowhere, as its window is gone.
class LessonDriver
{
public:
    static constexpr std::int32_t trueColour = 0x00AA00;
    static constexpr std::int32_t errColour = 0x0000FF;

    LessonDriver()
    {
        context.keyboardKind = context::windowsKeyboard;
        context.fontSize = 12;
        context.trueKeyColour = trueColour;
        context.errKeyColour = errColour;
        context.optKeyCaps = true;
        context.optHands = true;
        context.optCounter = true;
        context.optClock = true;
        Place(1, 1, Language::English);
    }

    void Place(int lessonNo, int exerciseNo, Language language)
    {
        context.lessonNo = static_cast<std::uint8_t>(lessonNo);
        context.exerciseNo = static_cast<std::uint8_t>(exerciseNo);
        context.arabicExercise = language == Language::Arabic;
    }

    void LoadOnly()
    {
        lesson_ = std::make_unique<Lesson>(context, machine.platform, machine.window);
        dueTimes_ = {};
        startsSeen_ = {};
        Load(*lesson_);
        Notice();
    }

    // The events of the opening are forgotten.
    void Open()
    {
        LoadOnly();
        Activate(*lesson_);
        machine.events.clear();
    }
    void Open(int lessonNo, int exerciseNo, Language language)
    {
        Place(lessonNo, exerciseNo, language);
        Open();
    }

    // A text of the test's own at a place, for the regime and the marks of the place.
    void OpenRows(int lessonNo, int exerciseNo, Language language,
                  std::initializer_list<course::Row> rows)
    {
        Place(lessonNo, exerciseNo, language);
        LoadOnly();
        lesson_->exerciseRows.Clear();
        lesson_->rowCount = 0;
        for (const course::Row row : rows) {
            lesson_->exerciseRows[++lesson_->rowCount] = row;
        }
        lesson_->txtOrigin.SetText(lesson_->exerciseRows[1]);
        Activate(*lesson_);
        machine.events.clear();
    }

    bool IsOpen() const { return lesson_ != nullptr && !lesson_->unloaded; }
    Lesson& It() { return *lesson_; }

    // The code that is left; 0 also when no lesson is there to take it.
    std::uint16_t Key(int code)
    {
        if (!IsOpen()) {
            return 0;
        }
        const std::uint16_t left = KeyDown(*lesson_, static_cast<std::uint16_t>(code));
        Notice();
        return left;
    }
    void Up(int code)
    {
        if (IsOpen()) {
            KeyUp(*lesson_, static_cast<std::uint16_t>(code));
            Notice();
        }
    }
    std::uint16_t Backspace() { return Key(keyboard::keyBackspace); }
    std::uint16_t Enter() { return Key(keyboard::keyEnter); }
    std::uint16_t Space() { return Key(keyboard::keySpace); }

    // Shift is held for just this key.
    void Strike(Stroke stroke)
    {
        if (stroke.shift) {
            Key(keyboard::keyShift);
        }
        Key(stroke.code);
        if (stroke.shift) {
            Up(keyboard::keyShift);
        }
    }

    // The keys of a text, whatever is expected; each character by the first key that is right.
    void Type(std::u16string_view text)
    {
        for (const char16_t character : text) {
            const auto& strokes =
                StrokesFor(character, context.keyboardKind, context.arabicExercise);
            if (strokes.empty()) {
                ADD_FAILURE() << "no key types " << Utf8({&character, 1});
                return;
            }
            Strike(strokes.front());
        }
    }

    // Time passes, and the timers that fall due fire in their order.
    void Wait(std::int64_t milliseconds)
    {
        const std::int64_t end = machine.sinceStart + milliseconds;
        for (int timer = NextDue(end); timer >= 0; timer = NextDue(end)) {
            std::int64_t& due = dueTimes_[static_cast<std::size_t>(timer)];
            machine.Pass(due - machine.sinceStart);
            due += lesson_->timers[static_cast<std::size_t>(timer)].Interval();
            Tick(*lesson_, static_cast<TimerName>(timer));
            Notice();
        }
        machine.Pass(end - machine.sinceStart);
    }

    // One tick of a timer, without any time.
    void TickOf(TimerName timer, int times = 1)
    {
        for (int i = 0; i < times && IsOpen(); ++i) {
            Tick(*lesson_, timer);
        }
    }

    bool Runs(TimerName timer) const { return lesson_->TimerOf(timer).Enabled(); }

    // How a cap looks: plain, lit, reversed, error, held or its two colours.
    std::string Look(int cap) const
    {
        const auto index = static_cast<std::size_t>(cap);
        const std::int32_t fore = lesson_->caps.foreColour[index];
        const std::int32_t back = lesson_->caps.backColour[index];
        const std::pair colours(fore, back);
        if (colours == std::pair(black, white)) {
            return "plain";
        }
        if (colours == std::pair(white, context.trueKeyColour)) {
            return "lit";
        }
        if (colours == std::pair(context.trueKeyColour, white)) {
            return "reversed";
        }
        if (colours == std::pair(white, black)) {
            return "held";
        }
        if (back == context.errKeyColour) {
            return "error";
        }
        return std::to_string(fore) + " on " + std::to_string(back);
    }

    // The caps that are not plain, each with its look: "50 lit, 60 held".
    std::string Looks() const
    {
        std::string looks;
        for (int cap = 0; cap < keyboard::capCount; ++cap) {
            if (const std::string look = Look(cap); look != "plain") {
                looks += (looks.empty() ? "" : ", ") + std::to_string(cap) + " " + look;
            }
        }
        return looks;
    }

    std::string CapText(int cap) const
    {
        return Utf8(lesson_->caps.text[static_cast<std::size_t>(cap)]);
    }
    std::string State() const { return lesson_ ? StateLine(*lesson_) : "no lesson"; }
    std::vector<std::string> TakeEvents() { return machine.TakeEvents(); }

    FakeMachine machine;
    context::SessionContext context;

    // Timers that have been started since the last look get their first due time.
    void Notice()
    {
        for (std::size_t i = 0; i < dueTimes_.size(); ++i) {
            const Timer& timer = lesson_->timers[i];
            if (timer.Enabled() && timer.Starts() != startsSeen_[i]) {
                dueTimes_[i] = machine.sinceStart + timer.Interval();
                startsSeen_[i] = timer.Starts();
            }
        }
    }

private:
    int NextDue(std::int64_t latest) const
    {
        int next = -1;
        for (std::size_t i = 0; i < dueTimes_.size() && IsOpen(); ++i) {
            if (lesson_->timers[i].Enabled() && dueTimes_[i] <= latest &&
                (next < 0 || dueTimes_[i] < dueTimes_[static_cast<std::size_t>(next)])) {
                next = static_cast<int>(i);
            }
        }
        return next;
    }

    std::unique_ptr<Lesson> lesson_;
    std::array<std::int64_t, timerCount> dueTimes_{};
    std::array<std::uint32_t, timerCount> startsSeen_{};
};

// A driver for each test; a test that fails prints the state it came to.
class LessonFixture : public ::testing::Test, protected LessonDriver
{
protected:
    void TearDown() override
    {
        if (HasFailure()) {
            std::cout << "state: " << State() << '\n';
        }
    }
};

using Events = std::vector<std::string>;

} // namespace keyfluent::session::fixtures
