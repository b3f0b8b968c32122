// Stores a picture as a JPEG file, for pictures so large that decoding a PNG file would be seen.
//
// usage: keyfluent-to-jpeg IN_FILE OUT_FILE
#include <QImage>
#include <QString>

#include <cstdio>

namespace
{

// High enough that soft slopes show neither steps nor blocks.
constexpr int quality = 95;

} // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fputs("usage: keyfluent-to-jpeg IN_FILE OUT_FILE\n", stderr);
        return 2;
    }
    const QImage picture(QString::fromLocal8Bit(arguments[1]));
    if (picture.isNull()) {
        std::fprintf(stderr, "%s is no picture\n", arguments[1]);
        return 1;
    }
    const QString target = QString::fromLocal8Bit(arguments[2]);
    // There is no transparency in a JPEG file.
    if (!picture.convertToFormat(QImage::Format_RGB32).save(target, "JPEG", quality)) {
        std::fprintf(stderr, "cannot write %s\n", arguments[2]);
        return 1;
    }
    return 0;
}
