#include "shell/platform/CapsLock.h"

#include "tests/shell/FailOnWarning.h"

#include <QKeyEvent>

namespace keyfluent::shell
{
namespace
{

constexpr quint32 lockBit = 0x2;
constexpr quint32 otherBits = 0xFD; // all modifiers but Caps Lock

QKeyEvent Key(QEvent::Type type, int key, quint32 scanCode, quint32 bits, bool repeated = false)
{
    return QKeyEvent(type, key, Qt::NoModifier, scanCode, 0, bits, QString(), repeated);
}

} // namespace

// On the offscreen platform no server can be asked, so the events alone decide.
class CapsLockTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void OffUntilSomethingTells()
    {
        CapsLockWatch watch;
        QCOMPARE(watch.State(), qint16(0));
        watch.Refresh();
        QCOMPARE(watch.State(), qint16(0));
    }

    void PressTurnsOverWhatItsBitTells()
    {
        CapsLockWatch watch;
        Press(watch, 0);
        QCOMPARE(watch.State(), qint16(1));
        Release(watch, lockBit);
        QCOMPARE(watch.State(), qint16(1));
        Press(watch, lockBit);
        QCOMPARE(watch.State(), qint16(0));
        Release(watch, lockBit); // so it comes, although the press has turned it off
        QCOMPARE(watch.State(), qint16(0));
    }

    void PressMendsAWrongState()
    {
        CapsLockWatch watch;
        Press(watch, lockBit);
        QCOMPARE(watch.State(), qint16(0));
        Press(watch, 0);
        Press(watch, 0);
        QCOMPARE(watch.State(), qint16(1));
    }

    void AnyOtherKeyTellsTheState()
    {
        CapsLockWatch watch;
        watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_A, 38, lockBit | otherBits));
        QCOMPARE(watch.State(), qint16(1));
        watch.KeyEvent(Key(QEvent::KeyRelease, Qt::Key_A, 38, otherBits));
        QCOMPARE(watch.State(), qint16(0));
        watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_Shift, 50, lockBit, true));
        QCOMPARE(watch.State(), qint16(1));
    }

    // Where the desktop makes another key of it, its press changes nothing.
    void PlaceOfTheKeyDoesNotCount()
    {
        CapsLockWatch watch;
        watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_Control, 66, 0));
        QCOMPARE(watch.State(), qint16(0));
        watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_CapsLock, 9, 0));
        QCOMPARE(watch.State(), qint16(1));
    }

    void RepeatedPressIsPassedOver()
    {
        CapsLockWatch watch;
        Press(watch, 0);
        watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_CapsLock, 66, lockBit, true));
        QCOMPARE(watch.State(), qint16(1));
        watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_CapsLock, 0, 0, true));
        QCOMPARE(watch.State(), qint16(1));
    }

    void WithoutScanCodesPressesAreCounted()
    {
        CapsLockWatch watch;
        for (int round = 0; round < 3; ++round) {
            watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_CapsLock, 0, 0));
            QCOMPARE(watch.State(), qint16(1));
            watch.KeyEvent(Key(QEvent::KeyRelease, Qt::Key_CapsLock, 0, 0));
            watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_A, 0, 0));
            watch.KeyEvent(Key(QEvent::KeyRelease, Qt::Key_A, 0, 0));
            QCOMPARE(watch.State(), qint16(1));
            watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_CapsLock, 0, 0));
            QCOMPARE(watch.State(), qint16(0));
            watch.KeyEvent(Key(QEvent::KeyRelease, Qt::Key_CapsLock, 0, 0));
        }
    }

    void EventBeforeThePressIsNoPress()
    {
        CapsLockWatch watch;
        watch.KeyEvent(Key(QEvent::ShortcutOverride, Qt::Key_CapsLock, 66, 0));
        QCOMPARE(watch.State(), qint16(0));
        Press(watch, 0);
        QCOMPARE(watch.State(), qint16(1));
    }

    void RefreshWithoutAServerKeepsTheState()
    {
        CapsLockWatch watch;
        Press(watch, 0);
        watch.Refresh();
        QCOMPARE(watch.State(), qint16(1));
    }

private:
    static void Press(CapsLockWatch& watch, quint32 bits)
    {
        watch.KeyEvent(Key(QEvent::KeyPress, Qt::Key_CapsLock, 66, bits));
    }
    static void Release(CapsLockWatch& watch, quint32 bits)
    {
        watch.KeyEvent(Key(QEvent::KeyRelease, Qt::Key_CapsLock, 66, bits));
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::CapsLockTest)

#include "CapsLockTest.moc"
