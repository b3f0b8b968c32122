#include "tests/shell/forms/FormMakers.h"

#include "course/Notes.h"
#include "progress/StudentFile.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/DlgGBye.h"
#include "shell/forms/DlgWelcome.h"
#include "shell/forms/dlgExercise.h"
#include "shell/forms/dlgOptions.h"
#include "shell/forms/frmAbout.h"
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

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

template <typename Window> std::unique_ptr<Form> Make(World& world)
{
    return std::make_unique<Window>(world.program());
}

std::unique_ptr<Form> MakeSmallScreen(World& world)
{
    return std::make_unique<frmScreen>(world.program(), QSize(640, 480));
}

// The file is read as the window loads.
std::unique_ptr<Form> MakeWelcome(World& world)
{
    world.WriteStudent(ToQString(world.state().studentName), world.state().studentTable);
    world.Draw(1, 1, 8);
    return std::make_unique<frmWelcome>(world.program());
}

std::unique_ptr<Form> MakeDescription(World& world)
{
    world.state().lessonNoteText = course::LessonNote(world.state().lessonNo);
    return std::make_unique<frmLessonDescription>(world.program());
}

std::unique_ptr<Form> MakePicture(World& world)
{
    constexpr int fingersAndKeys = 146;
    world.Draw(fingersAndKeys, 138, 157);
    return std::make_unique<frmImage>(world.program());
}

std::unique_ptr<Form> MakeLesson(World& world)
{
    context::SessionContext& state = world.state();
    state.optKeyCaps = state.optHands = state.optCounter = state.optClock = true;
    return std::make_unique<frmLesson>(world.program());
}

std::unique_ptr<Form> MakeResult(World& world)
{
    world.state().accuracyMark = 95;
    world.state().speedBonus = 38;
    world.state().exerciseMark = 133;
    return std::make_unique<frmResult>(world.program());
}

// As the lesson that is stopped leaves it: the note is Arabic in any case.
std::unique_ptr<Form> MakeStopNote(World& world)
{
    constexpr int noteWithPicture = 9;
    world.state().arabicInterface = true;
    return std::make_unique<frmStopNote>(world.program(), noteWithPicture);
}

std::unique_ptr<Form> MakePreferences(World& world)
{
    world.WritePreferences(world.state().arabicInterface);
    return std::make_unique<frmPrefs>(world.program());
}

std::unique_ptr<Form> MakeViewer(World& world)
{
    world.state().helpMode = false;
    world.state().helpPage = 7;
    return std::make_unique<frmViewRecommands>(world.program());
}

std::unique_ptr<Form> MakeLeave(World& world)
{
    world.state().quitting = true;
    return std::make_unique<frmLeave>(world.program());
}

std::unique_ptr<Form> MakeFarewell(World& world)
{
    world.Draw(2, 1, 5);
    return std::make_unique<DlgGBye>(world.program());
}

} // namespace

const std::vector<FormMaker>& FormMakers()
{
    static const std::vector<FormMaker> makers = {
        {"frmIslam", Make<frmIslam>},
        {"frmSplash", Make<frmSplash>},
        {"frmScreen", MakeSmallScreen},
        {"frmEName", Make<frmEName>},
        {"DlgWelcome", Make<DlgWelcome>},
        {"frmWelcome", MakeWelcome},
        {"frmLessonDescription", MakeDescription},
        {"frmImage", MakePicture},
        {"dlgExercise", Make<dlgExercise>},
        {"dlgOptions", Make<dlgOptions>},
        {"frmFree", Make<frmFree>},
        {"frmLesson", MakeLesson},
        {"frmNotAllowed", Make<frmNotAllowed>},
        {"frmResult", MakeResult},
        {"frmStopNote", MakeStopNote},
        {"frmPrefs", MakePreferences},
        {"frmDiploma", Make<frmDiploma>},
        {"frmViewRecommands", MakeViewer},
        {"frmAbout", Make<frmAbout>},
        {"frmMore", Make<frmMore>},
        {"frmLeave", MakeLeave},
        {"DlgGBye", MakeFarewell},
    };
    return makers;
}

std::unique_ptr<Form> MakeForm(World& world, const char* name)
{
    const auto found = std::ranges::find_if(
        FormMakers(), [name](const FormMaker& maker) { return qstrcmp(maker.name, name) == 0; });
    if (found == FormMakers().end()) {
        qFatal("No window %s", name);
    }
    return found->make(world);
}

void PlaceStudent(World& world)
{
    context::SessionContext& state = world.state();
    state.studentName = state.arabicInterface ? u"ليلى" : u"Layla";
    constexpr std::int16_t marks[][10] = {{196, 92, 88, 91, 187, 95, 48, 97, 90, 178},
                                          {49, 94, 96, 87, 181, 91, 47, 93, 99, 274},
                                          {98, 46, 95, 92, 268, 97, 94, 96, 49, 251},
                                          {130, 50, 84, 71, 143, 96, 88, 92, 79, 85}};
    context::StudentTable& table = state.studentTable;
    table = TableAt(4);
    for (std::size_t lesson = 0; lesson < std::size(marks); ++lesson) {
        std::ranges::copy(marks[lesson], table.Record(static_cast<int>(lesson) + 17).begin());
    }
    context::StudentRecord& date = table.Record(31);
    date[7] = 14;
    date[8] = 3;
    date[9] = 2026;
    state.reachedLessonWin = state.lastLessonWin = 4;
    state.reachedLessonMac = state.lastLessonMac = 4;
    state.lessonNo = 4;
    state.exerciseNo = 2;
    state.courseDoneArabicWin = state.courseDoneEnglishWin = true;
    state.gradeArabicWin = 1;
    state.gradeEnglishWin = 4;
}

} // namespace keyfluent::shell
