// A text on a window. It is plain whatever characters it holds, its lines break anywhere rather
// than be cut off, and its side is told and never mirrored by the toolkit.
#pragma once

#include <QLabel>
#include <QTextLayout>
#include <QTextOption>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::shell
{

enum class Side { Left, Centre, Right };

class TextLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TextLabel(QWidget* parent);

    // CR stands for a line break.
    void SetCaption(std::u16string_view caption);
    void SetSide(Side side);
    void SetRightToLeft(bool rightToLeft);
    // Right to left and at the right side in Arabic; left to right and at the left side otherwise.
    void SetReading(bool arabic);
    // Each paragraph reads the way of its first letter, whatever the direction of the label.
    void ReadByLetters();

    // What the text takes at a width, in pixels.
    QSize NeededSize(int width) const;
    // Keeps left, top and width and takes the height that the text needs; returns that height.
    int FitHeight();
    QSize sizeHint() const override;
    // Takes the largest face, from one size down to another in points, in which the text fits the
    // label's rectangle; the smallest if none does.
    void FitFace(const std::function<QFont(double points)>& face, double largest, double smallest);

    // The number at the end of the text stands at the other side, so that the numbers of several
    // labels stand under one another.
    void SetNumberApart(bool apart);

    // From now on presses are the label's own. Otherwise the pointer goes through it.
    void AnswerClicks();

signals:
    // A press of the left button that is let go over it; only after AnswerClicks.
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QTextOption Option(Side side) const;
    void LayOut();
    void LayOut(const QString& text, Side side);
    void LayOutAnew();

    Side side_ = Side::Left;
    bool numberApart_ = false;
    bool readsByLetters_ = false;
    bool down_ = false;
    std::u16string caption_;
    // The paragraphs in their places; none until the label is painted.
    std::vector<std::unique_ptr<QTextLayout>> laidOut_;
};

} // namespace keyfluent::shell
