#include "shell/forms/frmLessonDescription.h"

#include "course/Notes.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/forms/frmImage.h"

namespace keyfluent::shell
{
namespace
{

constexpr int formWidth = 640;
constexpr int blinkInterval = 700; // milliseconds

} // namespace

frmLessonDescription::frmLessonDescription(Program& program)
    : Form(program, "frmLessonDescription", {formWidth, 300})
{
    const bool arabic = Arabic();
    TextLabel* title = AddTitle(course::LessonNoteTitle(state().lessonNo, arabic));
    title->SetRightToLeft(true);
    // Meant: the note is Arabic in both interfaces, and takes the sides of the interface. Its
    // points and brackets follow its own letters, or nobody could read it.
    TextLabel* text = AddLabel("lblDescription", {30, Pixels(600), formWidth - 60, 10},
                               state().lessonNoteText, 11);
    text->ReadByLetters();
    const int height = text->FitHeight() + Pixels(1600);
    setFixedHeight(height);
    const int top = height - Pixels(700);
    const Button thank = AddButton(
        "cmdThank", "lblThank", {(formWidth - 115) / 2, top}, arabic ? u"شكراً" : u"Thanks",
        [this, &program] { Unload([&program] { return std::make_unique<frmImage>(program); }); });
    cmdThank_ = thank.image;
    disconnect(cmdThank_, &ImageControl::hovered, this, nullptr);
    connect(cmdThank_, &ImageControl::hovered, this, &frmLessonDescription::FollowPointer);
    // Blinks to call the eye to the one way out.
    timer_ = new QTimer(this);
    timer_->setObjectName(QStringLiteral("Timer1"));
    timer_->setTimerType(Qt::PreciseTimer);
    timer_->setInterval(blinkInterval);
    connect(timer_, &QTimer::timeout, this, &frmLessonDescription::Blink);
    timer_->start();
}

void frmLessonDescription::Blink()
{
    cmdThank_->SetBitmap(cmdThank_->Bitmap() == faceOut ? faceIn : faceOut);
}

void frmLessonDescription::FollowPointer(bool held, bool inside)
{
    timer_->stop();
    lit_ = true;
    cmdThank_->SetBitmap(!held || inside ? faceIn : faceOut);
}

void frmLessonDescription::PutOutButtons()
{
    if (lit_) {
        lit_ = false;
        cmdThank_->SetBitmap(faceOut);
        timer_->start();
    }
}

} // namespace keyfluent::shell
