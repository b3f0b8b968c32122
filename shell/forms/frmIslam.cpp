#include "shell/forms/frmIslam.h"

#include "shell/Program.h"
#include "shell/forms/frmSplash.h"

namespace keyfluent::shell
{

frmIslam::frmIslam(Program& program) : Form(program, "frmIslam", {1, 1})
{
    constexpr int openingPicture = 1127;
    constexpr int duration = 2000; // milliseconds
    SetStriped(false);
    ImageControl* picture = AddImage("Image1", {0, 0}, openingPicture);
    picture->setAccessibleName(QStringLiteral("بسم الله الرحمن الرحيم"));
    setFixedSize(picture->size());
    auto* timer = new QTimer(this);
    timer->setObjectName(QStringLiteral("Timer1"));
    timer->setTimerType(Qt::PreciseTimer);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, &program] {
        Unload([&program] { return std::make_unique<frmSplash>(program); });
    });
    timer->start(duration);
    ActOnClose([] {}); // it goes by itself
}

} // namespace keyfluent::shell
