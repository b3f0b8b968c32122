#include "tests/shell/forms/RandomHand.h"

#include "context/CodePage1256.h"
#include "keyboard/KeyJudging.h"
#include "shell/forms/frmLesson.h"
#include "shell/platform/KeyMap.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QScopeGuard>
#include <QWheelEvent>
#include <QWindow>

#include <iterator>

namespace keyfluent::shell
{
namespace
{

constexpr int longestLog = 40;
constexpr int mostIdleSteps = 4000;

constexpr Qt::Key keys[] = {
    Qt::Key_Tab,       Qt::Key_Backtab,   Qt::Key_Return,  Qt::Key_Enter,      Qt::Key_Escape,
    Qt::Key_Space,     Qt::Key_Backspace, Qt::Key_Delete,  Qt::Key_Insert,     Qt::Key_Left,
    Qt::Key_Right,     Qt::Key_Up,        Qt::Key_Down,    Qt::Key_Home,       Qt::Key_End,
    Qt::Key_PageUp,    Qt::Key_PageDown,  Qt::Key_F1,      Qt::Key_F4,         Qt::Key_F10,
    Qt::Key_Alt,       Qt::Key_Menu,      Qt::Key_Shift,   Qt::Key_Control,    Qt::Key_CapsLock,
    Qt::Key_A,         Qt::Key_C,         Qt::Key_V,       Qt::Key_X,          Qt::Key_Z,
    Qt::Key_Y,         Qt::Key_F,         Qt::Key_1,       Qt::Key_9,          Qt::Key_0,
    Qt::Key_Semicolon, Qt::Key_Slash,     Qt::Key_unknown, Qt::Key_Direction_R};

// No slash: a name that holds one is refused with a report that ends the program.
const char* const texts[] = {"a",
                             "Layla",
                             "ليلى",
                             "14",
                             "  ",
                             "\u202Eabc",
                             "لا إله",
                             "🙂",
                             "asdf jkl; a longer text of some words",
                             "\r\n",
                             "0123456789012345678901234567890123456789012345678901234567890"};

constexpr quint32 nativeOffset = 8; // between a place on the keyboard and its native scan code
constexpr quint32 placeOfShift = 42;
constexpr quint32 placesOfMainBlock = 58;

void SendPlaceTo(QWidget& window, QEvent::Type type, quint32 place,
                 Qt::KeyboardModifiers modifiers = {}, bool repeated = false)
{
    QKeyEvent event(type, 0, modifiers, place + nativeOffset, 0, 0, QString(), repeated);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
}

// One event through the window system, shortcuts included. The test frame's own functions send
// several, and the first of them may have closed the window.
void SendKeyTo(QWidget& window, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers,
               const QString& text = {})
{
    qt_handleKeyEvent(window.windowHandle(), type, key, modifiers, text);
}

struct Stroke {
    quint32 place = 0; // 0 for none
    bool shift = false;
};

// The key that is right for the next character; none where the exercise expects none.
Stroke RightStroke(const session::Lesson& lesson)
{
    const std::u16string_view selected = lesson.txtOrigin.SelectedText();
    const bool arabic = lesson.context.arabicExercise;
    const std::uint8_t expected = selected.empty() ? 0 : context::ToCodePage1256(selected.front());
    for (quint32 place = 1; place <= placesOfMainBlock && expected != 0; ++place) {
        const QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, place + nativeOffset, 0, 0);
        const int code = KeyNumber(event, arabic);
        for (const bool shift : {false, true}) {
            if (keyboard::IsValidKey(code, expected, shift, lesson.capsOn,
                                     lesson.context.keyboardKind, arabic)) {
                return {place, shift};
            }
        }
    }
    return {};
}

// Whether a button that went down there can be let go there: the press may have closed the window
// or brought further events, which may have made it smaller.
bool Takes(const QPointer<QWidget>& window, QPoint place)
{
    return window != nullptr && window->isVisible() &&
           QRect(QPoint(), window->windowHandle()->size()).contains(place);
}

} // namespace

