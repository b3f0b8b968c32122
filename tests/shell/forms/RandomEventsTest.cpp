// The whole program under a hand that does anything at any moment: it does not crash, the toolkit
// has nothing to complain of, nothing fails and nothing is left behind. A short run stands among
// the tests; KEYFLUENT_RANDOM_EVENTS=100000 makes a long one and KEYFLUENT_RANDOM_SEED another one.
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormMakers.h"
#include "tests/shell/forms/RandomHand.h"

#include <QDir>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace keyfluent::shell
{

class RandomEventsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void ThroughAllWindows_data();
    void ThroughAllWindows();
};

namespace
{

constexpr int eventsOfRun = 5000;

int Setting(const char* name, int otherwise)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? value : otherwise;
}

// Windows that are still there; a tool tip goes by its own clock.
QStringList WindowsLeft()
{
    QStringList names;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (!widget->inherits("QTipLabel")) {
            names << QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                         widget->objectName();
        }
    }
    names.sort();
    return names;
}

// A printer that draws up to three pages and now and then none.
void GivePrinter(World& world, RandomHand& hand)
{
    world.printer = [&hand](const std::function<void(QPainter&, QSize)>& drawPage) {
        for (int pages = hand.Draw(4); pages > 0; --pages) {
            QImage paper(600, 800, QImage::Format_RGB32);
            QPainter painter(&paper);
            painter.setWindow(0, 0, 11906, 16838);
            drawPage(painter, {11906, 16838});
        }
    };
}

// The program from its first picture on.
void BeginAnew(World& world, RandomHand& hand)
{
    world.WritePreferences(hand.Draw(2) == 0, hand.Draw(2) == 0 ? 192 : 0, 1 + hand.Draw(20));
    world.screen = hand.Draw(4) == 0 ? QSize(640, 480) : world.screen;
    world.firstInstance = hand.Draw(4) != 0;
    world.program().Begin();
}

// A student at any place of the course, before any window.
void BeginWith(World& world, RandomHand& hand, const FormMaker& maker)
{
    context::SessionContext& state = world.state();
    world.WritePreferences(hand.Draw(2) == 0);
    QDir(world.Folder()).mkdir(QStringLiteral("Students"));
    PlaceStudent(world);
    const auto reached = static_cast<std::uint8_t>(1 + hand.Draw(15));
    state.reachedLessonWin = state.reachedLessonMac = reached;
    state.lessonNo = static_cast<std::uint8_t>(1 + hand.Draw(reached));
    state.exerciseNo = static_cast<std::uint8_t>(1 + hand.Draw(5));
    state.arabicExercise = hand.Draw(2) == 0;
    state.fontSize = 1 + hand.Draw(20);
    if (hand.Draw(2) == 0) {
        world.program().EnterAsKnownStudent();
    } else {
        world.program().EnterAsNewStudent();
    }
    world.program().ShowModal(maker.make(world));
}

} // namespace

void RandomEventsTest::ThroughAllWindows_data()
{
    QTest::addColumn<int>("seed");
    const int runs = std::max(Setting("KEYFLUENT_RANDOM_EVENTS", eventsOfRun) / eventsOfRun, 1);
    const int firstSeed = Setting("KEYFLUENT_RANDOM_SEED", 1);
    for (int seed = firstSeed; seed < firstSeed + runs; ++seed) {
        QTest::addRow("seed %d", seed) << seed;
    }
}

void RandomEventsTest::ThroughAllWindows()
{
    QFETCH(int, seed);
    RandomHand hand(static_cast<std::uint32_t>(seed));
    const auto& makers = FormMakers();
    const QStringList before = WindowsLeft();
    std::size_t next = 0;
    int sent = 0;
    for (int turn = 0; sent < eventsOfRun; ++turn) {
        World world(hand.Draw(2) == 0);
        GivePrinter(world, hand);
        sent += hand.Play(world, 40 + hand.Draw(160), [&] {
            if (turn % 5 == 0) {
                return BeginAnew(world, hand);
            }
            BeginWith(world, hand, makers[next++ % makers.size()]);
        });
        if (!world.failures.isEmpty() || world.endStatus == 99 || QTest::currentTestFailed()) {
            qInfo("event %d, after\n%s", sent, qPrintable(hand.LastEvents()));
        }
        QCOMPARE(world.failures, QStringList());
        QVERIFY2(world.endStatus != 99, "no window came any more");
        if (QTest::currentTestFailed()) {
            return; // of a warning
        }
    }
    QCOMPARE(WindowsLeft(), before);
    for (const FormMaker& maker : makers) {
        QVERIFY2(hand.Met().contains(QLatin1String(maker.name)), maker.name);
    }
    QVERIFY(hand.Met().contains(QStringLiteral("frmBlack")));
}

} // namespace keyfluent::shell

// Many runs take longer than the test frame lets a test go on.
[[maybe_unused]] static const bool timeIsGiven = qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::RandomEventsTest)

#include "RandomEventsTest.moc"
