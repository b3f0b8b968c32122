#include "session/Caps.h"

#include "context/KeyboardKind.h"
#include "course/Lessons.h"
#include "course/Regimes.h"
#include "keyboard/Fingers.h"
#include "keyboard/Highlight.h"
#include "keyboard/KeyCodes.h"
#include "keyboard/Layouts.h"
#include "session/Pictures.h"

namespace keyfluent::session
{
namespace
{

constexpr std::size_t Index(int cap)
{
    return static_cast<std::size_t>(cap);
}

void Paint(CapArray& caps, int cap, std::int32_t foreColour, std::int32_t backColour)
{
    caps.foreColour[Index(cap)] = foreColour;
    caps.backColour[Index(cap)] = backColour;
}

} // namespace

void ShowKeyCaps(Lesson& lesson, std::int32_t kind, bool shifted, bool clearTexts)
{
    if (shifted && lesson.shiftDown) {
        return;
    }
    if (clearTexts) {
        lesson.txtOrigin.SetText({});
        lesson.txtTest.SetText({});
    }
    keyboard::WriteCapTexts(kind, shifted, lesson.context.arabicExercise, lesson.caps.text);
}

void ClearCaps(Lesson& lesson)
{
    struct Kept {
        int cap;
        std::int32_t foreColour;
        std::int32_t backColour;
    };
    CapArray& caps = lesson.caps;
    const auto keep = [&caps](int cap) {
        return Kept{cap, caps.foreColour[Index(cap)], caps.backColour[Index(cap)]};
    };
    const Kept kept[] = {keep(keyboard::capCapsLock), keep(keyboard::capLeftShift),
                         keep(keyboard::capRightShift)};
    caps.foreColour.fill(black);
    caps.backColour.fill(white);
    for (const Kept& look : kept) {
        Paint(caps, look.cap, look.foreColour, look.backColour);
    }
}

void HighlightKey(Lesson& lesson, std::u16string_view character)
{
    ClearCaps(lesson);
    lesson.litChar.assign(character);
    const context::SessionContext& context = lesson.context;
    const int cap =
        keyboard::CapOfCharacter(character, context.keyboardKind, context.arabicExercise);
    if (cap != keyboard::noCap) {
        Paint(lesson.caps, cap, white, context.trueKeyColour);
    }
}

void SelectPressedKey(Lesson& lesson, int keyCode)
{
    const context::SessionContext& context = lesson.context;
    auto& text = lesson.caps.text;
    lesson.pressedKey = keyboard::CapOfKey(keyCode);
    if (keyCode == keyboard::keyEscape) {
        text[Index(keyboard::capEscape)] = u"?";
        return;
    }
    const bool late =
        course::ChecksLate(context.lessonNo, context.exerciseNo, context.arabicExercise);
    const bool lateOrLast = late || context.lessonNo == course::lessonCount;
    if (keyCode == keyboard::keyEnter && lateOrLast) {
        static constexpr char16_t mark[] = {context::lineEndMark, 0};
        text[Index(keyboard::capReturn)] = mark;
    } else if (keyCode == keyboard::keySpace && lateOrLast) {
        text[Index(keyboard::capSpace)] = u" ";
    } else if (keyCode == keyboard::keyLamAlef && late && context.arabicExercise &&
               context::CountsAsWindows(context.keyboardKind)) {
        // The key of the two letters gives the first where the exercise types through.
        text[Index(keyboard::capLamAlef)] = u"ل";
    }
}

std::u16string_view PressedText(const Lesson& lesson)
{
    return lesson.pressedKey < 0 ? std::u16string_view()
                                 : lesson.caps.text[Index(lesson.pressedKey)];
}

void SetModifierCap(Lesson& lesson, int cap, bool down)
{
    Paint(lesson.caps, cap, down ? white : black, down ? black : white);
}

void SyncCapsCap(Lesson& lesson, std::int16_t keyState)
{
    if (keyState == 0 || keyState == -128) {
        lesson.capsOn = false;
    } else if (keyState == 1 || keyState == -127) {
        lesson.capsOn = true;
    }
    SetModifierCap(lesson, keyboard::capCapsLock, lesson.capsOn);
}

void ShowHands(Lesson& lesson, std::u16string_view character)
{
    const context::SessionContext& context = lesson.context;
    const keyboard::Fingers fingers =
        keyboard::FingersOf(character, context.keyboardKind, context.arabicExercise);
    lesson.imgLeftHand.bitmap = leftHandAtRest + lesson.handPictureOffset + fingers.left;
    lesson.imgRightHand.bitmap = rightHandAtRest + lesson.handPictureOffset + fingers.right;
    if (fingers.shiftCap != keyboard::noCap) {
        SetModifierCap(lesson, fingers.shiftCap, true);
    }
}

} // namespace keyfluent::session
