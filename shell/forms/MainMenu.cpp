// The menu bar of the main window: its items, in order, and their captions.
#include "shell/forms/frmBlack.h"

#include "course/Lessons.h"
#include "shell/Program.h"
#include "shell/base/ImageControl.h"
#include "shell/platform/TextConversion.h"

#include <QAction>
#include <QMenuBar>

namespace keyfluent::shell
{
namespace
{

struct Caption {
    const char16_t* arabic;
    const char16_t* english;
};

QString In(bool arabic, const Caption& caption)
{
    return QString::fromUtf16(arabic ? caption.arabic : caption.english);
}

// A menu takes an ampersand as the mark of a key; doubled it is one.
QString Literal(QString caption)
{
    return caption.replace(u'&', QStringLiteral("&&"));
}

constexpr Caption recommendationItems[] = {
    {u"طريقة العمل", u"Working Method"},     {u"المفاتيح والأصابع", u"Keys and Fingers"},
    {u"وضعية الأصابع", u"Fingers Position"}, {u"نقر المفاتيح", u"Keys Striking"},
    {u"وضعية الجلوس", u"Sitting Position"},  {u"التمرين الذهني", u"Thinking Exercise"},
};

constexpr Caption helpItems[] = {
    {u"المبادئ", u"Principles"},
    {u"طريقة الاستعمال", u"Using KeyFluent"},
    {u"قائمة أوامر الدروس", u"Lessons Command Menu"},
    {u"اختيار التمرين", u"Choosing the exercise"},
    {u"تنفيذ التمرين (أ)", u"Executing Exercises(1)"},
    {u"تنفيذ التمرين (ب)", u"Executing Exercises(2)"},
    {u"استراحة / متابعة", u"Break / Resumption"},
    {u"توقيف", u"Stop"},
    {u"التالي", u"Next"},
    {u"تكرار", u"Repetition"},
    {u"إيقاف", u"Quit"},
};

} // namespace

QAction* frmBlack::AddItem(QMenu* menu, const char* name, void (frmBlack::*handler)())
{
    auto* item = new QAction(menu);
    item->setObjectName(QString::fromLatin1(name));
    // Queued, so that the menu has closed before a window opens.
    connect(item, &QAction::triggered, this, handler, Qt::QueuedConnection);
    menu->addAction(item);
    return item;
}

void frmBlack::BuildMenus()
{
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    const auto add = [this](const char* name) {
        QMenu* menu = menuBar_->addMenu(QString());
        menu->setObjectName(QString::fromLatin1(name));
        return menu;
    };
    mnuFile_ = add("mnuFile");
    mnuLessons_ = add("mnuLessons");
    mnuRecomands_ = add("mnuRecomands");
    mnuHelp_ = add("mnuHelp");
    BuildFileMenu();
    BuildLessonMenu();
    BuildPageMenus();
}

void frmBlack::BuildFileMenu()
{
    mnuFileMacKeyboard_ = AddItem(mnuFile_, "mnuFileMacKeyboard", &frmBlack::UseMacintosh);
    mnuFileWinKeyboard_ = AddItem(mnuFile_, "mnuFileWinKeyboard", &frmBlack::UseWindows);
    mnuFileMacKeyboard_->setCheckable(true);
    mnuFileWinKeyboard_->setCheckable(true);
    mnuFilePrefs_ = AddItem(mnuFile_, "mnuFilePrefs", &frmBlack::OpenPreferences);
    mnuFile_->addSeparator()->setObjectName(QStringLiteral("mnuFileS3"));
    mnuFileViewDiploma_ = AddItem(mnuFile_, "mnuFileViewDiploma", &frmBlack::ViewDiploma);
    mnuFile_->addSeparator()->setObjectName(QStringLiteral("mnuFileS1"));
    mnuFileA_ = AddItem(mnuFile_, "mnuFileA", &frmBlack::SignIn);
    mnuFileLogout_ = AddItem(mnuFile_, "mnuFileLogout", &frmBlack::LogOut);
    mnuFile_->addSeparator()->setObjectName(QStringLiteral("mnuFileS2"));
    mnuFileQuit_ = AddItem(mnuFile_, "mnuFileQuit", &frmBlack::Quit);
}

void frmBlack::BuildLessonMenu()
{
    for (std::size_t i = 0; i < mnuLesson_.size(); ++i) {
        const int lesson = static_cast<int>(i) + 1;
        auto* item = new QAction(mnuLessons_);
        item->setObjectName(QStringLiteral("mnuLesson%1").arg(lesson));
        item->setCheckable(true);
        connect(
            item, &QAction::triggered, this, [this, lesson] { ChooseLesson(lesson); },
            Qt::QueuedConnection);
        mnuLessons_->addAction(item);
        mnuLesson_[i] = item;
    }
    mnuLessons_->addSeparator()->setObjectName(QStringLiteral("mnuLessonS1"));
    mnuLessonStop_ = AddItem(mnuLessons_, "mnuLessonStop", &frmBlack::Quit);
}

void frmBlack::BuildPageMenus()
{
    for (std::size_t i = 0; i < mnuRecomand1_.size(); ++i) {
        const int page = static_cast<int>(i) + 1;
        auto* item = new QAction(mnuRecomands_);
        item->setObjectName(QStringLiteral("mnuRecomand1_%1").arg(page));
        connect(
            item, &QAction::triggered, this, [this, page] { ShowRecommendation(page); },
            Qt::QueuedConnection);
        mnuRecomands_->addAction(item);
        mnuRecomand1_[i] = item;
    }
    for (std::size_t i = 0; i < mnuHelp1_.size(); ++i) {
        const int page = static_cast<int>(i) + 1;
        auto* item = new QAction(mnuHelp_);
        item->setObjectName(QStringLiteral("mnuHelp1_%1").arg(page));
        connect(
            item, &QAction::triggered, this, [this, page] { ShowHelp(page); },
            Qt::QueuedConnection);
        mnuHelp_->addAction(item);
        mnuHelp1_[i] = item;
    }
    mnuHelp_->addSeparator()->setObjectName(QStringLiteral("mnuHelpS1"));
    mnuHelp12_ = AddItem(mnuHelp_, "mnuHelp12", &frmBlack::ShowAbout);
}

void frmBlack::ApplyLanguage()
{
    const bool arabic = program_.State().arabicInterface;
    setWindowTitle(In(arabic, {u"زن أورتشارد كي فلونت 1.0", u"Zen Orchard KeyFluent 1.0"}));
    const Qt::LayoutDirection direction = arabic ? Qt::RightToLeft : Qt::LeftToRight;
    menuBar_->setLayoutDirection(direction);
    for (QMenu* menu : {mnuFile_, mnuLessons_, mnuRecomands_, mnuHelp_}) {
        menu->setLayoutDirection(direction);
    }
    CaptionFileMenu(arabic);
    CaptionLessonMenu(arabic);
    CaptionPageMenus(arabic);
    CaptionButtons(arabic);
    // The bar and the lists have no captions of their own.
    menuBar_->setAccessibleName(In(arabic, {u"القوائم", u"Menus"}));
    for (QMenu* menu : {mnuFile_, mnuLessons_, mnuRecomands_, mnuHelp_}) {
        menu->setAccessibleName(menu->title());
    }
}

void frmBlack::CaptionFileMenu(bool arabic)
{
    mnuFile_->setTitle(In(arabic, {u"ملف", u"File"}));
    mnuFileMacKeyboard_->setText(
        In(arabic, {u"استخدام لوحة مفاتيح الماكنتوش", u"Use Macintosh Keyboard"}));
    mnuFileWinKeyboard_->setText(
        In(arabic, {u"استخدام لوحة مفاتيح النوافذ", u"Use Windows Keyboard"}));
    mnuFilePrefs_->setText(In(arabic, {u"التفضيلات...", u"Preferences..."}));
    mnuFileViewDiploma_->setText(In(arabic, {u"عرض شهادة التخرج...", u"View Diploma..."}));
    mnuFileA_->setText(In(arabic, {u"تسجيل الدخول...", u"Change Student Name..."}));
    mnuFileLogout_->setText(In(arabic, {u"تسجيل الخروج", u"Log out"}));
    mnuFileQuit_->setText(In(arabic, {u"إنهاء", u"Quit"}));
}

void frmBlack::CaptionLessonMenu(bool arabic)
{
    mnuLessons_->setTitle(In(arabic, {u"الدروس", u"Lessons"}));
    for (std::size_t i = 0; i < mnuLesson_.size(); ++i) {
        const int lesson = static_cast<int>(i) + 1;
        mnuLesson_[i]->setText(QString::number(lesson) + QStringLiteral("- ") +
                               Literal(ToQString(course::LessonName(lesson, arabic))));
    }
    if (!arabic) {
        // Meant: the one place where this name is spelled out.
        mnuLesson_.back()->setText(QStringLiteral("15- End and Mouse"));
    }
    mnuLessonStop_->setText(In(arabic, {u"توقف", u"Stop"}));
}

void frmBlack::CaptionButtons(bool arabic)
{
    const auto tell = [this](Which which, const QString& tip) {
        buttons_[which].image->setToolTip(tip);
        buttons_[which].image->SetCaptionName(tip);
    };
    tell(Next, In(arabic, {u"يسمح لك بالانتقال إلى التمرين التالي.",
                           u"Allows you to go to the next workout."}));
    tell(Back, In(arabic, {u"يسمح لك بالانتقال إلى التمرين السابق.",
                           u"Allows you to go to the previous workout."}));
    tell(Duplicate, In(arabic, {u"يسمح لك بإعادة التمرين الحالي مباشرة.",
                                u"Allows you to repeat the current exercise"}));
    // No tool tip here, but a name for those who cannot see the picture.
    buttons_[Exercise].image->SetCaptionName(In(arabic, {u"التمارين", u"Exercises"}));
}

void frmBlack::CaptionPageMenus(bool arabic)
{
    mnuRecomands_->setTitle(In(arabic, {u"توصية", u"Recommendation"}));
    for (std::size_t i = 0; i < mnuRecomand1_.size(); ++i) {
        mnuRecomand1_[i]->setText(In(arabic, recommendationItems[i]));
    }
    mnuHelp_->setTitle(In(arabic, {u"تعليمات", u"Help"}));
    for (std::size_t i = 0; i < mnuHelp1_.size(); ++i) {
        mnuHelp1_[i]->setText(In(arabic, helpItems[i]));
    }
    mnuHelp12_->setText(In(arabic, {u"حول كي فلونت 1.0", u"About Key Fluent 1.0"}));
}

} // namespace keyfluent::shell
