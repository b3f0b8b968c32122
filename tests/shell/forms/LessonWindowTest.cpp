// The exercise window as the keyboard, the mouse and the eye meet it: whose each key is, where
// everything stands, what the review and free text let the student do.
#include "context/Text.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmLesson.h"
#include "shell/text/FieldEditor.h"

#include "tests/shell/forms/FormMakers.h"
#include "tests/shell/forms/LessonKeys.h"

#include <QClipboard>

#include <ctime>

namespace keyfluent::shell
{

class LessonWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void KeysThatTheToolkitKnowsAreTyped_data();
    void KeysThatTheToolkitKnowsAreTyped();
    void ShortcutsDoNothing();
    void InputMethodsWorkOnlyWhereTheStudentEdits();
    void AShiftHeldAcrossABlinkCounts();
    void AShiftLetGoInABlinkDoesNotCount();

    void ControlsStandWhereTheyAreDesigned_data();
    void ControlsStandWhereTheyAreDesigned();
    void RulesAndFrameStandWhereTheyAreDesigned();
    void ALitCapHasTheColourOfTheTrueKey();
    void ARefusedKeyBlinksInTheColourOfTheWrongKey();
    void NumbersStandBesideTheirCaptions_data();
    void NumbersStandBesideTheirCaptions();

    void TheReviewIsMendedWithTheMouseAndTheClipboard();
    void EnterInTheReviewPutsBackALineEnd();
    void FreeTextIsTypedToItsLimitWithoutSlowingDown();
    void FreeTextHoldsWhateverIsTyped();
};

namespace
{

using session::Lesson;

// Places on the keyboard, as the desktop counts them.
constexpr quint32 placeOfEscape = 1;
constexpr quint32 placeOfTab = 15;
constexpr quint32 placeOfReturn = 28;
constexpr quint32 placeOfLeftShift = 42;
constexpr quint32 placeOfLeftAlt = 56;
constexpr quint32 placeOfF10 = 68;
constexpr quint32 placeOfMenu = 127;

struct Stage {
    explicit Stage(std::uint8_t lesson = 1, std::uint8_t exercise = 1, bool arabic = false)
        : world(arabic)
    {
        PlaceStudent(world);
        context::SessionContext& state = world.state();
        state.lessonNo = lesson;
        state.exerciseNo = exercise;
        state.optKeyCaps = state.optHands = state.optCounter = state.optClock = true;
        state.trueKeyColour = 0x7A7326;
    }

    frmLesson& Open()
    {
        window = std::make_unique<frmLesson>(world.program());
        window->show();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get())) {
            qFatal("The exercise does not become active.");
        }
        return *window;
    }

    const Lesson& Record() const { return window->Record(); }

    World world;
    std::unique_ptr<frmLesson> window;
};

// Of lesson 15's first passage, with one letter wrong at the beginning and one further on.
struct ReviewStage : Stage {
    ReviewStage() : Stage(15, 1)
    {
        Open();
        TypeWrong(*window);
        TypeRight(*window, 20);
        TypeWrong(*window);
        TypeToTheEnd(*window);
        if (!Record().reviewMode) {
            qFatal("There is no review.");
        }
    }

    FieldEditor& Field() { return static_cast<FieldEditor&>(Control(*window, "txtTest")); }
    const std::u16string& Text() const { return Record().txtTest.Text(); }

    // A place in the first line of the field, in the window.
    QPoint InFirstLine(int x)
    {
        constexpr int lineMiddle = 16;
        return Field().mapTo(window.get(), QPoint(x, lineMiddle));
    }

    void Drag(int fromX, int toX)
    {
        QWindow* target = window->windowHandle();
        QTest::mousePress(target, Qt::LeftButton, {}, InFirstLine(fromX));
        QTest::mouseMove(target, InFirstLine((fromX + toX) / 2));
        QTest::mouseMove(target, InFirstLine(toX));
        QTest::mouseRelease(target, Qt::LeftButton, {}, InFirstLine(toX));
    }
};

QRect PlaceOf(const QWidget& window, const char* control)
{
    return Control(window, control).geometry();
}

