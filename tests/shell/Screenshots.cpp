// Takes a picture of every window in both languages, each as the program itself draws it.
//
// usage: keyfluent-screenshots FOLDER [RATIO]
//
// Writes FOLDER/<window>-<en|ar>.png, RATIO device pixels to a pixel of the layout (1 if not told).
#include "progress/Chooser.h"
#include "progress/SignIn.h"
#include "progress/StudentFile.h"
#include "session/Loading.h"
#include "shell/base/ImageControl.h"
#include "shell/forms/DlgGBye.h"
#include "shell/forms/DlgWelcome.h"
#include "shell/forms/dlgExercise.h"
#include "shell/forms/dlgOptions.h"
#include "shell/forms/frmAbout.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmDiploma.h"
#include "shell/forms/frmEName.h"
#include "shell/forms/frmFree.h"
#include "shell/forms/frmImage.h"
#include "shell/forms/frmIslam.h"
#include "shell/forms/frmLeave.h"
#include "shell/forms/frmLesson.h"
#include "shell/forms/frmLessonDescription.h"
#include "shell/forms/frmMore.h"
#include "shell/forms/frmNotAllowed.h"
#include "shell/forms/frmPrefs.h"
#include "shell/forms/frmResult.h"
#include "shell/forms/frmScreen.h"
#include "shell/forms/frmSplash.h"
#include "shell/forms/frmStopNote.h"
#include "shell/forms/frmViewRecommands.h"
#include "shell/forms/frmWelcome.h"
#include "shell/platform/TextConversion.h"

#include "course/Notes.h"
#include "tests/shell/forms/FormsHarness.h"

#include <QDir>
#include <QLineEdit>

#include <cstdio>

