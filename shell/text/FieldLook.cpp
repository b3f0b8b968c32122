#include "shell/text/FieldLook.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace keyfluent::shell
{

namespace
{

// In parts of the font's size; room for a letter with two vowel marks.
constexpr double lineHeight = 1.4;

// In pixels. The preferences file may hold any number of points; a size beyond the smallest screen
// shows nothing more.
constexpr double largestSize = 600;

} // namespace

QFont FieldFont(const QFont& base, int points, bool rightToLeft)
{
    QFont font = base;
    if (points > 0) {
        font.setPixelSize(qRound(std::clamp(points * 96.0 / 72.0, 1.0, largestSize)));
    } else {
        font.setPixelSize(std::max(QFontInfo(QFont()).pixelSize(), 1));
    }
    if (!rightToLeft) {
        QStringList families = font.families();
        if (families.size() > 1) {
            families.move(0, families.size() - 1);
            font.setFamilies(families);
        }
        // The toolkit forms no ligatures in spaced text; this is the least space it knows.
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1 / 64.0);
    }
    return font;
}

LineMeasures MeasuresOf(const QFont& font, bool rightToLeft)
{
    const QFontMetricsF metrics(font);
    const QRectF ink = metrics.tightBoundingRect(
        rightToLeft ? QStringLiteral("\u0623\u0643\u0644\u062C\u064A") : QStringLiteral("dlgjQ"));
    LineMeasures measures;
    measures.height = static_cast<int>(std::ceil(font.pixelSize() * lineHeight));
    measures.inkTop = static_cast<int>(std::ceil(-ink.top()));
    measures.inkBottom = static_cast<int>(std::ceil(ink.bottom()));
    measures.blank = static_cast<int>(std::ceil(metrics.horizontalAdvance(QLatin1Char(' '))));
    return measures;
}

} // namespace keyfluent::shell
