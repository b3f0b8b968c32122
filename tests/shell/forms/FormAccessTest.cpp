// Every window as assistive technology walks it: what each control is and what it is called, in
// both languages, and what can be done there.
#include "shell/base/Boxes.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/lesson/GaugeBar.h"
#include "shell/lesson/KeyboardView.h"
#include "shell/lesson/Narrator.h"
#include "shell/text/FieldEditor.h"
#include "shell/text/RowView.h"

#include "tests/shell/forms/FormMakers.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <algorithm>
#include <set>

namespace keyfluent::shell
{

class FormAccessTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void EveryControlHasItsRoleAndAName_data();
    void EveryControlHasItsRoleAndAName();
    void NamesSpeakTheLanguageOfTheInterface_data();
    void NamesSpeakTheLanguageOfTheInterface();
    void TheMainWindowIsAFrameWithNamedMenus();
    void TheTitleFollowsThePage();
    void AWindowWithoutAButtonCanBeClosedByItsAction_data();
    void AWindowWithoutAButtonCanBeClosedByItsAction();
    void AWindowWithButtonsHasNoActionOfItsOwn();
    void AFixedAidIsReadOnly();
    void AnExerciseTellsItsColumnAndItsMarks();
    void ASwatchTellsItsColour();
    void AMessageIsNamedAfterTheProgram();
};

namespace
{

QAccessibleInterface* AccessOf(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget);
}

// The thing and all beneath it.
void Walk(QAccessibleInterface* thing, std::vector<QAccessibleInterface*>& found)
{
    found.push_back(thing);
    for (int i = 0; i < thing->childCount(); ++i) {
        Walk(thing->child(i), found);
    }
}

std::vector<QAccessibleInterface*> All(QWidget& window)
{
    std::vector<QAccessibleInterface*> found;
    Walk(AccessOf(window), found);
    return found;
}

// The pictures that are there to be looked at; all others can be pressed.
bool IsMerePicture(const ImageControl& image)
{
    static const QStringList names = {"Image1",       "imgIcon",     "imgIcon2",
                                      "imgKeysHands", "imgLeftHand", "imgRightHand"};
    return names.contains(image.objectName());
}

// Boxes that are ticked; all other pictures that can be pressed are buttons.
bool IsBox(const ImageControl& image)
{
    static const QStringList names = {"imgKeys",   "imgHands", "imgCounter",
                                      "imgTimer",  "imgSound", "imgInterface",
                                      "imgSystem", "imgHand",  "imgKeyboard"};
    return names.contains(image.objectName());
}

QAccessible::Role RoleOfPicture(const ImageControl& image)
{
    if (IsMerePicture(image)) {
        return QAccessible::Graphic;
    }
    return IsBox(image) ? QAccessible::CheckBox : QAccessible::Button;
}

QAccessible::Role ExpectedRole(const QWidget& widget)
{
    if (const auto* image = qobject_cast<const ImageControl*>(&widget)) {
        return RoleOfPicture(*image);
    }
    if (qobject_cast<const Form*>(&widget) != nullptr) {
        return QAccessible::Dialog;
    }
    if (qobject_cast<const TextLabel*>(&widget) != nullptr) {
        return QAccessible::StaticText;
    }
    if (qobject_cast<const KeyboardView*>(&widget) != nullptr) {
        return QAccessible::Graphic;
    }
    if (qobject_cast<const GaugeBar*>(&widget) != nullptr) {
        return QAccessible::ProgressBar;
    }
    if (qobject_cast<const Notice*>(&widget) != nullptr) {
        return QAccessible::Notification;
    }
    if (qobject_cast<const QPushButton*>(&widget) != nullptr) {
        return QAccessible::Button;
    }
    const bool field = qobject_cast<const RowView*>(&widget) != nullptr ||
                       qobject_cast<const FieldEditor*>(&widget) != nullptr ||
                       qobject_cast<const QLineEdit*>(&widget) != nullptr;
    return field ? QAccessible::EditableText : QAccessible::NoRole;
}

// A label without a text shows nothing, and the exercise's notice is hidden until it has words.
bool MayBeNameless(const QWidget& widget)
{
    const auto* label = qobject_cast<const TextLabel*>(&widget);
    return (label != nullptr && label->text().isEmpty()) ||
           (qobject_cast<const Notice*>(&widget) != nullptr && widget.isHidden());
}

