#include "session/Pointer.h"

#include "context/FatalError.h"
#include "context/Random.h"
#include "course/Lessons.h"
#include "course/Notes.h"
#include "session/Pictures.h"
#include "session/RowEnd.h"
#include "session/Selection.h"

#include <limits>

namespace keyfluent::session
{

void ClickRest(Lesson& lesson)
{
    if (!lesson.imgRest.Reachable()) {
        return;
    }
    lesson.imgRest.visible = false;
    lesson.imgResume.visible = true;
    lesson.resumeArmed = false;
    lesson.paused = true;
    lesson.pauseStart = context::TimeOfDay(lesson.platform);
    lesson.TimerOf(TimerName::Clock).Stop();
}

void ClickResume(Lesson& lesson)
{
    if (!lesson.imgResume.Reachable()) {
        return;
    }
    lesson.imgResume.visible = false;
    lesson.imgRest.visible = true;
    lesson.resumeArmed = true;
}

void PressStop(Lesson& lesson)
{
    if (!lesson.imgStop.Reachable()) {
        return;
    }
    if (lesson.context.stopCount == std::numeric_limits<std::int32_t>::max()) {
        throw context::FatalError("The stopped exercises are too many to count.");
    }
    ++lesson.context.stopCount;
    Unload(lesson);
    lesson.window.showStopNote(LoadStopNote(lesson.context, lesson.platform));
}

void MoveOver(Lesson& lesson, PushPicture picture)
{
    Image* images[] = {&lesson.imgRest, &lesson.imgResume, &lesson.imgStop};
    constexpr int litLooks[] = {restIn, resumeIn, stopIn};
    const auto index = static_cast<std::size_t>(picture);
    if (lesson.buttonLit || !images[index]->Reachable()) {
        return;
    }
    images[index]->bitmap = litLooks[index];
    lesson.buttonLit = true;
}

void MoveOverForm(Lesson& lesson)
{
    if (!lesson.buttonLit) {
        return;
    }
    lesson.imgRest.bitmap = restOut;
    lesson.imgResume.bitmap = resumeOut;
    lesson.imgStop.bitmap = stopOut;
    lesson.buttonLit = false;
}

bool PressField(Lesson& lesson, FieldName field)
{
    const TextField& pressed = field == FieldName::Origin ? lesson.txtOrigin : lesson.txtTest;
    const bool mendingWithTheMouse =
        lesson.context.lessonNo == course::lessonCount && lesson.label7.visible;
    if (!pressed.visible || mendingWithTheMouse) {
        return false;
    }
    lesson.platform.beep();
    lesson.notAllowedVisible = true;
    lesson.window.showNotAllowed();
    lesson.notAllowedVisible = false;
    SelectCurrentChar(lesson);
    return true;
}

void ClickOrigin(Lesson& lesson)
{
    SelectCurrentChar(lesson);
}

void OriginLostFocus(Lesson& lesson)
{
    SelectCurrentChar(lesson);
    if (!lesson.context.freeText) {
        lesson.window.hideCaret(FieldName::Origin);
    }
}

int LoadStopNote(context::SessionContext& context, const context::Platform& platform)
{
    constexpr std::int32_t warningFrom = 6; // the tenth note warns of stopping too often
    context.arabicInterface = true;
    const bool warns = context.stopCount >= warningFrom;
    return context::RandomBetween(platform, 1,
                                  warns ? course::stopNoteCount : course::stopNoteCount - 1);
}

} // namespace keyfluent::session
