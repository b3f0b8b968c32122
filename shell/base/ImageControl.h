// A picture on a window that can be pressed: with the mouse, with Space when Tab has led to it, and
// by assistive technology. It never lights or goes dark by itself: its window does that.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace keyfluent::shell
{

class ImageControl : public QWidget
{
    Q_OBJECT

public:
    explicit ImageControl(QWidget* parent);

    // Shows a numbered picture; the control takes the picture's size.
    void SetBitmap(int id);
    int Bitmap() const { return bitmap_; }

    // What a press means for assistive technology; without it the control is a mere picture.
    enum class Kind { Picture, Button, CheckBox };
    void SetKind(Kind kind);
    Kind ControlKind() const { return kind_; }
    void SetChecked(bool checked);
    bool IsChecked() const { return checked_; }
    // A check box that shows a value which the student can't change.
    void SetFixed(bool fixed) { fixed_ = fixed; }
    bool IsFixed() const { return fixed_; }

    // The button that is laid over this control reads its caption here.
    void SetCaptionName(const QString& name) { setAccessibleName(name); }

    // Whether the frame shows that tells where the keyboard has led to.
    bool ShowsFocus() const { return showsFocus_; }

    // As a person would press it; also what Space and assistive technology do.
    void Press();

signals:
    // The left button went down on it; a click is a press that is let go over it.
    void pressed();
    void clicked();
    // The pointer moves over it. held is true while the button pressed on it is down, and inside
    // whether the pointer is over the picture then.
    void hovered(bool held, bool inside);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void PaintFocus(QPainter& painter) const;
    void TakeFocusReason(Qt::FocusReason reason, bool comes);

    int bitmap_ = 0;
    Kind kind_ = Kind::Picture;
    bool checked_ = false;
    bool fixed_ = false;
    bool down_ = false;
    bool showsFocus_ = false;
};

// Makes the controls known to assistive technology; once for the program.
void InstallControlAccess();

} // namespace keyfluent::shell