bool HasArabicLetter(const QString& text)
{
    return std::ranges::any_of(
        text, [](QChar unit) { return unit.unicode() >= 0x621 && unit.unicode() <= 0x64A; });
}

void AddEveryFormInBothLanguages()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<bool>("arabic");
    for (const FormMaker& maker : FormMakers()) {
        for (const bool arabic : {false, true}) {
            QTest::addRow("%s %s", maker.name, arabic ? "Arabic" : "English")
                << QByteArray(maker.name) << arabic;
        }
    }
}

} // namespace

void FormAccessTest::EveryControlHasItsRoleAndAName_data()
{
    AddEveryFormInBothLanguages();
}

void FormAccessTest::EveryControlHasItsRoleAndAName()
{
    QFETCH(QByteArray, form);
    QFETCH(bool, arabic);
    World world(arabic);
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, form.constData());
    window->show();
    std::set<const QObject*> met;
    for (QAccessibleInterface* thing : All(*window)) {
        QVERIFY(thing->object() != nullptr);
        const auto& widget = *qobject_cast<QWidget*>(thing->object());
        const QByteArray name =
            widget.metaObject()->className() + QByteArray(" ") + widget.objectName().toUtf8();
        met.insert(&widget);
        QVERIFY2(ExpectedRole(widget) != QAccessible::NoRole, name.constData());
        QVERIFY2(thing->role() == ExpectedRole(widget), name.constData());
        QVERIFY2(MayBeNameless(widget) || !thing->text(QAccessible::Name).trimmed().isEmpty(),
                 name.constData());
        QVERIFY2(thing->state().invisible == !widget.isVisible(), name.constData());
    }
    for (const QWidget* child :
         window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QVERIFY2(met.contains(child), qPrintable(child->objectName()));
    }
    QVERIFY(AccessOf(*window)->state().modal);
}

void FormAccessTest::NamesSpeakTheLanguageOfTheInterface_data()
{
    AddEveryFormInBothLanguages();
}

void FormAccessTest::NamesSpeakTheLanguageOfTheInterface()
{
    // Names that are the same in both languages; the buttons of the diploma and the titles of the
    // help's pages are Arabic, as they read.
    static const QStringList same = {"KeyFluent", "KeyFluent 1.0", "بسم الله الرحمن الرحيم"};
    static const QByteArrayList arabicForms = {"frmDiploma", "frmViewRecommands",
                                               "frmLessonDescription"};
    QFETCH(QByteArray, form);
    QFETCH(bool, arabic);
    World world(arabic);
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, form.constData());
    arabic = world.state().arabicInterface; // from a stop on in any case
    for (QAccessibleInterface* thing : All(*window)) {
        const QString name = thing->text(QAccessible::Name);
        const bool reads = thing->role() == QAccessible::StaticText ||
                           (arabicForms.contains(form) && thing->role() != QAccessible::Graphic);
        const bool speaks = std::ranges::any_of(name, [](QChar c) { return c.isLetter(); });
        if (!reads && speaks && !same.contains(name)) {
            QVERIFY2(HasArabicLetter(name) == arabic, qPrintable(name));
        }
    }
}

void FormAccessTest::TheMainWindowIsAFrameWithNamedMenus()
{
    for (const bool arabic : {false, true}) {
        World world(arabic);
        frmBlack& window = world.SignIn();
        QCOMPARE(AccessOf(window)->role(), QAccessible::Window);
        QCOMPARE(AccessOf(window)->text(QAccessible::Name), window.windowTitle());
        auto* bar = window.findChild<QMenuBar*>();
        QCOMPARE(AccessOf(*bar)->role(), QAccessible::MenuBar);
        for (QAccessibleInterface* thing : All(window)) {
            const bool separator = thing->role() == QAccessible::Separator;
            const QString name = thing->text(QAccessible::Name);
            QVERIFY(thing->role() != QAccessible::Client);
            QVERIFY2(separator || !name.isEmpty(), qPrintable(QString::number(thing->role())));
            QVERIFY2(separator || HasArabicLetter(name) == arabic, qPrintable(name));
        }
        QVERIFY(All(window).size() > 50); // the items of the menus among them
    }
}

