// The windows that show pages and pictures: help, recommendations, the random picture, the lesson's
// note and what is told about the program.
#include "course/Notes.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmImage.h"
#include "shell/forms/frmViewRecommands.h"
#include "shell/platform/TextConversion.h"

#include "tests/shell/forms/FitCheck.h"
#include "tests/shell/forms/FormMakers.h"

#include <QImage>

namespace keyfluent::shell
{

class PagesFormTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void EveryPageHasItsTitleTextAndPictures_data();
    void EveryPageHasItsTitleTextAndPictures();
    void PagesAreTurnedFromTheFirstToTheLastAndBack_data();
    void PagesAreTurnedFromTheFirstToTheLastAndBack();
    void ThePageStaysWhenTheViewerCloses();
    void EveryPictureStandsInItsFrame();
    void CaptionsOfPictures_data();
    void CaptionsOfPictures();
    void CaptionsStandClearOfWhatThePictureShows();
    void ThePictureClosesByAClickOrEscape_data();
    void ThePictureClosesByAClickOrEscape();
    void NoOtherKeyClosesThePicture();
    void TheLessonsNoteBlinksUntilThePointerComes();
    void TheFaceFollowsThePointerWhileTheButtonIsHeld();
    void TheLessonsNoteIsAsHighAsItsText();
    void TheAboutWindowLeadsToMoreAndClosesAnywhere();
    void TheDesktopsToolIsStartedOrItsAbsenceTold();
};

namespace
{

struct PageRow {
    bool recommendation;
    int page;
    const char16_t* title;
    // Up to two pictures: control, number, left and top in twips; left -1 is the middle.
    struct {
        const char* control;
        int bitmap;
        int left;
        int top;
    } pictures[2];
};

constexpr PageRow pages[] = {
    {false, 1, u"1 - المبادئ", {}},
    {false, 2, u"2 - طريقة الاستعمال", {}},
    {false, 3, u"3 - قائمة أوامر الدروس", {}},
    {false, 4, u"4 - اختيار التمرين", {{"imgIcon", 109, 430, 470}}},
    {false, 5, u"5 - تنفيذ التمرين (أ)", {}},
    {false, 6, u"6 - تنفيذ التمرين (ب)", {}},
    {false,
     7,
     u"7 - استراحة / متابعة",
     {{"imgIcon", 200, 730, 1190}, {"imgIcon2", 202, 730, 4790}}},
    {false, 8, u"8 - توقيف", {{"imgIcon", 106, 730, 1190}}},
    {false, 9, u"9 - التالي/السابق", {{"imgIcon", 132, 730, 2390}, {"imgIcon2", 129, 730, 4790}}},
    {false, 10, u"10 - تكرار", {{"imgIcon", 135, 580, 1190}}},
    {false, 11, u"11 - إيقاف", {}},
    {true, 1, u"1 - طريقة العمل", {}},
    {true, 2, u"2 - المفاتيح والأصابع", {{"imgKeysHands", 146, -1, 1020}}},
    {true, 3, u"3 - وضعية الأصابع", {{"imgKeysHands", 148, -1, 2040}}},
    {true, 4, u"4 - نقر المفاتيح", {}},
    {true, 5, u"5 - وضعية الجلوس", {}},
    {true, 6, u"6 - التمرين الذهني", {}},
};

void SetPage(World& world, bool recommendation, int page)
{
    world.state().helpMode = recommendation;
    std::uint8_t& current = recommendation ? world.state().recommendPage : world.state().helpPage;
    current = static_cast<std::uint8_t>(page);
}

void CheckPage(const QWidget& window, const PageRow& row)
{
    QCOMPARE(Label(window, "lblTitle").text(), QString::fromUtf16(row.title));
    QCOMPARE(window.windowTitle(), QString::fromUtf16(row.title));
    const QString text = LabelText(row.recommendation ? course::RecommendationText(row.page)
                                                      : course::HelpText(row.page));
    QVERIFY(!text.isEmpty());
    QCOMPARE(Label(window, "lblhelp").text(), text);
    QCOMPARE(Label(window, "lblhelp").layoutDirection(), Qt::RightToLeft);
    for (const char* control : {"imgKeysHands", "imgIcon", "imgIcon2"}) {
        bool told = false;
        for (const auto& picture : row.pictures) {
            if (picture.control == nullptr || qstrcmp(picture.control, control) != 0) {
                continue;
            }
            told = true;
            const ImageControl& image = Picture(window, control);
            QCOMPARE(image.Bitmap(), picture.bitmap);
            const int left =
                picture.left < 0 ? (window.width() - image.width()) / 2 : picture.left / 15;
            QCOMPARE(image.pos(), QPoint(left, picture.top / 15));
        }
        QCOMPARE(Shows(window, control), told);
    }
    QCOMPARE(Shows(window, "lblB"), row.recommendation && row.page == 2);
    const int last = row.recommendation ? 6 : 11;
    for (const char* next : {"cmdNext", "lblNext"}) {
        QCOMPARE(Shows(window, next), row.page < last);
    }
    for (const char* back : {"cmdBack", "lblBack"}) {
        QCOMPARE(Shows(window, back), row.page > 1);
    }
}

} // namespace

