// Caps Lock on an X server of the test's own, with keys that pass through that server. Needs the
// programs Xvfb and xdotool.
#include "shell/platform/CapsLock.h"

#include "tests/shell/FailOnWarning.h"

#include <QApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QWidget>

#include <cstdio>
#include <string>

namespace keyfluent::shell
{
namespace
{

// Runs until the object ends. The server picks a free display by itself.
class XServer
{
public:
    XServer()
    {
        server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server_.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                               QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        while (!number_.endsWith('\n') && server_.waitForReadyRead(10000)) {
            number_ += server_.readAllStandardOutput();
        }
    }

    ~XServer()
    {
        server_.kill();
        server_.waitForFinished();
    }

    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    bool Runs() const { return number_.endsWith('\n'); }
    QByteArray Display() const { return ':' + number_.trimmed(); }

private:
    QProcess server_;
    QByteArray number_;
};

// Remembers the state at each press of the key, as a lesson would take it.
class Window : public QWidget
{
public:
    explicit Window(CapsLockWatch& watch) : watch_(watch) {}

    int presses = 0;
    qint16 stateAtPress = -1;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            watch_.KeyEvent(*static_cast<QKeyEvent*>(event));
        }
        if (event->type() == QEvent::KeyPress) {
            ++presses;
            stateAtPress = watch_.State();
        }
        return QWidget::event(event);
    }

private:
    CapsLockWatch& watch_;
};

bool SendKey(const char* name)
{
    return QProcess::execute(QStringLiteral("xdotool"),
                             {QStringLiteral("key"), QString::fromLatin1(name)}) == 0;
}

} // namespace

class CapsLockX11Test : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void ServerTellsTheStateThatOtherWindowsLeft()
    {
        CapsLockWatch watch;
        watch.Refresh();
        QCOMPARE(watch.State(), qint16(0));
        QVERIFY(SendKey("Caps_Lock"));
        QCOMPARE(watch.State(), qint16(0));
        watch.Refresh();
        QCOMPARE(watch.State(), qint16(1));
        QVERIFY(SendKey("Caps_Lock"));
        watch.Refresh();
        QCOMPARE(watch.State(), qint16(0));
    }

    void KeyEventsTellTheStateAtOnce()
    {
        CapsLockWatch watch;
        Window window(watch);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const struct {
            const char* key;
            qint16 state;
        } presses[] = {{"a", 0},         {"Caps_Lock", 1}, {"a", 1},    {"Caps_Lock", 0},
                       {"Caps_Lock", 1}, {"Caps_Lock", 0}, {"space", 0}};
        int count = 0;
        for (const auto& press : presses) {
            QVERIFY(SendKey(press.key));
            ++count;
            QTRY_COMPARE(window.presses, count);
            QCOMPARE(window.stateAtPress, press.state);
        }
        watch.Refresh();
        QCOMPARE(watch.State(), qint16(0));
    }
};

} // namespace keyfluent::shell

int main(int argc, char** argv)
{
    using namespace keyfluent::shell;
    const XServer server;
    if (!server.Runs()) {
        std::fprintf(stderr, "Xvfb does not run\n");
        return 1;
    }
    qputenv("DISPLAY", server.Display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argc, argv);
    CapsLockX11Test test;
    return RunTests(test, argc, argv);
}

#include "CapsLockX11Test.moc"