RandomHand::RandomHand(std::uint32_t seed) : random_(seed)
{
    outsider_.setObjectName(QStringLiteral("outsider"));
    outsider_.resize(50, 50);
    outsider_.show();
}

RandomHand::~RandomHand() = default;

int RandomHand::Play(World& world, int events, const std::function<void()>& start)
{
    QObject context;
    world_ = &world;
    context_ = &context;
    left_ = events;
    sent_ = idle_ = 0;
    bool started = false;
    QTimer::singleShot(0, &context, [&] {
        const auto done = qScopeGuard([&] { started = true; });
        start();
    });
    QTimer::singleShot(0, &context, [this] { Step(); });
    while (!started || left_ > 0 || !acting_.empty() ||
           QApplication::activeModalWidget() != nullptr) {
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    context_ = nullptr;
    QTest::qWait(0); // what was put off until the windows had gone
    return sent_;
}

// The next step is put into the queue before this one acts: an event that opens a window returns
// only when that window has gone.
void RandomHand::Step()
{
    if (left_ <= 0) {
        return;
    }
    QTimer::singleShot(std::exchange(pause_, 0), context_, [this] { Step(); });
    if (world_->program().Ending() || --left_ == 0) {
        left_ = 0;
        world_->program().End();
        return;
    }
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* top = popup != nullptr ? popup : TopWindow(world_->program());
    // While an event is dealt with, its window gets no other: only what has come above it.
    const bool busyHere = !acting_.empty() && acting_.back() == top;
    if (busyHere || top == nullptr || !top->isVisible() || top->windowHandle() == nullptr) {
        ++left_;
        pause_ = 1;
        if (++idle_ == mostIdleSteps) {
            left_ = 0;
            world_->program().End(99);
        }
        return;
    }
    idle_ = 0;
    ++sent_;
    met_ << top->objectName();
    acting_.emplace_back(top);
    const auto done = qScopeGuard([this] { acting_.pop_back(); });
    ActOn(*top);
}

void RandomHand::ActOn(QWidget& window)
{
    static constexpr Act acts[] = {{290, "click", &RandomHand::ClickSomewhere},
                                   {30, "press", &RandomHand::PressOnly},
                                   {30, "release", &RandomHand::ReleaseOnly},
                                   {30, "double click", &RandomHand::DoubleClick},
                                   {90, "move", &RandomHand::Move},
                                   {40, "wheel", &RandomHand::Scroll},
                                   {180, "key", &RandomHand::PressKey},
                                   {60, "place", &RandomHand::SendPlace},
                                   {60, "text", &RandomHand::TypeText},
                                   {20, "composition", &RandomHand::Compose},
                                   {10, "clipboard", &RandomHand::FillClipboard},
                                   {20, "size", &RandomHand::Resize},
                                   {10, "state", &RandomHand::ChangeState},
                                   {20, "front", &RandomHand::TakeTheFront},
                                   {15, "close", &RandomHand::Close},
                                   {40, "item", &RandomHand::ChooseItem},
                                   {20, "world", &RandomHand::ChangeTheWorld},
                                   {35, "time", &RandomHand::LetTimePass}};
    world_->now += 1;
    if (window.objectName() == QLatin1String("frmLesson") && Draw(3) != 0) {
        return ActOnLesson(window);
    }
    int draw = Draw(1000);
    const Act* act = acts;
    for (; draw >= act->share && act + 1 != std::end(acts); ++act) {
        draw -= act->share;
    }
    Note(window, act->name);
    (this->*act->act)(window);
}

void RandomHand::Note(const QWidget& window, const char* act)
{
    log_ << window.objectName() + QLatin1String(": ") + QLatin1String(act);
    if (log_.size() > longestLog) {
        log_.removeFirst();
    }
}

// Typing as a student does it, so that exercises come to their end too.
void RandomHand::ActOnLesson(QWidget& window)
{
    Note(window, "typing");
    const QPointer<QWidget> guard(&window);
    for (int keys = 1 + Draw(40); keys > 0 && guard != nullptr && guard->isVisible(); --keys) {
        const Stroke stroke = RightStroke(static_cast<frmLesson&>(*guard).Record());
        if (stroke.place == 0 || Draw(60) == 0) {
            return SendPlace(window);
        }
        if (stroke.shift) {
            SendPlaceTo(*guard, QEvent::KeyPress, placeOfShift);
        }
        SendPlaceTo(*guard, QEvent::KeyPress, stroke.place);
        if (guard != nullptr && guard->isVisible()) {
            SendPlaceTo(*guard, QEvent::KeyRelease, stroke.place);
        }
        if (stroke.shift && guard != nullptr && guard->isVisible()) {
            SendPlaceTo(*guard, QEvent::KeyRelease, placeOfShift);
        }
    }
    pause_ = Draw(4) == 0 ? Draw(100) : 0;
}

// On a control more often than beside one.
QPoint RandomHand::AnyPlace(QWidget& window)
{
    const QList<QWidget*> controls =
        window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    // The desktop may give a window another size than it asked for.
    const QRect inside = window.rect().intersected({QPoint(), window.windowHandle()->size()});
    QRect place = inside;
    if (!controls.isEmpty() && Draw(4) != 0) {
        const QWidget* control = controls[Draw(static_cast<int>(controls.size()))];
        if (control->isVisible() && inside.intersects(control->geometry())) {
            place = inside.intersected(control->geometry());
        }
    }
    return place.topLeft() + QPoint(Draw(place.width()), Draw(place.height()));
}

Qt::KeyboardModifiers RandomHand::AnyModifiers()
{
    constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier, Qt::ShiftModifier,
                                                  Qt::ControlModifier, Qt::AltModifier,
                                                  Qt::KeypadModifier};
    return Draw(3) != 0 ? Qt::NoModifier : modifiers[Draw(static_cast<int>(std::size(modifiers)))];
}

