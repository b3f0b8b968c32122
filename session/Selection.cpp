#include "session/Selection.h"

#include "course/Lessons.h"
#include "session/Caps.h"

#include <charconv>

namespace keyfluent::session
{
namespace
{

// caretPos as text, without asking for memory.
void NoteCaret(Lesson& lesson)
{
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, lesson.caretPos).ptr;
    lesson.text1.assign(digits, end);
}

} // namespace

bool Reviewing(const Lesson& lesson)
{
    return lesson.reviewMode && lesson.context.lessonNo == course::lessonCount;
}

void SelectCurrentChar(Lesson& lesson)
{
    if (Reviewing(lesson)) {
        return;
    }
    if (!lesson.notAllowedVisible) {
        lesson.window.focusOrigin();
    }
    if (lesson.context.freeText) {
        return;
    }
    lesson.txtOrigin.Select(lesson.caretPos, 1);
    HighlightKey(lesson, lesson.txtOrigin.SelectedText());
    NoteCaret(lesson);
}

void ShowNextRow(Lesson& lesson)
{
    lesson.txtOrigin.SetText({});
    lesson.txtTest.SetText({});
    lesson.txtOrigin.SetText(lesson.exerciseRows[lesson.currentRow]);
    SelectCurrentChar(lesson);
}

} // namespace keyfluent::session
