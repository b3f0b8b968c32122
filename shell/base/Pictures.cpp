#include "shell/base/Pictures.h"

#include "context/FatalError.h"

#include <QFile>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QString>

#include <algorithm>
#include <cmath>
#include <string>

namespace keyfluent::shell
{
namespace
{

// The files come at one, two and three times the size; very large ones may lack the last.
constexpr int largestScale = 3;
// The backdrop has soft slopes only, so up to this it is enlarged without being seen to blur. The
// file of the next scale would take four times as long to decode.
constexpr double farthestEnlarged = 1.25;

// A picture is a PNG file or, where that would be slow to decode, a JPEG file. Null when there is
// no file of the scale.
QString FileOf(int id, int scale)
{
    const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
    for (const char* ending : {"png", "jpg"}) {
        QString file = QStringLiteral(":/pictures/%1%2.%3").arg(id).arg(suffix, ending);
        if (QFile::exists(file)) {
            return file;
        }
    }
    return {};
}

const char* FormatOf(const QString& file)
{
    return file.endsWith(QLatin1String("png")) ? "PNG" : "JPEG";
}

[[noreturn]] void FailWithout(int id)
{
    throw context::FatalError("Picture " + std::to_string(id) + " is missing from the program.");
}

QPixmap Decode(int id, int wantedScale)
{
    for (int scale = wantedScale; scale >= 1; --scale) {
        const QString file = FileOf(id, scale);
        QPixmap picture;
        if (!file.isNull() && picture.load(file, FormatOf(file))) {
            picture.setDevicePixelRatio(scale);
            return picture;
        }
    }
    FailWithout(id);
}

// The part in the middle of a picture that has the shape of the wanted size.
QRect MiddleOf(QSize picture, QSize wanted)
{
    const QSize part = wanted.scaled(picture, Qt::KeepAspectRatio).expandedTo({1, 1});
    return {QPoint((picture.width() - part.width()) / 2, (picture.height() - part.height()) / 2),
            part};
}

// The middle of the smallest file that is sharp enough for the size; null when there is no file.
QImage MiddleFor(int id, QSize size)
{
    for (int scale = 1; scale <= largestScale; ++scale) {
        const QString file = FileOf(id, scale);
        QImageReader reader(file, FormatOf(file));
        const QRect middle = MiddleOf(reader.size(), size);
        const bool sharp = middle.width() * farthestEnlarged >= size.width();
        if (sharp || FileOf(id, scale + 1).isNull()) {
            reader.setClipRect(middle);
            return reader.read();
        }
    }
    return {};
}

} // namespace

QPixmap LoadBitmap(int id, qreal ratio)
{
    static QHash<int, QPixmap> kept;
    const int scale = std::clamp(static_cast<int>(std::ceil(ratio)), 1, largestScale);
    const int key = id * (largestScale + 1) + scale;
    const auto found = kept.constFind(key);
    return found != kept.constEnd() ? *found : *kept.insert(key, Decode(id, scale));
}

QPixmap ScaledBackdrop(int id, QSize size)
{
    const QImage middle = MiddleFor(id, size);
    if (middle.isNull()) {
        FailWithout(id);
    }
    QPixmap backdrop(size);
    QPainter painter(&backdrop);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(QPoint(), size), middle);
    return backdrop;
}

} // namespace keyfluent::shell
