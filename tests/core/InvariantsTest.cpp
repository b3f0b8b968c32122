// What always holds, whatever happens to an exercise and in whatever order.
#include "Typist.h"
#include "context/FatalError.h"
#include "course/Aids.h"
#include "progress/Chooser.h"
#include "progress/Place.h"
#include "progress/Result.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

// A student who does anything at any moment, but mostly types.
class AnyStudent : public PerfectTypist
{
public:
    AnyStudent(LessonDriver& lesson, std::uint32_t seed) : PerfectTypist(lesson), random_(seed) {}

    int ends = 0;
    int stops = 0;
    int reviews = 0;
    int results = 0;
    int fatals = 0;

    void SignIn()
    {
        driver_.context = {};
        driver_.context.lessonNo = 1;
        driver_.context.exerciseNo = 1;
        driver_.context.keyboardKind =
            Draw(2) == 0 ? context::windowsKeyboard : context::macintoshKeyboard;
        driver_.context.reachedLessonMac = driver_.context.reachedLessonWin = 15;
        if (Draw(2) == 0) {
            driver_.context.reachedLessonMac = driver_.context.reachedLessonWin = 1;
        }
        driver_.context.trueKeyColour = LessonDriver::trueColour;
        driver_.context.errKeyColour = LessonDriver::errColour;
        driver_.machine.window.showResult = [this] {
            ++results;
            progress::LoadResult(driver_.context, driver_.machine.platform);
        };
    }

    // One event. A failure that ends the program is the end of this student's turn.
    void Step() override
    {
        try {
            if (driver_.IsOpen()) {
                const bool wasReview = driver_.It().reviewMode;
                Do();
                reviews += driver_.It().reviewMode && !wasReview ? 1 : 0;
                ends += driver_.IsOpen() ? 0 : 1;
            } else {
                OpenSomething();
            }
        } catch (const context::FatalError&) {
            ++fatals;
            SignIn();
            OpenSomething();
        }
    }

private:
    // From 0 up to below end.
    int Draw(int end) { return static_cast<int>(random_() % static_cast<std::uint32_t>(end)); }

    void OpenSomething()
    {
        context::SessionContext& context = driver_.context;
        context.arabicInterface = Draw(2) == 0;
        context.fontSize = Draw(20);
        context.colouredHands = Draw(2) == 0;
        pace = 30 + Draw(100);
        if (Draw(4) != 0) {
            const int reached = std::max<int>(context.reachedLessonWin, 1);
            const int lesson = Draw(4) == 0 ? reached : 1 + Draw(reached);
            context.lessonNo = static_cast<std::uint8_t>(lesson);
            progress::LoadChooser(context);
            progress::ChooseExercise(context, static_cast<std::uint8_t>(1 + Draw(5)), Draw(2) == 0);
        } else if (Draw(2) == 0) {
            progress::StepNext(context);
        } else {
            progress::StepBack(context);
        }
        const course::AidPlan plan = course::DecideAids(context);
        for (const course::Aid aid : course::allAids) {
            if (Draw(2) == 0) {
                course::TurnAid(context, plan, aid);
            }
        }
        context.anagramLanguage = Draw(2) == 0;
        context.freeTextChars = context.anagramLanguage ? u"اب ت" : u"ab C";
        driver_.Open();
    }

    void Do()
    {
        const int choice = Draw(1000);
        if (choice < 600) {
            TypeOn();
        } else if (choice < 670) {
            driver_.Key(Draw(256));
        } else if (choice < 700) {
            driver_.Up(Draw(2) == 0 ? keyShift : keyCtrl);
        } else if (choice < 730) {
            driver_.Backspace();
        } else if (choice < 750) {
            driver_.machine.capsLockState = static_cast<std::int16_t>(Draw(2));
            driver_.Key(keyCapsLock);
        } else if (choice < 900) {
            driver_.Wait(Draw(600));
        } else if (choice < 996) {
            UsePointer();
        } else if (choice < 999) {
            driver_.machine.SetTimeOfDay(Draw(86400));
        } else {
            PressStop(driver_.It());
            ++stops;
        }
    }

    void TypeOn()
    {
        Lesson& lesson = driver_.It();
        const bool outgrown = lesson.txtTest.Size() >= lesson.txtOrigin.Size();
        if (TextField* field = EditableField(lesson)) {
            Edit(*field);
        } else if (outgrown && lesson.caretPos > 0) {
            driver_.Backspace();
        } else if (Expected() == u'\0' || FindStroke(Expected()).code == 0) {
            Press('H');
        } else {
            TypeExpected();
        }
    }

