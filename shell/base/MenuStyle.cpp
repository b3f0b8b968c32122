#include "shell/base/MenuStyle.h"

#include <QPainter>
#include <QStyleOptionMenuItem>

namespace keyfluent::shell
{

MenuStyle::MenuStyle(const QString& base) : QProxyStyle(base) {}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
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

} // namespace keyfluent::shell
