// The diploma: on its window, on a page, and on paper.
#include "shell/Printing.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmDiploma.h"

#include "tests/shell/forms/FitCheck.h"
#include "tests/shell/forms/FormMakers.h"

#include <QDir>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>

namespace keyfluent::shell
{

class DiplomaFormTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void TheWindowShowsItsPictureAndItsTexts();
    void TextsOfTheWindowStandOnTheirLines();
    void TextsAreEnglishInBothInterfaces();
    void ThePageHoldsTheSheetInTheMiddle_data();
    void ThePageHoldsTheSheetInTheMiddle();
    void TheTextsOfThePageStandAtTheirPlaces_data();
    void TheTextsOfThePageStandAtTheirPlaces();
    void TextsThatAreTooLongAreCentredAllTheSame();
    void EveryCopyIsAPageOfThePdf_data();
    void EveryCopyIsAPageOfThePdf();
    void ThePdfLooksLikeThePage();
    void AFailingPrinterIsPassedOver();
    void TheWindowClosesAfterPrinting_data();
    void TheWindowClosesAfterPrinting();
    void TheOtherButtonPrintsNothing();
    void ThePrintDialogAsksForAFileWhereThereIsNoPrinter();
    void ThePrintDialogCancelledPrintsNothing();
};

namespace
{

constexpr QSize a4Landscape(16838, 11906); // twips
constexpr QSize letterPortrait(12240, 15840);
constexpr QSize sheet(13500, 10500);

progress::DiplomaTexts Texts()
{
    return {u"Layla", u"Date: 14/03/2026", u"- Arabic Win Typing: A -"};
}

// A page at a pixel to fifteen twips.
QImage DrawPage(const progress::DiplomaTexts& texts, QSize page)
{
    QImage image(page / 15, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(1.0 / 15, 1.0 / 15);
    DrawDiplomaPage(painter, texts, page);
    return image;
}

// What differs between two pages.
QRect Difference(const QImage& left, const QImage& right)
{
    QRect found;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y)) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return found;
}

// Blurred, two drawings of one thing are alike everywhere.
bool LookAlike(const QImage& left, const QImage& right)
{
    const QSize coarse(60, 42);
    const auto blurred = [&coarse](const QImage& image) {
        return image.scaled(coarse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage first = blurred(left);
    const QImage second = blurred(right);
    int most = 0;
    for (int y = 0; y < coarse.height(); ++y) {
        for (int x = 0; x < coarse.width(); ++x) {
            most = std::max(most, std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x, y))));
        }
    }
    return most < 24;
}

// Where one of the three texts stands on the page, in pixels.
QRect PlaceOf(std::u16string progress::DiplomaTexts::*text, const progress::DiplomaTexts& texts,
              QSize page)
{
    progress::DiplomaTexts without = texts;
    (without.*text).clear();
    return Difference(DrawPage(texts, page), DrawPage(without, page));
}

QList<QImage> PagesOfPdf(const QString& folder, const QString& file)
{
    QProcess render;
    render.start(QStringLiteral("pdftoppm"),
                 {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-png"), file,
                  folder + QStringLiteral("/page")});
    if (!render.waitForFinished() || render.exitCode() != 0) {
        qFatal("pdftoppm: %s", render.readAllStandardError().constData());
    }
    QList<QImage> pages;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("page*.png")})) {
        pages << QImage(folder + u'/' + name);
    }
    return pages;
}

QList<QImage> Print(QPageLayout::Orientation orientation, int copies)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("diploma.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(orientation);
    printer.setCopyCount(copies);
    PrintOn(printer,
            [](QPainter& painter, QSize page) { DrawDiplomaPage(painter, Texts(), page); });
    return PagesOfPdf(folder.path(), file);
}

void AddPages()
{
    QTest::addColumn<QSize>("page");
    QTest::newRow("A4, landscape") << a4Landscape;
    QTest::newRow("letter, portrait") << letterPortrait; // narrower than the sheet
}

} // namespace

void DiplomaFormTest::TheWindowShowsItsPictureAndItsTexts()
{
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "frmDiploma");
    QCOMPARE(window->size(), QSize(700, 567));
    for (const char* name : {"lblName", "lblCourse", "lblDate", "lblPrint", "lblCansel"}) {
        Label(*window, name).hide();
    }
    Picture(*window, "cmdPrint").hide();
    Picture(*window, "cmdCansel").hide();
    const QImage picture(QStringLiteral(":/pictures/1125.png"));
    QCOMPARE(picture.size(), QSize(700, 567));
    QCOMPARE(window->grab().toImage().convertToFormat(QImage::Format_RGB32),
             picture.convertToFormat(QImage::Format_RGB32));
}

