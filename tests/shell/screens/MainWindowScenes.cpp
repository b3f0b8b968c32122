// The main window at the sizes of screens, each with another of its menus open.
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormMakers.h"
#include "tests/shell/screens/Scenes.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>

namespace keyfluent::shell
{
namespace
{

constexpr int settling = 50; // milliseconds

// A menu is a window of its own: it is laid over the picture where it stands.
QPixmap WithMenuOpen(frmBlack& window, const char* menu)
{
    auto* bar = window.findChild<QMenuBar*>();
    auto* opened = window.findChild<QMenu*>(QString::fromLatin1(menu));
    bar->setActiveAction(opened->menuAction());
    PassTime(settling);
    QPixmap picture = window.grab();
    QPainter(&picture).drawPixmap(window.mapFromGlobal(opened->pos()), opened->grab());
    opened->close();
    return picture;
}

QPixmap TakeMainWindow(bool arabic, QSize size, const char* menu)
{
    World world(arabic);
    PlaceStudent(world);
    world.state().studentTable.Record(1)[1] = 100; // with a diploma
    world.program().EnterAsKnownStudent();
    frmBlack& window = *world.program().MainWindow();
    window.showNormal();
    window.move(0, 0);
    window.resize(size);
    PassTime(settling);
    window.ShowStepButtons(true, true, true);
    return menu != nullptr ? WithMenuOpen(window, menu) : window.grab();
}

QPixmap LoggedOut(bool arabic)
{
    World world(arabic);
    PlaceStudent(world);
    world.program().EnterAsKnownStudent();
    frmBlack& window = *world.program().MainWindow();
    Script script(world);
    script.Choose("mnuFileLogout").Click("frmLeave", "cmdNo");
    script.Run();
    window.showNormal();
    window.move(0, 0);
    window.resize(1024, 768);
    PassTime(settling);
    return WithMenuOpen(window, "mnuFile");
}

} // namespace

std::vector<Scene> MainWindowScenes()
{
    const auto at = [](QSize size, const char* menu) {
        return [size, menu](bool arabic) { return TakeMainWindow(arabic, size, menu); };
    };
    return {
        {"frmBlack", at({1280, 800}, nullptr), 0},
        {"frmBlack-800x600", at({800, 600}, "mnuLessons")},
        {"frmBlack-1280x1024", at({1280, 1024}, "mnuFile")},
        {"frmBlack-1920x1080", at({1920, 1080}, "mnuRecomands"), 2},
        {"frmBlack-3840x2160", at({3840, 2160}, "mnuHelp"), 6},
        {"frmBlack-logged-out", LoggedOut, 0},
    };
}

} // namespace keyfluent::shell
