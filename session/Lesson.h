// One exercise, from its loading to its end: the window's controls and the state behind them. A
// Lesson is made anew for every run and thrown away when it has unloaded itself.
#pragma once

#include "context/Platform.h"
#include "context/SessionContext.h"
#include "course/ExerciseRows.h"
#include "session/Controls.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace keyfluent::session
{

// In the order in which those that fall due at the same moment fire.
enum class TimerName { Clock, Auto, EraseChar, ErrKey, Hilite, Selection };
inline constexpr int timerCount = 6;

enum class FieldName { Origin, Test };

// What a lesson asks of the window around it. Unload may be answered after the event in hand: the
// lesson calls it once and touches nothing but its own record afterwards.
struct LessonWindow {
    std::function<void()> paintBackground;
    std::function<void()> focusOrigin;
    std::function<void(FieldName)> hideCaret;
    std::function<void(FieldName)> showCaret;
    std::function<void()> unload;
    // Both modal windows are opened after the unloading, and the caution while the lesson stands:
    // it returns when the caution has been closed.
    std::function<void()> showResult;
    std::function<void(int note)> showStopNote;
    std::function<void()> showNotAllowed;
};

// Scale marks of the gauges: Label1 to Label6.
inline constexpr int scaleMarkCount = 6;

struct Lesson {
    Lesson(context::SessionContext& state, const context::Platform& machine,
           const LessonWindow& around)
        : context(state), platform(machine), window(around)
    {
    }
    Lesson(const Lesson&) = delete;
    Lesson& operator=(const Lesson&) = delete;

    Timer& TimerOf(TimerName name) { return timers[static_cast<std::size_t>(name)]; }
    const Timer& TimerOf(TimerName name) const { return timers[static_cast<std::size_t>(name)]; }
    // number 1 to 6.
    Label& ScaleMark(int number) { return scaleMarks[static_cast<std::size_t>(number - 1)]; }

    context::SessionContext& context;
    const context::Platform& platform;
    const LessonWindow& window;

    // Controls.
    TextField txtOrigin;
    TextField txtTest;
    Label lblTitle;
    Label label7; // the message line of the review
    std::array<Label, scaleMarkCount> scaleMarks;
    Label lblMark, lblResulotion;
    Label lblSpeed, lblChar;
    Label lblTimer;
    Label shape1; // the frame round the gauges and the clock; its caption stays empty
    Gauge pbMark;
    Gauge pbSpeed;
    Image imgRest, imgResume, imgStop;
    Image imgLeftHand, imgRightHand;
    CapArray caps;
    // A left-over that receives caretPos at each selection; nothing reads it.
    std::u16string text1;
    // In the order of TimerName.
    std::array<Timer, timerCount> timers = {Timer(1000), Timer(20), Timer(20),
                                            Timer(60),   Timer(90), Timer(500)};

    // Which of the main window's step buttons loading has left showing.
    bool imgNextShown = false;
    bool imgBackShown = false;
    bool imgDuplicateShown = false;

    // The exercise.
    course::ExerciseRows exerciseRows;
    std::u16string drill; // what row 1 holds in an anagram
    std::uint8_t rowCount = 0;
    std::int16_t currentRow = 1;
    std::int16_t caretPos = 0; // 0-based position of the expected character; may pass the row's end

    // The running figures.
    std::int32_t correctCount = 0;
    std::int32_t errorCount = 0;
    std::int32_t totalCount = 0;
    std::int32_t accuracyPercent = 0; // 0 to 100
    std::int32_t speedRate = 0;       // 0 to 300

    // Times are seconds since midnight.
    float startTime = 0;
    float pauseStart = 0;
    float pauseLength = 0;
    std::uint8_t clockMinutes = 0;
    std::uint8_t clockSeconds = 0;
    bool awaitingFirstKey = true;
    bool paused = false;
    bool resumeArmed = false;

    // Keys.
    static constexpr int noKeyYet = -2;
    int pressedKey = noKeyYet; // cap of the last key looked up, keyboard::noCap for none
    std::u16string litChar;    // the character last highlighted
    std::u16string savedTestText;
    std::int16_t blinkCount = 0; // shared by the two blinks
    int handPictureOffset = 0;   // 1000 for the coloured hands
    bool shiftDown = false;
    bool capsOn = false;
    bool errorPending = false;

    bool reviewMode = false;
    bool buttonLit = false;
    bool notAllowedVisible = false; // the caution stands over the window
    bool unloaded = false;
};

} // namespace keyfluent::session
