#include "tests/shell/forms/FormsHarness.h"

#include "progress/Preferences.h"
#include "progress/StudentFile.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/platform/TextConversion.h"

#include <QAction>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace keyfluent::shell
{
namespace
{

constexpr int lookInterval = 5; // milliseconds
constexpr int mostIdleLooks = 10000 / lookInterval;

[[noreturn]] void Missing(const QWidget& window, const char* name)
{
    qFatal("%s has no control %s", qPrintable(window.objectName()), name);
    std::abort();
}

} // namespace

World::World(bool arabic) : platform_(MakeMachine())
{
    program_ = std::make_unique<Program>(platform_, MakeDesktop(), FromQString(folder_.path()));
    static_cast<Application*>(qApp)->onFailure = [this](const context::FatalError& failure) {
        failures << QString::fromUtf8(failure.what());
        program_->End(1);
    };
    state().appFolder = FromQString(folder_.path());
    state().arabicInterface = arabic;
    state().keyboardKind = 192;
    state().fontSize = 14;
    state().errKeyColour = 255;
    state().colouredHands = true;
    state().lessonNo = 1;
    state().exerciseNo = 1;
}

World::~World()
{
    static_cast<Application*>(qApp)->onFailure = {};
}

context::Platform World::MakeMachine()
{
    context::Platform machine;
    machine.secondsSinceMidnight = [this] { return now; };
    machine.today = [this] { return today; };
    machine.seedRandom = [](double) {};
    machine.random = [this] {
        if (draws_.empty()) {
            undrawn_ += 0.381966; // goes through the whole range and soon returns nowhere
            return undrawn_ -= std::floor(undrawn_);
        }
        const double next = draws_.front();
        draws_.pop_front();
        return next;
    };
    machine.capsLockState = [] { return std::int16_t{0}; };
    machine.openPlayer = [this](context::Player, const std::u16string&) { soundsRest = false; };
    machine.commandPlayer = [this](context::Player, context::PlayerCommand) { soundsRest = false; };
    machine.beep = [this] { ++beeps; };
    return machine;
}

Desktop World::MakeDesktop()
{
    Desktop desktop;
    desktop.screenSize = [this] { return screen; };
    desktop.isFirstInstance = [this] { return firstInstance; };
    desktop.showCritical = [this](const QString& text) { criticals << text; };
    desktop.showMessage = [this](const QString& text) { messages << text; };
    desktop.startSystemInformation = [this] {
        ++toolStarts;
        return hasSystemTool;
    };
    desktop.pickColour = [this](const QColor& initial, QWidget*) {
        coloursOffered << initial;
        return pickedColour;
    };
    desktop.printPages = [this](QWidget*, const std::function<void(QPainter&, QSize)>& drawPage) {
        ++printDialogs;
        if (printer) {
            printer(drawPage);
        }
    };
    desktop.refreshKeyboard = [] {};
    desktop.restSounds = [this] { soundsRest = true; };
    desktop.endProcess = [this](int status) { endStatus = status; };
    return desktop;
}

void World::Draw(int value, int low, int high)
{
    draws_.push_back((value - low + 0.5) / (high - low + 1));
}

void World::WritePreferences(bool arabic, int keyboardKind, int fontSize)
{
    context::SessionContext saved;
    saved.appFolder = FromQString(Folder());
    progress::SavePreferences(saved, {.arabicInterface = arabic,
                                      .keyboardKind = keyboardKind,
                                      .size = FromQString(QString::number(fontSize)),
                                      .errKeyColour = 255,
                                      .colouredHands = true});
}

QString World::StudentFile(const QString& name) const
{
    return Folder() + QStringLiteral("/Students/") + name + QStringLiteral(".W");
}

bool World::HasStudent(const QString& name) const
{
    return QFile::exists(StudentFile(name));
}

void World::WriteStudent(const QString& name, const context::StudentTable& table)
{
    QDir(Folder()).mkdir(QStringLiteral("Students"));
    QByteArray bytes;
    for (const context::StudentRecord& record : table.records) {
        for (const std::int16_t field : record) {
            bytes += static_cast<char>(field & 0xFF);
            bytes += static_cast<char>((field >> 8) & 0xFF);
        }
    }
    QFile file(StudentFile(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("The student's file cannot be written.");
    }
}

context::StudentTable World::ReadStudent(const QString& name) const
{
    context::StudentTable table;
    QFile file(StudentFile(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The student's file cannot be read.");
    }
    const QByteArray bytes = file.readAll();
    for (std::size_t i = 0; i < table.records.size() * 10; ++i) {
        const auto at = static_cast<qsizetype>(2 * i);
        table.records[i / 10][i % 10] = static_cast<std::int16_t>(
            static_cast<quint8>(bytes.at(at)) | static_cast<quint8>(bytes.at(at + 1)) << 8);
    }
    return table;
}

frmBlack& World::SignIn(const QString& name)
{
    state().studentName = FromQString(name);
    progress::IsNewStudent(state());
    program().EnterAsNewStudent();
    return *program().MainWindow();
}

context::StudentTable TableAt(int reachedLesson)
{
    context::StudentTable table;
    table.Record(1)[0] = static_cast<std::int16_t>(reachedLesson);
    table.Record(1)[5] = static_cast<std::int16_t>(reachedLesson);
    return table;
}

QWidget* TopWindow(Program& program)
{
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    QWidget* backdrop = program.Backdrop();
    return backdrop != nullptr && backdrop->isVisible() ? backdrop : nullptr;
}

QWidget& Control(const QWidget& window, const char* name)
{
    auto* control = window.findChild<QWidget*>(QString::fromLatin1(name));
    return control != nullptr ? *control : (Missing(window, name), *control);
}

ImageControl& Picture(const QWidget& window, const char* name)
{
    auto* control = window.findChild<ImageControl*>(QString::fromLatin1(name));
    return control != nullptr ? *control : (Missing(window, name), *control);
}

TextLabel& Label(const QWidget& window, const char* name)
{
    auto* control = window.findChild<TextLabel*>(QString::fromLatin1(name));
    return control != nullptr ? *control : (Missing(window, name), *control);
}

bool Shows(const QWidget& window, const char* name)
{
    return !Control(window, name).isHidden();
}

QAction& Item(const QWidget& mainWindow, const char* name)
{
    auto* item = mainWindow.findChild<QAction*>(QString::fromLatin1(name));
    return item != nullptr ? *item : (Missing(mainWindow, name), *item);
}

QPoint MiddleOf(const QWidget& window, const char* control)
{
    const QWidget& found = Control(window, control);
    return found.mapTo(&window, found.rect().center());
}

void Click(QWidget& window, const char* control)
{
    const QPoint place = MiddleOf(window, control);
    const QPointer<QWidget> guard(&window);
    const QPointer<QWidget> modal(QApplication::activeModalWidget());
    PressAt(window, place);
    if (guard != nullptr && guard->isVisible() && QApplication::activeModalWidget() == modal) {
        ReleaseAt(window, place);
    }
}

void PressAt(QWidget& window, QPoint place)
{
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, place);
}

void ReleaseAt(QWidget& window, QPoint place)
{
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, place);
}

void MoveTo(QWidget& window, QPoint place)
{
    // The toolkit drops a move to where the pointer is: so it comes from the next pixel.
    QTest::mouseMove(window.windowHandle(), place + QPoint(1, 0));
    QTest::mouseMove(window.windowHandle(), place);
}

void MoveOver(QWidget& window, const char* control)
{
    MoveTo(window, MiddleOf(window, control));
}

void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window.windowHandle(), key, modifiers);
}