// The place of a cap in the window, in pixels.
QRect CapPlace(const Lesson& record, int cap)
{
    const session::Box& box = record.caps.box[static_cast<std::size_t>(cap)];
    return {box.left / 15, box.top / 15, box.width / 15, box.height / 15};
}

// In the face of a cap, beside its text.
QRgb CapColour(const QImage& shot, const QRect& cap)
{
    return shot.pixel(cap.left() + 4, cap.top() + 4);
}

bool InputMethodWorks()
{
    const QWidget* focus = QApplication::focusWidget();
    return focus->testAttribute(Qt::WA_InputMethodEnabled) &&
           focus->inputMethodQuery(Qt::ImEnabled).toBool();
}

} // namespace

void LessonWindowTest::KeysThatTheToolkitKnowsAreTyped_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<quint32>("place");
    QTest::addColumn<QString>("shown"); // by the copy, as a wrong key; nothing where it has no cap
    QTest::newRow("Tab") << int(Qt::Key_Tab) << placeOfTab << QString();
    QTest::newRow("Alt") << int(Qt::Key_Alt) << placeOfLeftAlt << QString();
    QTest::newRow("Menu") << int(Qt::Key_Menu) << placeOfMenu << QString();
    QTest::newRow("F10") << int(Qt::Key_F10) << placeOfF10 << QStringLiteral("F10");
    QTest::newRow("Return") << int(Qt::Key_Return) << placeOfReturn << QStringLiteral("Return");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << placeOfEscape << QStringLiteral("?");
}

void LessonWindowTest::KeysThatTheToolkitKnowsAreTyped()
{
    QFETCH(int, key);
    QFETCH(quint32, place);
    QFETCH(QString, shown);
    Stage stage;
    frmLesson& window = stage.Open();
    PressPlace(window, key, place);
    PassTime(30);
    QVERIFY(!stage.Record().awaitingFirstKey); // it started the clock
    QCOMPARE(stage.Record().errorCount, shown.isEmpty() ? 0 : 1);
    QCOMPARE(QString::fromStdU16String(stage.Record().txtTest.Text()), shown);
    QVERIFY(window.isVisible() && window.isActiveWindow());
    QVERIFY(Control(window, "txtOrigin").hasFocus());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
}

void LessonWindowTest::ShortcutsDoNothing()
{
    Stage stage;
    frmLesson& window = stage.Open();
    TypeRight(window, 2);
    PassTime(400);
    QApplication::clipboard()->setText(QStringLiteral("kept"));
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_Z, Qt::Key_Q}) {
        Key(window, key, Qt::ControlModifier);
        PassTime(500); // a refused key has blinked
    }
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("kept"));
    QVERIFY(window.isVisible());
    QCOMPARE(stage.Record().txtOrigin.SelectionLength(), 1);
    QCOMPARE(stage.Record().txtTest.Size(), stage.Record().caretPos);
}

void LessonWindowTest::InputMethodsWorkOnlyWhereTheStudentEdits()
{
    {
        Stage stage;
        stage.Open();
        QVERIFY(!InputMethodWorks());
        TypeRight(*stage.window, 3);
        QVERIFY(!InputMethodWorks());
    }
    {
        ReviewStage stage;
        QVERIFY(!InputMethodWorks()); // until the student turns to the copy
        QTest::mouseClick(stage.window->windowHandle(), Qt::LeftButton, {}, stage.InFirstLine(60));
        QVERIFY(InputMethodWorks());
    }
    {
        Stage stage(12, 4);
        stage.world.state().freeText = true;
        stage.world.state().anagramLanguage = false;
        stage.Open();
        QVERIFY(InputMethodWorks());
    }
}

void LessonWindowTest::AShiftHeldAcrossABlinkCounts()
{
    Stage stage;
    frmLesson& window = stage.Open();
    TypeRight(window, 1);
    PassTime(400);
    TypeWrong(window);
    PressDown(window, Qt::Key_Shift, placeOfLeftShift);
    QVERIFY(!stage.Record().shiftDown); // keys are shut out
    const QTimer* blink = window.findChild<QTimer*>(QStringLiteral("tmrErrKey"));
    QVERIFY(blink->isActive());
    QTRY_VERIFY_WITH_TIMEOUT(!blink->isActive(), 1000);
    QVERIFY(stage.Record().shiftDown);
    LetGo(window, Qt::Key_Shift, placeOfLeftShift);
    QVERIFY(!stage.Record().shiftDown);
}

