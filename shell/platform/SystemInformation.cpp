#include "shell/platform/SystemInformation.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

namespace keyfluent::shell
{
namespace
{

struct Tool {
    const char* program;
    const char* argument = nullptr;
};

// First those that are made for it, then the desktops' settings and about windows.
constexpr Tool tools[] = {
    {"hardinfo2"},
    {"hardinfo"},
    {"kinfocenter"},
    {"gnome-control-center", "info-overview"},
    {"cinnamon-settings", "info"},
    {"mate-system-monitor", "--show-system-tab"},
    {"xfce4-about"},
    {"lxqt-about"},
};

bool StartDetached(const QString& file, const char* argument)
{
    QProcess process;
    process.setProgram(file);
    if (argument != nullptr) {
        process.setArguments({QString::fromLatin1(argument)});
    }
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setWorkingDirectory(QDir::rootPath());
    return process.startDetached();
}

// Absolute folders alone, as an empty path would be taken for the user's own and a relative one
// depends on where the program was started.
QStringList Folders(const QString& searchPath)
{
    QStringList folders;
    for (const QString& folder : searchPath.split(u':', Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(folder)) {
            folders += folder;
        }
    }
    return folders;
}

} // namespace

bool ShowSystemInformation(const QString& searchPath)
{
    const QStringList folders = Folders(searchPath);
    if (folders.isEmpty()) {
        return false;
    }
    for (const Tool& tool : tools) {
        const QString program = QString::fromLatin1(tool.program);
        const QString file = QStandardPaths::findExecutable(program, folders);
        if (!file.isEmpty() && StartDetached(file, tool.argument)) {
            return true;
        }
    }
    return false;
}

bool ShowSystemInformation()
{
    return ShowSystemInformation(qEnvironmentVariable("PATH"));
}

} // namespace keyfluent::shell