void Type(QWidget& window, const QString& text)
{
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown,
                            QString(character), Qt::NoModifier);
    }
}

void RequestClose(QWidget& window)
{
    window.close();
}

void PassTime(int milliseconds)
{
    QTest::qWait(milliseconds);
}

Script::Script(World& world) : world_(world) {}

Script& Script::At(const char* window, Action action)
{
    steps_.push_back({QString::fromLatin1(window), std::move(action)});
    return *this;
}

Script& Script::Click(const char* window, const char* control)
{
    return At(window, [control](QWidget& on) { shell::Click(on, control); });
}

Script& Script::Choose(const char* item)
{
    return At("frmBlack", [item](QWidget& window) {
        QAction& chosen = Item(window, item);
        if (!chosen.isEnabled()) {
            qFatal("The menu item %s is disabled", item);
        }
        chosen.trigger();
    });
}

Script& Script::Press(const char* window, Qt::Key key)
{
    return At(window, [key](QWidget& on) { Key(on, key); });
}

bool Script::Run(const std::function<void()>& start)
{
    bool started = !start;
    bool left = false;
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, [this] { Look(); });
    looks.start(lookInterval);
    if (start) {
        QTimer::singleShot(0, &looks, [&] {
            const auto done = qScopeGuard([&] { started = true; }); // after a failure too
            start();
        });
    }
    // One more turn after the last window has gone, for what was put off until then.
    while (!left) {
        left = started && steps_.empty() && acting_.empty() && !posted_ &&
               QApplication::activeModalWidget() == nullptr;
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return report_.isEmpty();
}

// Acts from an event of its own, so that this timer goes on in the windows that the action opens.
void Script::Look()
{
    QWidget* const top = TopWindow(world_.program());
    const bool busyHere = !acting_.empty() && acting_.back() == top;
    const bool ready = top != nullptr && top->isVisible() && top->isActiveWindow();
    if (!steps_.empty() && ready && !busyHere && !posted_ &&
        top->objectName() == steps_.front().window) {
        idleLooks_ = 0;
        posted_ = true;
        QTimer::singleShot(0, &context_, [this, window = QPointer<QWidget>(top)] { Act(window); });
        return;
    }
    if (++idleLooks_ == mostIdleLooks) {
        GiveUp(top);
    }
}

void Script::Act(const QPointer<QWidget>& window)
{
    posted_ = false;
    if (window == nullptr || steps_.empty()) {
        return; // gone in the meantime
    }
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    if (!step.action) {
        return;
    }
    acting_.push_back(window);
    const auto done = qScopeGuard([this] {
        acting_.pop_back();
        idleLooks_ = 0;
    });
    step.action(*window);
}

void Script::GiveUp(const QWidget* top)
{
    report_ =
        "waits for " +
        (steps_.empty() ? QByteArray("the windows to close") : steps_.front().window.toLatin1()) +
        ", and on top is " +
        (top == nullptr ? QByteArray("nothing") : top->objectName().toLatin1());
    for (const QString& failure : world_.failures) {
        report_ += "; failed: " + failure.toUtf8();
    }
    steps_.clear();
    world_.program().End(99);
}

void UseOffscreenScreen(QSize size, double ratio)
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen") {
        return;
    }
    static QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("screen.json"));
    QFile file(path);
    const QByteArray text = QStringLiteral(R"({"screens": [{"name": "test", "x": 0, "y": 0,
"width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %3}]})")
                                .arg(size.width())
                                .arg(size.height())
                                .arg(ratio)
                                .toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("The screen's description cannot be written.");
    }
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(path));
}

} // namespace keyfluent::shell
