// What the application object does with the events of all windows.
#include "shell/Application.h"
#include "shell/platform/Fonts.h"

#include "tests/shell/forms/FormsHarness.h"

#include <QDialog>
#include <QFontInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

namespace keyfluent::shell
{
namespace
{

// Writes down the keys that it gets itself.
class Listener : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    std::function<void()> onPress;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        onPress();
        QLineEdit::keyPressEvent(event);
    }
};

} // namespace

class ApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarning();
        told_.clear();
        Application().onKey = [this](const QKeyEvent& event) {
            told_ << (event.type() == QEvent::KeyPress ? "down " : "up ") +
                         QKeySequence(event.key()).toString();
        };
    }

    void cleanup() { Application().onKey = {}; }

    void TheFaceOfTheToolkitsDialogsHasASizeInPoints()
    {
        const QFont face = QApplication::font();
        QVERIFY(face.pointSizeF() > 0);
        QCOMPARE(QFontInfo(face).pixelSize(), FormFont(10, false).pixelSize());
        QCOMPARE(face.families(), FormFont(10, false).families());
    }

    void AKeyIsToldOnceBeforeItsWindowGetsIt()
    {
        QDialog window;
        Listener field(&window);
        QStringList toldBefore;
        field.onPress = [&] { toldBefore = told_; };
        window.show();
        field.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        Key(window, Qt::Key_A);
        QCOMPARE(toldBefore, QStringList{"down A"});
        QCOMPARE(told_, (QStringList{"down A", "up A"}));
    }

    void TheKeysOfEveryWindowAreTold()
    {
        QDialog below;
        below.show();
        QDialog above(&below);
        above.setModal(true);
        above.show();
        QVERIFY(QTest::qWaitForWindowActive(&above));
        Key(above, Qt::Key_CapsLock);
        QMenu menu(&above);
        menu.addAction(QStringLiteral("An item"));
        menu.popup({10, 10});
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        Key(menu, Qt::Key_Down);
        menu.close();
        above.close();
        Key(below, Qt::Key_B);
        QCOMPARE(told_, (QStringList{"down CapsLock", "up CapsLock", "down Down", "up Down",
                                     "down B", "up B"}));
    }

private:
    static class Application& Application() { return *static_cast<class Application*>(qApp); }

    QStringList told_;
};

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::ApplicationTest)

#include "ApplicationTest.moc"