void PagesFormTest::EveryPageHasItsTitleTextAndPictures_data()
{
    QTest::addColumn<bool>("arabic");
    QTest::newRow("English") << false;
    QTest::newRow("Arabic") << true;
}

void PagesFormTest::EveryPageHasItsTitleTextAndPictures()
{
    QFETCH(bool, arabic);
    for (const PageRow& row : pages) {
        World world(arabic);
        SetPage(world, row.recommendation, row.page);
        const frmViewRecommands window(world.program());
        CheckPage(window, row);
    }
}

void PagesFormTest::PagesAreTurnedFromTheFirstToTheLastAndBack_data()
{
    QTest::addColumn<bool>("recommendation");
    QTest::newRow("help") << false;
    QTest::newRow("recommendations") << true;
}

void PagesFormTest::PagesAreTurnedFromTheFirstToTheLastAndBack()
{
    QFETCH(bool, recommendation);
    World world;
    SetPage(world, recommendation, 1);
    QList<const PageRow*> rows;
    for (const PageRow& row : pages) {
        if (row.recommendation == recommendation) {
            rows << &row;
        }
    }
    Script script(world);
    script.At("frmViewRecommands", [&](QWidget& window) {
        for (qsizetype i = 0; i < rows.size(); ++i) {
            CheckPage(window, *rows[i]);
            if (i + 1 < rows.size()) {
                shell::Click(window, i % 2 == 0 ? "cmdNext" : "lblNext");
            }
        }
        // The button of the last page is hidden, and its handler tests again.
        Picture(window, "cmdNext").show();
        shell::Click(window, "cmdNext");
        Picture(window, "cmdNext").hide();
        CheckPage(window, *rows.back());
        for (qsizetype i = rows.size() - 1; i > 0; --i) {
            shell::Click(window, i % 2 == 0 ? "cmdBack" : "lblBack");
            CheckPage(window, *rows[i - 1]);
        }
        shell::Click(window, "cmdThank");
    });
    QVERIFY2(script.Run([&] { world.program().Show<frmViewRecommands>(); }), script.Report());
}

void PagesFormTest::ThePageStaysWhenTheViewerCloses()
{
    World world;
    SetPage(world, false, 4);
    Script script(world);
    script.At("frmViewRecommands", [](QWidget& window) {
        shell::Click(window, "cmdNext");
        RequestClose(window);
    });
    QVERIFY2(script.Run([&] { world.program().Show<frmViewRecommands>(); }), script.Report());
    QCOMPARE(world.state().helpPage, 5);
}

void PagesFormTest::EveryPictureStandsInItsFrame()
{
    for (int bitmap = 138; bitmap <= 157; ++bitmap) {
        World world;
        world.Draw(bitmap, 138, 157);
        frmImage window(world.program());
        const ImageControl& image = Picture(window, "Image1");
        QCOMPARE(image.Bitmap(), bitmap);
        const QSize size = QImage(QStringLiteral(":/pictures/%1.png").arg(bitmap)).size();
        QVERIFY(!size.isEmpty());
        QCOMPARE(image.size(), size);
        const bool pad = bitmap == 147;
        QCOMPARE(image.pos(), QPoint(20 + (pad ? 69 : 0), 20));         // 300 and 1035 twips
        QCOMPARE(window.size(), size + QSize(40 + (pad ? 70 : 0), 40)); // 600 and 1050 twips
        QCOMPARE(Shows(window, "lblT1"), bitmap >= 146 && bitmap <= 148);
    }
}

