#include "progress/Place.h"

#include "course/Lessons.h"
#include "progress/Keyboards.h"
#include "progress/Records.h"

#include <algorithm>

namespace keyfluent::progress
{

using context::SessionContext;

void EnterMainWindow(SessionContext& context)
{
    context.lessonNo = ReachedLesson(context, CountsAsWindows(context));
}

bool ChooseLesson(SessionContext& context, std::uint8_t lesson)
{
    const bool another = context.lessonNo != lesson;
    context.lessonNo = lesson;
    (IsWindowsByNumber(context) ? context.lastLessonWin : context.lastLessonMac) = lesson;
    return another;
}

void SynchroniseKeyboard(SessionContext& context, std::int32_t kind)
{
    if (kind == context::macintoshKeyboard) {
        context.lastLessonWin = context.lessonNo;
        context.keyboardKind = context::macintoshKeyboard;
        context.lessonNo = std::min(context.lastLessonMac, context.reachedLessonMac);
    } else {
        context.lastLessonMac = context.lessonNo;
        context.keyboardKind = context::windowsKeyboard;
        context.lessonNo = std::min(context.lastLessonWin, context.reachedLessonWin);
    }
}

int EnabledLessons(const SessionContext& context)
{
    const int reached = ReachedLesson(context, IsWindowsByNumber(context));
    return std::min(reached, course::lessonCount);
}

bool CanViewDiploma(const SessionContext& context)
{
    const context::StudentRecord& header = context.studentTable.Record(headerRecord);
    return header[HeaderField::diplomaEarned] == context::recordYes;
}

bool StepNext(SessionContext& context)
{
    if (context.exerciseNo >= course::exerciseCount) {
        return false;
    }
    ++context.exerciseNo;
    return true;
}

bool StepBack(SessionContext& context)
{
    if (context.exerciseNo <= 1) {
        return false;
    }
    --context.exerciseNo;
    return true;
}

StepButtons ButtonsAfterLoading(const SessionContext& context)
{
    if (!context.sessionRun) {
        return {};
    }
    return {context.exerciseNo < course::exerciseCount, context.exerciseNo >= 2, true};
}

} // namespace keyfluent::progress
