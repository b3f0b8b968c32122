// The two languages of a window: which side things stand on and which way texts read.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"

#include "tests/shell/forms/FitCheck.h"
#include "tests/shell/forms/FormMakers.h"

#include <QLineEdit>

namespace keyfluent::shell
{

class FormMirrorTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void ControlsStandOnTheOtherSideInArabic_data();
    void ControlsStandOnTheOtherSideInArabic();
    void TextsBeginAtTheSideOfTheirLanguage_data();
    void TextsBeginAtTheSideOfTheirLanguage();
    void TitlesAndCaptionsAreCentred();
    void FieldsReadInTheLanguageOfTheInterface();
    void ChecksOfTheOptionsStandInRows();
    void TheAnagramsBoxStandsWhereItIsTold();
    void TheChoosersColumnsStayAndTheirCellsTurn();
    void TheToolkitMirrorsNothingByItself();
    void TheLessonsNoteReadsAsArabicAtTheSideOfTheInterface();
    void ANameOnTheDiplomaReadsTheWayOfItsLetters();
    void NamesArePlainTextWhateverTheyHold();
    void FieldsKeepTheirTextFromTheirEdges();
};

namespace
{

QRect PlaceIn(const QWidget& window, const QWidget& control)
{
    return {control.mapTo(&window, QPoint(0, 0)), control.size()};
}

// Where a control of a window stands in the other language.
QRect Mirror(const QRect& place, int width)
{
    return {width - place.left() - place.width(), place.top(), place.width(), place.height()};
}

struct BothLanguages {
    explicit BothLanguages(const char* name) : english(false), arabic(true)
    {
        for (World* world : {&english, &arabic}) {
            PlaceStudent(*world);
            // A text of one height in both languages, where it decides about the window's.
            world->state().studentName = u"Layla";
        }
        inEnglish = MakeForm(english, name);
        inArabic = MakeForm(arabic, name);
    }

    World english;
    World arabic;
    std::unique_ptr<Form> inEnglish;
    std::unique_ptr<Form> inArabic;
};

// Left and right of a label's text, from the label's own edges.
std::pair<int, int> Gaps(const TextLabel& label)
{
    const QRect ink = InkOf(label).boundingRect();
    return {ink.left() - label.geometry().left(), label.geometry().right() - ink.right()};
}

// What a label's text would be if it read from the right or from the left as a whole.
QRegion InkReading(const TextLabel& label, bool rightToLeft, Side side)
{
    TextLabel expected(nullptr);
    expected.setFont(label.font());
    expected.resize(label.size());
    expected.SetRightToLeft(rightToLeft);
    expected.SetSide(side);
    expected.setText(label.text());
    return InkOf(expected);
}

} // namespace

void FormMirrorTest::ControlsStandOnTheOtherSideInArabic_data()
{
    QTest::addColumn<QByteArray>("form");
    for (const char* form :
         {"frmScreen", "frmEName", "DlgWelcome", "frmWelcome", "dlgOptions", "frmNotAllowed",
          "frmResult", "frmPrefs", "frmAbout", "frmLeave", "DlgGBye"}) {
        QTest::newRow(form) << QByteArray(form);
    }
}

void FormMirrorTest::ControlsStandOnTheOtherSideInArabic()
{
    QFETCH(QByteArray, form);
    const BothLanguages both(form.constData());
    const int width = both.inEnglish->width();
    QCOMPARE(both.inArabic->width(), width);
    for (const QWidget* control : both.inEnglish->findChildren<QWidget*>()) {
        const QByteArray name = control->objectName().toLatin1();
        if (name.isEmpty() || name.startsWith("Command") || name == "txtSize") {
            continue; // the last one follows its label's words
        }
        const QRect expected = Mirror(PlaceIn(*both.inEnglish, *control), width);
        const QRect found = PlaceIn(*both.inArabic, Control(*both.inArabic, name.constData()));
        // The heights of texts may differ; a half pixel in the middle of a window too.
        QVERIFY2(std::abs(found.left() - expected.left()) <= 1 && found.width() == expected.width(),
                 (name + ": " + QByteArray::number(found.left()) + " for " +
                  QByteArray::number(expected.left()))
                     .constData());
    }
}