void PagesFormTest::CaptionsOfPictures_data()
{
    QTest::addColumn<int>("bitmap");
    QTest::addColumn<QString>("caption");
    QTest::newRow("fingers and keys") << 146 << QStringLiteral("توافق الأصابع والمفاتيح");
    QTest::newRow("number pad") << 147
                                << QStringLiteral(
                                       "توافق الأصابع مع المفاتحيح الخاصة بلوحة الأرقام");
    QTest::newRow("guide row") << 148 << QStringLiteral("صف الارتكاز");
}

void PagesFormTest::CaptionsOfPictures()
{
    QFETCH(int, bitmap);
    QFETCH(QString, caption);
    for (const bool arabic : {false, true}) {
        World world(arabic);
        world.Draw(bitmap, 138, 157);
        frmImage window(world.program());
        const TextLabel& label = Label(window, "lblT1");
        QCOMPARE(label.text(), caption);
        QCOMPARE(label.layoutDirection(), Qt::RightToLeft);
        const QRect ink = InkOf(label).boundingRect();
        if (bitmap == 147) {
            QVERIFY(ink.right() < Picture(window, "Image1").x());
            QVERIFY(ink.left() >= 2);
            QVERIFY(label.geometry().right() - ink.right() <= 3); // at the right side
        } else {
            QCOMPARE(label.y(), window.height() - (bitmap == 146 ? 750 : 500) / 15);
            QVERIFY(std::abs(ink.center().x() - window.width() / 2) <= 2);
        }
    }
}

void PagesFormTest::ThePictureClosesByAClickOrEscape_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("the picture") << 0;
    QTest::newRow("the window") << 1;
    QTest::newRow("Escape") << 2;
    QTest::newRow("Space") << 3; // for those without a mouse
    QTest::newRow("close request") << 4;
}

void PagesFormTest::ThePictureClosesByAClickOrEscape()
{
    QFETCH(int, way);
    World world;
    Script script(world);
    script.At("frmImage", [way](QWidget& window) {
        const QPoint bare(5, 5);
        switch (way) {
        case 0:
            return shell::Click(window, "Image1");
        case 1:
            ReleaseAt(window, bare); // belongs to the window before
            QVERIFY(window.isVisible());
            PressAt(window, bare);
            QVERIFY(window.isVisible());
            return ReleaseAt(window, bare);
        case 2:
            return Key(window, Qt::Key_Escape);
        case 3:
            return Key(window, Qt::Key_Space);
        default:
            return RequestClose(window);
        }
    });
    QVERIFY2(script.Run([&] { world.program().Show<frmImage>(); }), script.Report());
}

void PagesFormTest::NoOtherKeyClosesThePicture()
{
    World world;
    Script script(world);
    script.At("frmImage", [](QWidget& window) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_A, Qt::Key_F1,
                                  Qt::Key_Backspace, Qt::Key_Tab}) {
            Key(window, key);
            QVERIFY(window.isVisible());
        }
        Key(window, Qt::Key_Escape);
    });
    QVERIFY2(script.Run([&] { world.program().Show<frmImage>(); }), script.Report());
}

void PagesFormTest::TheLessonsNoteBlinksUntilThePointerComes()
{
    World world;
    Script script(world);
    script.At("frmLessonDescription", [&](QWidget& window) {
        const ImageControl& thank = Picture(window, "cmdThank");
        const QTimer& timer = *window.findChild<QTimer*>(QStringLiteral("Timer1"));
        QCOMPARE(timer.interval(), 700);
        QCOMPARE(thank.Bitmap(), 102);
        QTRY_COMPARE_WITH_TIMEOUT(thank.Bitmap(), 103, 1000);
        QTRY_COMPARE_WITH_TIMEOUT(thank.Bitmap(), 102, 1000);
        MoveOver(window, "lblThank");
        QCOMPARE(thank.Bitmap(), 103);
        QVERIFY(!timer.isActive());
        PassTime(800);
        QCOMPARE(thank.Bitmap(), 103);
        MoveTo(window, {5, 40});
        QCOMPARE(thank.Bitmap(), 102);
        QVERIFY(timer.isActive());
        world.program().End();
    });
    QVERIFY2(
        script.Run([&] { world.program().ShowModal(MakeForm(world, "frmLessonDescription")); }),
        script.Report());
}

