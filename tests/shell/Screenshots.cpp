// Takes a picture of every window in both languages, each drawn by the window itself.
//
// usage: keyfluent-screenshots FOLDER [RATIO]
//
// Writes FOLDER/<window>-<en|ar>.png, RATIO device pixels to a pixel of the layout (1 if not told).
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmLesson.h"
#include "shell/forms/frmViewRecommands.h"
#include "shell/platform/TextConversion.h"

#include "tests/shell/forms/FormMakers.h"
#include "tests/shell/forms/LessonKeys.h"

#include <QDir>
#include <QLineEdit>

#include <cstdio>

namespace keyfluent::shell
{
namespace
{

constexpr int settling = 400; // milliseconds until all that blinks has come to rest

// In the middle of an exercise, some keys typed.
std::unique_ptr<Form> MakeExercise(World& world)
{
    context::SessionContext& state = world.state();
    state.lessonNo = 3;
    state.exerciseNo = 4;
    std::unique_ptr<Form> window = MakeForm(world, "frmLesson");
    window->show();
    PassTime(settling);
    TypeRight(*window, 1);
    world.now += 9.5;
    TypeRight(*window, 26);
    PassTime(settling);
    return window;
}

// The recommendation with the chart, and a page of help.
std::unique_ptr<Form> MakePage(World& world)
{
    context::SessionContext& state = world.state();
    state.helpMode = !state.arabicInterface;
    state.recommendPage = 2;
    state.helpPage = 7;
    return std::make_unique<frmViewRecommands>(world.program());
}

// As it has been filled in.
std::unique_ptr<Form> MakeFilledIn(World& world, const char* form, const char* field,
                                   const QString& text)
{
    std::unique_ptr<Form> window = MakeForm(world, form);
    static_cast<QLineEdit&>(Control(*window, field)).setText(text);
    return window;
}

std::unique_ptr<Form> Make(World& world, const char* name)
{
    const QString form = QString::fromLatin1(name);
    const bool arabic = world.state().arabicInterface;
    if (form == QStringLiteral("frmLesson")) {
        return MakeExercise(world);
    }
    if (form == QStringLiteral("frmViewRecommands")) {
        return MakePage(world);
    }
    if (form == QStringLiteral("frmEName")) {
        return MakeFilledIn(world, name, "txtName", ToQString(world.state().studentName));
    }
    if (form == QStringLiteral("frmFree")) {
        return MakeFilledIn(world, name, "txtFree",
                            arabic ? QStringLiteral("ضصثقفغ") : QStringLiteral("qwerty"));
    }
    return MakeForm(world, name);
}

bool Save(QWidget& window, bool arabic, const QDir& folder)
{
    const QString language = arabic ? QStringLiteral("ar") : QStringLiteral("en");
    return window.grab().save(
        folder.filePath(window.objectName() + u'-' + language + QStringLiteral(".png")));
}

bool TakeMainWindow(bool arabic, const QDir& folder)
{
    World world(arabic);
    PlaceStudent(world);
    world.program().EnterAsKnownStudent();
    frmBlack& window = *world.program().MainWindow();
    window.showNormal();
    window.resize(1280, 800);
    PassTime(settling);
    window.ShowStepButtons(true, true, true);
    return Save(window, arabic, folder);
}

bool TakePictures(const QDir& folder)
{
    bool taken = true;
    for (const bool arabic : {false, true}) {
        taken = TakeMainWindow(arabic, folder) && taken;
        for (const FormMaker& maker : FormMakers()) {
            World world(arabic);
            PlaceStudent(world);
            world.state().arabicExercise = arabic;
            const std::unique_ptr<Form> window = Make(world, maker.name);
            window->show();
            PassTime(50);
            taken = Save(*window, arabic, folder) && taken;
        }
    }
    return taken;
}

} // namespace
} // namespace keyfluent::shell

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: keyfluent-screenshots FOLDER [RATIO]\n");
        return 2;
    }
    const double ratio = argc > 2 ? QByteArray(argv[2]).toDouble() : 1;
    keyfluent::shell::UseOffscreenScreen({1920, 1200}, ratio);
    keyfluent::shell::Application application(argc, argv);
    keyfluent::shell::PrepareApplication();
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(QStringLiteral(".")) || !keyfluent::shell::TakePictures(folder)) {
        std::fprintf(stderr, "%s cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