void FormAccessTest::TheTitleFollowsThePage()
{
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "frmViewRecommands");
    window->show();
    const QString before = AccessOf(*window)->text(QAccessible::Name);
    Click(*window, "cmdNext");
    const QString after = AccessOf(*window)->text(QAccessible::Name);
    QVERIFY(after != before);
    QCOMPARE(after, Label(*window, "lblTitle").text());
}

void FormAccessTest::AWindowWithoutAButtonCanBeClosedByItsAction_data()
{
    QTest::addColumn<QByteArray>("form");
    for (const char* form : {"frmImage", "frmResult", "frmStopNote", "frmMore", "frmAbout"}) {
        QTest::newRow(form) << QByteArray(form);
    }
}

void FormAccessTest::AWindowWithoutAButtonCanBeClosedByItsAction()
{
    QFETCH(QByteArray, form);
    World world;
    PlaceStudent(world);
    bool pressed = false;
    QTimer::singleShot(0, [&pressed] {
        QWidget* window = QApplication::activeModalWidget();
        QVERIFY(window != nullptr);
        QAccessibleActionInterface* actions = AccessOf(*window)->actionInterface();
        QCOMPARE(actions->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
        actions->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(window->isVisible()); // the answer comes before the window goes
        pressed = true;
    });
    world.program().ShowModal(MakeForm(world, form.constData()));
    QVERIFY(pressed);
}

void FormAccessTest::AWindowWithButtonsHasNoActionOfItsOwn()
{
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "frmLeave");
    QVERIFY(AccessOf(*window)->actionInterface()->actionNames().isEmpty());
}

void FormAccessTest::AFixedAidIsReadOnly()
{
    World world;
    PlaceStudent(world);
    world.state().lessonNo = 1;
    world.state().exerciseNo = 1;
    const std::unique_ptr<Form> window = MakeForm(world, "dlgOptions");
    const auto readOnly = [&](const char* box) {
        return AccessOf(Control(*window, box))->state().readOnly;
    };
    QVERIFY(readOnly("imgKeys"));
    QVERIFY(!readOnly("imgCounter"));
}

void FormAccessTest::AnExerciseTellsItsColumnAndItsMarks()
{
    const auto description = [](QWidget& window, const char* name) {
        return AccessOf(Control(window, name))->text(QAccessible::Description);
    };
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> english = MakeForm(world, "dlgExercise");
    QCOMPARE(description(*english, "imgEExercise_0"),
             QStringLiteral("English Exercise. Standard Mark: %1. Exact Mark: %2")
                 .arg(Label(*english, "lblEMM_0").text(), Label(*english, "lblECM_0").text()));
    QVERIFY(description(*english, "imgAExercise_4").startsWith(QStringLiteral("Arabic Exercise.")));
    world.state().arabicInterface = true;
    const std::unique_ptr<Form> arabic = MakeForm(world, "dlgExercise");
    QVERIFY(description(*arabic, "imgEExercise_0").startsWith(QStringLiteral("التمرين الإنجليزي")));
}

void FormAccessTest::ASwatchTellsItsColour()
{
    World world;
    PlaceStudent(world);
    world.state().trueKeyColour = 0;
    const std::unique_ptr<Form> window = MakeForm(world, "frmPrefs");
    QWidget& swatch = Control(*window, "lblHilite");
    QCOMPARE(AccessOf(swatch)->text(QAccessible::Description), QStringLiteral("#000000"));
    world.pickedColour = QColor(0x12, 0x34, 0x56);
    window->show();
    Click(*window, "lblHilite");
    QCOMPARE(AccessOf(swatch)->text(QAccessible::Description), QStringLiteral("#123456"));
}

void FormAccessTest::AMessageIsNamedAfterTheProgram()
{
    const auto name = [](const QString& text) {
        return AccessOf(*MakeMessage(QMessageBox::Critical, text))->text(QAccessible::Name);
    };
    QCOMPARE(name(QStringLiteral("A file is missing.")), QStringLiteral("KeyFluent"));
    QCOMPARE(name(QStringLiteral("ملف مفقود.")), QStringLiteral("كي فلونت"));
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::FormAccessTest)

#include "FormAccessTest.moc"
