#include "shell/platform/SystemInformation.h"

#include "tests/shell/FailOnWarning.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace keyfluent::shell
{

// Each test has a folder for tools that write down how they were called.
class SystemInformationTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarning();
        folder_ = std::make_unique<QTemporaryDir>();
        QVERIFY(folder_->isValid());
    }

    void NothingIsStartedWhereNoToolIs()
    {
        QVERIFY(!ShowSystemInformation(folder_->path()));
        QVERIFY(!ShowSystemInformation(folder_->filePath(QStringLiteral("missing"))));
        QVERIFY(!ShowSystemInformation(QString()));
        QVERIFY(!ShowSystemInformation(QStringLiteral(":::")));
    }

    void UnknownProgramsAreLeftAlone()
    {
        AddTool("firefox");
        AddTool("hardinfo-helper");
        QVERIFY(!ShowSystemInformation(folder_->path()));
    }

    void EachToolIsStartedWithItsArgument()
    {
        const struct {
            const char* program;
            const char* call;
        } tools[] = {
            {"hardinfo2", "hardinfo2:"},
            {"hardinfo", "hardinfo:"},
            {"kinfocenter", "kinfocenter:"},
            {"gnome-control-center", "gnome-control-center:info-overview"},
            {"cinnamon-settings", "cinnamon-settings:info"},
            {"mate-system-monitor", "mate-system-monitor:--show-system-tab"},
            {"xfce4-about", "xfce4-about:"},
            {"lxqt-about", "lxqt-about:"},
        };
        for (const auto& tool : tools) {
            AddTool(tool.program);
            QVERIFY(ShowSystemInformation(folder_->path()));
            QTRY_COMPARE(Calls(), QByteArray(tool.call) + '\n');
            QVERIFY(QFile::remove(File(tool.program)));
            QVERIFY(QFile::remove(File("calls")));
        }
    }

    void OneToolIsStartedWhereSeveralAre()
    {
        AddTool("xfce4-about");
        AddTool("kinfocenter");
        QVERIFY(ShowSystemInformation(folder_->path()));
        QTRY_COMPARE(Calls(), "kinfocenter:\n");
    }

    void LaterFolderOfThePathIsSearchedToo()
    {
        AddTool("hardinfo");
        QVERIFY(ShowSystemInformation(QStringLiteral("/nonexistent::.:") + folder_->path()));
        QTRY_COMPARE(Calls(), "hardinfo:\n");
    }

    void FileThatIsNoProgramIsPassedOver()
    {
        QFile broken(File("hardinfo2"));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("\x7f"
                     "ELF but no more");
        broken.close();
        QVERIFY(broken.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        QFile plain(File("hardinfo"));
        QVERIFY(plain.open(QIODevice::WriteOnly));
        plain.close();
        QVERIFY(!ShowSystemInformation(folder_->path()));
        AddTool("lxqt-about");
        QVERIFY(ShowSystemInformation(folder_->path()));
        QTRY_COMPARE(Calls(), "lxqt-about:\n");
    }

    void CurrentFolderIsNeverSearched()
    {
        AddTool("hardinfo");
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder_->path()));
        const bool started = ShowSystemInformation(QStringLiteral("::.:"));
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(!started);
    }

private:
    QString File(const char* name) const { return folder_->filePath(QString::fromLatin1(name)); }

    void AddTool(const char* name)
    {
        QFile tool(File(name));
        QVERIFY(tool.open(QIODevice::WriteOnly));
        tool.write("#!/bin/sh\necho \"${0##*/}:$*\" >> \"${0%/*}/calls\"\n");
        tool.close();
        QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    QByteArray Calls() const
    {
        QFile calls(File("calls"));
        return calls.open(QIODevice::ReadOnly) ? calls.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::SystemInformationTest)

#include "SystemInformationTest.moc"
