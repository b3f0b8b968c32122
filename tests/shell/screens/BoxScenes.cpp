// The boxes that are the toolkit's own.
#include "shell/base/Boxes.h"

#include "tests/shell/forms/FormsHarness.h"
#include "tests/shell/screens/Scenes.h"

#include <QApplication>

namespace keyfluent::shell
{
namespace
{

QPixmap Take(QWidget& box)
{
    constexpr int settling = 50; // milliseconds
    box.show();
    PassTime(settling);
    return box.grab();
}

QPixmap TakeCritical(const QString& text)
{
    return Take(*MakeMessage(QMessageBox::Critical, text));
}

// As the program itself says it.
QPixmap SecondInstance(bool arabic)
{
    World world;
    world.WritePreferences(arabic);
    world.firstInstance = false;
    world.program().StartUp();
    return TakeCritical(world.criticals.value(0));
}

QPixmap Failure(bool)
{
    return TakeCritical(QStringLiteral(
        "The file /home/layla/.local/share/KeyFluent/Students/Layla.W cannot be written."));
}

QPixmap NoSystemTool(bool)
{
    return Take(*MakeMessage(QMessageBox::Information,
                             QStringLiteral("System Information Is Unavailable At This Time")));
}

QPixmap ColourDialog(bool)
{
    return Take(*MakeColourDialog(QColor(0x26, 0x73, 0x7A), nullptr));
}

} // namespace

std::vector<Scene> BoxScenes()
{
    return {
        {"second-instance", SecondInstance},
        {"failure", Failure},
        {"no-system-information", NoSystemTool},
        {"colour-dialog", ColourDialog},
    };
}

} // namespace keyfluent::shell