void PagesFormTest::TheFaceFollowsThePointerWhileTheButtonIsHeld()
{
    World world;
    Script script(world);
    script
        .At("frmLessonDescription",
            [](QWidget& window) {
                const ImageControl& thank = Picture(window, "cmdThank");
                const QPoint middle = MiddleOf(window, "cmdThank");
                MoveTo(window, middle);
                PressAt(window, middle);
                QTest::mouseMove(window.windowHandle(), QPoint(8, 40));
                QCOMPARE(thank.Bitmap(), 102);
                QTest::mouseMove(window.windowHandle(), middle);
                QCOMPARE(thank.Bitmap(), 103);
                QTest::mouseMove(window.windowHandle(), QPoint(8, 40));
                ReleaseAt(window, {8, 40});
                QVERIFY(window.isVisible());
                shell::Click(window, "cmdThank");
            })
        .Press("frmImage", Qt::Key_Escape);
    QVERIFY2(
        script.Run([&] { world.program().ShowModal(MakeForm(world, "frmLessonDescription")); }),
        script.Report());
}

void PagesFormTest::TheLessonsNoteIsAsHighAsItsText()
{
    for (std::uint8_t lesson = 1; lesson <= 15; ++lesson) {
        World world;
        world.state().lessonNo = lesson;
        const std::unique_ptr<Form> window = MakeForm(world, "frmLessonDescription");
        const int height = Label(*window, "lblDescription").height() + 106; // 1600 twips
        QCOMPARE(window->height(), height);
        const ImageControl& thank = Picture(*window, "cmdThank");
        QCOMPARE(thank.y(), height - 46); // 700 twips
        QCOMPARE(thank.x(), (window->width() - 115) / 2);
        QCOMPARE(Label(*window, "lblThank").geometry(), thank.geometry());
    }
}

void PagesFormTest::TheAboutWindowLeadsToMoreAndClosesAnywhere()
{
    for (const char* button : {"imgOK", "lblOK"}) {
        World world;
        Script script(world);
        script.Click("frmAbout", button)
            .At("frmMore",
                [](QWidget& window) {
                    PressAt(window, {40, 80});
                })
            .At("frmAbout", [](QWidget& window) {
                QCOMPARE(Picture(window, "Image1").Bitmap(), 205);
                PressAt(window, {4, 100});
                QVERIFY(!window.isVisible());
            });
        QVERIFY2(script.Run([&] { world.program().ShowModal(MakeForm(world, "frmAbout")); }),
                 script.Report());
    }
}

void PagesFormTest::TheDesktopsToolIsStartedOrItsAbsenceTold()
{
    for (const bool found : {false, true}) {
        World world;
        world.hasSystemTool = found;
        Script script(world);
        script.At("frmAbout", [](QWidget& window) {
            shell::Click(window, "imgCansel");
            shell::Click(window, "lblCansel");
            QVERIFY(window.isVisible());
            shell::Click(window, "Image1");
        });
        QVERIFY2(script.Run([&] { world.program().ShowModal(MakeForm(world, "frmAbout")); }),
                 script.Report());
        QCOMPARE(world.toolStarts, 2);
        const QString absent = QStringLiteral("System Information Is Unavailable At This Time");
        QCOMPARE(world.messages, found ? QStringList() : QStringList({absent, absent}));
    }
}

void PagesFormTest::CaptionsStandClearOfWhatThePictureShows()
{
    constexpr int air = 3; // pixels
    for (const int bitmap : {146, 147, 148}) {
        World world;
        world.Draw(bitmap, 138, 157);
        frmImage window(world.program());
        const ImageControl& picture = Picture(window, "Image1");
        const QRect caption = InkOf(Label(window, "lblT1")).boundingRect();
        const QRect beneath =
            caption.adjusted(-air, -air, air, air).translated(-picture.pos()) & picture.rect();
        const QImage shown(QStringLiteral(":/pictures/%1.png").arg(bitmap));
        for (int y = beneath.top(); y <= beneath.bottom(); ++y) {
            for (int x = beneath.left(); x <= beneath.right(); ++x) {
                QCOMPARE(shown.pixel(x, y), shown.pixel(beneath.topLeft()));
            }
        }
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::PagesFormTest)

#include "PagesFormTest.moc"
