// The one base of all windows but the main one: the pin-striped background, buttons that light
// under the pointer, Return and Escape with their flash, and the way a window opens above the
// others and hands on to the next.
//
// A window is made for one showing. It opens modally (see Program::ShowModal); to go on to another
// window it unloads itself and names what comes after, so that the next one opens when it is gone.
#pragma once

#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"

#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

class QPushButton;

namespace keyfluent::context
{
struct SessionContext;
}

namespace keyfluent::shell
{

class Form;
class Program;

// Runs when a window has gone. What it returns opens in its place; nullptr ends the chain.
using Continuation = std::function<std::unique_ptr<Form>()>;

class Form : public QWidget
{
    Q_OBJECT

public:
    // name is the window's own name, which is also its object name. Sizes are in pixels.
    Form(Program& program, const char* name, QSize size);
    ~Form() override;

    // Shows the window above all others and returns when it has been unloaded.
    void Exec();
    // The process ends: the window goes, and nothing comes after it.
    void Abandon();
    // What was named to come after; called once, after Exec.
    Continuation TakeContinuation();

    // A press on the bare window closes it, instead of a button.
    bool ClosesWhenPressed() const { return closing_ != Closing::Buttons; }

    // The pictures of the two faces of a button.
    static constexpr int faceOut = 102;
    static constexpr int faceIn = 103;

protected:
    Program& program() { return program_; }
    context::SessionContext& state();
    // The interface speaks Arabic: as it was when the window was made.
    bool Arabic() const { return arabic_; }

    // Closes the window. What comes after runs when it has gone.
    void Unload(Continuation after = {});
    // Opens a window above this one, which stays.
    void ShowAbove(std::unique_ptr<Form> form);

    // Controls are children with their names as object names. Rectangles are in pixels.
    TextLabel* AddLabel(const char* name, const QRect& place, std::u16string_view caption,
                        double points = 10, bool bold = false);
    // The title in the strip on top, across the window. The desktop is told it as well.
    TextLabel* AddTitle(std::u16string_view caption, const char* name = "lblTitle");
    // A picture has the words of what it shows as its name.
    ImageControl* AddImage(const char* name, QPoint place, int bitmap);
    void NamePicture(ImageControl& image);
    // For a window that has no title of its own: what assistive technology calls it.
    void NameWindow(std::u16string_view name);

    // A button: a picture with a caption over it, lit by the pointer.
    struct Button {
        ImageControl* image = nullptr;
        TextLabel* label = nullptr;
    };
    Button AddButton(const char* imageName, const char* labelName, QPoint place,
                     std::u16string_view caption, std::function<void()> handler);
    void MoveButton(const Button& button, QPoint place);

    // Return stands for one button and Escape for the other: it flashes for 300 ms, then acts.
    void FlashOnReturn(const Button& button);
    void FlashOnEscape(const Button& button);

    // What a close request of the desktop does: one button's handler.
    void ActOnClose(std::function<void()> handler) { onClose_ = std::move(handler); }
    // A mouse button that goes down on the bare window unloads it, or a click there; Space does so
    // too in both. Pictures and labels over it answer for themselves.
    void CloseOnPress() { closing_ = Closing::Press; }
    void CloseOnClick() { closing_ = Closing::Click; }

    // Lighting: the pointer came over a picture, or over the bare window.
    virtual void LightButton(ImageControl& image);
    virtual void PutOutButtons();

    // Painted over the stripes, before the controls. The painter is clipped to what needs it.
    virtual void PaintExtra(QPainter&) {}
    // False for the windows that show a picture instead of stripes, box and rule.
    void SetStriped(bool striped) { striped_ = striped; }
    // The window has come to the front.
    virtual void Activated() {}
    // A key that no control took. Return and Escape come only where nothing flashes for them.
    virtual void KeyReached(QKeyEvent&) {}

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    struct ButtonEntry {
        Button button;
        std::function<void()> handler;
        bool lit = false;
    };

    enum class Closing { Buttons, Press, Click };

    void CentreOnScreen();
    int EntryOf(const Button& button) const;
    QPushButton* AddCommand(const char* name, int entry);
    void StartFlash(int entry);
    void TickFlash();

    Program& program_;
    bool arabic_;
    bool striped_ = true;
    Closing closing_ = Closing::Buttons;
    bool down_ = false; // a press on the bare window has not been let go yet
    bool unloaded_ = false;
    std::vector<ButtonEntry> buttons_;
    std::function<void()> onClose_;
    Continuation continuation_;
    QEventLoop loop_;
    QTimer btnTimer_;
    // Out of sight: they stand for a button each, and only the keys press them.
    QPushButton* command1_ = nullptr; // Escape
    QPushButton* command2_ = nullptr; // Return
    int escapeEntry_ = -1;
    int flashing_ = -1;
    int flashCount_ = 0;
};

// The pin-stripes of a rectangle of a window, counted from the window's top.
void PaintStripes(QPainter& painter, const QRect& place);
// The outermost pixels of a rectangle, one wide.
void PaintFrame(QPainter& painter, const QRect& place, const QColor& colour);

} // namespace keyfluent::shell
