#include "shell/base/Pictures.h"

#include "context/FatalError.h"

#include <QFile>
#include <QHash>
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

QString FileOf(int id, int scale)
{
    const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
    return QStringLiteral(":/pictures/%1%2.png").arg(id).arg(suffix);
}

QPixmap Decode(int id, int wantedScale)
{
    for (int scale = wantedScale; scale >= 1; --scale) {
        QPixmap picture;
        if (QFile::exists(FileOf(id, scale)) && picture.load(FileOf(id, scale), "PNG")) {
            picture.setDevicePixelRatio(scale);
            return picture;
        }
    }
    throw context::FatalError("Picture " + std::to_string(id) + " is missing from the program.");
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
    QPixmap picture = Decode(id, 1);
    if (size.width() > picture.width() || size.height() > picture.height()) {
        picture = Decode(id, 2);
    }
    picture.setDevicePixelRatio(1);
    if (size.width() > picture.width() || size.height() > picture.height()) {
        picture = picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    }
    const QSize spare = picture.size() - size;
    return picture.copy(spare.width() / 2, spare.height() / 2, size.width(), size.height());
}

} // namespace keyfluent::shell