namespace keyfluent::shell
{
namespace
{

using Shown = std::unique_ptr<QWidget>;

struct Scene {
    const char* name;
    std::function<Shown(World&)> make;
};

// A student in the middle of the fourth lesson.
context::StudentTable TableOfAStudent()
{
    constexpr std::int16_t marks[][10] = {{196, 92, 88, 91, 187, 95, 48, 97, 90, 178},
                                          {49, 94, 96, 87, 181, 91, 47, 93, 99, 274},
                                          {98, 46, 95, 92, 268, 97, 94, 96, 49, 251},
                                          {130, 50, 84, 71, 143, 96, 88, 92, 79, 85}};
    context::StudentTable table = TableAt(4);
    for (std::size_t lesson = 0; lesson < std::size(marks); ++lesson) {
        std::ranges::copy(marks[lesson], table.Record(static_cast<int>(lesson) + 17).begin());
    }
    return table;
}

void SignInStudent(World& world)
{
    const bool arabic = world.state().arabicInterface;
    const QString name = arabic ? QStringLiteral("ليلى") : QStringLiteral("Layla");
    world.WriteStudent(name, TableOfAStudent());
    world.state().studentName = FromQString(name);
    progress::LoadStudent(world.state());
    world.state().lessonNo = 4;
    world.state().exerciseNo = 2;
    world.state().arabicExercise = arabic;
}

template <typename Window> Shown Make(World& world)
{
    return std::make_unique<Window>(world.program());
}

Shown MakeMainWindow(World& world)
{
    world.program().EnterAsKnownStudent();
    frmBlack* window = world.program().MainWindow();
    window->ShowStepButtons(true, true, true);
    window->showNormal();
    window->resize(1280, 800);
    PassTime(50);
    return nullptr;
}

Shown MakeName(World& world)
{
    auto form = std::make_unique<frmEName>(world.program());
    static_cast<QLineEdit&>(Control(*form, "txtName"))
        .setText(ToQString(world.state().studentName));
    return form;
}

Shown MakeLetters(World& world)
{
    auto form = std::make_unique<frmFree>(world.program());
    static_cast<QLineEdit&>(Control(*form, "txtFree"))
        .setText(world.state().arabicInterface ? QStringLiteral("ضصثقفغ")
                                               : QStringLiteral("qwerty"));
    return form;
}

Shown MakeLesson(World& world)
{
    world.state().optKeyCaps = true;
    world.state().optHands = true;
    world.state().optCounter = true;
    world.state().optClock = true;
    auto form = std::make_unique<frmLesson>(world.program());
    form->show();
    return form;
}

Shown MakeDescription(World& world)
{
    world.state().lessonNoteText = course::LessonNote(world.state().lessonNo);
    return std::make_unique<frmLessonDescription>(world.program());
}

Shown MakeResult(World& world)
{
    world.state().lessonNo = 3;
    world.state().reachedLessonWin = 3;
    world.state().accuracyMark = 95;
    world.state().speedBonus = 38;
    world.state().exerciseMark = 133;
    return std::make_unique<frmResult>(world.program());
}

Shown MakeStopNote(World& world)
{
    constexpr int noteWithPicture = 9;
    world.state().arabicInterface = true;
    return std::make_unique<frmStopNote>(world.program(), noteWithPicture);
}

Shown MakePicture(World& world)
{
    constexpr int fingersAndKeys = 146;
    world.Draw(fingersAndKeys, 138, 157);
    return std::make_unique<frmImage>(world.program());
}

Shown MakeViewer(World& world)
{
    world.state().helpMode = !world.state().arabicInterface;
    world.state().recommendPage = 2;
    world.state().helpPage = 7;
    return std::make_unique<frmViewRecommands>(world.program());
}

Shown MakeDiploma(World& world)
{
    context::SessionContext& state = world.state();
    state.courseDoneArabicWin = true;
    state.courseDoneEnglishWin = true;
    state.gradeArabicWin = 1;
    state.gradeEnglishWin = 4;
    context::StudentRecord& date = state.studentTable.Record(31);
    date[7] = 14;
    date[8] = 3;
    date[9] = 2026;
    return std::make_unique<frmDiploma>(world.program());
}

Shown MakeLeave(World& world)
{
    world.state().quitting = true;
    return std::make_unique<frmLeave>(world.program());
}

Shown MakeFarewell(World& world)
{
    world.Draw(2, 1, 5);
    return std::make_unique<DlgGBye>(world.program());
}

Shown MakeWelcome(World& world)
{
    world.Draw(1, 1, 8);
    return std::make_unique<frmWelcome>(world.program());
}

Shown MakeSmallScreen(World& world)
{
    return std::make_unique<frmScreen>(world.program(), QSize(640, 480));
}

const Scene scenes[] = {
    {"frmIslam", Make<frmIslam>},      {"frmSplash", Make<frmSplash>},
    {"frmScreen", MakeSmallScreen},    {"frmEName", MakeName},
    {"DlgWelcome", Make<DlgWelcome>},  {"frmWelcome", MakeWelcome},
    {"frmBlack", MakeMainWindow},      {"frmLessonDescription", MakeDescription},
    {"frmImage", MakePicture},         {"dlgExercise", Make<dlgExercise>},
    {"dlgOptions", Make<dlgOptions>},  {"frmFree", MakeLetters},
    {"frmLesson", MakeLesson},         {"frmNotAllowed", Make<frmNotAllowed>},
    {"frmResult", MakeResult},         {"frmStopNote", MakeStopNote},
    {"frmPrefs", Make<frmPrefs>},      {"frmDiploma", MakeDiploma},
    {"frmViewRecommands", MakeViewer}, {"frmAbout", Make<frmAbout>},
    {"frmMore", Make<frmMore>},        {"frmLeave", MakeLeave},
    {"DlgGBye", MakeFarewell},
};

bool TakePicture(const Scene& scene, bool arabic, const QDir& folder)
{
    World world(arabic);
    world.WritePreferences(arabic);
    SignInStudent(world);
    const Shown shown = scene.make(world);
    QWidget* window = shown != nullptr ? shown.get() : world.program().MainWindow();
    window->show();
    PassTime(50);
    const QString file =
        folder.filePath(QStringLiteral("%1-%2.png")
                            .arg(QString::fromLatin1(scene.name),
                                 arabic ? QStringLiteral("ar") : QStringLiteral("en")));
    return window->grab().save(file);
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
    folder.mkpath(QStringLiteral("."));
    for (const auto& scene : keyfluent::shell::scenes) {
        for (const bool arabic : {false, true}) {
            if (!keyfluent::shell::TakePicture(scene, arabic, folder)) {
                std::fprintf(stderr, "%s could not be written\n", scene.name);
                return 1;
            }
        }
    }
    return 0;
}
