// The running program: its state, the chain of windows from the first picture to the main window,
// and the way out. Windows reach one another through it alone.
#pragma once

#include "context/Platform.h"
#include "context/SessionContext.h"
#include "shell/base/Form.h"

#include <QColor>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QPainter;

namespace keyfluent::shell
{

class frmBlack;

// What the program asks of the desktop beyond windows. Tests fill in their own.
struct Desktop {
    std::function<QSize()> screenSize;                // in device-independent pixels
    std::function<bool()> isFirstInstance;            // holds the place from then on
    std::function<void(const QString&)> showCritical; // a message box with the critical icon
    std::function<void(const QString&)> showMessage;  // a message box with an OK button
    std::function<bool()> startSystemInformation;     // false where the desktop has no such tool
    // The colour that the student picks, beginning with one; an invalid one after Cancel.
    std::function<QColor(const QColor& initial, QWidget* parent)> pickColour;
    // Asks for a printer and draws each of the copies wanted with the given operation, on a painter
    // that counts in twips; page is the paper's size in twips. Cancel and errors end it silently.
    std::function<void(QWidget* parent, const std::function<void(QPainter&, QSize page)>& drawPage)>
        printPages;
    // Asks for the keyboard's state; whenever it may have changed while no window heard the keys.
    std::function<void()> refreshKeyboard;
    // An exercise is over, and no sound comes before the next one.
    std::function<void()> restSounds;
    std::function<void(int status)> endProcess;
};

class Program
{
public:
    // appFolder: see SessionContext.
    Program(const context::Platform& platform, Desktop desktop, std::u16string appFolder);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    context::SessionContext& State() { return state_; }
    const context::Platform& Machine() const { return platform_; }
    const Desktop& World() const { return desktop_; }

    // The first picture; everything else follows from it.
    void Begin();
    // From the splash to the sign-in.
    void StartUp();

    // Opens a window modally and returns when it and all that it handed on to have gone.
    void ShowModal(std::unique_ptr<Form> form);
    template <typename Window, typename... Arguments> void Show(Arguments&&... arguments)
    {
        ShowModal(std::make_unique<Window>(*this, std::forward<Arguments>(arguments)...));
    }

    // A sign-in accepted: the main window stands, its menus and buttons are the student's.
    void EnterAsNewStudent();
    void EnterAsKnownStudent();

    // The main window, loaded at the first sign-in; nullptr before.
    frmBlack* MainWindow() { return mainWindow_.get(); }
    // The widget that modal windows stand above; nullptr while there is none.
    QWidget* Backdrop();
    frmBlack& LoadedMainWindow();

    // Ends the process. Windows that are still open go with it, and nothing more is done behind
    // them.
    void End(int status = 0);
    bool Ending() const { return ending_; }

private:
    void Initialise();
    void ActivateTop();

    const context::Platform& platform_;
    Desktop desktop_;
    context::SessionContext state_;
    std::u16string appFolder_;
    std::unique_ptr<frmBlack> mainWindow_;
    std::vector<Form*> open_; // the modal windows, the top one last
    bool ending_ = false;
};

} // namespace keyfluent::shell
