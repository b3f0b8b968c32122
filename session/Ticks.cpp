#include "session/Ticks.h"

#include "session/Caps.h"
#include "session/Loading.h"
#include "session/Marks.h"
#include "session/Review.h"
#include "session/RowEnd.h"
#include "session/Selection.h"

namespace keyfluent::session
{
namespace
{

void TickClock(Lesson& lesson)
{
    const context::SessionContext& context = lesson.context;
    if (!context.freeText) {
        lesson.window.hideCaret(FieldName::Origin);
    }
    if (!context.optClock) {
        return;
    }
    if (++lesson.clockSeconds == 60) {
        lesson.clockSeconds = 0;
        lesson.clockMinutes = lesson.clockMinutes >= 99 ? 0 : lesson.clockMinutes + 1;
    }
    lesson.lblTimer.caption =
        context::Decimal(lesson.clockMinutes, 2) + u":" + context::Decimal(lesson.clockSeconds, 2);
}

// The wink of a right key. A key without a cap winks nothing, but its ticks count.
void TickHilite(Lesson& lesson)
{
    constexpr int ticks = 3;
    if (!lesson.context.optKeyCaps) {
        return; // Meant: the timer runs on without effect.
    }
    if (lesson.pressedKey >= 0) {
        const auto cap = static_cast<std::size_t>(lesson.pressedKey);
        const std::int32_t colour = lesson.context.trueKeyColour;
        const bool lit = lesson.caps.foreColour[cap] == white;
        lesson.caps.foreColour[cap] = lit ? colour : white;
        lesson.caps.backColour[cap] = lit ? white : colour;
    }
    if (++lesson.blinkCount < ticks) {
        return;
    }
    ClearCaps(lesson);
    lesson.blinkCount = 0;
    ShowHands(lesson, lesson.txtOrigin.SelectedText());
    SelectCurrentChar(lesson);
    lesson.TimerOf(TimerName::Hilite).Stop();
}

// The blink of a refused key, and the end of it.
void TickErrKey(Lesson& lesson)
{
    constexpr int ticks = 7;
    if (lesson.pressedKey >= 0) {
        std::int32_t& back = lesson.caps.backColour[static_cast<std::size_t>(lesson.pressedKey)];
        back = back == lesson.context.errKeyColour ? white : lesson.context.errKeyColour;
    }
    if (++lesson.blinkCount < ticks) {
        return;
    }
    lesson.blinkCount = 0;
    if (lesson.pressedKey >= 0) {
        SetModifierCap(lesson, lesson.pressedKey, false);
    }
    lesson.txtTest.SetText(lesson.savedTestText);
    ComputeMarks(lesson);
    ShowMarks(lesson);
    HighlightKey(lesson, lesson.litChar);
    lesson.errorPending = false;
    lesson.TimerOf(TimerName::ErrKey).Stop();
}

void TickEraseChar(Lesson& lesson)
{
    if (lesson.txtTest.Text().empty()) {
        lesson.caretPos = 0;
        lesson.TimerOf(TimerName::EraseChar).Stop();
        return;
    }
    lesson.txtTest.RemoveLast(1);
}

void TickAuto(Lesson& lesson)
{
    if (!Reviewing(lesson)) {
        return;
    }
    ShowReviewMessage(lesson);
    if (lesson.txtTest.Text() != lesson.txtOrigin.Text()) {
        return;
    }
    lesson.TimerOf(TimerName::Auto).Stop();
    Unload(lesson);
    if (IsOrdinary(lesson.context)) {
        lesson.window.showResult();
    }
}

} // namespace

void Tick(Lesson& lesson, TimerName timer)
{
    switch (timer) {
    case TimerName::Clock:
        TickClock(lesson);
        break;
    case TimerName::Auto:
        TickAuto(lesson);
        break;
    case TimerName::EraseChar:
        TickEraseChar(lesson);
        break;
    case TimerName::ErrKey:
        TickErrKey(lesson);
        break;
    case TimerName::Hilite:
        TickHilite(lesson);
        break;
    case TimerName::Selection:
        break; // It idles: nothing hangs on it.
    }
}

} // namespace keyfluent::session
