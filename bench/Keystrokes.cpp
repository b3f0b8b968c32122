// How many judged keystrokes a second the core takes. Every key runs the whole way: judged,
// counted, the marks reckoned, the caps and the hands set; the timers that a key starts are left
// alone.
#include "session/Keystrokes.h"
#include "context/CodePage1256.h"
#include "context/KeyboardKind.h"
#include "context/Random.h"
#include "keyboard/KeyCodes.h"
#include "keyboard/KeyJudging.h"
#include "session/Loading.h"
#include "session/Review.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace
{

using namespace keyfluent;

context::Platform BenchPlatform()
{
    static context::RandomGenerator generator;
    context::Platform platform;
    // A fifth of a second a reading, round the clock: a typist of flesh and blood.
    platform.secondsSinceMidnight = [now = 0.0]() mutable {
        now = now < 86000 ? now + 0.2 : 0.0;
        return now;
    };
    platform.today = [] { return context::CalendarDate(); };
    platform.seedRandom = [](double seconds) { generator.Seed(seconds); };
    platform.random = [] { return generator.Next(); };
    platform.capsLockState = [] { return std::int16_t{0}; };
    platform.openPlayer = [](context::Player, const std::u16string&) {};
    platform.commandPlayer = [](context::Player, context::PlayerCommand) {};
    platform.beep = [] {};
    return platform;
}

session::LessonWindow BenchWindow()
{
    session::LessonWindow window;
    window.paintBackground = [] {};
    window.focusOrigin = [] {};
    window.hideCaret = [](session::FieldName) {};
    window.showCaret = [](session::FieldName) {};
    window.unload = [] {};
    window.showResult = [] {};
    window.showStopNote = [](int) {};
    window.showNotAllowed = [] {};
    return window;
}

struct Bench {
    Bench(int lesson, int exercise, bool arabic)
    {
        state.lessonNo = static_cast<std::uint8_t>(lesson);
        state.exerciseNo = static_cast<std::uint8_t>(exercise);
        state.arabicExercise = arabic;
        state.keyboardKind = context::windowsKeyboard;
        state.optKeyCaps = true;
        state.optHands = true;
        Reopen();
    }

    void Reopen()
    {
        record = std::make_unique<session::Lesson>(state, platform, window);
        session::Load(*record);
        session::Activate(*record);
    }

    context::SessionContext state;
    context::Platform platform = BenchPlatform();
    session::LessonWindow window = BenchWindow();
    std::unique_ptr<session::Lesson> record;
};

struct Stroke {
    std::uint16_t key;
    bool shift;
};

// The key that is right for the expected character, found by the rule itself.
Stroke StrokeFor(const Bench& bench, char16_t expected)
{
    const std::uint8_t code = context::ToCodePage1256(expected);
    for (const bool shift : {false, true}) {
        for (std::uint16_t key = 8; key < 230; ++key) {
            if (keyboard::IsValidKey(key, code, shift, false, bench.state.keyboardKind,
                                     bench.state.arabicExercise)) {
                return {key, shift};
            }
        }
    }
    return {keyboard::keySpace, false};
}

// Types the text of a place over and over; opening it anew is not timed.
void TypeText(benchmark::State& state, int lesson, int exercise, bool arabic)
{
    Bench bench(lesson, exercise, arabic);
    std::vector<Stroke> strokes;
    for (int row = 1; row <= bench.record->rowCount; ++row) {
        for (const char16_t character : bench.record->exerciseRows[row]) {
            if (character != u'\r' && character != u'\n') {
                strokes.push_back(StrokeFor(bench, character));
            }
        }
    }
    std::size_t next = 0;
    for (auto _ : state) {
        bench.record->shiftDown = strokes[next].shift;
        session::KeyDown(*bench.record, strokes[next].key);
        if (++next == strokes.size()) {
            state.PauseTiming();
            next = 0;
            bench.Reopen();
            state.ResumeTiming();
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}

// Keys of a free text that holds so many characters already.
void TypeFreely(benchmark::State& state)
{
    Bench bench(12, 4, false);
    bench.state.freeText = true;
    bench.Reopen();
    const auto size = static_cast<std::size_t>(state.range(0));
    session::EditField(bench.record->txtOrigin, 0, 0, std::u16string(size, u'a'));
    for (auto _ : state) {
        session::KeyDown(*bench.record, 65);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}

BENCHMARK_CAPTURE(TypeText, first_drill_english, 1, 1, false);
BENCHMARK_CAPTURE(TypeText, first_drill_arabic, 1, 1, true);
BENCHMARK_CAPTURE(TypeText, longest_list_english, 12, 1, false);
BENCHMARK_CAPTURE(TypeText, longest_row_arabic, 9, 2, true);
BENCHMARK_CAPTURE(TypeText, passage_english, 15, 1, false);
BENCHMARK_CAPTURE(TypeText, passage_arabic, 15, 1, true);
BENCHMARK(TypeFreely)->Arg(0)->Arg(30000);

} // namespace
