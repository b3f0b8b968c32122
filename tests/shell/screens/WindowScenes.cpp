// All other windows, as they usually are and with what else they have to say.
#include "course/Notes.h"
#include "shell/forms/DlgGBye.h"
#include "shell/forms/dlgOptions.h"
#include "shell/forms/frmImage.h"
#include "shell/forms/frmLeave.h"
#include "shell/forms/frmStopNote.h"
#include "shell/forms/frmViewRecommands.h"
#include "shell/platform/TextConversion.h"

#include "tests/shell/forms/FormMakers.h"
#include "tests/shell/screens/Scenes.h"

#include <QLineEdit>

namespace keyfluent::shell
{
namespace
{

using Window = std::unique_ptr<Form>;

QPixmap Take(Form& window)
{
    constexpr int settling = 50; // milliseconds
    window.show();
    PassTime(settling);
    return window.grab();
}

// A window of the student's own world, made by an operation.
Scene Of(const char* name, Window (*make)(World& world), int kept = 1)
{
    return {name,
            [make](bool arabic) {
                World world(arabic);
                PlaceStudent(world);
                world.state().arabicExercise = arabic;
                return Take(*make(world));
            },
            kept};
}

Scene AsUsual(const char* form)
{
    return {form, [form](bool arabic) {
                World world(arabic);
                PlaceStudent(world);
                world.state().arabicExercise = arabic;
                return Take(*MakeForm(world, form));
            }};
}

// The student's name is of the other language than the interface.
Scene WithForeignName(const char* name, const char* form)
{
    return {name,
            [form](bool arabic) {
                World world(arabic);
                PlaceStudent(world);
                world.state().studentName = arabic ? u"Layla Haddad" : u"ليلى حداد";
                return Take(*MakeForm(world, form));
            },
            0};
}

Window FilledIn(World& world, const char* form, const char* field, const QString& text)
{
    Window window = MakeForm(world, form);
    static_cast<QLineEdit&>(Control(*window, field)).setText(text);
    return window;
}

Window Name(World& world)
{
    return FilledIn(world, "frmEName", "txtName", ToQString(world.state().studentName));
}

Window NameAgain(World& world)
{
    world.state().loggedOut = true;
    return FilledIn(world, "frmEName", "txtName",
                    world.state().arabicInterface ? QStringLiteral("Ali (2)")
                                                  : QStringLiteral("علي (2)"));
}

Window Letters(World& world)
{
    return FilledIn(world, "frmFree", "txtFree",
                    world.state().arabicInterface ? QStringLiteral("ضصثقفغ")
                                                  : QStringLiteral("qwerty"));
}

Window ChooserOf(World& world, std::uint8_t lesson)
{
    world.state().lessonNo = lesson;
    return MakeForm(world, "dlgExercise");
}

Window Chooser12(World& world)
{
    return ChooserOf(world, 12);
}

Window Chooser15(World& world)
{
    return ChooserOf(world, 15);
}

Window OptionsOf(World& world, std::uint8_t lesson, std::uint8_t exercise)
{
    world.state().lessonNo = lesson;
    world.state().exerciseNo = exercise;
    return std::make_unique<dlgOptions>(world.program());
}

Window OptionsWithWord(World& world)
{
    return OptionsOf(world, 2, 4);
}

Window OptionsOfKeys(World& world)
{
    return OptionsOf(world, 5, 1);
}

Window OptionsOfPassage(World& world)
{
    return OptionsOf(world, 15, 1);
}

Window OptionsOfFreeText(World& world)
{
    world.state().arabicExercise = false;
    world.state().freeText = true;
    return OptionsOf(world, 12, 4);
}

Window OptionsOfArabicAnagram(World& world)
{
    world.state().arabicExercise = false;
    world.state().arabicAnagram = true;
    return OptionsOf(world, 12, 5);
}

Window PassedResult(World& world)
{
    world.state().lessonNo = world.state().reachedLessonWin;
    return MakeForm(world, "frmResult");
}

Window OrdinaryResult(World& world)
{
    world.state().lessonNo = 2;
    return MakeForm(world, "frmResult");
}

Window DiplomaResult(World& world)
{
    world.state().lessonNo = 15;
    world.state().reachedLessonWin = 15;
    context::StudentRecord& record = world.state().studentTable.Record(31);
    for (int i = 0; i < 7; ++i) {
        record[static_cast<std::size_t>(i)] = 190;
    }
    return MakeForm(world, "frmResult");
}

Window FirstStopNote(World& world)
{
    world.state().arabicInterface = true;
    return std::make_unique<frmStopNote>(world.program(), 1);
}

Window FullDiploma(World& world)
{
    context::SessionContext& state = world.state();
    state.studentName = u"محمد Ali عبد الله";
    state.courseDoneArabicMac = state.courseDoneEnglishMac = true;
    state.gradeArabicMac = 3;
    state.gradeEnglishMac = 2;
    return MakeForm(world, "frmDiploma");
}

Window LogOut(World& world)
{
    world.state().quitting = false;
    return std::make_unique<frmLeave>(world.program());
}

template <int Page> Window Help(World& world)
{
    world.state().helpMode = false;
    world.state().helpPage = Page;
    return std::make_unique<frmViewRecommands>(world.program());
}

template <int Page> Window Recommendation(World& world)
{
    world.state().helpMode = true;
    world.state().recommendPage = Page;
    return std::make_unique<frmViewRecommands>(world.program());
}

template <int Bitmap> Window PictureWindow(World& world)
{
    world.Draw(Bitmap, 138, 157);
    return std::make_unique<frmImage>(world.program());
}

template <int Message> Window Farewell(World& world)
{
    world.Draw(Message, 1, 5);
    return std::make_unique<DlgGBye>(world.program());
}

template <int Lesson> Window LessonNote(World& world)
{
    world.state().lessonNo = Lesson;
    return MakeForm(world, "frmLessonDescription");
}

} // namespace

std::vector<Scene> WindowScenes()
{
    return {
        AsUsual("frmIslam"),
        AsUsual("frmSplash"),
        AsUsual("frmScreen"),
        Of("frmEName", Name),
        Of("frmEName-again", NameAgain, 0),
        AsUsual("DlgWelcome"),
        WithForeignName("DlgWelcome-foreign-name", "DlgWelcome"),
        AsUsual("frmWelcome"),
        WithForeignName("frmWelcome-foreign-name", "frmWelcome"),
        AsUsual("frmLessonDescription"),
        Of("frmLessonDescription-7", LessonNote<7>, 0),
        Of("frmImage", PictureWindow<146>),
        Of("frmImage-pad", PictureWindow<147>),
        Of("frmImage-guide-row", PictureWindow<148>),
        Of("frmImage-no-caption", PictureWindow<150>, 0),
        AsUsual("dlgExercise"),
        Of("dlgExercise-12", Chooser12),
        Of("dlgExercise-15", Chooser15, 0),
        AsUsual("dlgOptions"),
        Of("dlgOptions-long-note", OptionsWithWord, 0),
        Of("dlgOptions-keys", OptionsOfKeys, 0),
        Of("dlgOptions-passage", OptionsOfPassage),
        Of("dlgOptions-free-text", OptionsOfFreeText, 0),
        Of("dlgOptions-arabic-anagram", OptionsOfArabicAnagram, 0),
        Of("frmFree", Letters),
        AsUsual("frmNotAllowed"),
        Of("frmResult", PassedResult),
        Of("frmResult-ordinary", OrdinaryResult, 0),
        Of("frmResult-diploma", DiplomaResult, 0),
        AsUsual("frmStopNote"),
        Of("frmStopNote-1", FirstStopNote, 0),
        AsUsual("frmPrefs"),
        AsUsual("frmDiploma"),
        Of("frmDiploma-four-courses", FullDiploma, 0),
        Of("frmViewRecommands-help-1", Help<1>, 0),
        Of("frmViewRecommands-help-2", Help<2>, 0),
        Of("frmViewRecommands-help-3", Help<3>, 0),
        Of("frmViewRecommands-help-4", Help<4>, 0),
        Of("frmViewRecommands-help-5", Help<5>, 0),
        Of("frmViewRecommands-help-6", Help<6>, 0),
        Of("frmViewRecommands-help-7", Help<7>),
        Of("frmViewRecommands-help-8", Help<8>, 0),
        Of("frmViewRecommands-help-9", Help<9>, 0),
        Of("frmViewRecommands-help-10", Help<10>, 0),
        Of("frmViewRecommands-help-11", Help<11>, 0),
        Of("frmViewRecommands-1", Recommendation<1>, 0),
        Of("frmViewRecommands-2", Recommendation<2>),
        Of("frmViewRecommands-3", Recommendation<3>, 0),
        Of("frmViewRecommands-4", Recommendation<4>, 0),
        Of("frmViewRecommands-5", Recommendation<5>, 0),
        Of("frmViewRecommands-6", Recommendation<6>, 0),
        AsUsual("frmAbout"),
        AsUsual("frmMore"),
        AsUsual("frmLeave"),
        Of("frmLeave-log-out", LogOut, 0),
        AsUsual("DlgGBye"),
        Of("DlgGBye-1", Farewell<1>, 0),
        Of("DlgGBye-4", Farewell<4>, 0),
        Of("DlgGBye-5", Farewell<5>, 0),
        WithForeignName("DlgGBye-foreign-name", "DlgGBye"),
    };
}

} // namespace keyfluent::shell
