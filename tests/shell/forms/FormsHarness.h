// What the tests of the windows share: a program on a desktop and a machine of the test's own, and
// a script that goes through its windows, one above the other, with the mouse and the keyboard.
#pragma once

#include "context/Platform.h"
#include "context/SessionContext.h"
#include "shell/Application.h"
#include "shell/Program.h"
#include "shell/base/Form.h"

#include "tests/shell/FailOnWarning.h"

#include <QImage>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace keyfluent::shell
{

// A program in a folder of its own that is gone with it. The screen is 1280 x 1024, the first
// instance is this one, a colour dialog and a printer are cancelled, unless the test says so.
class World
{
public:
    explicit World(bool arabic = false);
    ~World();

    // The machine.
    double now = 36000; // seconds since midnight
    context::CalendarDate today{2026, 3, 14};
    int beeps = 0;
    // The next whole number that is drawn from low to high. Without one, numbers of no meaning are.
    void Draw(int value, int low, int high);

    // The desktop.
    QSize screen{1280, 1024};
    bool firstInstance = true;
    bool hasSystemTool = false;
    QStringList criticals;
    QStringList messages;
    QStringList failures; // reported ones; each ends the program with status 1
    int toolStarts = 0;
    bool soundsRest = true; // nothing was opened or played since the sounds were let go
    QColor pickedColour;    // invalid stands for Cancel
    QList<QColor> coloursOffered;
    std::function<void(const std::function<void(QPainter&, QSize)>& drawPage)> printer;
    int printDialogs = 0;
    std::optional<int> endStatus;

    Program& program() { return *program_; }
    context::SessionContext& state() { return program_->State(); }
    QString Folder() const { return folder_.path(); }

    // Files of the program's folder, before it starts.
    void WritePreferences(bool arabic, int keyboardKind = 192, int fontSize = 14);
    // A student with marks as the table has them; the name has a file then.
    void WriteStudent(const QString& name, const context::StudentTable& table);
    context::StudentTable ReadStudent(const QString& name) const;
    bool HasStudent(const QString& name) const;

    // The main window is loaded and shown, and a new student is signed in.
    frmBlack& SignIn(const QString& name = QStringLiteral("Ali"));

private:
    QString StudentFile(const QString& name) const;
    Desktop MakeDesktop();
    context::Platform MakeMachine();

    QTemporaryDir folder_;
    std::deque<double> draws_;
    double undrawn_ = 0;
    context::Platform platform_;
    std::unique_ptr<Program> program_;
};

// A table of a student who has reached a lesson on both keyboards and has no marks.
context::StudentTable TableAt(int reachedLesson);

// The window that the student can work with: the modal one on top, or else the main window; nullptr
// while there is none.
QWidget* TopWindow(Program& program);

// A control by its name. Its absence ends the test program with a report.
QWidget& Control(const QWidget& window, const char* name);
ImageControl& Picture(const QWidget& window, const char* name);
TextLabel& Label(const QWidget& window, const char* name);
bool Shows(const QWidget& window, const char* name); // not hidden by itself
QAction& Item(const QWidget& mainWindow, const char* name);

// The mouse and the keyboard, through the window system. A press and a release over the middle of a
// control; where the press has opened or closed a window, the release is not sent.
void Click(QWidget& window, const char* control);
void PressAt(QWidget& window, QPoint place);
void ReleaseAt(QWidget& window, QPoint place);
void MoveTo(QWidget& window, QPoint place);
void MoveOver(QWidget& window, const char* control);
QPoint MiddleOf(const QWidget& window, const char* control);
void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void Type(QWidget& window, const QString& text);
// As the desktop asks a window to close.
void RequestClose(QWidget& window);

// Lets events and timers run for a time.
void PassTime(int milliseconds);

// Steps of a student. Each waits until its window is on top and active, then acts there; a window
// that an action opens is the next steps' to deal with, while the action waits for it as the
// program does. Where nothing goes on for ten seconds the script gives up and ends the program.
class Script
{
public:
    using Action = std::function<void(QWidget& window)>;

    explicit Script(World& world);

    Script& At(const char* window, Action action = {});
    // Clicks a control of the window.
    Script& Click(const char* window, const char* control);
    // Chooses an item of the main window's menus.
    Script& Choose(const char* item);
    // A key that counts for the window, such as Return.
    Script& Press(const char* window, Qt::Key key);

    // Begins with start and returns when the steps are done and all that they opened has gone.
    // False when it gave up; Report tells where.
    bool Run(const std::function<void()>& start = {});
    const QByteArray& Report() const { return report_; }

private:
    struct Step {
        QString window;
        Action action;
    };

    void Look();
    void Act(const QPointer<QWidget>& window);
    void GiveUp(const QWidget* top);

    World& world_;
    QObject context_;
    std::deque<Step> steps_;
    std::vector<QPointer<QWidget>> acting_; // windows whose actions have not returned
    bool posted_ = false;
    int idleLooks_ = 0;
    QByteArray report_;
};

// A screen of a size and a density on the offscreen platform, unless the caller asks for another
// platform; before the application is made.
void UseOffscreenScreen(QSize size, double ratio = 1);

} // namespace keyfluent::shell

// As KEYFLUENT_TEST_MAIN, with the program's pictures, faces and looks, on a large screen of ratio
// device pixels to a pixel of the layout.
#define KEYFLUENT_FORMS_TEST_MAIN_AT(TestClass, ratio)                                             \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        keyfluent::shell::UseOffscreenScreen({1600, 1200}, ratio);                                 \
        keyfluent::shell::Application application(argc, argv);                                     \
        keyfluent::shell::PrepareApplication();                                                    \
        TestClass test;                                                                            \
        return keyfluent::shell::RunTests(test, argc, argv);                                       \
    }

#define KEYFLUENT_FORMS_TEST_MAIN(TestClass) KEYFLUENT_FORMS_TEST_MAIN_AT(TestClass, 1)
