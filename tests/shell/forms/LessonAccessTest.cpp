// What assistive technology hears and finds in the window of an exercise.
#include "session/Lesson.h"
#include "shell/base/ImageControl.h"
#include "shell/forms/frmLesson.h"
#include "shell/lesson/GaugeBar.h"
#include "shell/lesson/KeyboardView.h"
#include "shell/lesson/Narrator.h"
#include "shell/text/FieldEditor.h"
#include "shell/text/RowView.h"

#include "tests/shell/forms/FormMakers.h"
#include "tests/shell/forms/LessonKeys.h"

#include <QAccessible>

#include <algorithm>

namespace keyfluent::shell
{

class LessonAccessTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void TheWordsFollowTheKeys();
    void TheWordsAreThoseOfTheInterface();
    void NothingIsSaidWhileNobodyListens();
    void TheFieldsHaveNamesTextAndCaret();
    void TheGaugesHaveTheirValues();
    void AKeyboardThatIsSwitchedOffIsNotThere();
    void InTheReviewTheEditorStandsInThePlaceOfTheCopy();
    void InFreeTextThereIsOneFieldAndNoNotice();
};

namespace
{

// A lesson in a world of its own, on the screen; its window is never waited for.
struct Stage {
    explicit Stage(bool arabic = false, std::uint8_t lesson = 1,
                   const std::function<void(context::SessionContext&)>& set = {})
        : world(arabic)
    {
        context::SessionContext& state = world.state();
        state.keyboardKind = 192;
        state.lessonNo = lesson;
        state.exerciseNo = 1;
        state.optKeyCaps = state.optHands = state.optCounter = state.optClock = true;
        if (set) {
            set(state);
        }
        window = std::make_unique<frmLesson>(world.program());
        window->show();
        QCoreApplication::processEvents();
    }

    QAccessibleInterface* Access(const char* control) const
    {
        return QAccessible::queryAccessibleInterface(&Control(*window, control));
    }
    QString Name(const char* control) const { return Access(control)->text(QAccessible::Name); }
    QWidget& TheNotice() const { return *window->findChild<Notice*>(); }

    // Where no platform takes part, nothing is ever told by itself: this is as if assistive
    // technology came just now.
    static void Listen() { QAccessible::setActive(true); }
    QString Said() const
    {
        Listen();
        return TheNotice().isHidden() ? QString() : TheNotice().accessibleName();
    }

    World world;
    std::unique_ptr<frmLesson> window;
};

// All that the window shows of a kind.
template <typename Kind> qsizetype Shown(const QWidget& window)
{
    const auto found = window.findChildren<Kind*>();
    return std::ranges::count_if(found, [](const Kind* control) { return control->isVisible(); });
}

} // namespace

void LessonAccessTest::TheWordsFollowTheKeys()
{
    const Stage stage;
    QCOMPARE(stage.Said(), QStringLiteral("Next key: a. Left hand: little finger"));
    QCOMPARE(stage.Name("T"), QStringLiteral("Keyboard. Next key: a"));
    QCOMPARE(stage.Name("imgLeftHand"), QStringLiteral("Left hand: little finger"));
    QCOMPARE(stage.Name("imgRightHand"), QStringLiteral("Right hand: at rest"));
    TypeRight(*stage.window, 4);
    QCOMPARE(stage.window->Record().txtTest.Text(), u"asdf");
    QCOMPARE(stage.Said(), QStringLiteral("Next key: Space. Right hand: thumb"));
    QCOMPARE(stage.Name("T"), QStringLiteral("Keyboard. Next key: Space"));
    QCOMPARE(stage.Name("imgLeftHand"), QStringLiteral("Left hand: at rest"));
    QCOMPARE(stage.Name("imgRightHand"), QStringLiteral("Right hand: thumb"));
}

void LessonAccessTest::TheWordsAreThoseOfTheInterface()
{
    const Stage stage(true);
    QCOMPARE(stage.Said(), QStringLiteral("المفتاح التالي: a. اليد اليسرى: الخنصر"));
    QCOMPARE(stage.Name("T"), QStringLiteral("لوحة المفاتيح. المفتاح التالي: a"));
    QCOMPARE(stage.Name("imgRightHand"), QStringLiteral("اليد اليمنى: في وضع الراحة"));
}

// The names are made once, as the window is; no key costs anything for them.
void LessonAccessTest::NothingIsSaidWhileNobodyListens()
{
    const Stage stage;
    QVERIFY(!QAccessible::isActive());
    const QString before = stage.Name("T");
    TypeRight(*stage.window, 1);
    QCOMPARE(stage.Name("T"), before);
    QVERIFY(stage.TheNotice().isHidden());
    QVERIFY(stage.TheNotice().accessibleName().isEmpty());
}