void RandomHand::ClickSomewhere(QWidget& window)
{
    const QPointer<QWidget> guard(&window);
    const QPoint place = AnyPlace(window);
    const auto button = Draw(12) == 0 ? Qt::RightButton : Qt::LeftButton;
    QTest::mousePress(window.windowHandle(), button, AnyModifiers(), place);
    if (Takes(guard, place)) {
        QTest::mouseRelease(guard->windowHandle(), button, {}, place);
    }
}

void RandomHand::PressOnly(QWidget& window)
{
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, AnyPlace(window));
}

void RandomHand::ReleaseOnly(QWidget& window)
{
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, AnyPlace(window));
}

void RandomHand::DoubleClick(QWidget& window)
{
    const QPointer<QWidget> guard(&window);
    const QPoint place = AnyPlace(window);
    for (int i = 0; i < 2 && Takes(guard, place); ++i) {
        QTest::mousePress(guard->windowHandle(), Qt::LeftButton, {}, place);
        if (Takes(guard, place)) {
            QTest::mouseRelease(guard->windowHandle(), Qt::LeftButton, {}, place);
        }
    }
}

void RandomHand::Move(QWidget& window)
{
    QTest::mouseMove(window.windowHandle(), AnyPlace(window));
}

void RandomHand::Scroll(QWidget& window)
{
    const QPoint place = AnyPlace(window);
    const QPoint angle = Draw(4) == 0 ? QPoint(Draw(480) - 240, 0) : QPoint(0, Draw(480) - 240);
    QWheelEvent event(place, window.mapToGlobal(place), {}, angle, Qt::NoButton, AnyModifiers(),
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
}

void RandomHand::PressKey(QWidget& window)
{
    const Qt::Key key = keys[Draw(static_cast<int>(std::size(keys)))];
    const QPointer<QWidget> guard(&window);
    const Qt::KeyboardModifiers modifiers = AnyModifiers();
    SendKeyTo(window, QEvent::KeyPress, key, modifiers);
    if (guard != nullptr && guard->isVisible() && Draw(8) != 0) {
        SendKeyTo(*guard, QEvent::KeyRelease, key, modifiers);
    }
}

// A key by its place alone, also ones that no keyboard has, held down now and then.
void RandomHand::SendPlace(QWidget& window)
{
    const QPointer<QWidget> guard(&window);
    const auto place = static_cast<quint32>(Draw(150));
    const bool held = Draw(6) == 0;
    for (int i = 0; i < (held ? 5 : 1) && guard != nullptr && guard->isVisible(); ++i) {
        SendPlaceTo(*guard, QEvent::KeyPress, place, AnyModifiers(), i > 0);
    }
    if (guard != nullptr && guard->isVisible() && Draw(8) != 0) {
        SendPlaceTo(*guard, QEvent::KeyRelease, place);
    }
}

void RandomHand::TypeText(QWidget& window)
{
    const QPointer<QWidget> guard(&window);
    const QString text = QString::fromUtf8(texts[Draw(static_cast<int>(std::size(texts)))]);
    for (const QChar unit : text) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (guard == nullptr || !guard->isVisible()) {
                return;
            }
            SendKeyTo(*guard, type, Qt::Key_unknown, {}, QString(unit));
        }
    }
}

