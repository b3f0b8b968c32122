#include "headless/Commands.h"

#include "session/Keystrokes.h"
#include "session/Loading.h"
#include "session/Pointer.h"
#include "session/Review.h"
#include "session/Selection.h"

namespace keyfluent::headless
{
namespace
{

std::uint16_t CodeAt(const Arguments& arguments)
{
    arguments.Expect(1);
    return static_cast<std::uint16_t>(arguments.Integer(0, 0, 65535));
}

} // namespace

std::string Commands::Open(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    if (console.machine_.HasLesson()) {
        throw UsageError("a lesson is open already");
    }
    console.machine_.OpenLesson(console.context_);
    const session::Lesson& lesson = console.machine_.Lesson();
    console.loadedButtons_ = {lesson.imgNextShown, lesson.imgBackShown, lesson.imgDuplicateShown};
    console.shownButtons_ = console.loadedButtons_;
    return {};
}

std::string Commands::Activate(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    session::Activate(console.OpenLesson());
    console.machine_.AfterEvent();
    return {};
}

std::string Commands::Key(Console& console, const Arguments& arguments)
{
    const std::uint16_t code = CodeAt(arguments);
    const std::uint16_t left = session::KeyDown(console.OpenLesson(), code);
    console.machine_.AfterEvent();
    return Number(left);
}

std::string Commands::Up(Console& console, const Arguments& arguments)
{
    const std::uint16_t code = CodeAt(arguments);
    session::KeyUp(console.OpenLesson(), code);
    console.machine_.AfterEvent();
    return {};
}

std::string Commands::Mouse(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    session::Lesson& lesson = console.OpenLesson();
    switch (arguments.OneOf(0, {"txtOrigin", "txtTest", "imgStop"})) {
    case 0:
        session::PressField(lesson, session::FieldName::Origin);
        break;
    case 1:
        session::PressField(lesson, session::FieldName::Test);
        break;
    default:
        session::PressStop(lesson);
    }
    console.machine_.AfterEvent();
    return {};
}

std::string Commands::Click(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    session::Lesson& lesson = console.OpenLesson();
    switch (arguments.OneOf(0, {"txtOrigin", "imgRest", "imgResume"})) {
    case 0:
        session::ClickOrigin(lesson);
        break;
    case 1:
        session::ClickRest(lesson);
        break;
    default:
        session::ClickResume(lesson);
    }
    console.machine_.AfterEvent();
    return {};
}

std::string Commands::Move(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    session::Lesson& lesson = console.OpenLesson();
    switch (arguments.OneOf(0, {"imgRest", "imgResume", "imgStop", "form"})) {
    case 0:
        session::MoveOver(lesson, session::PushPicture::Rest);
        break;
    case 1:
        session::MoveOver(lesson, session::PushPicture::Resume);
        break;
    case 2:
        session::MoveOver(lesson, session::PushPicture::Stop);
        break;
    default:
        session::MoveOverForm(lesson);
    }
    return {};
}

std::string Commands::LostFocus(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    session::OriginLostFocus(console.OpenLesson());
    return {};
}

std::string Commands::Edit(Console& console, const Arguments& arguments)
{
    arguments.Expect(2);
    const std::u16string_view text = arguments.String(0);
    const std::int32_t caret = arguments.Int32(1);
    session::TextField* field = session::EditableField(console.OpenLesson());
    if (field == nullptr) {
        throw UsageError("the student may edit no field now");
    }
    session::EditField(*field, 0, field->Size(), text);
    field->Select(caret, 0);
    return {};
}

std::string Commands::Enter(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    session::Lesson& lesson = console.OpenLesson();
    if (!session::Reviewing(lesson)) {
        throw UsageError("there is no review");
    }
    session::PressEnterInReview(lesson);
    return {};
}

} // namespace keyfluent::headless
