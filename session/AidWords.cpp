#include "session/AidWords.h"

#include "keyboard/Fingers.h"
#include "keyboard/KeyWords.h"
#include "session/Pictures.h"
#include "session/Selection.h"

namespace keyfluent::session
{
namespace
{

std::u16string_view ExpectedCharacter(const Lesson& lesson)
{
    const bool guided = !lesson.context.freeText && !Reviewing(lesson);
    return guided ? lesson.txtOrigin.SelectedText() : std::u16string_view();
}

// "" where no key is expected.
std::u16string NextKey(const Lesson& lesson)
{
    const context::SessionContext& context = lesson.context;
    const bool arabic = context.arabicInterface;
    const std::u16string key = keyboard::KeyWords(ExpectedCharacter(lesson), context.keyboardKind,
                                                  context.arabicExercise, arabic);
    return key.empty() ? key : (arabic ? u"المفتاح التالي: " : u"Next key: ") + key;
}

std::u16string FingerOf(Hand hand, int finger, bool arabic)
{
    std::u16string words;
    if (hand == Hand::Left) {
        words = arabic ? u"اليد اليسرى: " : u"Left hand: ";
    } else {
        words = arabic ? u"اليد اليمنى: " : u"Right hand: ";
    }
    return words += keyboard::FingerName(finger, arabic);
}

// A hand that rests has nothing to say here.
void AddFinger(std::u16string& words, Hand hand, int finger, bool arabic)
{
    if (finger != keyboard::handAtRest) {
        words += u". ";
        words += FingerOf(hand, finger, arabic);
    }
}

} // namespace

std::u16string KeyboardWords(const Lesson& lesson)
{
    std::u16string words = lesson.context.arabicInterface ? u"لوحة المفاتيح" : u"Keyboard";
    const std::u16string next = NextKey(lesson);
    if (!next.empty()) {
        words += u". ";
        words += next;
    }
    return words;
}

std::u16string HandWords(const Lesson& lesson, Hand hand)
{
    const bool left = hand == Hand::Left;
    const int shown = left ? lesson.imgLeftHand.bitmap : lesson.imgRightHand.bitmap;
    const int atRest = (left ? leftHandAtRest : rightHandAtRest) + lesson.handPictureOffset;
    return FingerOf(hand, shown - atRest, lesson.context.arabicInterface);
}

std::u16string Announcement(const Lesson& lesson)
{
    const context::SessionContext& context = lesson.context;
    if (Reviewing(lesson)) {
        return lesson.label7.caption;
    }
    std::u16string words = NextKey(lesson);
    if (!words.empty() && context.optHands) {
        const keyboard::Fingers fingers = keyboard::FingersOf(
            ExpectedCharacter(lesson), context.keyboardKind, context.arabicExercise);
        AddFinger(words, Hand::Left, fingers.left, context.arabicInterface);
        AddFinger(words, Hand::Right, fingers.right, context.arabicInterface);
    }
    return words;
}

} // namespace keyfluent::session
