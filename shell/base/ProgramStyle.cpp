#include "shell/base/ProgramStyle.h"

#include <QIconEngine>
#include <QPainter>
#include <QStyleOptionMenuItem>

namespace keyfluent::shell
{
namespace
{

// A white sign on a disc, drawn at whatever size it is wanted.
class SignEngine : public QIconEngine
{
public:
    enum class Sign { Cross, Letter };

    explicit SignEngine(Sign sign) : sign_(sign) {}

    QIconEngine* clone() const override { return new SignEngine(sign_); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return drawn;
    }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode, QIcon::State) override
    {
        constexpr double unit = 32; // of the side
        const QColor ink(0x1F, 0x3A, 0x4D);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(place.topLeft());
        painter->scale(place.width() / unit, place.height() / unit);
        painter->setPen(QPen(ink, 1.5));
        painter->setBrush(sign_ == Sign::Cross ? QColor(0xD9, 0x64, 0x4A)
                                               : QColor(0x2F, 0x7F, 0x86));
        painter->drawEllipse(QPointF(16, 16), 14.5, 14.5);
        painter->setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
        if (sign_ == Sign::Cross) {
            painter->drawLine(QPointF(11, 11), QPointF(21, 21));
            painter->drawLine(QPointF(21, 11), QPointF(11, 21));
        } else {
            painter->drawLine(QPointF(16, 15), QPointF(16, 23));
            painter->drawPoint(QPointF(16, 9));
        }
        painter->restore();
    }

private:
    Sign sign_;
};

} // namespace

ProgramStyle::ProgramStyle(const QString& base) : QProxyStyle(base) {}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (item == nullptr || (element != CE_MenuItem && element != CE_MenuBarItem)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem shown(*item);
    if (!shown.checked) {
        shown.checkType = QStyleOptionMenuItem::NotCheckable;
    }
    // The style gives the side by the option, and the text by the painter, which knows only the
    // direction of the whole program.
    painter->save();
    painter->setLayoutDirection(shown.direction);
    QProxyStyle::drawControl(element, &shown, painter, widget);
    painter->restore();
}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const
{
    switch (icon) {
    case SP_MessageBoxCritical:
        return QIcon(new SignEngine(SignEngine::Sign::Cross));
    case SP_MessageBoxInformation:
        return QIcon(new SignEngine(SignEngine::Sign::Letter));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

} // namespace keyfluent::shell
