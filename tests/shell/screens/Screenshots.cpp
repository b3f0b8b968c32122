// Takes a picture of every window in both languages, each drawn by the window itself.
//
// usage: keyfluent-screenshots FOLDER [RATIO [NAME...]]
//
// Writes FOLDER/<name>-<en|ar>.png, RATIO device pixels to a pixel of the layout (1 if not told),
// or FOLDER/<name>.png where both languages look the same. With names, those pictures whose names
// begin with one of them, and without names those that are kept in docs/screens.
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
bool Save(const QImage& picture, const QString& file)
{
    QImageWriter writer(file, "PNG");
    writer.setCompression(100);
    return writer.write(picture.convertToFormat(QImage::Format_RGB32));
}

class Camera
{
public:
    Camera(const QDir& folder, const QStringList& beginnings)
        : folder_(folder), beginnings_(beginnings)
    {
    }

    // False when a picture cannot be written.
    bool TakeAll() const
    {
        for (const auto& scenes :
             {MainWindowScenes(), WindowScenes(), LessonScenes(), BoxScenes()}) {
            if (!std::ranges::all_of(scenes, [this](const Scene& scene) { return Take(scene); })) {
                return false;
            }
        }
        return true;
    }

private:
    bool Wanted(const Scene& scene) const
    {
        if (beginnings_.isEmpty()) {
            return scene.kept > 0;
        }
        const QString name = QString::fromLatin1(scene.name);
        return std::ranges::any_of(
            beginnings_, [&name](const QString& beginning) { return name.startsWith(beginning); });
    }

    QImage Picture(const Scene& scene, bool arabic) const
    {
        const QImage whole = scene.take(arabic).toImage();
        return beginnings_.isEmpty() && scene.kept > 1
                   ? whole.scaled(whole.size() / scene.kept, Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation)
                   : whole;
    }

    // One file where both languages look the same.
    bool Take(const Scene& scene) const
    {
        if (!Wanted(scene)) {
            return true;
        }
        const QImage english = Picture(scene, false);
        const QImage arabic = Picture(scene, true);
        const auto save = [this, &scene](const QImage& picture, const char* language) {
            return Save(picture, folder_.filePath(QLatin1String(scene.name) +
                                                  QLatin1String(language) + QLatin1String(".png")));
        };
        return english == arabic ? save(english, "") : save(english, "-en") && save(arabic, "-ar");
    }

    const QDir& folder_;
    const QStringList& beginnings_;
};

} // namespace
} // namespace keyfluent::shell

// What the offscreen platform cannot do is none of the pictures' business.
static void Tell(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

int main(int argc, char** argv)
{
    qInstallMessageHandler(Tell);
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
        !keyfluent::shell::Camera(folder, beginnings).TakeAll()) {
        std::fprintf(stderr, "%s cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