void LessonWindowTest::AShiftLetGoInABlinkDoesNotCount()
{
    Stage stage;
    frmLesson& window = stage.Open();
    TypeRight(window, 1);
    PassTime(400);
    TypeWrong(window);
    PressDown(window, Qt::Key_Shift, placeOfLeftShift);
    LetGo(window, Qt::Key_Shift, placeOfLeftShift);
    const QTimer* blink = window.findChild<QTimer*>(QStringLiteral("tmrErrKey"));
    QTRY_VERIFY_WITH_TIMEOUT(!blink->isActive(), 1000);
    QVERIFY(!stage.Record().shiftDown);
}

void LessonWindowTest::ControlsStandWhereTheyAreDesigned_data()
{
    QTest::addColumn<int>("lesson");
    QTest::addColumn<int>("points");
    QTest::addColumn<bool>("freeText");
    QTest::addColumn<QRect>("origin");
    QTest::addColumn<QRect>("test"); // empty where it is hidden
    QTest::addColumn<QPoint>("keyboard");
    const QRect none;
    QTest::newRow("12 points") << 1 << 12 << false << QRect(87, 53, 627, 31)
                               << QRect(87, 83, 627, 31) << QPoint(87, 121);
    QTest::newRow("13 points") << 1 << 13 << false << QRect(10, 30, 780, 32)
                               << QRect(10, 62, 780, 36) << QPoint(87, 138);
    QTest::newRow("passage, 12 points") << 15 << 12 << false << QRect(87, 53, 627, 157)
                                        << QRect(87, 211, 627, 157) << QPoint(87, 121);
    QTest::newRow("passage, 20 points") << 15 << 20 << false << QRect(10, 30, 780, 161)
                                        << QRect(10, 192, 780, 161) << QPoint(87, 138);
    QTest::newRow("free text, 12 points")
        << 12 << 12 << true << QRect(87, 53, 627, 151) << none << QPoint(87, 121);
    QTest::newRow("free text, 14 points")
        << 12 << 14 << true << QRect(10, 30, 780, 157) << none << QPoint(87, 138);
}

void LessonWindowTest::ControlsStandWhereTheyAreDesigned()
{
    QFETCH(int, lesson);
    QFETCH(int, points);
    QFETCH(bool, freeText);
    QFETCH(QRect, origin);
    QFETCH(QRect, test);
    QFETCH(QPoint, keyboard);
    Stage stage(static_cast<std::uint8_t>(lesson), freeText ? 4 : 1);
    stage.world.state().fontSize = points;
    stage.world.state().freeText = freeText;
    const frmLesson& window = stage.Open();
    QCOMPARE(window.size(), QSize(800, 600));
    QCOMPARE(PlaceOf(window, "txtOrigin"), origin);
    QCOMPARE(Shows(window, "txtTest"), !test.isEmpty());
    if (!test.isEmpty()) {
        QCOMPARE(PlaceOf(window, "txtTest"), test);
    }
    QCOMPARE(PlaceOf(window, "T").topLeft(), keyboard);
    QCOMPARE(PlaceOf(window, "pbMark"), QRect(104, 469, 199, 19));
    QCOMPARE(PlaceOf(window, "pbSpeed"), QRect(496, 469, 199, 19));
    QCOMPARE(PlaceOf(window, "lblTimer"), QRect(366, 468, 68, 18));
    QCOMPARE(PlaceOf(window, "Label7"), QRect(261, 551, 278, 22));
}

