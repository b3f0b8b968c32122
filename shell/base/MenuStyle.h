// How menus are drawn: the toolkit's style, but that an item reads the way of its menu, and that
// an item which is not checked shows nothing where another shows its tick.
#pragma once

#include <QProxyStyle>

namespace keyfluent::shell
{

class MenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // Draws all else as the style of that name, in the toolkit's spelling, does.
    explicit MenuStyle(const QString& base);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace keyfluent::shell