void FormMirrorTest::TextsBeginAtTheSideOfTheirLanguage_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArrayList>("labels");
    using Names = QByteArrayList;
    QTest::newRow("frmScreen") << QByteArray("frmScreen") << Names{"lblText"};
    QTest::newRow("frmEName") << QByteArray("frmEName") << Names{"lblName"};
    QTest::newRow("DlgWelcome") << QByteArray("DlgWelcome") << Names{"lblWelcomeMsg"};
    QTest::newRow("frmWelcome") << QByteArray("frmWelcome") << Names{"lblText"};
    QTest::newRow("frmLessonDescription")
        << QByteArray("frmLessonDescription") << Names{"lblDescription"};
    QTest::newRow("dlgExercise") << QByteArray("dlgExercise")
                                 << Names{"lblPMark", "lblYourSum", "lblSpeedNote"};
    QTest::newRow("dlgOptions") << QByteArray("dlgOptions")
                                << Names{"lblP",       "lblKeys",  "lblHands",
                                         "lblCounter", "lblTimer", "lblSound"};
    QTest::newRow("frmFree") << QByteArray("frmFree") << Names{"lblDesc", "lblKeyboard"};
    QTest::newRow("frmNotAllowed") << QByteArray("frmNotAllowed") << Names{"lblText"};
    QTest::newRow("frmResult") << QByteArray("frmResult") << Names{"lblNote"};
    QTest::newRow("frmPrefs") << QByteArray("frmPrefs")
                              << Names{"lblGeneral", "lblInterface", "lblSystem", "lblHand",
                                       "lblColor",   "lblTrue",      "lblErr",    "lblSize"};
    QTest::newRow("frmLeave") << QByteArray("frmLeave") << Names{"lblString"};
    QTest::newRow("DlgGBye") << QByteArray("DlgGBye") << Names{"lblByeMsg"};
    QTest::newRow("frmLesson") << QByteArray("frmLesson") << Names{"lblChar", "lblResulotion"};
}

void FormMirrorTest::TextsBeginAtTheSideOfTheirLanguage()
{
    QFETCH(QByteArray, form);
    QFETCH(QByteArrayList, labels);
    constexpr int most = 12; // the blanks at the beginning of two of the texts
    const BothLanguages both(form.constData());
    for (const QByteArray& name : labels) {
        const TextLabel& english = Label(*both.inEnglish, name.constData());
        const TextLabel& arabic = Label(*both.inArabic, name.constData());
        QCOMPARE(english.layoutDirection(), Qt::LeftToRight);
        QCOMPARE(arabic.layoutDirection(), Qt::RightToLeft);
        QVERIFY2(Gaps(english).first <= most, name.constData());
        QVERIFY2(Gaps(arabic).second <= most, name.constData());
    }
}

void FormMirrorTest::TitlesAndCaptionsAreCentred()
{
    constexpr int most = 3; // pixels between the two sides, as a glyph's own may differ
    for (const FormMaker& maker : FormMakers()) {
        const BothLanguages both(maker.name);
        for (const Form* window : {both.inEnglish.get(), both.inArabic.get()}) {
            for (const TextLabel* label : window->findChildren<TextLabel*>()) {
                const QByteArray name = label->objectName().toLatin1();
                const bool isTitle = name == "lblTitle" || name == "dlgTitle";
                const bool isCaption = label->width() == 115 && label->height() == 34;
                if (!isTitle && !isCaption) {
                    continue;
                }
                const auto [left, right] = Gaps(*label);
                QVERIFY2(std::abs(left - right) <= most,
                         QByteArray(maker.name + ('.' + name)).constData());
            }
        }
    }
}

void FormMirrorTest::FieldsReadInTheLanguageOfTheInterface()
{
    const BothLanguages both("frmEName");
    const auto field = [](const Form& window) -> const QLineEdit& {
        return static_cast<const QLineEdit&>(Control(window, "txtName"));
    };
    QCOMPARE(field(*both.inEnglish).layoutDirection(), Qt::LeftToRight);
    QCOMPARE(field(*both.inArabic).layoutDirection(), Qt::RightToLeft);
    QCOMPARE(field(*both.inEnglish).alignment() & Qt::AlignHorizontal_Mask,
             Qt::AlignLeft | Qt::AlignAbsolute);
    QCOMPARE(field(*both.inArabic).alignment() & Qt::AlignHorizontal_Mask,
             Qt::AlignRight | Qt::AlignAbsolute);
}

void FormMirrorTest::ChecksOfTheOptionsStandInRows()
{
    const BothLanguages both("dlgOptions");
    constexpr const char* rows[][2] = {{"imgKeys", "lblKeys"},
                                       {"imgHands", "lblHands"},
                                       {"imgCounter", "lblCounter"},
                                       {"imgTimer", "lblTimer"},
                                       {"imgSound", "lblSound"}};
    for (const Form* window : {both.inEnglish.get(), both.inArabic.get()}) {
        const int first = Label(*window, "lblKeys").y();
        for (int row = 0; row < 5; ++row) {
            const QRect box = Picture(*window, rows[row][0]).geometry();
            const QRect label = Label(*window, rows[row][1]).geometry();
            QCOMPARE(label.top(), first + row * 23); // 345 twips
            QCOMPARE(box.top(), label.top());
            QCOMPARE(box.right() < label.left(), window == both.inEnglish.get());
            QCOMPARE(label.right() < box.left(), window == both.inArabic.get());
        }
        // The rule at 2710 twips, from 750 twips to as far from the other edge.
        const QImage shot = const_cast<Form*>(window)->grab().toImage();
        QCOMPARE(shot.pixel(50, 180), qRgb(0, 0, 0));
        QCOMPARE(shot.pixel(window->width() - 51, 180), qRgb(0, 0, 0));
        QVERIFY(shot.pixel(49, 180) != qRgb(0, 0, 0));
        QVERIFY(shot.pixel(window->width() - 50, 180) != qRgb(0, 0, 0));
    }
}

