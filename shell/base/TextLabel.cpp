#include "shell/base/TextLabel.h"

#include "shell/platform/TextConversion.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace keyfluent::shell
{
namespace
{

// Marks above and below Arabic letters can stand this far out of a line.
constexpr int overhang = 2;

// Room for a text that is laid out without a width of its own.
constexpr int widest = 100000;

QSizeF LaidOut(const QString& text, const QFont& font, const QTextOption& option, int width)
{
    qreal height = 0;
    qreal broadest = 0;
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            height += line.height();
            broadest = std::max(broadest, line.naturalTextWidth());
        }
        layout.endLayout();
    }
    return {broadest, height};
}

} // namespace

TextLabel::TextLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMargin(0);
}

void TextLabel::SetCaption(std::u16string_view caption)
{
    const QString text = LabelText(caption);
    if (text != this->text()) {
        setText(text);
    }
}

void TextLabel::SetSide(Side side)
{
    side_ = side;
    update();
}

void TextLabel::SetRightToLeft(bool rightToLeft)
{
    setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

void TextLabel::SetReading(bool arabic)
{
    SetRightToLeft(arabic);
    SetSide(arabic ? Side::Right : Side::Left);
}

void TextLabel::ReadByLetters()
{
    readsByLetters_ = true;
    update();
}

QTextOption TextLabel::Option(Side side) const
{
    QTextOption option;
    option.setTextDirection(readsByLetters_ ? Qt::LayoutDirectionAuto : layoutDirection());
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    switch (side) {
    case Side::Left:
        option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
        break;
    case Side::Centre:
        option.setAlignment(Qt::AlignHCenter);
        break;
    case Side::Right:
        option.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
        break;
    }
    return option;
}

QSize TextLabel::NeededSize(int width) const
{
    const QSizeF size = LaidOut(text(), font(), Option(side_), width);
    return {static_cast<int>(std::ceil(size.width())),
            static_cast<int>(std::ceil(size.height())) + 2 * overhang};
}

int TextLabel::FitHeight()
{
    const int needed = NeededSize(width()).height();
    resize(width(), needed);
    return needed;
}

QSize TextLabel::sizeHint() const
{
    return NeededSize(widest);
}

void TextLabel::FitFace(const std::function<QFont(double points)>& face, double largest,
                        double smallest)
{
    constexpr double step = 0.5;
    for (double points = largest; points >= smallest; points -= step) {
        setFont(face(points));
        const QSize needed = NeededSize(width());
        if (needed.width() <= width() && needed.height() <= height()) {
            return;
        }
    }
}

void TextLabel::AnswerClicks()
{
    setAttribute(Qt::WA_TransparentForMouseEvents, false);
    setMouseTracking(true);
}

void TextLabel::mousePressEvent(QMouseEvent* event)
{
    down_ = event->button() == Qt::LeftButton;
}

void TextLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(down_, false) && event->button() == Qt::LeftButton &&
        rect().contains(event->position().toPoint())) {
        emit clicked();
    }
}

void TextLabel::SetNumberApart(bool apart)
{
    numberApart_ = apart;
    update();
}

void TextLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, foregroundRole()));
    if (!numberApart_) {
        Paint(painter, text(), side_);
        return;
    }
    const qsizetype number = text().lastIndexOf(u' ') + 1;
    Paint(painter, text().left(number).trimmed(), side_);
    Paint(painter, text().mid(number), side_ == Side::Right ? Side::Left : Side::Right);
}

void TextLabel::Paint(QPainter& painter, const QString& text, Side side) const
{
    const QTextOption option = Option(side);
    const int needed = static_cast<int>(std::ceil(LaidOut(text, font(), option, width()).height()));
    qreal top = std::max(overhang, (height() - needed) / 2);
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width());
            line.setPosition({0, top});
            top += line.height();
        }
        layout.endLayout();
        layout.draw(&painter, {0, 0});
    }
}

} // namespace keyfluent::shell
