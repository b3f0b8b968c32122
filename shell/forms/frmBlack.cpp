#include "shell/forms/frmBlack.h"

#include "context/KeyboardKind.h"
#include "course/Notes.h"
#include "progress/Leaving.h"
#include "progress/Place.h"
#include "shell/Program.h"
#include "shell/base/ImageControl.h"
#include "shell/base/Pictures.h"
#include "shell/base/Twips.h"
#include "shell/forms/dlgExercise.h"
#include "shell/forms/dlgOptions.h"
#include "shell/forms/frmAbout.h"
#include "shell/forms/frmDiploma.h"
#include "shell/forms/frmEName.h"
#include "shell/forms/frmLeave.h"
#include "shell/forms/frmLesson.h"
#include "shell/forms/frmLessonDescription.h"
#include "shell/forms/frmPrefs.h"
#include "shell/forms/frmViewRecommands.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPainter>

namespace keyfluent::shell
{
namespace
{

constexpr int backdropPicture = 112;
constexpr int bandHeight = Pixels(1945);
constexpr int buttonTop = Pixels(1910);

} // namespace

frmBlack::frmBlack(Program& program) : program_(program)
{
    setObjectName(QStringLiteral("frmBlack"));
    setLayoutDirection(Qt::LeftToRight);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setMinimumSize(640, 400);
    progress::EnterMainWindow(program_.State());
    BuildMenus();
    BuildButtons();
    ApplyLanguage();
    RefreshKeyboardItems();
    RefreshLessonItems();
    mnuFileViewDiploma_->setEnabled(progress::CanViewDiploma(program_.State()));
    const bool loggedOut = program_.State().loggedOut;
    mnuFileLogout_->setEnabled(!loggedOut);
    mnuFileA_->setEnabled(loggedOut);
}

frmBlack::~frmBlack() = default;

void frmBlack::Enter()
{
    mnuFileA_->setEnabled(false);
    mnuFileLogout_->setEnabled(true);
    mnuLessons_->setEnabled(true);
    if (!isVisible()) {
        setFocus(); // a button has the focus only when the keyboard has led to it
        showMaximized();
    }
    activateWindow();
    Activate();
}

void frmBlack::EnterAsNewStudent()
{
    for (StepButton& button : buttons_) {
        button.image->setEnabled(true);
    }
    Enter();
}

void frmBlack::EnterAsKnownStudent()
{
    buttons_[Exercise].image->setEnabled(true);
    buttons_[Back].image->hide();
    program_.State().sessionRun = false;
    Enter();
}

void frmBlack::BuildButtons()
{
    struct Looks {
        const char* name;
        int normal;
        int over;
        int grey;
    };
    constexpr Looks looks[] = {{"imgExercise", 110, 109, 111},
                               {"imgBack", 130, 129, 131},
                               {"imgNext", 133, 132, 134},
                               {"imgDuplicate", 136, 135, 137}};
    for (const Which which : {Exercise, Back, Next, Duplicate}) {
        auto* image = new ImageControl(this);
        image->setObjectName(QString::fromLatin1(looks[which].name));
        image->SetKind(ImageControl::Kind::Button);
        image->SetBitmap(looks[which].normal);
        connect(image, &ImageControl::hovered, this, [this, which] { LightButton(which); });
        buttons_[which] = {image, looks[which].normal, looks[which].over, looks[which].grey, false};
    }
    // Meant: the chooser opens as the button goes down, the others on a click.
    connect(buttons_[Exercise].image, &ImageControl::pressed, this, &frmBlack::OpenChooser);
    connect(buttons_[Back].image, &ImageControl::clicked, this, &frmBlack::StepBack);
    connect(buttons_[Next].image, &ImageControl::clicked, this, &frmBlack::StepNext);
    connect(buttons_[Duplicate].image, &ImageControl::clicked, this, &frmBlack::RunAgain);
    if (!program_.State().sessionRun) {
        HideStepButtons();
    }
}

bool frmBlack::SignedIn() const
{
    return mnuFileLogout_->isEnabled();
}

void frmBlack::SetLooks(int StepButton::*look)
{
    for (StepButton& button : buttons_) {
        button.image->SetBitmap(button.*look);
        button.lit = false;
    }
}

void frmBlack::HideStepButtons()
{
    ShowStepButtons(false, false, false);
}

void frmBlack::ShowStepButtons(bool back, bool next, bool duplicate)
{
    buttons_[Back].image->setVisible(back);
    buttons_[Next].image->setVisible(next);
    buttons_[Duplicate].image->setVisible(duplicate);
}

void frmBlack::LightButton(Which which)
{
    StepButton& button = buttons_[which];
    if (!button.lit && button.image->isEnabled()) {
        button.image->SetBitmap(button.over);
        button.lit = true;
    }
}

void frmBlack::PutOutButtons()
{
    for (StepButton& button : buttons_) {
        if (button.lit) {
            button.image->SetBitmap(button.normal);
            button.lit = false;
        }
    }
}

void frmBlack::Activate()
{
    mnuFileViewDiploma_->setEnabled(progress::CanViewDiploma(program_.State()));
    if (SignedIn()) {
        SetLooks(&StepButton::normal);
    } else {
        buttons_[Exercise].image->SetBitmap(buttons_[Exercise].grey);
    }
    progress::SynchroniseKeyboard(program_.State(), program_.State().keyboardKind);
    RefreshKeyboardItems();
    RefreshLessonItems();
}

void frmBlack::Deactivate()
{
    SetLooks(&StepButton::grey);
}

void frmBlack::RefreshKeyboardItems()
{
    const bool windows = context::CountsAsWindows(program_.State().keyboardKind);
    mnuFileMacKeyboard_->setChecked(!windows);
    mnuFileWinKeyboard_->setChecked(windows);
}

void frmBlack::RefreshLessonItems()
{
    const int enabled = progress::EnabledLessons(program_.State());
    const int current = program_.State().lessonNo;
    for (std::size_t i = 0; i < mnuLesson_.size(); ++i) {
        const int lesson = static_cast<int>(i) + 1;
        mnuLesson_[i]->setEnabled(lesson <= enabled);
        mnuLesson_[i]->setChecked(lesson == current);
    }
}

void frmBlack::SwitchKeyboard(int kind)
{
    HideStepButtons();
    progress::SynchroniseKeyboard(program_.State(), kind);
    RefreshKeyboardItems();
    RefreshLessonItems();
}

void frmBlack::UseMacintosh()
{
    SwitchKeyboard(context::macintoshKeyboard);
}

void frmBlack::UseWindows()
{
    SwitchKeyboard(context::windowsKeyboard);
}

void frmBlack::OpenPreferences()
{
    program_.Show<frmPrefs>();
}

void frmBlack::ViewDiploma()
{
    program_.Show<frmDiploma>();
}

void frmBlack::SignIn()
{
    program_.Show<frmEName>();
}

void frmBlack::LogOut()
{
    progress::BeginLogout(program_.State());
    program_.Show<frmLeave>();
    if (program_.Ending() || !progress::ConfirmLogout(program_.State())) {
        return;
    }
    mnuFileLogout_->setEnabled(false);
    mnuFileA_->setEnabled(true);
    mnuLessons_->setEnabled(false);
    SetLooks(&StepButton::grey);
    buttons_[Exercise].image->setEnabled(false);
    HideStepButtons();
}

void frmBlack::Quit()
{
    if (progress::BeginQuit(program_.State())) {
        program_.Show<frmLeave>();
    } else {
        hide();
        program_.End();
    }
}

void frmBlack::ChooseLesson(int lesson)
{
    if (progress::ChooseLesson(program_.State(), static_cast<std::uint8_t>(lesson))) {
        HideStepButtons();
    }
    program_.State().lessonNoteText = course::LessonNote(lesson);
    program_.Show<frmLessonDescription>();
    if (!program_.Ending()) {
        RefreshLessonItems();
    }
}

void frmBlack::ShowRecommendation(int page)
{
    program_.State().helpMode = true;
    program_.State().recommendPage = static_cast<std::uint8_t>(page);
    program_.Show<frmViewRecommands>();
}

void frmBlack::ShowHelp(int page)
{
    program_.State().helpMode = false;
    program_.State().helpPage = static_cast<std::uint8_t>(page);
    program_.Show<frmViewRecommands>();
}

void frmBlack::ShowAbout()
{
    program_.Show<frmAbout>();
}

void frmBlack::OpenChooser()
{
    program_.Show<dlgExercise>();
}

void frmBlack::StepBack()
{
    if (progress::StepBack(program_.State())) {
        program_.Show<dlgOptions>();
    }
}

void frmBlack::StepNext()
{
    if (progress::StepNext(program_.State())) {
        program_.Show<dlgOptions>();
    }
}

void frmBlack::RunAgain()
{
    program_.Show<frmLesson>();
}

bool frmBlack::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        Activate();
    } else if (event->type() == QEvent::WindowDeactivate) {
        Deactivate();
    }
    return QWidget::event(event);
}