void LessonAccessTest::TheFieldsHaveNamesTextAndCaret()
{
    const Stage stage;
    QCOMPARE(stage.Name("txtOrigin"), QStringLiteral("Text to type"));
    QCOMPARE(stage.Name("txtTest"), QStringLiteral("What you have typed"));
    TypeRight(*stage.window, 3);
    const session::Lesson& record = stage.window->Record();
    QAccessibleTextInterface* origin = stage.Access("txtOrigin")->textInterface();
    QCOMPARE(origin->text(0, -1), QString::fromStdU16String(record.txtOrigin.Text()));
    QCOMPARE(origin->cursorPosition(), 3);
    QAccessibleTextInterface* copy = stage.Access("txtTest")->textInterface();
    QCOMPARE(copy->text(0, -1), QStringLiteral("asd"));
    QCOMPARE(copy->cursorPosition(), 3);
    const Stage arabic(true);
    QCOMPARE(arabic.Name("txtOrigin"), QStringLiteral("النص المطلوب"));
    QCOMPARE(arabic.Name("txtTest"), QStringLiteral("ما كتبته"));
}

void LessonAccessTest::TheGaugesHaveTheirValues()
{
    const Stage stage;
    TypeRight(*stage.window, 1);
    TypeWrong(*stage.window);
    const session::Lesson& record = stage.window->Record();
    QCOMPARE(record.accuracyPercent, 50);
    const auto check = [&](const char* control, const QString& name, int maximum, int current) {
        QCOMPARE(stage.Name(control), name);
        QAccessibleValueInterface* value = stage.Access(control)->valueInterface();
        QVERIFY(value != nullptr);
        QCOMPARE(value->minimumValue().toInt(), 0);
        QCOMPARE(value->maximumValue().toInt(), maximum);
        QCOMPARE(value->currentValue().toInt(), current);
    };
    check("pbMark", QStringLiteral("Resulotion:"), record.pbMark.maximum,
          static_cast<int>(record.pbMark.value));
    check("pbSpeed", QStringLiteral("Chars pm. :"), 300, static_cast<int>(record.pbSpeed.value));
    QVERIFY(record.pbMark.value > 0);
}

void LessonAccessTest::AKeyboardThatIsSwitchedOffIsNotThere()
{
    const Stage shown;
    QVERIFY(!shown.Access("T")->state().invisible);
    const Stage hidden(false, 1, [](context::SessionContext& state) {
        state.optKeyCaps = state.optHands = false;
    });
    QVERIFY(hidden.Access("T")->state().invisible);
    QVERIFY(hidden.Access("imgLeftHand")->state().invisible);
    QCOMPARE(hidden.Said(), QStringLiteral("Next key: a"));
}

void LessonAccessTest::InTheReviewTheEditorStandsInThePlaceOfTheCopy()
{
    Stage stage(false, 15);
    TypeWrong(*stage.window);
    stage.world.now += 100;
    TypeRight(*stage.window, stage.window->Record().txtOrigin.Size());
    QVERIFY(stage.window->Record().reviewMode);
    QCOMPARE(Shown<RowView>(*stage.window), 1);
    QCOMPARE(Shown<FieldEditor>(*stage.window), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(stage.window->findChildren<RowView*>().size(), 1);
    QCOMPARE(stage.Name("txtTest"), QStringLiteral("What you have typed"));
    QVERIFY(stage.Access("txtTest")->state().editable);
    QCOMPARE(stage.Said(), QStringLiteral("No of Errors: 1. Please correct the text."));
    QCOMPARE(stage.Name("T"), QStringLiteral("Keyboard"));
    // It is mended without a mouse: the keyboard is led there, and then the caret.
    stage.Access("txtTest")->actionInterface()->doAction(
        QAccessibleActionInterface::setFocusAction());
    QVERIFY(stage.window->focusWidget() == &Control(*stage.window, "txtTest"));
    stage.Access("txtTest")->textInterface()->setCursorPosition(1);
    QCOMPARE(stage.window->Record().txtTest.SelectionStart(), 1);
    stage.Access("txtTest")->editableTextInterface()->replaceText(
        0, 1, QString(QChar(stage.window->Record().txtOrigin.Text().front())));
    QVERIFY(stage.window->Record().txtTest.Text() == stage.window->Record().txtOrigin.Text());
}

void LessonAccessTest::InFreeTextThereIsOneFieldAndNoNotice()
{
    const Stage stage(false, 1, [](context::SessionContext& state) { state.freeText = true; });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(Shown<FieldEditor>(*stage.window), 1);
    QCOMPARE(Shown<RowView>(*stage.window), 0);
    QVERIFY(stage.Access("txtOrigin")->state().editable);
    QCOMPARE(stage.Name("txtOrigin"), QStringLiteral("Your text"));
    stage.Access("txtOrigin")->textInterface()->setCursorPosition(0);
    QCOMPARE(stage.Said(), QString());
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::LessonAccessTest)

#include "LessonAccessTest.moc"
