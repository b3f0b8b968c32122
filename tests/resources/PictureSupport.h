// What the tests of the pictures share: loading a picture and comparing colours as the eye does.
#pragma once

#include <QColor>
#include <QFile>
#include <QImage>
#include <QString>

#include <array>
#include <cmath>

// Outside of every namespace, as the pictures' library has it.
inline void UsePictures()
{
    Q_INIT_RESOURCE(pictures);
}

namespace keyfluent::pictures
{

// A PNG file, or the JPEG file that stands in its place.
inline QString PathOf(int id, int ratio)
{
    const QString suffix = ratio == 1 ? QString() : QStringLiteral("@%1x").arg(ratio);
    const QString png = QStringLiteral(":/pictures/%1%2.png").arg(id).arg(suffix);
    return QFile::exists(png) ? png : QStringLiteral(":/pictures/%1%2.jpg").arg(id).arg(suffix);
}

// Null when there is no such picture.
inline QImage Load(int id, int ratio)
{
    return QImage(PathOf(id, ratio)).convertToFormat(QImage::Format_ARGB32);
}

// On the white of a window, as the eye sees it.
inline QImage OnWhite(const QImage& picture)
{
    QImage seen(picture.size(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb p = picture.pixel(x, y);
            const auto over = [&p](int part) {
                return (part * qAlpha(p) + 255 * (255 - qAlpha(p))) / 255;
            };
            seen.setPixel(x, y, qRgb(over(qRed(p)), over(qGreen(p)), over(qBlue(p))));
        }
    }
    return seen;
}

// CIE L*a*b* for the white of a screen.
struct Lab {
    double lightness = 0;
    double a = 0;
    double b = 0;
};

// The light of a part of a colour, 0 to 1.
inline double Linear(int part)
{
    static const std::array<double, 256> table = [] {
        std::array<double, 256> light{};
        for (std::size_t i = 0; i < light.size(); ++i) {
            const double value = double(i) / 255.0;
            light[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return light;
    }();
    return table[static_cast<std::size_t>(part)];
}

inline Lab LabOf(QRgb colour)
{
    const double red = Linear(qRed(colour));
    const double green = Linear(qGreen(colour));
    const double blue = Linear(qBlue(colour));
    const auto bend = [](double t) {
        return t > 0.008856 ? std::cbrt(t) : t * 7.787 + 16.0 / 116.0;
    };
    const double x = bend((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505);
    const double y = bend(0.2126 * red + 0.7152 * green + 0.0722 * blue);
    const double z = bend((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.0890);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

// How different two colours look: about 2 is just seen, 10 at a glance, 100 is black to white.
inline double Difference(QRgb one, QRgb other)
{
    if (one == other) {
        return 0;
    }
    const Lab p = LabOf(one);
    const Lab q = LabOf(other);
    return std::hypot(p.lightness - q.lightness, p.a - q.a, p.b - q.b);
}

// The mean over two pictures of one size.
inline double MeanDifference(const QImage& one, const QImage& other)
{
    const QImage p = OnWhite(one);
    const QImage q = OnWhite(other);
    double sum = 0;
    for (int y = 0; y < p.height(); ++y) {
        for (int x = 0; x < p.width(); ++x) {
            sum += Difference(p.pixel(x, y), q.pixel(x, y));
        }
    }
    return sum / (p.width() * p.height());
}

// The colours of the fingers, by the number of the finger: thumb 1 to little finger 5.
inline constexpr QRgb fingerColours[] = {0,          0xFFC94F4F, 0xFFE28A1E,
                                         0xFF2FA36B, 0xFF2E86C1, 0xFF8E5BB5};

inline bool SameColour(QRgb one, QRgb other)
{
    const auto near = [](int p, int q) { return std::abs(p - q) <= 2; };
    return near(qRed(one), qRed(other)) && near(qGreen(one), qGreen(other)) &&
           near(qBlue(one), qBlue(other));
}

inline int CountOf(const QImage& picture, QRgb colour, QRect part)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            count += qAlpha(pixel) == 255 && SameColour(pixel, colour);
        }
    }
    return count;
}

} // namespace keyfluent::pictures
