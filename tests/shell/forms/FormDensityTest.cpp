// The windows on a screen of twice the density: everything in its place, and everything sharp.
#include "shell/base/Boxes.h"
#include "shell/base/ImageControl.h"
#include "shell/base/Pictures.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FitCheck.h"
#include "tests/shell/forms/FormMakers.h"

#include <QMenuBar>
#include <QPainter>

namespace keyfluent::shell
{

class FormDensityTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void TheScreenIsDense();
    void WindowsKeepTheirSizesAndHaveRoom_data();
    void WindowsKeepTheirSizesAndHaveRoom();
    void PicturesAreShownAtTheScreensDensity();
    void TextsAreDrawnAtTheScreensDensity();
    void StripesStayWholePixelsOfTheLayout();
    void FramesAreTheOutermostPixels();
    void SignsOfMessagesAreDrawnAtTheScreensDensity_data();
    void SignsOfMessagesAreDrawnAtTheScreensDensity();
    void TheBackdropIsAsSharpAsTheScreen_data();
    void TheBackdropIsAsSharpAsTheScreen();
};

namespace
{

// How much finer than pixels of the layout the details of a picture are: pairs of device pixels
// that make one pixel of the layout and differ.
int FineDetails(const QImage& dense)
{
    int details = 0;
    for (int y = 0; y + 1 < dense.height(); y += 2) {
        for (int x = 0; x + 1 < dense.width(); x += 2) {
            details += dense.pixel(x, y) != dense.pixel(x + 1, y) ? 1 : 0;
        }
    }
    return details;
}

} // namespace

void FormDensityTest::TheScreenIsDense()
{
    World world;
    const std::unique_ptr<Form> window = MakeForm(world, "frmNotAllowed");
    QCOMPARE(window->devicePixelRatioF(), 2.0);
    QCOMPARE(window->grab().size(), 2 * window->size());
}

void FormDensityTest::WindowsKeepTheirSizesAndHaveRoom_data()
{
    QTest::addColumn<bool>("arabic");
    QTest::newRow("English") << false;
    QTest::newRow("Arabic") << true;
}

void FormDensityTest::WindowsKeepTheirSizesAndHaveRoom()
{
    QFETCH(bool, arabic);
    for (const FormMaker& maker : FormMakers()) {
        World world(arabic);
        PlaceStudent(world);
        const std::unique_ptr<Form> window = maker.make(world);
        const QByteArray faults = FaultsOfFit(*window, "lblT1");
        QVERIFY2(faults.isEmpty(), QByteArray(maker.name + (":\n" + faults)).constData());
        for (const ImageControl* image : window->findChildren<ImageControl*>()) {
            if (image->Bitmap() != 0) {
                const QImage single(QStringLiteral(":/pictures/%1.png").arg(image->Bitmap()));
                QCOMPARE(image->size(), single.size());
            }
        }
    }
}

void FormDensityTest::PicturesAreShownAtTheScreensDensity()
{
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "DlgWelcome");
    const ImageControl& image = Picture(*window, "imgIcon");
    const QRect place(2 * image.pos(), 2 * image.size());
    const QImage shown = window->grab().toImage().copy(place);
    QImage expected = shown;
    expected.setDevicePixelRatio(1);
    QImage dense(QStringLiteral(":/pictures/104@2x.png"));
    dense.setDevicePixelRatio(1); // told by the file's name
    QCOMPARE(dense.size(), place.size());
    QPainter painter(&expected);
    painter.drawImage(0, 0, dense); // over itself: where it is opaque nothing may change
    painter.end();
    int differing = 0;
    for (int y = 0; y < dense.height(); ++y) {
        for (int x = 0; x < dense.width(); ++x) {
            differing +=
                qAlpha(dense.pixel(x, y)) == 255 && shown.pixel(x, y) != expected.pixel(x, y) ? 1
                                                                                              : 0;
        }
    }
    QCOMPARE(differing, 0);
    QVERIFY(FineDetails(dense) > 200);
}

