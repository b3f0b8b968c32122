// The exercise window in its layouts and states.
#include "shell/forms/frmLesson.h"
#include "shell/text/FieldEditor.h"

#include "tests/shell/forms/FormMakers.h"
#include "tests/shell/forms/LessonKeys.h"
#include "tests/shell/screens/Scenes.h"

#include <QTimerEvent>

namespace keyfluent::shell
{
namespace
{

using context::SessionContext;

constexpr int settling = 450; // milliseconds until all that blinks has come to rest
constexpr int inABlink = 75;  // and until the cap of a refused key is lit

// A place in the course and how the window is set up for it; what is not told is a student's in an
// ordinary exercise with all aids.
struct Setting {
    std::uint8_t lesson = 3;
    std::uint8_t exercise = 4;
    int fontSize = 14;
    int keyboardKind = 192;
    bool colouredHands = true;
    std::int32_t trueKeyColour = 0x7A7326;
    bool aids = true; // key caps and hands
};

class Stage
{
public:
    Stage(bool arabic, const Setting& setting) : world_(arabic)
    {
        PlaceStudent(world_);
        SessionContext& state = world_.state();
        state.arabicExercise = arabic;
        state.lessonNo = setting.lesson;
        state.exerciseNo = setting.exercise;
        state.fontSize = setting.fontSize;
        state.keyboardKind = setting.keyboardKind;
        state.colouredHands = setting.colouredHands;
        state.trueKeyColour = setting.trueKeyColour;
        state.optKeyCaps = state.optHands = setting.aids;
        state.optCounter = state.optClock = true;
    }

    SessionContext& state() { return world_.state(); }
    QWidget& window() { return *window_; }

    Stage& Open()
    {
        window_ = std::make_unique<frmLesson>(world_.program());
        window_->show();
        PassTime(settling);
        return *this;
    }

    // The first key starts the clock; the others follow at the pace of a beginner.
    Stage& Type(int keys)
    {
        constexpr double keysPerSecond = 2.4;
        TypeRight(*window_, 1);
        const double seconds = (keys - 1) / keysPerSecond;
        for (int second = 1; second <= seconds; ++second) {
            Tick("tmrClock");
        }
        world_.now += seconds;
        TypeRight(*window_, keys - 1);
        return *this;
    }

    QPixmap Take(int after = settling)
    {
        PassTime(after);
        return window_->grab();
    }

private:
    // As if the timer's time had passed.
    void Tick(const char* timer)
    {
        auto* ticking = window_->findChild<QTimer*>(QString::fromLatin1(timer));
        QTimerEvent event(ticking->timerId());
        QCoreApplication::sendEvent(ticking, &event);
    }

    World world_;
    std::unique_ptr<Form> window_;
};

QPixmap Ordinary(bool arabic)
{
    Setting setting;
    setting.fontSize = 12;
    setting.colouredHands = false;
    setting.trueKeyColour = 0;
    return Stage(arabic, setting).Open().Type(27).Take();
}

QPixmap Wide(bool arabic)
{
    return Stage(arabic, {}).Open().Type(29).Take();
}

QPixmap Largest(bool arabic)
{
    Setting setting;
    setting.fontSize = 20;
    return Stage(arabic, setting).Open().Type(11).Take();
}

QPixmap Macintosh(bool arabic)
{
    Setting setting;
    setting.keyboardKind = 0;
    setting.colouredHands = false;
    return Stage(arabic, setting).Open().Type(14).Take();
}

QPixmap Refused(bool arabic)
{
    Stage stage(arabic, {});
    stage.Open().Type(20).Take();
    TypeWrong(stage.window());
    return stage.Take(inABlink);
}

QPixmap Paused(bool arabic)
{
    Stage stage(arabic, {});
    stage.Open().Type(33);
    Click(stage.window(), "imgRest");
    return stage.Take();
}

// Counter and clock are what lesson 15 leaves.
Setting Passage()
{
    Setting setting;
    setting.lesson = 15;
    setting.exercise = 1;
    setting.aids = false;
    return setting;
}

QPixmap Lesson15(bool arabic)
{
    Stage stage(arabic, Passage());
    return stage.Open().Type(150).Take();
}

QPixmap Review(bool arabic)
{
    Stage stage(arabic, Passage());
    stage.Open().Type(30);
    TypeWrong(stage.window());
    TypeRight(stage.window(), 50);
    TypeWrong(stage.window());
    TypeToTheEnd(stage.window());
    auto& field = static_cast<FieldEditor&>(Control(stage.window(), "txtTest"));
    field.setFocus();
    field.Select(27, 34);
    return stage.Take();
}

QPixmap FreeText(bool arabic)
{
    Setting setting;
    setting.lesson = 12;
    setting.exercise = 4;
    setting.aids = false;
    Stage stage(arabic, setting);
    stage.state().freeText = true;
    stage.state().arabicExercise = false;
    stage.state().anagramLanguage = arabic;
    stage.Open();
    Type(stage.window(), arabic ? QStringLiteral("أكتب هنا ما أشاء: رسالة إلى صديق (Sami)، أو "
                                                 "قائمة من 12 كلمة.")
                                : QStringLiteral("I type what I like here: a letter to a friend, "
                                                 "or a list of 12 words."));
    return stage.Take();
}

QPixmap Anagram(bool arabic)
{
    Setting setting;
    setting.lesson = 12;
    setting.exercise = arabic ? 5 : 3;
    Stage stage(arabic, setting);
    stage.state().arabicExercise = false;
    (arabic ? stage.state().arabicAnagram : stage.state().englishAnagram) = true;
    stage.state().freeTextChars = arabic ? u"ضصثق" : u"qwert";
    stage.state().anagramLanguage = arabic;
    return stage.Open().Type(9).Take();
}

QPixmap MixedLanguages(bool arabic)
{
    Stage stage(arabic, {});
    stage.state().arabicExercise = !arabic;
    return stage.Open().Type(12).Take();
}

} // namespace

std::vector<Scene> LessonScenes()
{
    return {
        {"frmLesson", Wide},
        {"frmLesson-12-points", Ordinary},
        {"frmLesson-20-points", Largest},
        {"frmLesson-macintosh", Macintosh},
        {"frmLesson-refused", Refused},
        {"frmLesson-paused", Paused},
        {"frmLesson-other-language", MixedLanguages},
        {"frmLesson-anagram", Anagram},
        {"frmLesson-passage", Lesson15},
        {"frmLesson-review", Review},
        {"frmLesson-free-text", FreeText},
    };
}

} // namespace keyfluent::shell
