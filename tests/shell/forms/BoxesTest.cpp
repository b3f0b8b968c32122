// The boxes that are the toolkit's own: which way they read, and what they begin with.
#include "shell/base/Boxes.h"

#include "tests/shell/forms/FormsHarness.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>

namespace keyfluent::shell
{

class BoxesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void AMessageReadsTheWayOfItsText_data();
    void AMessageReadsTheWayOfItsText();
    void AMessageShowsItsTextAsItIs();
    void OKClosesAMessage();
    void TheColourDialogBeginsWithTheColourGiven();
    void ACancelledColourIsNone();
};

void BoxesTest::AMessageReadsTheWayOfItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("caption");
    QTest::newRow("English") << QStringLiteral("Zen Orchard KeyFluent 1.0 is already running!")
                             << Qt::LeftToRight << QStringLiteral("OK");
    QTest::newRow("Arabic") << QStringLiteral(
                                   "لا تستطيع تشغيل اكثر من نسخة من برنامج كي فلونت 1,0.")
                            << Qt::RightToLeft << QStringLiteral("موافق");
}

void BoxesTest::AMessageReadsTheWayOfItsText()
{
    QFETCH(QString, text);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QString, caption);
    const auto box = MakeMessage(QMessageBox::Critical, text);
    QCOMPARE(box->layoutDirection(), direction);
    QCOMPARE(box->text(), text);
    QCOMPARE(box->windowTitle(), QString());
    QCOMPARE(box->icon(), QMessageBox::Critical);
    QCOMPARE(box->buttons().size(), 1);
    QCOMPARE(box->buttons().first()->text(), caption);
    // The icon stands where the text begins.
    box->show();
    const auto* icon = box->findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
    const auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    QCOMPARE(icon->x() > label->x(), direction == Qt::RightToLeft);
}

void BoxesTest::AMessageShowsItsTextAsItIs()
{
    const auto box = MakeMessage(QMessageBox::Critical, QStringLiteral("<b>a & b</b>"));
    QCOMPARE(box->textFormat(), Qt::PlainText);
}

void BoxesTest::OKClosesAMessage()
{
    bool seen = false;
    QTimer::singleShot(0, this, [&] {
        QWidget* box = QApplication::activeModalWidget();
        seen = box != nullptr;
        QTest::keyClick(box, Qt::Key_Return);
    });
    ShowMessage(QMessageBox::Information, QStringLiteral("System Information"));
    QVERIFY(seen);
}

void BoxesTest::TheColourDialogBeginsWithTheColourGiven()
{
    const QColor colour(0x26, 0x73, 0x7A);
    QColor begun;
    QTimer::singleShot(0, this, [&] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        begun = dialog->currentColor();
        dialog->setCurrentColor(Qt::magenta);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QCOMPARE(PickColour(colour, nullptr), QColor(Qt::magenta));
    QCOMPARE(begun, colour);
}

void BoxesTest::ACancelledColourIsNone()
{
    QTimer::singleShot(0, this,
                       [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    QVERIFY(!PickColour(Qt::red, nullptr).isValid());
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::BoxesTest)

#include "BoxesTest.moc"
