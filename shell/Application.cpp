#include "shell/Application.h"

#include "shell/Printing.h"
#include "shell/Program.h"
#include "shell/base/Boxes.h"
#include "shell/base/ImageControl.h"
#include "shell/base/ProgramStyle.h"
#include "shell/platform/CapsLock.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/PlatformRecord.h"
#include "shell/platform/SingleInstance.h"
#include "shell/platform/SoundPlayer.h"
#include "shell/platform/SystemInformation.h"
#include "shell/platform/TextConversion.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QKeyEvent>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QTimer>

#include <csignal>
#include <cstdio>
#ifdef __GLIBC__
#include <malloc.h>
#endif

static void InitialiseResources()
{
    Q_INIT_RESOURCE(pictures);
    Q_INIT_RESOURCE(fonts);
}

namespace keyfluent::shell
{
namespace
{

constexpr int failureStatus = 1;

// The folder of the path by which the program was started: of the link where that is one, so that
// a folder of a person's own needs to hold no more of the program than a link.
QString StartFolder(const char* startedAs)
{
    const QString path = QFile::decodeName(startedAs);
    if (path.contains(u'/')) {
        return QFileInfo(QDir::current(), path).absolutePath();
    }
    const QString found = QStandardPaths::findExecutable(path);
    return found.isEmpty() ? QCoreApplication::applicationDirPath()
                           : QFileInfo(found).absolutePath();
}

void ShowCritical(const QString& text)
{
    ShowMessage(QMessageBox::Critical, text);
}

// The toolkit's own dialogs reckon with the size in points, which a face in pixels does not have.
QFont InPoints(QFont font)
{
    constexpr double pointsPerInch = 72;
    const double pixelsPerInch = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    font.setPointSizeF(font.pixelSize() * pointsPerInch / pixelsPerInch);
    return font;
}

// The same looks on every desktop.
void SetLooks()
{
    QApplication::setStyle(new ProgramStyle(QStringLiteral("Fusion")));
    QPalette palette = QApplication::style()->standardPalette();
    palette.setColor(QPalette::Highlight, QColor(0x26, 0x73, 0x7A));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x6F, 0x7C, 0x84));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x6F, 0x7C, 0x84));
    QApplication::setPalette(palette);
    LoadFonts();
    QApplication::setFont(InPoints(FormFont(10, false)));
}

// An X server first, also beside a Wayland compositor: there Caps Lock is known from the start. One
// that is not there is not tried first, for the toolkit would tell the terminal about it.
void ChoosePlatform()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        const bool hasXServer = !qEnvironmentVariableIsEmpty("DISPLAY");
        qputenv("QT_QPA_PLATFORM", hasXServer ? "xcb;wayland" : "wayland;xcb");
    }
}

struct Machine {
    CapsLockWatch capsLock;
    SoundPlayer sounds;
    SingleInstance instance;
};

Desktop RealDesktop(Machine& machine)
{
    Desktop desktop;
    desktop.screenSize = [] { return QGuiApplication::primaryScreen()->size(); };
    desktop.isFirstInstance = [&machine] { return machine.instance.Acquire(); };
    desktop.showCritical = ShowCritical;
    desktop.showMessage = [](const QString& text) { ShowMessage(QMessageBox::Information, text); };
    desktop.startSystemInformation = [] { return ShowSystemInformation(); };
    desktop.pickColour = PickColour;
    desktop.printPages = PrintPages;
    desktop.refreshKeyboard = [&machine] { machine.capsLock.Refresh(); };
    desktop.restSounds = [&machine] { machine.sounds.Rest(); };
    desktop.endProcess = [](int status) { QCoreApplication::exit(status); };
    return desktop;
}

} // namespace

// The window system gives a key to a window, which hands it on to its controls.
bool Application::notify(QObject* receiver, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isKey && receiver->isWindowType() && onKey) {
        onKey(*static_cast<QKeyEvent*>(event));
    }
    try {
        return QApplication::notify(receiver, event);
    } catch (const context::FatalError& failure) {
        onFailure(failure);
        return true;
    }
}

void PrepareApplication()
{
    InitialiseResources();
    InstallControlAccess();
    QApplication::setApplicationName(QStringLiteral("KeyFluent"));
    QApplication::setDesktopFileName(QStringLiteral("keyfluent"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/keyfluent-64.png")));
    // Between two windows there is none, and the program goes on.
    QApplication::setQuitOnLastWindowClosed(false);
    SetLooks();
}

// Pictures get memory of their own, which goes back to the system with them. Without this the
// allocator begins to keep it after the first large one: ten megabytes that nobody uses.
static void GiveBackLargeMemory()
{
#ifdef __GLIBC__
    constexpr int large = 128 * 1024; // bytes
    mallopt(M_MMAP_THRESHOLD, large);
#endif
}

int RunProgram(int argc, char** argv)
{
    GiveBackLargeMemory();
    // A file-size limit is a failure to report like any other, not a signal.
    std::signal(SIGXFSZ, SIG_IGN);
    ChoosePlatform();
    const QString folder = StartFolder(argv[0]);
    Application application(argc, argv);
    PrepareApplication();

    Machine machine;
    const context::Platform platform = MakePlatform(machine.capsLock, machine.sounds, folder);
    Program program(platform, RealDesktop(machine), FromQString(folder));
    application.onKey = [&machine](const QKeyEvent& event) { machine.capsLock.KeyEvent(event); };
    int failed = 0;
    application.onFailure = [&](const context::FatalError& failure) {
        if (failed++ > 0) {
            return; // one report is enough
        }
        std::fprintf(stderr, "KeyFluent: %s\n", failure.what());
        ShowCritical(QString::fromUtf8(failure.what()));
        program.End(failureStatus);
    };
    QTimer::singleShot(0, &application, [&program] { program.Begin(); });
    const int status = QApplication::exec();
    return failed > 0 ? failureStatus : status;
}

} // namespace keyfluent::shell
