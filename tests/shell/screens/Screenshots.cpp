// Takes a picture of every window in both languages, each drawn by the window itself.
//
// usage: keyfluent-screenshots FOLDER [RATIO [NAME...]]
//
// Writes FOLDER/<name>-<en|ar>.png, RATIO device pixels to a pixel of the layout (1 if not told).
// With names, only those pictures whose names begin with one of them.
#include "tests/shell/forms/FormsHarness.h"
#include "tests/shell/screens/Scenes.h"

#include <QDir>
#include <QImageWriter>

#include <algorithm>
#include <cstdio>

namespace keyfluent::shell
{
namespace
{

// Packed as tightly as the format allows: the pictures are kept.
bool Save(const QPixmap& picture, const QString& file)
{
    QImageWriter writer(file, "PNG");
    writer.setCompression(100);
    const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
    return writer.write(image);
}

bool Wanted(const QString& name, const QStringList& beginnings)
{
    return beginnings.isEmpty() ||
           std::ranges::any_of(beginnings, [&name](const QString& beginning) {
               return name.startsWith(beginning);
           });
}

bool TakePictures(const QDir& folder, const QStringList& beginnings)
{
    for (const auto& scenes : {MainWindowScenes(), WindowScenes(), LessonScenes(), BoxScenes()}) {
        for (const Scene& scene : scenes) {
            for (const bool arabic : {false, true}) {
                const QString name = QString::fromLatin1(scene.name) +
                                     (arabic ? QStringLiteral("-ar") : QStringLiteral("-en"));
                if (Wanted(name, beginnings) &&
                    !Save(scene.take(arabic), folder.filePath(name + QStringLiteral(".png")))) {
                    return false;
                }
            }
        }
    }
    return true;
}

} // namespace
} // namespace keyfluent::shell

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: keyfluent-screenshots FOLDER [RATIO [NAME...]]\n");
        return 2;
    }
    const double ratio = argc > 2 ? QByteArray(argv[2]).toDouble() : 1;
    keyfluent::shell::UseOffscreenScreen({3840, 2160}, ratio);
    keyfluent::shell::Application application(argc, argv);
    keyfluent::shell::PrepareApplication();
    QApplication::setCursorFlashTime(0); // no caret is caught in the dark half of its blink
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QStringList beginnings = QApplication::arguments().mid(3);
    if (!folder.mkpath(QStringLiteral(".")) ||
        !keyfluent::shell::TakePictures(folder, beginnings)) {
        std::fprintf(stderr, "%s cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