    // In the review the text is put right now and then.
    void Edit(TextField& field)
    {
        driver_.Key(Draw(256));
        if (!driver_.IsOpen()) {
            return;
        }
        if (driver_.It().reviewMode && Draw(20) == 0) {
            EditField(field, 0, field.Size(), driver_.It().txtOrigin.Text());
        } else if (driver_.It().reviewMode && Draw(5) == 0) {
            PressEnterInReview(driver_.It());
        } else {
            EditField(field, Draw(field.Size() + 1), Draw(3), Draw(2) == 0 ? u"x" : u"\r\n");
        }
        if (Draw(500) == 0) {
            EditField(field, 0, 0, std::u16string(static_cast<std::size_t>(Draw(31000)), u'a'));
        }
        driver_.Wait(Draw(30));
    }

    void UsePointer()
    {
        Lesson& lesson = driver_.It();
        switch (Draw(9)) {
        case 0:
            ClickRest(lesson);
            break;
        case 1:
        case 2:
        case 3:
            ClickResume(lesson);
            break;
        case 4:
            MoveOver(lesson, static_cast<PushPicture>(Draw(3)));
            break;
        case 5:
            MoveOverForm(lesson);
            break;
        case 6:
            PressField(lesson, Draw(2) == 0 ? FieldName::Origin : FieldName::Test);
            break;
        case 7:
            OriginLostFocus(lesson);
            break;
        default:
            Activate(lesson);
        }
    }

    std::mt19937 random_;
};

class InvariantsTest : public LessonFixture
{
protected:
    void SetUp() override { machine.recording = false; }

    // "" while all holds; else what does not.
    std::string Broken()
    {
        const Lesson& lesson = It();
        std::string broken;
        const auto hold = [&broken](bool holds, const char* what) {
            if (!holds) {
                broken += std::string(broken.empty() ? "" : ", ") + what;
            }
        };
        const auto within = [](double low, double value, double high) {
            return low <= value && value <= high;
        };
        hold(lesson.caretPos >= 0, "the caret is not negative");
        hold(within(1, lesson.currentRow, lesson.rowCount + 1), "there is such a row");
        hold(lesson.totalCount == lesson.correctCount + lesson.errorCount, "the counts add up");
        hold(within(0, lesson.accuracyPercent, 100), "the accuracy is a percentage");
        hold(within(0, lesson.speedRate, 300), "the speed is in its range");
        hold(within(0, double(lesson.pbMark.value), lesson.pbMark.maximum), "the mark is in range");
        hold(within(0, double(lesson.pbSpeed.value), 300), "the speed gauge is in range");
        hold(lesson.clockSeconds < 60 && lesson.clockMinutes <= 99, "the clock shows a time");
        hold(lesson.unloaded || lesson.errorPending == Runs(TimerName::ErrKey),
             "an error is pending while it blinks");
        hold(!(Runs(TimerName::ErrKey) && Runs(TimerName::EraseChar)), "a row is not both");
        hold(!lesson.paused || !Runs(TimerName::Clock), "a pause stops the clock");
        hold(!lesson.awaitingFirstKey || lesson.totalCount == 0, "the first key starts the clock");
        hold(!lesson.reviewMode || context.lessonNo == 15, "only the last lesson has a review");
        hold(Runs(TimerName::Selection), "the idle timer runs");
        const int flags = (context.arabicAnagram ? 1 : 0) + (context.englishAnagram ? 1 : 0) +
                          (context.freeText ? 1 : 0);
        hold(flags <= 1, "there is one special flag at most");
        hold(lesson.lblMark.caption.empty() ||
                 Utf8(lesson.lblMark.caption) ==
                     std::to_string(static_cast<int>(lesson.pbMark.value)),
             "the label tells the mark");
        return broken;
    }
};

TEST_F(InvariantsTest, HoldThroughAnyEvents)
{
    constexpr int eventsOfAStudent = 10000;
    int ends = 0;
    int stops = 0;
    int reviews = 0;
    int results = 0;
    int fatals = 0;
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        AnyStudent student(*this, seed);
        student.SignIn();
        student.Step();
        int reachedMac = context.reachedLessonMac;
        int reachedWin = context.reachedLessonWin;
        for (int event = 0; event < eventsOfAStudent; ++event) {
            const int fatalsBefore = student.fatals;
            student.Step();
            ASSERT_EQ(Broken(), "") << "seed " << seed << ", event " << event;
            if (student.fatals == fatalsBefore) {
                ASSERT_GE(context.reachedLessonMac, reachedMac) << "seed " << seed;
                ASSERT_GE(context.reachedLessonWin, reachedWin) << "seed " << seed;
            }
            reachedMac = context.reachedLessonMac;
            reachedWin = context.reachedLessonWin;
        }
        ends += student.ends;
        stops += student.stops;
        reviews += student.reviews;
        results += student.results;
        fatals += student.fatals;
    }
    // The events have led everywhere.
    EXPECT_GT(ends, 200);
    EXPECT_GT(stops, 50);
    EXPECT_GT(reviews, 2);
    EXPECT_GT(results, 50);
    EXPECT_LT(fatals, 20);
}

} // namespace
} // namespace keyfluent::session