void FormDensityTest::TextsAreDrawnAtTheScreensDensity()
{
    World world;
    const std::unique_ptr<Form> window = MakeForm(world, "frmNotAllowed");
    const TextLabel& label = Label(*window, "lblText");
    const QImage shown = window->grab().toImage().copy(QRect(2 * label.pos(), 2 * label.size()));
    QVERIFY(FineDetails(shown) > 200);
}

void FormDensityTest::StripesStayWholePixelsOfTheLayout()
{
    World world;
    const std::unique_ptr<Form> window = MakeForm(world, "frmNotAllowed");
    const QImage shot = window->grab().toImage();
    constexpr QRgb stripes[] = {0xFFF4F4F4, 0xFFFFFFFF, 0xFFF3F3F3, 0xFFEEEEEE};
    for (int y = 60; y < shot.height() - 4; ++y) {
        QCOMPARE(shot.pixel(5, y), stripes[y / 2 % 4]);
    }
}

void FormDensityTest::FramesAreTheOutermostPixels()
{
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "frmNotAllowed");
    const QImage shot = window->grab().toImage();
    const int right = shot.width() - 1;
    const int bottom = shot.height() - 1;
    for (int y = 0; y <= bottom; ++y) {
        for (const int x : {0, 1, right - 1, right}) {
            QCOMPARE(shot.pixel(x, y), qRgb(0, 0, 0));
        }
    }
    for (int x = 0; x <= right; ++x) {
        for (const int y : {0, 1, bottom - 1, bottom}) {
            QCOMPARE(shot.pixel(x, y), qRgb(0, 0, 0));
        }
    }
    QVERIFY(shot.pixel(right - 2, 80) != qRgb(0, 0, 0));
    QVERIFY(shot.pixel(2, 80) != qRgb(0, 0, 0));
}

void FormDensityTest::SignsOfMessagesAreDrawnAtTheScreensDensity_data()
{
    QTest::addColumn<int>("icon");
    QTest::newRow("critical") << int(QMessageBox::Critical);
    QTest::newRow("information") << int(QMessageBox::Information);
}

void FormDensityTest::SignsOfMessagesAreDrawnAtTheScreensDensity()
{
    QFETCH(int, icon);
    const auto box = MakeMessage(static_cast<QMessageBox::Icon>(icon), QStringLiteral("Text"));
    const QPixmap sign = box->iconPixmap();
    QCOMPARE(sign.devicePixelRatio(), 2.0);
    // Enlarged ones would be of pairs of pixels that are alike.
    QVERIFY(FineDetails(sign.toImage()) > 30);
}

void FormDensityTest::TheBackdropIsAsSharpAsTheScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("800 x 600") << QSize(800, 600);
    QTest::newRow("1280 x 800") << QSize(1280, 800);
    QTest::newRow("1920 x 1080") << QSize(1920, 1080); // 3840 x 2160 device pixels
}

void FormDensityTest::TheBackdropIsAsSharpAsTheScreen()
{
    QFETCH(QSize, size);
    World world;
    frmBlack& main = world.SignIn();
    main.showNormal();
    main.resize(size);
    QTRY_COMPARE(main.size(), size);
    const QImage shot = main.grab().toImage();
    QCOMPARE(shot.size(), 2 * size);
    const int menu = main.findChild<QMenuBar*>()->height();
    const QImage picture = shot.copy(0, 2 * menu, shot.width(), shot.height() - 2 * menu - 258);
    // Not a picture of half the size blown up: the lines of its pattern are finer.
    QVERIFY(FineDetails(picture) > picture.width() * picture.height() / 100);
    QCOMPARE(Picture(main, "imgExercise").pos(), QPoint(10, size.height() - 127));
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN_AT(keyfluent::shell::FormDensityTest, 2)

#include "FormDensityTest.moc"