void frmBlack::LayOut()
{
    const int top = height() - buttonTop;
    const int width = buttons_[Back].image->width();
    const int gap = Pixels(390);
    const int back = this->width() - (3 * width + Pixels(1105));
    buttons_[Exercise].image->move(Pixels(150), top);
    buttons_[Back].image->move(back, top);
    buttons_[Next].image->move(back + width + gap, top);
    buttons_[Duplicate].image->move(back + 2 * (width + gap), top - Pixels(45));
    menuBar_->setGeometry(0, 0, this->width(), menuBar_->sizeHint().height());
}

void frmBlack::resizeEvent(QResizeEvent*)
{
    LayOut();
}

// The picture covers the window at any size: what its shape leaves over is cut off evenly. It is
// decoded anew each time, which happens with the window's size alone, rather than kept in several
// megabytes: the surface keeps what other windows cover, and what changes stands in the band.
void frmBlack::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect band(0, height() - bandHeight, width(), bandHeight);
    if (!event->region().subtracted(band).subtracted(menuBar_->geometry()).isEmpty()) {
        QPixmap backdrop = ScaledBackdrop(backdropPicture, size() * devicePixelRatioF());
        backdrop.setDevicePixelRatio(devicePixelRatioF());
        painter.drawPixmap(0, 0, backdrop);
    }
    for (const QRect& damaged : event->region().intersected(band)) {
        painter.save();
        painter.translate(band.topLeft());
        PaintStripes(painter, damaged.translated(-band.topLeft()));
        painter.restore();
    }
}

void frmBlack::mouseMoveEvent(QMouseEvent*)
{
    PutOutButtons();
}

void frmBlack::closeEvent(QCloseEvent* event)
{
    event->ignore();
    // Some desktops ask a window that stands behind another one, which must have its answer first.
    if (QApplication::activeModalWidget() == nullptr) {
        Quit();
    }
}

} // namespace keyfluent::shell
