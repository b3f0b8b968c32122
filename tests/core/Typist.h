// Two typists for whole exercises: one who never errs, and one who does all that a student may do.
// Both find their keys by asking the judge, not by looking at the lit cap.
#pragma once

#include "LessonFixture.h"
#include "course/Lessons.h"
#include "course/Regimes.h"
#include "keyboard/KeyCodes.h"
#include "keyboard/Layouts.h"
#include "session/Pointer.h"
#include "session/Review.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string_view>
#include <vector>

namespace keyfluent::session::fixtures
{

// What a key's cap reads before anything has been rewritten on it; "" for a key without one.
inline std::u16string_view CapReading(Stroke stroke, std::int32_t kind, bool arabic)
{
    const int cap = keyboard::CapOfKey(stroke.code);
    if (cap == keyboard::noCap) {
        return {};
    }
    std::array<std::u16string_view, keyboard::capCount> texts;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i] = keyboard::CapDesigns()[i].designText;
    }
    keyboard::WriteCapTexts(kind, stroke.shift, arabic, texts);
    return texts[static_cast<std::size_t>(cap)];
}

class PerfectTypist
{
public:
    explicit PerfectTypist(LessonDriver& lesson) : driver_(lesson) {}
    virtual ~PerfectTypist() = default;
    PerfectTypist(const PerfectTypist&) = delete;
    PerfectTypist& operator=(const PerfectTypist&) = delete;

    std::int64_t pace = 120; // milliseconds before each key

    // Types until the lesson has ended. False where it does not end within the steps that are
    // plenty for it.
    bool TypeToTheEnd(long steps)
    {
        while (driver_.IsOpen()) {
            if (steps-- == 0) {
                return false;
            }
            Step();
        }
        return true;
    }

    virtual void Step() { TypeExpected(); }

protected:
    char16_t Expected()
    {
        const std::u16string_view selected = driver_.It().txtOrigin.SelectedText();
        return selected.empty() ? u'\0' : selected.front();
    }

    // Shift stays as it is where the key is right either way.
    void TypeExpected()
    {
        const char16_t character = Expected();
        const auto stroke = FindStroke(character);
        if (stroke.code == 0) {
            ADD_FAILURE() << "no key types " << Utf8({&character, 1});
            driver_.It().unloaded = true;
            return;
        }
        driver_.Wait(pace);
        HoldShift(stroke.shift);
        Hit(stroke.code);
    }

    void Press(int code)
    {
        driver_.Wait(pace);
        Hit(code);
    }

    void Hit(int code)
    {
        driver_.Key(code);
        driver_.Up(code == keyboard::keyShift ? 0 : code);
    }

    void HoldShift(bool down)
    {
        if (down && !driver_.It().shiftDown) {
            driver_.Key(keyboard::keyShift);
        } else if (!down && driver_.It().shiftDown) {
            driver_.Up(keyboard::keyShift);
        }
    }

    // The right key that also reads right, as the last lesson types what the cap reads; else the
    // first whose cap reads anything. The code is 0 where there is none.
    Stroke FindStroke(char16_t character)
    {
        const context::SessionContext& context = driver_.context;
        const bool arabic = context.arabicExercise;
        const Lesson& lesson = driver_.It();
        Stroke best;
        int bestWorth = 0;
        for (const Stroke stroke :
             StrokesFor(character, context.keyboardKind, arabic, lesson.capsOn)) {
            const auto reading = CapReading(stroke, context.keyboardKind, arabic);
            const int worth = (reading.empty() ? 0 : 1) +
                              (reading == std::u16string_view(&character, 1) ? 4 : 0) +
                              (!reading.empty() && stroke.shift == lesson.shiftDown ? 2 : 0);
            if (worth > bestWorth) {
                bestWorth = worth;
                best = stroke;
            }
        }
        return best;
    }

    LessonDriver& driver_;
};

// Errs up to a number of times, then types on without a mistake to the end.
class ClumsyTypist : public PerfectTypist
{
public:
    ClumsyTypist(LessonDriver& lesson, std::uint32_t seed, int mishaps)
        : PerfectTypist(lesson), random_(seed), mishapsLeft_(mishaps)
    {
        const context::SessionContext& context = lesson.context;
        late_ = course::ChecksLate(context.lessonNo, context.exerciseNo, context.arabicExercise);
    }