void LessonWindowTest::RulesAndFrameStandWhereTheyAreDesigned()
{
    constexpr QRgb black = qRgb(0, 0, 0);
    Stage stage;
    QImage shot = stage.Open().grab().toImage();
    for (const int x : {3, 300, 796}) {
        QCOMPARE(shot.pixel(x, 26), black); // 404 twips
        QCOMPARE(shot.pixel(x, 27), black); // 405 twips
        QVERIFY(shot.pixel(x, 25) != black && shot.pixel(x, 28) != black);
    }
    constexpr QRgb frame = qRgb(0x6B, 0x7F, 0x8C);
    for (const QPoint& place :
         {QPoint(90, 449), QPoint(709, 449), QPoint(90, 513), QPoint(709, 513)}) {
        QCOMPARE(shot.pixel(place), frame);
    }
    QVERIFY(shot.pixel(3, 512) != black);

    Stage bare;
    bare.world.state().optCounter = bare.world.state().optClock = false;
    shot = bare.Open().grab().toImage();
    for (const int x : {3, 300, 796}) {
        QCOMPARE(shot.pixel(x, 512), black); // 7680 twips
    }
    QVERIFY(shot.pixel(90, 480) != frame);
}

void LessonWindowTest::ALitCapHasTheColourOfTheTrueKey()
{
    Stage stage;
    frmLesson& window = stage.Open();
    const QImage shot = window.grab().toImage();
    int lit = 0;
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        const QRect place = CapPlace(stage.Record(), cap);
        const bool isLit = stage.Record().caps.text[static_cast<std::size_t>(cap)] ==
                           stage.Record().txtOrigin.SelectedText();
        lit += isLit ? 1 : 0;
        QCOMPARE(CapColour(shot, place), isLit ? qRgb(0x26, 0x73, 0x7A) : qRgb(255, 255, 255));
    }
    QCOMPARE(lit, 1);
}

void LessonWindowTest::ARefusedKeyBlinksInTheColourOfTheWrongKey()
{
    constexpr int capOfQ = 34;
    Stage stage;
    frmLesson& window = stage.Open();
    const QRect place = CapPlace(stage.Record(), capOfQ);
    TypeRight(window, 1);
    PassTime(400); // the first blink after a window has come to the front is a short one
    TypeWrong(window);
    bool red = false;
    for (int i = 0; i < 45; ++i) {
        PassTime(10);
        red = red || CapColour(window.grab().toImage(), place) == qRgb(255, 0, 0);
    }
    QVERIFY(red);
    QTRY_COMPARE(CapColour(window.grab().toImage(), place), qRgb(255, 255, 255));
}

void LessonWindowTest::NumbersStandBesideTheirCaptions_data()
{
    QTest::addColumn<bool>("arabic");
    QTest::newRow("English") << false;
    QTest::newRow("Arabic") << true;
}

void LessonWindowTest::NumbersStandBesideTheirCaptions()
{
    QFETCH(bool, arabic);
    Stage stage(1, 1, arabic);
    stage.world.state().arabicExercise = arabic;
    frmLesson& window = stage.Open();
    TypeRight(window, 1);
    for (const auto& [number, caption, left] :
         {std::tuple{"lblMark", "lblResulotion", arabic ? 115 : 184},
          std::tuple{"lblSpeed", "lblChar", arabic ? 581 : 660}}) {
        const QRect place = PlaceOf(window, number);
        QCOMPARE(place.left(), left);
        QVERIFY(!Label(window, number).text().isEmpty());
        QCOMPARE(PlaceOf(window, caption).left() > place.left(), arabic);
    }
}

void LessonWindowTest::TheReviewIsMendedWithTheMouseAndTheClipboard()
{
    ReviewStage stage;
    QWidget& window = *stage.window;
    const std::u16string before = stage.Text();
    stage.Field().Select(0, 0); // the first line is in view
    stage.Drag(2, 120);
    const int length = stage.Record().txtTest.SelectionLength();
    QCOMPARE(stage.Record().txtTest.SelectionStart(), 0);
    QVERIFY(length > 3 && length < 40);
    QCOMPARE(stage.world.beeps, 0); // the pointer is free here

    Key(window, Qt::Key_X, Qt::ControlModifier);
    QVERIFY(stage.Text() == before.substr(static_cast<std::size_t>(length)));
    QCOMPARE(QApplication::clipboard()->text(),
             QString::fromStdU16String(before.substr(0, static_cast<std::size_t>(length))));
    Key(window, Qt::Key_V, Qt::ControlModifier);
    QVERIFY(stage.Text() == before);
    QVERIFY(!stage.Record().unloaded);

    // The two letters that are wrong, each replaced with the mouse and a key.
    const std::u16string& model = stage.Record().txtOrigin.Text();
    for (std::size_t i = 0; i < model.size(); ++i) {
        if (stage.Text()[i] != model[i]) {
            stage.Field().Select(static_cast<int>(i), static_cast<int>(i) + 1);
            Type(window, QString(QChar(model[i])));
        }
    }
    QVERIFY(stage.Text() == model);
    QTRY_VERIFY_WITH_TIMEOUT(stage.Record().unloaded, 1000);
}

