#include "shell/forms/frmSplash.h"

#include "shell/Program.h"

namespace keyfluent::shell
{

frmSplash::frmSplash(Program& program) : Form(program, "frmSplash", {1, 1})
{
    constexpr int splashPicture = 204;
    constexpr int duration = 2500; // milliseconds
    SetStriped(false);
    ImageControl* picture = AddImage("Image1", {0, 0}, splashPicture);
    picture->setAccessibleName(QStringLiteral("KeyFluent"));
    setFixedSize(picture->size());
    auto* timer = new QTimer(this);
    timer->setObjectName(QStringLiteral("Timer1"));
    timer->setTimerType(Qt::PreciseTimer);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &frmSplash::GoOn);
    timer->start(duration);
    ActOnClose([this] { GoOn(); });
}

void frmSplash::keyPressEvent(QKeyEvent*)
{
    GoOn();
}

// Whichever comes first, the timer or a key: the window goes once only.
void frmSplash::GoOn()
{
    Unload([&program = program()]() -> std::unique_ptr<Form> {
        program.StartUp();
        return nullptr;
    });
}

} // namespace keyfluent::shell