void DiplomaFormTest::TextsOfTheWindowStandOnTheirLines()
{
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "frmDiploma");
    for (const char* name : {"lblName", "lblCourse"}) {
        const QRect ink = InkOf(Label(*window, name)).boundingRect();
        QVERIFY(std::abs(ink.center().x() - window->width() / 2) <= 2);
    }
    const int name = InkOf(Label(*window, "lblName")).boundingRect().bottom();
    const int course = InkOf(Label(*window, "lblCourse")).boundingRect().bottom();
    const int date = InkOf(Label(*window, "lblDate")).boundingRect().bottom();
    QVERIFY(name < course && course < date);
}

void DiplomaFormTest::TextsAreEnglishInBothInterfaces()
{
    World world(true);
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "frmDiploma");
    for (const char* name : {"lblName", "lblCourse", "lblDate"}) {
        QCOMPARE(Label(*window, name).layoutDirection(), Qt::LeftToRight);
    }
}

void DiplomaFormTest::ThePageHoldsTheSheetInTheMiddle_data()
{
    AddPages();
}

void DiplomaFormTest::ThePageHoldsTheSheetInTheMiddle()
{
    QFETCH(QSize, page);
    const QImage image = DrawPage({}, page);
    const QImage expected(QStringLiteral(":/pictures/1126.png"));
    QCOMPARE(expected.size(), QSize(900, 700));
    QImage blank(image.size(), QImage::Format_RGB32);
    blank.fill(Qt::white);
    const QPoint corner((page.width() - sheet.width()) / 2 / 15,
                        (page.height() - sheet.height()) / 2 / 15);
    const QRect drawn = Difference(image, blank);
    const QRect expectedPlace = QRect(corner, expected.size()).intersected(image.rect());
    QVERIFY(expectedPlace.adjusted(-1, -1, 1, 1).contains(drawn));
    QVERIFY(drawn.contains(expectedPlace.adjusted(1, 1, -1, -1)));
    const QImage cut = expected.copy(expectedPlace.translated(-corner));
    QVERIFY(LookAlike(image.copy(expectedPlace), cut));
}

void DiplomaFormTest::TheTextsOfThePageStandAtTheirPlaces_data()
{
    AddPages();
}

void DiplomaFormTest::TheTextsOfThePageStandAtTheirPlaces()
{
    QFETCH(QSize, page);
    const int top = (page.height() - sheet.height()) / 2;
    const int left = (page.width() - sheet.width()) / 2;
    const auto check = [&](const QRect& found, int y, int points) {
        // Below its top and within its line.
        QVERIFY(found.top() >= y / 15);
        QVERIFY(found.bottom() <= (y + points * 20 * 2) / 15);
        QVERIFY(found.height() >= points * 20 / 15 / 2);
    };
    const progress::DiplomaTexts texts = Texts();
    const QRect name = PlaceOf(&progress::DiplomaTexts::name, texts, page);
    check(name, top + 6450, 20);
    QVERIFY(std::abs(name.center().x() - page.width() / 30) <= 2);
    const QRect course = PlaceOf(&progress::DiplomaTexts::course, texts, page);
    check(course, top + 6450 + 1710, 14);
    QVERIFY(std::abs(course.center().x() - page.width() / 30) <= 2);
    const QRect date = PlaceOf(&progress::DiplomaTexts::date, texts, page);
    check(date, top + 6450 + 1710 + 815, 12);
    QVERIFY(std::abs(date.left() - (left + 1980) / 15) <= 2);
}

void DiplomaFormTest::TextsThatAreTooLongAreCentredAllTheSame()
{
    progress::DiplomaTexts texts = Texts();
    texts.name = std::u16string(60, u'W');
    const QRect name = PlaceOf(&progress::DiplomaTexts::name, texts, a4Landscape);
    QVERIFY(name.left() <= 1); // over both edges
    QVERIFY(name.right() >= a4Landscape.width() / 15 - 2);
}

void DiplomaFormTest::EveryCopyIsAPageOfThePdf_data()
{
    QTest::addColumn<QPageLayout::Orientation>("orientation");
    QTest::addColumn<int>("copies");
    QTest::newRow("one, landscape") << QPageLayout::Landscape << 1;
    QTest::newRow("three, landscape") << QPageLayout::Landscape << 3;
    QTest::newRow("two, portrait") << QPageLayout::Portrait << 2;
}

void DiplomaFormTest::EveryCopyIsAPageOfThePdf()
{
    QFETCH(QPageLayout::Orientation, orientation);
    QFETCH(int, copies);
    const QList<QImage> pages = Print(orientation, copies);
    QCOMPARE(pages.size(), copies);
    for (const QImage& page : pages) {
        QCOMPARE(page.width() > page.height(), orientation == QPageLayout::Landscape);
        QCOMPARE(page, pages.front());
    }
}

