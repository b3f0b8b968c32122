#include "session/Keystrokes.h"

#include "context/CodePage1256.h"
#include "course/Lessons.h"
#include "course/Regimes.h"
#include "keyboard/KeyCodes.h"
#include "keyboard/KeyJudging.h"
#include "session/Caps.h"
#include "session/Marks.h"
#include "session/Review.h"
#include "session/RowEnd.h"
#include "session/Selection.h"
#include "session/Sounds.h"

#include <limits>

namespace keyfluent::session
{
namespace
{

constexpr std::u16string_view markWithLineEnd = u"\u0691\r\n";
constexpr int unitsOfLineEnd = 2; // CR LF

bool ChecksLate(const Lesson& lesson)
{
    const context::SessionContext& context = lesson.context;
    return course::ChecksLate(context.lessonNo, context.exerciseNo, context.arabicExercise);
}

bool InLastLesson(const Lesson& lesson)
{
    return lesson.context.lessonNo == course::lessonCount;
}

// A step that would leave the field's 16 bits fails, and a failed step is passed over.
void MoveCaret(Lesson& lesson, int units)
{
    const int moved = lesson.caretPos + units;
    if (moved >= 0 && moved <= std::numeric_limits<std::int16_t>::max()) {
        lesson.caretPos = static_cast<std::int16_t>(moved);
    }
}

// Looks at a character of the model text without keeping a view into it.
char16_t SelectedUnit(const Lesson& lesson)
{
    const std::u16string_view selected = lesson.txtOrigin.SelectedText();
    return selected.empty() ? u'\0' : selected.front();
}

void EndPause(Lesson& lesson)
{
    lesson.pauseLength = context::TimeOfDay(lesson.platform) - lesson.pauseStart;
    lesson.startTime += lesson.pauseLength;
    lesson.paused = false;
    lesson.TimerOf(TimerName::Clock).Start();
}

void PressShift(Lesson& lesson)
{
    ShowKeyCaps(lesson, lesson.context.keyboardKind, true, false);
    lesson.shiftDown = true;
    SetModifierCap(lesson, keyboard::capLeftShift, true);
    SetModifierCap(lesson, keyboard::capRightShift, true);
}

void SetCtrlCaps(Lesson& lesson, bool down)
{
    SetModifierCap(lesson, keyboard::capLeftCtrl, down);
    SetModifierCap(lesson, keyboard::capRightCtrl, down);
}

void StartClock(Lesson& lesson)
{
    lesson.startTime = context::TimeOfDay(lesson.platform);
    lesson.awaitingFirstKey = false;
    lesson.TimerOf(TimerName::Clock).Start();
}

void TypeRight(Lesson& lesson, int keyCode, char16_t expected)
{
    SelectPressedKey(lesson, keyCode);
    lesson.TimerOf(TimerName::Hilite).Start();
    if (!InLastLesson(lesson)) {
        lesson.txtTest.Append(expected);
        MoveCaret(lesson, 1);
    } else if (keyCode == keyboard::keyEnter) {
        if (expected == context::lineEndMark) {
            lesson.txtTest.Append(markWithLineEnd);
            MoveCaret(lesson, static_cast<int>(markWithLineEnd.size()));
        }
        lesson.txtTest.Select(lesson.caretPos, 0);
    } else {
        lesson.txtTest.Append(PressedText(lesson));
        MoveCaret(lesson, 1);
        lesson.txtTest.Select(lesson.caretPos, 0);
    }
    SelectCurrentChar(lesson);
    ++lesson.correctCount;
}

// Shows what was typed until the blink ends and takes it back.
void RefuseAtOnce(Lesson& lesson, int keyCode)
{
    if (!lesson.context.optSound) {
        lesson.platform.beep();
    }
    ++lesson.errorCount;
    lesson.errorPending = true;
    SelectPressedKey(lesson, keyCode);
    lesson.savedTestText.assign(lesson.txtTest.Text());
    lesson.txtTest.Append(PressedText(lesson));
    lesson.TimerOf(TimerName::ErrKey).Start();
}

// Meant: a wrong Enter, and a letter typed over a line end, leave the two texts two units apart;
// they meet again only when the student takes the difference back.
void LetThroughInLastLesson(Lesson& lesson, int keyCode, char16_t expected)
{
    if (keyCode == keyboard::keyEnter) {
        lesson.txtTest.Append(markWithLineEnd);
        MoveCaret(lesson, 1);
        lesson.txtTest.Select(lesson.caretPos, 0);
    } else {
        MoveCaret(lesson, expected == context::lineEndMark ? 1 + unitsOfLineEnd : 1);
        lesson.txtTest.Append(PressedText(lesson));
    }
    ++lesson.errorCount;
    lesson.txtTest.Select(lesson.txtTest.Size() - 1, 0);
    SelectCurrentChar(lesson);
}

void LetThrough(Lesson& lesson, int keyCode, char16_t expected)
{
    SelectPressedKey(lesson, keyCode);
    if (InLastLesson(lesson)) {
        LetThroughInLastLesson(lesson, keyCode, expected);
        return;
    }
    lesson.txtTest.Append(PressedText(lesson));
    MoveCaret(lesson, 1);
    ++lesson.errorCount;
    SelectCurrentChar(lesson);
}

// Takes back the last character of a passage, a line end with its mark in one.
void EraseInLastLesson(Lesson& lesson)
{
    TextField& test = lesson.txtTest;
    const auto endsInLineFeed = [&test] {
        return !test.Text().empty() && test.Text().back() == u'\n';
    };
    if (!endsInLineFeed()) {
        test.RemoveLast(1);
        if (endsInLineFeed()) {
            test.RemoveLast(unitsOfLineEnd); // the mark stays in place
        }
    } else {
        test.RemoveLast(1 + unitsOfLineEnd);
    }
    if (SelectedUnit(lesson) != u'\n') {
        MoveCaret(lesson, -1);
        SelectCurrentChar(lesson);
        if (SelectedUnit(lesson) == u'\n') {
            MoveCaret(lesson, -unitsOfLineEnd);
        }
    } else {
        MoveCaret(lesson, -unitsOfLineEnd);
    }
    test.Select(lesson.caretPos, 0);
}

void Erase(Lesson& lesson)
{
    constexpr int penalty = 5;
    if (lesson.txtTest.Size() == 1) {
        lesson.txtTest.SetText({});
        lesson.caretPos = 0;
    } else if (!InLastLesson(lesson)) {
        MoveCaret(lesson, -1);
        lesson.txtTest.RemoveLast(1);
    } else {
        EraseInLastLesson(lesson);
    }
    lesson.errorCount += penalty;
    ComputeMarks(lesson);
    ShowMarks(lesson);
    SelectCurrentChar(lesson);
}

void CountFreeTextKey(Lesson& lesson)
{
    ++lesson.correctCount;
    lesson.errorCount = 0;
    ComputeMarks(lesson);
    if (lesson.txtOrigin.Size() > freeTextLimit) {
        lesson.context.inExercise = true;
        Unload(lesson);
        return;
    }
    ShowMarks(lesson);
}

bool IsRight(const Lesson& lesson, int keyCode, char16_t expected)
{
    const context::SessionContext& context = lesson.context;
    return keyboard::IsValidKey(keyCode, context::ToCodePage1256(expected), lesson.shiftDown,
                                lesson.capsOn, context.keyboardKind, context.arabicExercise);
}

void JudgeKey(Lesson& lesson, int keyCode, bool late)
{
    const char16_t expected = SelectedUnit(lesson);
    PlayKeySound(lesson, keyCode);
    if (lesson.context.freeText) {
        CountFreeTextKey(lesson);
        return;
    }
    if (IsRight(lesson, keyCode, expected)) {
        TypeRight(lesson, keyCode, expected);
    } else if (late) {
        LetThrough(lesson, keyCode, expected);
    } else {
        RefuseAtOnce(lesson, keyCode);
    }
    ComputeMarks(lesson);
    ShowMarks(lesson);

    // Kept across the end of a row: for a moment the last look-up stands for no character.
    const char16_t next = SelectedUnit(lesson);
    const std::u16string_view nextText(&next, lesson.txtOrigin.SelectionLength() > 0 ? 1 : 0);
    ShowHands(lesson, nextText);
    CheckRowEnd(lesson, late);
    if (lesson.unloaded) {
        return;
    }
    HighlightKey(lesson, nextText);
    SelectCurrentChar(lesson);
}

// The keys that end before any character is asked for. True when the key has been dealt with.
bool HandleModifier(Lesson& lesson, int keyCode)
{
    if (keyCode == keyboard::keyCapsLock) {
        SyncCapsCap(lesson, lesson.platform.capsLockState());
        PlayCapsSound(lesson);
        return true;
    }
    if (keyCode == keyboard::keyCtrl) {
        SetCtrlCaps(lesson, true);
        return true;
    }
    if (keyCode == keyboard::keyShift && !lesson.shiftDown) {
        PressShift(lesson);
    }
    return false;
}

void TypeKey(Lesson& lesson, int keyCode)
{
    const bool backspace = keyCode == keyboard::keyBackspace;
    if (lesson.awaitingFirstKey) {
        StartClock(lesson);
    }
    if (backspace) {
        PlayBackspaceSound(lesson);
    }
    const bool late = ChecksLate(lesson);
    if (!late && keyCode != keyboard::keyShift && lesson.errorPending) {
        return;
    }
    if (late && backspace && lesson.caretPos > 0) {
        Erase(lesson);
        return;
    }
    if (!lesson.context.freeText) {
        SelectCurrentChar(lesson);
    }
    SelectPressedKey(lesson, keyCode);
    if (!PressedText(lesson).empty()) {
        JudgeKey(lesson, keyCode, late);
    }
}

} // namespace

std::uint16_t KeyDown(Lesson& lesson, std::uint16_t keyCode)
{
    if (Reviewing(lesson)) {
        CheckReview(lesson);
        return keyCode;
    }
    if (lesson.paused && lesson.resumeArmed) {
        EndPause(lesson);
    }
    const bool shutOut = lesson.TimerOf(TimerName::EraseChar).Enabled() ||
                         lesson.TimerOf(TimerName::ErrKey).Enabled();
    if (lesson.paused || shutOut) {
        return 0;
    }
    if (!HandleModifier(lesson, keyCode)) {
        TypeKey(lesson, keyCode);
    }
    return keyCode;
}

void KeyUp(Lesson& lesson, std::uint16_t keyCode)
{
    if (keyCode == keyboard::keyShift) {
        SetModifierCap(lesson, keyboard::capLeftShift, false);
        SetModifierCap(lesson, keyboard::capRightShift, false);
        ShowKeyCaps(lesson, lesson.context.keyboardKind, false, false);
        lesson.shiftDown = false;
        ShowHands(lesson, lesson.txtOrigin.SelectedText());
    } else if (keyCode == keyboard::keyCtrl) {
        SetCtrlCaps(lesson, false);
    }
}

} // namespace keyfluent::session