void LessonWindowTest::EnterInTheReviewPutsBackALineEnd()
{
    ReviewStage stage;
    const std::u16string before = stage.Text();
    const std::size_t mark = before.find(context::lineEndMark);
    QTest::mouseClick(stage.window->windowHandle(), Qt::LeftButton, {}, stage.InFirstLine(30));
    stage.Field().Select(static_cast<int>(mark), static_cast<int>(mark) + 3);
    Key(*stage.window, Qt::Key_Delete);
    QVERIFY(stage.Text() == before.substr(0, mark) + before.substr(mark + 3));
    PressPlace(*stage.window, Qt::Key_Return, placeOfReturn);
    QVERIFY(stage.Text() == before);
}

void LessonWindowTest::FreeTextHoldsWhateverIsTyped()
{
    for (const bool arabic : {false, true}) {
        Stage stage(12, 4, arabic);
        stage.world.state().freeText = true;
        stage.world.state().anagramLanguage = arabic;
        frmLesson& window = stage.Open();
        const QString text =
            arabic ? QStringLiteral("مرحبا (Sami) 12") : QStringLiteral("Hi, علي! 12");
        Type(window, text);
        QCOMPARE(QString::fromStdU16String(stage.Record().txtOrigin.Text()), text);
        QCOMPARE(Control(window, "txtOrigin").layoutDirection(), Qt::LeftToRight);
        QCOMPARE(bool(stage.Record().txtOrigin.rightToLeft), arabic);
        PressPlace(window, Qt::Key_Return, placeOfReturn);
        QCOMPARE(QString::fromStdU16String(stage.Record().txtOrigin.Text()),
                 text + QStringLiteral("\r\n"));
        QCOMPARE(stage.Record().errorCount, 0);
    }
}

// Measured in the processor's time, so that a busy machine does not count.
void LessonWindowTest::FreeTextIsTypedToItsLimitWithoutSlowingDown()
{
    constexpr int limit = 30000;
    constexpr int keys = 300;
    Stage stage(12, 4);
    stage.world.state().freeText = true;
    stage.world.state().anagramLanguage = false;
    frmLesson& window = stage.Open();
    const auto typing = [&](int count) {
        const std::clock_t start = std::clock();
        for (int i = 0; i < count; ++i) {
            Type(window, i % 7 == 6 ? QStringLiteral(" ") : QStringLiteral("a"));
            QCoreApplication::processEvents(); // it is painted
        }
        return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    };
    typing(keys);
    const double atFirst = typing(keys);
    QApplication::clipboard()->setText(QStringLiteral("one paragraph ").repeated(2040));
    Key(window, Qt::Key_V, Qt::ControlModifier);
    typing(limit - stage.Record().txtOrigin.Size() - keys);
    const double atLast = typing(keys);
    QVERIFY2(atLast < 4 * atFirst + 60,
             qPrintable(QStringLiteral("%1 ms for %2 keys, %3 ms at first")
                            .arg(atLast)
                            .arg(keys)
                            .arg(atFirst)));
    QCOMPARE(stage.Record().txtOrigin.Size(), limit);
    QVERIFY(!stage.Record().unloaded);
    Type(window, QStringLiteral("a"));
    QVERIFY(!stage.Record().unloaded); // the key that finds more than the limit ends it
    Type(window, QStringLiteral("a"));
    QVERIFY(stage.Record().unloaded);
    QVERIFY(stage.world.state().inExercise);
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::LessonWindowTest)

#include "LessonWindowTest.moc"