    void Step() override
    {
        pace = 40 + Draw(200);
        if (driver_.It().reviewMode) {
            PutRight();
        } else if (ShutOut()) {
            driver_.Key(Draw(256));
            driver_.Wait(Draw(500));
        } else if (mishapsLeft_ > 0 && Draw(15) == 0) {
            --mishapsLeft_;
            Mishap();
        } else if (driver_.It().capsOn && mishapsLeft_ == 0) {
            PressCapsLock();
        } else if (late_) {
            TypeLate();
        } else {
            TypeExpected();
        }
    }

private:
    // From 0 up to below end.
    int Draw(int end) { return static_cast<int>(random_() % static_cast<std::uint32_t>(end)); }

    bool ShutOut() const
    {
        return driver_.Runs(TimerName::ErrKey) || driver_.Runs(TimerName::EraseChar);
    }

    void PressCapsLock()
    {
        machineToggle_ = !machineToggle_;
        driver_.machine.capsLockState = machineToggle_ ? 1 : 0;
        Press(keyboard::keyCapsLock);
    }

    void Mishap()
    {
        switch (Draw(10)) {
        case 0:
        case 1:
        case 2:
            PressAnything();
            break;
        case 3:
            Press(keyboard::keyBackspace);
            break;
        case 4:
            Rest();
            break;
        case 5:
            PressCapsLock();
            break;
        case 6:
            HoldShift(Draw(2) == 0);
            PressAnything();
            break;
        case 7:
            driver_.Key(keyboard::keyCtrl);
            TypeExpectedOrAnything();
            driver_.Up(keyboard::keyCtrl);
            break;
        case 8:
            Fumble();
            break;
        default:
            driver_.Wait(Draw(90000));
        }
    }

    // A cap of several letters only where the text stays far from outgrowing its row: it could not
    // be taken back otherwise.
    void PressAnything()
    {
        const int code = Draw(256);
        const Lesson& lesson = driver_.It();
        const int cap = keyboard::CapOfKey(code);
        const auto reading = cap == keyboard::noCap
                                 ? std::u16string_view()
                                 : lesson.caps.text[static_cast<std::size_t>(cap)];
        const int ahead = lesson.txtTest.Size() - lesson.caretPos;
        if (reading.size() < 2 || ahead + 3 < lesson.txtOrigin.Size() / 2) {
            Press(code);
        }
    }

    void TypeExpectedOrAnything()
    {
        if (Expected() == u'\0') {
            PressAnything();
        } else {
            TypeExpected();
        }
    }

    void Rest()
    {
        ClickRest(driver_.It());
        driver_.Wait(Draw(60000));
        for (int i = Draw(3); i > 0; --i) {
            driver_.Key(Draw(256));
        }
        ClickResume(driver_.It());
        driver_.Wait(Draw(3000));
    }

    void Fumble()
    {
        Lesson& lesson = driver_.It();
        MoveOver(lesson, static_cast<PushPicture>(Draw(3)));
        MoveOverForm(lesson);
        PressField(lesson, Draw(2) == 0 ? FieldName::Origin : FieldName::Test);
        ClickOrigin(lesson);
        OriginLostFocus(lesson);
        Activate(lesson);
    }

    // Where the copy has outgrown the row it is taken back, and where the two have drifted apart
    // their lengths are made to meet.
    void TypeLate()
    {
        const Lesson& lesson = driver_.It();
        const int left = lesson.txtOrigin.Size() - lesson.txtTest.Size();
        const bool lineEnd =
            lesson.context.lessonNo == course::lessonCount && Expected() == context::lineEndMark;
        if (left <= 0 && lesson.caretPos > 0) {
            Press(keyboard::keyBackspace);
        } else if (Expected() == u'\0' || (lineEnd && left < 3)) {
            Press('H');
        } else {
            TypeExpected();
        }
    }

    void PutRight()
    {
        Lesson& lesson = driver_.It();
        for (int i = Draw(4); i > 0; --i) {
            driver_.Key(Draw(256));
            EditField(lesson.txtTest, Draw(lesson.txtTest.Size() + 1), Draw(3), u"x");
            PressEnterInReview(lesson);
            driver_.Wait(Draw(100));
        }
        const bool watched = Draw(2) == 0;
        if (watched) {
            driver_.Key(37);
        }
        EditField(lesson.txtTest, 0, lesson.txtTest.Size(), lesson.txtOrigin.Text());
        if (watched) {
            driver_.Wait(20);
        } else {
            driver_.Key(37);
        }
    }

    std::mt19937 random_;
    int mishapsLeft_;
    bool late_ = false;
    bool machineToggle_ = false;
};

} // namespace keyfluent::session::fixtures