void RandomHand::Compose(QWidget& window)
{
    QWidget* focus = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    const QString text = QString::fromUtf8(texts[Draw(static_cast<int>(std::size(texts)))]);
    QInputMethodEvent event(Draw(2) == 0 ? text : QString(), {});
    if (Draw(2) == 0) {
        event.setCommitString(text, Draw(5) - 2, Draw(3));
    }
    QCoreApplication::sendEvent(focus, &event);
}

void RandomHand::FillClipboard(QWidget&)
{
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(texts[Draw(static_cast<int>(std::size(texts)))]).repeated(1 + Draw(40)));
}

void RandomHand::Resize(QWidget& window)
{
    const QSize size(1 + Draw(2000), 1 + Draw(1500));
    if (Draw(2) == 0) {
        window.resize(size);
    } else {
        window.windowHandle()->resize(size);
    }
}

void RandomHand::ChangeState(QWidget& window)
{
    if (&window != world_->program().Backdrop()) {
        return window.move(Draw(3000) - 1000, Draw(2000) - 500);
    }
    switch (Draw(3)) {
    case 0:
        return window.showMinimized();
    case 1:
        return window.showNormal();
    default:
        return window.showMaximized();
    }
}

void RandomHand::TakeTheFront(QWidget& window)
{
    if (Draw(2) == 0) {
        outsider_.activateWindow();
    } else {
        window.activateWindow();
    }
}

void RandomHand::Close(QWidget& window)
{
    RequestClose(window);
}

void RandomHand::ChooseItem(QWidget& window)
{
    if (&window != world_->program().Backdrop()) {
        return;
    }
    QList<QAction*> items;
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        for (QAction* item : menu->actions()) {
            if (item->isEnabled() && !item->isSeparator()) {
                items << item;
            }
        }
    }
    if (!items.isEmpty()) {
        items[Draw(static_cast<int>(items.size()))]->trigger();
    }
}

void RandomHand::ChangeTheWorld(QWidget&)
{
    switch (Draw(4)) {
    case 0:
        world_->now = Draw(86400);
        break;
    case 1:
        world_->pickedColour = Draw(2) == 0 ? QColor() : QColor(Draw(256), Draw(256), Draw(256));
        break;
    case 2:
        world_->hasSystemTool = Draw(2) == 0;
        break;
    default:
        world_->today = {1 + Draw(9999), 1 + Draw(12), 1 + Draw(28)};
    }
}

void RandomHand::LetTimePass(QWidget&)
{
    pause_ = Draw(8) == 0 ? 350 : Draw(60);
}

} // namespace keyfluent::shell
