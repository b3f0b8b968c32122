// The toolkit's style, but that an item of a menu reads the way of its menu and shows nothing where
// another one shows its tick, and that the signs of message boxes are sharp on every screen.
#pragma once

#include <QProxyStyle>

namespace keyfluent::shell
{

class ProgramStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // Draws all else as the style of that name, in the toolkit's spelling, does.
    explicit ProgramStyle(const QString& base);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

} // namespace keyfluent::shell
