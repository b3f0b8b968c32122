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
    if (caption_ == caption) {
        return;
    }
    caption_ = caption;
    setText(LabelText(caption));
    LayOutAnew();
}

void TextLabel::SetSide(Side side)
{
    side_ = side;
    LayOutAnew();
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
    LayOutAnew();
}

void TextLabel::LayOutAnew()
{
    laidOut_.clear();
    update();
}

void TextLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    LayOutAnew();
}

void TextLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    LayOutAnew(); // a face, a reading direction
}

void TextLabel::paintEvent(QPaintEvent*)
{
    if (laidOut_.empty()) {
        LayOut();
    }
    QPainter painter(this);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, foregroundRole()));
    for (const std::unique_ptr<QTextLayout>& paragraph : laidOut_) {
        paragraph->draw(&painter, {0, 0});
    }
}

void TextLabel::LayOut()
{
    if (!numberApart_) {
        LayOut(text(), side_);
        return;
    }
    const qsizetype number = text().lastIndexOf(u' ') + 1;
    LayOut(text().left(number).trimmed(), side_);
    LayOut(text().mid(number), side_ == Side::Right ? Side::Left : Side::Right);
}

// In the middle of the height.
void TextLabel::LayOut(const QString& text, Side side)
{
    const std::size_t first = laidOut_.size();
    const QTextOption option = Option(side);
    qreal needed = 0;
    for (const QString& paragraph : text.split(u'\n')) {
        auto layout = std::make_unique<QTextLayout>(paragraph, font());
        layout->setTextOption(option);
        layout->beginLayout();
        for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
            line.setLineWidth(width());
            line.setPosition({0, needed});
            needed += line.height();
        }
        layout->endLayout();
        laidOut_.push_back(std::move(layout));
    }
    const int top = std::max(overhang, (height() - static_cast<int>(std::ceil(needed))) / 2);
    for (std::size_t i = first; i < laidOut_.size(); ++i) {
        laidOut_[i]->setPosition({0, static_cast<qreal>(top)});
    }
}

} // namespace keyfluent::shell
