#include "shell/lesson/KeyboardView.h"

#include "shell/base/Form.h"
#include "shell/base/Twips.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/TextConversion.h"

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

using session::Box;
using session::CapArray;

constexpr int capMargin = 2; // pixels on either side of a cap's text
constexpr double radius = 3.5;

QFont DesignedFont(std::size_t cap, const QString& text)
{
    switch (keyboard::CapDesigns()[cap].font) {
    case keyboard::CapFont::Tahoma9Bold:
        return FormFont(9, true);
    case keyboard::CapFont::Tahoma825Bold:
        return FormFont(8.25, true);
    case keyboard::CapFont::Symbols975Bold:
        return FormFont(9.75, true);
    case keyboard::CapFont::Form:
        break;
    }
    // A single character stands larger than a key's name.
    return text.size() <= 2 ? FormFont(11, false) : FormFont(8.25, false);
}

QString ShownText(const CapArray& caps, std::size_t cap)
{
    const std::u16string_view picture = keyboard::PictureOnCap(static_cast<int>(cap));
    return ToQString(picture.empty() ? caps.text[cap] : picture);
}

bool SameCap(const CapArray& left, const CapArray& right, std::size_t cap)
{
    return left.foreColour[cap] == right.foreColour[cap] &&
           left.backColour[cap] == right.backColour[cap] && left.text[cap] == right.text[cap] &&
           left.rightToLeft[cap] == right.rightToLeft[cap];
}

QAccessibleInterface* MakeAccess(const QString&, QObject* object)
{
    auto* keyboard = qobject_cast<KeyboardView*>(object);
    return keyboard != nullptr ? new QAccessibleWidget(keyboard, QAccessible::Graphic) : nullptr;
}

} // namespace

KeyboardView::KeyboardView(QWidget* parent) : QWidget(parent)
{
    QAccessible::installFactory(MakeAccess); // again does nothing
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void KeyboardView::Show(const CapArray& caps)
{
    if (!shown_.has_value() || shown_->box != caps.box) {
        shown_ = caps;
        Place(caps);
        update();
        return;
    }
    for (std::size_t cap = 0; cap < caps.text.size(); ++cap) {
        if (!SameCap(*shown_, caps, cap)) {
            shown_->text[cap] = caps.text[cap];
            shown_->foreColour[cap] = caps.foreColour[cap];
            shown_->backColour[cap] = caps.backColour[cap];
            shown_->rightToLeft[cap] = caps.rightToLeft[cap];
            update(CapRect(cap));
        }
    }
}

void KeyboardView::Place(const CapArray& caps)
{
    QRect whole;
    for (const Box& box : caps.box) {
        whole |= PixelsOf(box);
    }
    setGeometry(whole);
    setVisible(parentWidget()->rect().intersects(whole));
}

QRect KeyboardView::CapRect(std::size_t cap) const
{
    return PixelsOf(shown_->box[cap]).translated(-pos());
}

// The largest face up to the designed one in which the text fits its cap.
QFont KeyboardView::FittingFont(std::size_t cap, const QString& text) const
{
    constexpr int smallest = 8; // pixels
    QFont font = DesignedFont(cap, text);
    const int room = CapRect(cap).width() - 2 * capMargin;
    while (font.pixelSize() > smallest && QFontMetricsF(font).horizontalAdvance(text) > room) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

// With the background under its round corners.
QPixmap KeyboardView::DrawFace(std::size_t cap) const
{
    static const QColor edge(0x6B, 0x7F, 0x8C);
    const QSize size = CapRect(cap).size();
    QPixmap face(size * facesRatio_);
    face.setDevicePixelRatio(facesRatio_);
    QPainter painter(&face);
    PaintBackground(painter, CapRect(cap).topLeft(), QRect(QPoint(), size));
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF place = QRectF(QPointF(), size).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(QColor::fromRgb(RgbOf(shown_->backColour[cap])));
    painter.drawRoundedRect(place, radius, radius);
    const QString text = ShownText(*shown_, cap);
    painter.setPen(QColor::fromRgb(RgbOf(shown_->foreColour[cap])));
    painter.setFont(FittingFont(cap, text));
    QTextOption option(Qt::AlignCenter);
    option.setTextDirection(shown_->rightToLeft[cap] ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    painter.drawText(place, text, option);
    return face;
}

const QPixmap& KeyboardView::FaceOf(std::size_t cap)
{
    if (facesRatio_ != devicePixelRatioF()) {
        facesRatio_ = devicePixelRatioF();
        faces_.clear();
    }
    const Look look(cap, shown_->text[cap].data(), shown_->foreColour[cap], shown_->backColour[cap],
                    shown_->rightToLeft[cap]);
    const auto found = faces_.find(look);
    return found != faces_.end() ? found->second
                                 : faces_.emplace(look, DrawFace(cap)).first->second;
}

// place is in painter's coordinates, whose origin is at this point of the view.
void KeyboardView::PaintBackground(QPainter& painter, QPoint origin, const QRect& place) const
{
    const QPoint onWindow = pos() + origin;
    painter.translate(-onWindow);
    PaintStripes(painter, place.translated(onWindow));
    painter.translate(onWindow);
}

void KeyboardView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    QRegion between = event->region();
    for (std::size_t cap = 0; shown_.has_value() && cap < shown_->text.size(); ++cap) {
        const QRect place = CapRect(cap);
        if (event->region().intersects(place)) {
            painter.drawPixmap(place.topLeft(), FaceOf(cap));
            between -= place;
        }
    }
    for (const QRect& part : between) {
        PaintBackground(painter, {}, part);
    }
}

} // namespace keyfluent::shell