void FormMirrorTest::TheAnagramsBoxStandsWhereItIsTold()
{
    const BothLanguages both("frmFree");
    const QRect label = Label(*both.inArabic, "lblKeyboard").geometry();
    QCOMPARE(label.width(), 296);                                                // 4450 twips
    QCOMPARE(Picture(*both.inArabic, "imgKeyboard").x(), label.right() + 1 + 3); // 45 twips
    QVERIFY(Picture(*both.inEnglish, "imgKeyboard").geometry().right() <
            Label(*both.inEnglish, "lblKeyboard").x());
}

void FormMirrorTest::TheChoosersColumnsStayAndTheirCellsTurn()
{
    const BothLanguages both("dlgExercise");
    for (const Form* window : {both.inEnglish.get(), both.inArabic.get()}) {
        const bool arabic = window == both.inArabic.get();
        QVERIFY(Picture(*window, "imgEExercise_0").geometry().right() <
                Picture(*window, "imgAExercise_0").x());
        for (const auto& [button, standard, mark] :
             {std::tuple{"imgEExercise_2", "lblEMM_2", "lblECM_2"},
              std::tuple{"imgAExercise_2", "lblAMM_2", "lblACM_2"}}) {
            const int first = Picture(*window, button).x();
            const int second = Label(*window, standard).x();
            const int third = Label(*window, mark).x();
            QVERIFY(arabic ? first > second && second > third : first < second && second < third);
        }
    }
}

void FormMirrorTest::TheToolkitMirrorsNothingByItself()
{
    for (const FormMaker& maker : FormMakers()) {
        World world(true);
        PlaceStudent(world);
        QCOMPARE(maker.make(world)->layoutDirection(), Qt::LeftToRight);
    }
}

void FormMirrorTest::TheLessonsNoteReadsAsArabicAtTheSideOfTheInterface()
{
    const BothLanguages both("frmLessonDescription");
    const TextLabel& english = Label(*both.inEnglish, "lblDescription");
    QCOMPARE(english.layoutDirection(), Qt::LeftToRight);
    QVERIFY(Gaps(english).first <= 3);
    QCOMPARE(InkOf(english).translated(-english.pos()), InkReading(english, true, Side::Left));
}

void FormMirrorTest::ANameOnTheDiplomaReadsTheWayOfItsLetters()
{
    for (const bool arabicName : {false, true}) {
        World world;
        PlaceStudent(world);
        world.state().studentName = arabicName ? u"محمد Ali" : u"Ali محمد";
        const std::unique_ptr<Form> window = MakeForm(world, "frmDiploma");
        const TextLabel& name = Label(*window, "lblName");
        QCOMPARE(InkOf(name).translated(-name.pos()), InkReading(name, arabicName, Side::Centre));
    }
}

void FormMirrorTest::NamesArePlainTextWhateverTheyHold()
{
    for (const char* form : {"DlgWelcome", "frmWelcome", "DlgGBye", "frmDiploma"}) {
        World world;
        PlaceStudent(world);
        world.state().studentName = u"<b>A&B<b>";
        const std::unique_ptr<Form> window = MakeForm(world, form);
        bool found = false;
        for (const TextLabel* label : window->findChildren<TextLabel*>()) {
            QCOMPARE(label->textFormat(), Qt::PlainText);
            found = found || label->text().contains(QStringLiteral("<b>A&B<b>"));
        }
        QVERIFY2(found, form);
    }
}

void FormMirrorTest::FieldsKeepTheirTextFromTheirEdges()
{
    for (const auto& [form, field] : {std::pair{"frmEName", "txtName"}, {"frmFree", "txtFree"}}) {
        const BothLanguages both(form);
        for (const Form* window : {both.inEnglish.get(), both.inArabic.get()}) {
            const auto& line = static_cast<const QLineEdit&>(Control(*window, field));
            QVERIFY(line.textMargins().left() >= 4);
            QVERIFY(line.textMargins().right() >= 4);
        }
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::FormMirrorTest)

#include "FormMirrorTest.moc"
