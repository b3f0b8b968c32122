#include "shell/platform/Fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QStringList>

#include <algorithm>
#include <cmath>

static void InitialiseFontResource()
{
    Q_INIT_RESOURCE(fonts);
}

namespace keyfluent::shell
{
namespace
{

constexpr double pixelsPerPoint = 96.0 / 72.0;

// The preferences file may hold any number; a size beyond the smallest screen shows nothing more.
constexpr double smallestSize = 1; // pixels
constexpr double largestSize = 600;

QFont Face(const QStringList& families, double points, bool bold)
{
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(static_cast<int>(
        std::lround(std::clamp(points * pixelsPerPoint, smallestSize, largestSize))));
    font.setBold(bold);
    // Letters as wide as they are drawn by their designers, whatever the desktop's settings.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

} // namespace

void LoadFonts()
{
    InitialiseFontResource();
    const QDir folder(QStringLiteral(":/fonts"));
    for (const QString& file : folder.entryList(QDir::Files, QDir::Name)) {
        QFontDatabase::addApplicationFont(folder.filePath(file));
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