void DiplomaFormTest::ThePdfLooksLikeThePage()
{
    const QImage printed = Print(QPageLayout::Landscape, 1).front();
    const QImage expected = DrawPage(Texts(), a4Landscape).scaled(printed.size());
    QCOMPARE(printed.size().width() / 10, a4Landscape.width() / 150);
    QVERIFY(LookAlike(printed, expected));
    QVERIFY(!LookAlike(printed, expected.mirrored(true, false)));
}

void DiplomaFormTest::AFailingPrinterIsPassedOver()
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QStringLiteral("/nowhere/at/all/diploma.pdf"));
    int pages = 0;
    PrintOn(printer, [&pages](QPainter&, QSize) { ++pages; });
    QCOMPARE(pages, 0);
}

void DiplomaFormTest::TheWindowClosesAfterPrinting_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("cancelled");
    for (const char* button : {"cmdPrint", "lblPrint"}) {
        QTest::addRow("%s, printed", button) << QByteArray(button) << false;
        QTest::addRow("%s, cancelled", button) << QByteArray(button) << true;
    }
}

void DiplomaFormTest::TheWindowClosesAfterPrinting()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, cancelled);
    World world;
    world.SignIn();
    PlaceStudent(world);
    QImage printed;
    if (!cancelled) {
        world.printer = [&](const std::function<void(QPainter&, QSize)>& drawPage) {
            printed = QImage(a4Landscape / 15, QImage::Format_RGB32);
            printed.fill(Qt::white);
            QPainter painter(&printed);
            painter.scale(1.0 / 15, 1.0 / 15);
            drawPage(painter, a4Landscape);
        };
    }
    world.state().studentTable.Record(1)[1] = 100;
    world.program().MainWindow()->Activate();
    Script script(world);
    script.Choose("mnuFileViewDiploma").Click("frmDiploma", button.constData());
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.printDialogs, 1);
    QVERIFY(world.messages.isEmpty() && world.criticals.isEmpty());
    if (!cancelled) {
        QCOMPARE(printed, DrawPage({u"Layla", u"Date: 14/03/2026",
                                    u"- Arabic Win Typing: A - - English Win Typing: B -"},
                                   a4Landscape));
    }
}

void DiplomaFormTest::TheOtherButtonPrintsNothing()
{
    for (const char* button : {"cmdCansel", "lblCansel", "close"}) {
        World world;
        PlaceStudent(world);
        Script script(world);
        script.At("frmDiploma", [button](QWidget& window) {
            qstrcmp(button, "close") == 0 ? RequestClose(window) : shell::Click(window, button);
        });
        QVERIFY2(script.Run([&] { world.program().ShowModal(MakeForm(world, "frmDiploma")); }),
                 script.Report());
        QCOMPARE(world.printDialogs, 0);
    }
}

namespace
{

// Opens the desktop's print dialog and lets act answer it. Returns how many pages were drawn.
int AnswerPrintDialog(const std::function<void(QPrintDialog&)>& act)
{
    int pages = 0;
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
            looks.stop();
            act(*dialog);
        }
    });
    looks.start(5);
    PrintPages(nullptr, [&pages](QPainter& painter, QSize page) {
        ++pages;
        DrawDiplomaPage(painter, Texts(), page);
    });
    return pages;
}

} // namespace

void DiplomaFormTest::ThePrintDialogAsksForAFileWhereThereIsNoPrinter()
{
    qputenv("CUPS_SERVER", "/nowhere/at/all");
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("diploma.pdf"));
    const int pages = AnswerPrintDialog([&file](QPrintDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
        QVERIFY(name != nullptr);
        name->setText(file);
        auto* copies = dialog.findChild<QSpinBox*>(QStringLiteral("copies"));
        QVERIFY(copies != nullptr);
        copies->setValue(2);
        dialog.accept();
    });
    QCOMPARE(pages, 2);
    const QList<QImage> printed = PagesOfPdf(folder.path(), file);
    QCOMPARE(printed.size(), 2);
    QVERIFY2(printed.front().width() > printed.front().height(), "across, as the sheet is");
}

void DiplomaFormTest::ThePrintDialogCancelledPrintsNothing()
{
    qputenv("CUPS_SERVER", "/nowhere/at/all");
    QCOMPARE(AnswerPrintDialog([](QPrintDialog& dialog) { dialog.reject(); }), 0);
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::DiplomaFormTest)

#include "DiplomaFormTest.moc"
