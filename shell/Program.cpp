#include "shell/Program.h"

#include "context/Text.h"
#include "progress/Preferences.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmEName.h"
#include "shell/forms/frmIslam.h"
#include "shell/forms/frmScreen.h"
#include "shell/platform/TextConversion.h"

#include <algorithm>
#include <utility>

namespace keyfluent::shell
{
namespace
{

constexpr int smallestWidth = 800;
constexpr int smallestHeight = 600;

QString AlreadyRunning(bool arabic)
{
    return arabic ? QStringLiteral("لا تستطيع تشغيل اكثر من نسخة من برنامج كي فلونت 1,0.")
                  : QStringLiteral("Zen Orchard KeyFluent 1.0 is already running!");
}

} // namespace

Program::Program(const context::Platform& platform, Desktop desktop, std::u16string appFolder)
    : platform_(platform), desktop_(std::move(desktop)), appFolder_(std::move(appFolder))
{
}

Program::~Program() = default;

void Program::Begin()
{
    Show<frmIslam>();
}

// The size of the screen is tested before the preferences are read, so that the window of a screen
// that is too small always speaks English here.
void Program::Initialise()
{
    const QSize screen = desktop_.screenSize();
    if (screen.width() < smallestWidth || screen.height() < smallestHeight) {
        Show<frmScreen>(screen);
        return;
    }
    state_.appFolder = appFolder_;
    state_.loggedOut = false;
    state_.quitting = false;
    state_.stopCount = 0;
    progress::LoadPreferences(state_);
    state_.sessionRun = false;
    state_.lessonNo = 1;
    state_.inExercise = false;
}

void Program::StartUp()
{
    Initialise();
    if (ending_) {
        return;
    }
    if (!desktop_.isFirstInstance()) {
        desktop_.showCritical(AlreadyRunning(state_.arabicInterface));
        End();
        return;
    }
    Show<frmEName>();
    // A sign-in given up at the start leaves no window: the program is over.
    if (mainWindow_ == nullptr) {
        End();
    }
}

void Program::ShowModal(std::unique_ptr<Form> form)
{
    while (form != nullptr && !ending_) {
        open_.push_back(form.get());
        form->Exec();
        open_.pop_back();
        const Continuation after = form->TakeContinuation();
        form.reset();
        if (after && !ending_) {
            form = after();
        }
    }
    ActivateTop();
}

// Not every desktop gives the window beneath its focus back.
void Program::ActivateTop()
{
    if (ending_) {
        return;
    }
    QWidget* top = open_.empty() ? Backdrop() : open_.back();
    if (top != nullptr && !top->isActiveWindow()) {
        top->activateWindow();
    }
}

frmBlack& Program::LoadedMainWindow()
{
    if (mainWindow_ == nullptr) {
        mainWindow_ = std::make_unique<frmBlack>(*this);
    }
    return *mainWindow_;
}

QWidget* Program::Backdrop()
{
    return mainWindow_.get();
}

void Program::EnterAsNewStudent()
{
    if (!ending_) {
        LoadedMainWindow().EnterAsNewStudent();
    }
}

void Program::EnterAsKnownStudent()
{
    if (!ending_) {
        LoadedMainWindow().EnterAsKnownStudent();
    }
}

void Program::End(int status)
{
    if (!std::exchange(ending_, true)) {
        desktop_.endProcess(status);
    }
    for (Form* form : open_) {
        form->Abandon();
    }
}

} // namespace keyfluent::shell
