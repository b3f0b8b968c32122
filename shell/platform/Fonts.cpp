#include "shell/platform/Fonts.h"

#include <QFontDatabase>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace keyfluent::shell
{
namespace
{

QFont Face(const QStringList& families, double points, bool bold)
{
    constexpr double pixelsPerPoint = 96.0 / 72.0;
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * pixelsPerPoint))));
    font.setBold(bold);
    return font;
}

} // namespace

void LoadFonts()
{
    for (const char* file :
         {"NotoNaskhArabic-Regular.ttf", "NotoNaskhArabic-Bold.ttf", "DejaVuSansCondensed.ttf",
          "DejaVuSansCondensed-Bold.ttf", "Amiri-Regular.ttf", "Amiri-Bold.ttf"}) {
        QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/") + QLatin1String(file));
    }
}

QFont FormFont(double points, bool bold)
{
    static const QStringList families = {QStringLiteral("DejaVu Sans Condensed"),
                                         QStringLiteral("Noto Naskh Arabic")};
    return Face(families, points, bold);
}

QFont ExerciseFont(int points)
{
    static const QStringList families = {QStringLiteral("Noto Naskh Arabic"),
                                         QStringLiteral("DejaVu Sans Condensed")};
    return Face(families, points, true);
}

QFont DiplomaFont(double points, bool bold)
{
    static const QStringList families = {QStringLiteral("Amiri"),
                                         QStringLiteral("DejaVu Sans Condensed")};
    return Face(families, points, bold);
}

} // namespace keyfluent::shell
