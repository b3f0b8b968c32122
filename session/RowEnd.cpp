#include "session/RowEnd.h"

#include "course/Lessons.h"
#include "progress/Evaluation.h"
#include "session/Loading.h"
#include "session/Marks.h"
#include "session/Review.h"
#include "session/Selection.h"

namespace keyfluent::session
{
namespace
{

void Evaluate(Lesson& lesson)
{
    progress::EvaluateExercise(lesson.context, lesson.platform, lesson.pbMark.value,
                               lesson.startTime);
}

// True while there is a row to go on to; it is on show then.
bool GoToNextRow(Lesson& lesson)
{
    ++lesson.currentRow;
    if (lesson.currentRow > lesson.rowCount) {
        return false;
    }
    lesson.caretPos = 0;
    ShowNextRow(lesson);
    return true;
}

void EndOrdinary(Lesson& lesson)
{
    lesson.context.inExercise = true;
    Unload(lesson);
    lesson.window.showResult();
}

void CheckAtOnce(Lesson& lesson)
{
    const auto length = static_cast<int>(lesson.exerciseRows[lesson.currentRow].size());
    if (lesson.caretPos != length || GoToNextRow(lesson)) {
        return;
    }
    if (!IsOrdinary(lesson.context)) {
        Unload(lesson);
        return;
    }
    Evaluate(lesson);
    EndOrdinary(lesson);
}

// Meant: unlike the exercises checked at once, an anagram is evaluated here too.
void EndLate(Lesson& lesson)
{
    Evaluate(lesson);
    lesson.window.hideCaret(FieldName::Test);
    if (IsOrdinary(lesson.context)) {
        EndOrdinary(lesson);
        return;
    }
    lesson.context.inExercise = true;
    Unload(lesson);
}

void WipeRow(Lesson& lesson)
{
    lesson.TimerOf(TimerName::EraseChar).Start();
    lesson.caretPos = 0;
    SelectCurrentChar(lesson);
}

// The marks are those of the first pass: nothing done in the review changes them.
void StartReview(Lesson& lesson)
{
    lesson.imgRest.enabled = false;
    lesson.imgResume.enabled = false;
    lesson.window.showCaret(FieldName::Test);
    lesson.txtTest.readOnly = false;
    lesson.reviewMode = true;
    lesson.txtTest.cursor = plainPointer;
    lesson.label7.visible = true;
    ComputeMarks(lesson);
    Evaluate(lesson);
    ShowReviewMessage(lesson);
}

void CheckLate(Lesson& lesson)
{
    if (lesson.txtTest.Size() != lesson.txtOrigin.Size()) {
        return;
    }
    if (lesson.txtTest.Text() == lesson.txtOrigin.Text()) {
        if (!GoToNextRow(lesson)) {
            EndLate(lesson);
        }
    } else if (lesson.context.lessonNo != course::lessonCount) {
        WipeRow(lesson);
    } else {
        StartReview(lesson);
    }
}

} // namespace

void Unload(Lesson& lesson)
{
    lesson.unloaded = true;
    lesson.window.unload();
}

void CheckRowEnd(Lesson& lesson, bool late)
{
    if (late) {
        CheckLate(lesson);
    } else {
        CheckAtOnce(lesson);
    }
}

} // namespace keyfluent::session
