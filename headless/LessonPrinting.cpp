#include "headless/Commands.h"

#include "headless/Json.h"

#include <cstdio>

namespace keyfluent::headless
{
namespace
{

constexpr std::string_view timerNames[] = {"tmrClock",  "tmrAuto",   "EraseChar",
                                           "tmrErrKey", "tmrHilite", "tmrSelection"};

std::string ThreeDecimals(float seconds)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.3f", static_cast<double>(seconds));
    return text;
}

const session::Label& LabelAt(session::Lesson& lesson, const Arguments& arguments)
{
    const int number = arguments.OneOf(0, {"Label1", "Label2", "Label3", "Label4", "Label5",
                                           "Label6", "Label7", "lblTitle", "lblMark", "lblSpeed",
                                           "lblTimer", "lblChar", "lblResulotion", "Shape1"});
    if (number < session::scaleMarkCount) {
        return lesson.ScaleMark(number + 1);
    }
    const session::Label* labels[] = {&lesson.label7,        &lesson.lblTitle, &lesson.lblMark,
                                      &lesson.lblSpeed,      &lesson.lblTimer, &lesson.lblChar,
                                      &lesson.lblResulotion, &lesson.shape1};
    return *labels[number - session::scaleMarkCount];
}

} // namespace

std::string Commands::Is(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    arguments.OneOf(0, {"open"});
    return Truth(console.machine_.HasLesson());
}

std::string Commands::Row(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const auto number = static_cast<int>(arguments.Integer(0, 1, course::maxRows));
    return Text(console.OpenLesson().exerciseRows[number]);
}

std::string Commands::State(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const session::Lesson& lesson = console.OpenLesson();
    JsonObject object;
    object.Add("rowCount", int(lesson.rowCount)).Add("currentRow", int(lesson.currentRow));
    object.Add("caretPos", int(lesson.caretPos)).Add("correctCount", lesson.correctCount);
    object.Add("errorCount", lesson.errorCount).Add("totalCount", lesson.totalCount);
    object.Add("accuracyPercent", lesson.accuracyPercent).Add("speedRate", lesson.speedRate);
    object.AddRaw("startTime", ThreeDecimals(lesson.startTime));
    object.Add("awaitingFirstKey", lesson.awaitingFirstKey);
    object.Add("errorPending", lesson.errorPending).Add("shiftDown", lesson.shiftDown);
    object.Add("capsOn", lesson.capsOn).Add("pressedKey", lesson.pressedKey);
    object.Add("litChar", lesson.litChar).Add("savedTestText", lesson.savedTestText);
    object.Add("clockMinutes", int(lesson.clockMinutes));
    object.Add("clockSeconds", int(lesson.clockSeconds)).Add("paused", lesson.paused);
    object.Add("resumeArmed", lesson.resumeArmed).Add("reviewMode", lesson.reviewMode);
    return object.Add("buttonLit", lesson.buttonLit).Line() + "\n";
}

std::string Commands::Field(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const session::Lesson& lesson = console.OpenLesson();
    const bool origin = arguments.Choice(0, "txtOrigin", "txtTest");
    const session::TextField& field = origin ? lesson.txtOrigin : lesson.txtTest;
    JsonObject object;
    object.Add("text", field.Text()).Add("selStart", field.SelectionStart());
    object.Add("selLength", field.SelectionLength()).Add("rightToLeft", field.rightToLeft);
    object.Add("readOnly", field.readOnly).Add("visible", field.visible);
    object.Add("left", field.box.left).Add("top", field.box.top);
    object.Add("width", field.box.width).Add("height", field.box.height);
    return object.Add("fontSize", field.fontSize).Add("cursor", field.cursor).Line() + "\n";
}

std::string Commands::Label(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const session::Label& label = LabelAt(console.OpenLesson(), arguments);
    JsonObject object;
    object.Add("caption", label.caption).Add("visible", label.visible);
    object.Add("rightToLeft", label.rightToLeft).Add("rightAligned", label.rightAligned);
    return object.Add("left", label.box.left).Line() + "\n";
}

std::string Commands::Gauge(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const session::Lesson& lesson = console.OpenLesson();
    const bool mark = arguments.Choice(0, "pbMark", "pbSpeed");
    const session::Gauge& gauge = mark ? lesson.pbMark : lesson.pbSpeed;
    JsonObject object;
    object.Add("maximum", gauge.maximum).Add("value", static_cast<int>(gauge.value));
    return object.Add("visible", gauge.visible).Line() + "\n";
}

std::string Commands::Cap(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const auto cap = static_cast<std::size_t>(arguments.Integer(0, 0, keyboard::capCount - 1));
    const session::CapArray& caps = console.OpenLesson().caps;
    const session::Box& box = caps.box[cap];
    JsonObject object;
    object.Add("text", caps.text[cap]).Add("foreColour", caps.foreColour[cap]);
    object.Add("backColour", caps.backColour[cap]).Add("left", box.left).Add("top", box.top);
    object.Add("width", box.width).Add("height", box.height);
    return object.Add("rightToLeft", caps.rightToLeft[cap]).Line() + "\n";
}

std::string Commands::Caps(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    const session::CapArray& caps = console.OpenLesson().caps;
    std::string block;
    for (std::size_t cap = 0; cap < caps.text.size(); ++cap) {
        if (caps.foreColour[cap] != session::black || caps.backColour[cap] != session::white) {
            block += std::to_string(cap) + " " + std::to_string(caps.foreColour[cap]) + " " +
                     std::to_string(caps.backColour[cap]) + "\n";
        }
    }
    return block + "end\n";
}

std::string Commands::Image(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const session::Lesson& lesson = console.OpenLesson();
    const session::Image* images[] = {&lesson.imgLeftHand, &lesson.imgRightHand, &lesson.imgRest,
                                      &lesson.imgResume, &lesson.imgStop};
    const session::Image& image = *images[arguments.OneOf(
        0, {"imgLeftHand", "imgRightHand", "imgRest", "imgResume", "imgStop"})];
    JsonObject object;
    object.Add("bitmap", image.bitmap).Add("visible", image.visible);
    object.Add("enabled", image.enabled).Add("left", image.box.left);
    return object.Add("top", image.box.top).Line() + "\n";
}

std::string Commands::Button(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const progress::StepButtons& buttons = console.loadedButtons_;
    const bool shown[] = {buttons.next, buttons.back, buttons.duplicate};
    return Truth(shown[arguments.OneOf(0, {"imgNext", "imgBack", "imgDuplicate"})]);
}

std::string Commands::Timer(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const int number = arguments.OneOf(0, {timerNames[0], timerNames[1], timerNames[2],
                                           timerNames[3], timerNames[4], timerNames[5]});
    const session::Timer& timer = console.OpenLesson().timers[static_cast<std::size_t>(number)];
    JsonObject object;
    object.Add("interval", timer.Interval());
    return object.Add("enabled", timer.Enabled()).Line() + "\n";
}

} // namespace keyfluent::headless
