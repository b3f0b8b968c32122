// The main window: the backdrop that stays open for the whole run, with the menu bar and the four
// picture buttons. Every other window opens modally above it.
#pragma once

#include <QPixmap>
#include <QWidget>

#include <array>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;

namespace keyfluent::shell
{

class ImageControl;
class Program;

class frmBlack : public QWidget
{
    Q_OBJECT

public:
    explicit frmBlack(Program& program);
    ~frmBlack() override;

    // A sign-in has been accepted.
    void EnterAsNewStudent();
    void EnterAsKnownStudent();

    // Sets all captions in the language of the interface, also after the preferences changed it.
    void ApplyLanguage();

    // An exercise has been loaded: which of the step buttons show now.
    void ShowStepButtons(bool back, bool next, bool duplicate);

    // The window has come to the front, or lost it. The desktop's events lead here.
    void Activate();
    void Deactivate();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // One of the four: its three looks by picture number, and whether the pointer is over it.
    struct StepButton {
        ImageControl* image = nullptr;
        int normal = 0;
        int over = 0;
        int grey = 0;
        bool lit = false;
    };
    enum Which { Exercise, Back, Next, Duplicate };

    void BuildMenus();
    void BuildFileMenu();
    void BuildLessonMenu();
    void BuildPageMenus();
    void BuildButtons();
    QAction* AddItem(QMenu* menu, const char* name, void (frmBlack::*handler)());
    void CaptionFileMenu(bool arabic);
    void CaptionLessonMenu(bool arabic);
    void CaptionPageMenus(bool arabic);
    void CaptionButtons(bool arabic);

    void Enter();
    void RefreshPlace();
    void RefreshKeyboardItems();
    void RefreshLessonItems();
    void SetLooks(int StepButton::*look);
    void HideStepButtons();
    void LightButton(Which which);
    void PutOutButtons();
    void LayOut();
    bool SignedIn() const;

    void SwitchKeyboard(int kind);
    void UseMacintosh();
    void UseWindows();
    void OpenPreferences();
    void ViewDiploma();
    void SignIn();
    void LogOut();
    void Quit();
    void ChooseLesson(int lesson);
    void ShowRecommendation(int page);
    void ShowHelp(int page);
    void ShowAbout();
    void OpenChooser();
    void StepBack();
    void StepNext();
    void RunAgain();

    Program& program_;
    QMenuBar* menuBar_ = nullptr;
    QMenu* mnuFile_ = nullptr;
    QMenu* mnuLessons_ = nullptr;
    QMenu* mnuRecomands_ = nullptr;
    QMenu* mnuHelp_ = nullptr;
    QAction* mnuFileMacKeyboard_ = nullptr;
    QAction* mnuFileWinKeyboard_ = nullptr;
    QAction* mnuFilePrefs_ = nullptr;
    QAction* mnuFileViewDiploma_ = nullptr;
    QAction* mnuFileA_ = nullptr;
    QAction* mnuFileLogout_ = nullptr;
    QAction* mnuFileQuit_ = nullptr;
    QAction* mnuLessonStop_ = nullptr;
    QAction* mnuHelp12_ = nullptr;
    std::array<QAction*, 15> mnuLesson_{};
    std::array<QAction*, 6> mnuRecomand1_{};
    std::array<QAction*, 11> mnuHelp1_{};
    std::array<StepButton, 4> buttons_;
};

} // namespace keyfluent::shell
