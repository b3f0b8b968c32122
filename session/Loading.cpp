#include "session/Loading.h"

#include "context/Arithmetic.h"
#include "context/FatalError.h"
#include "course/Lessons.h"
#include "course/Regimes.h"
#include "keyboard/Fingers.h"
#include "progress/StandardMarks.h"
#include "session/Caps.h"
#include "session/Pictures.h"
#include "session/Selection.h"

#include <cmath>

namespace keyfluent::session
{
namespace
{

using context::Decimal;
using context::Player;
using context::SessionContext;

// The window as it is designed. Where a control moves later, Load says so.
void PlaceControls(Lesson& lesson)
{
    lesson.txtOrigin.box = {1305, 795, 9405, 465};
    lesson.txtTest.box = {1305, 1245, 9405, 465};
    lesson.lblTitle.box = {3098, 75, 5805, 420};
    lesson.label7.box = {3915, 8265, 4170, 330};
    lesson.pbMark.box = {1560, 7035, 2985, 285};
    lesson.pbSpeed.box = {7440, 7035, 2985, 285};
    lesson.lblTimer.box = {5490, 7020, 1020, 270};
    lesson.shape1.box = {1350, 6735, 9300, 975};
    lesson.imgRest.box = {1350, 7755, 1350, 1215};
    lesson.imgResume.box = lesson.imgRest.box;
    lesson.imgStop.box = {9300, 7755, 1350, 1215};
    lesson.ScaleMark(3).box = {1560, 6795, 600, 225};
    lesson.ScaleMark(1).box = {2753, 6795, 600, 225};
    lesson.ScaleMark(2).box = {3945, 6795, 600, 225};
    lesson.ScaleMark(4).box = {7440, 6795, 270, 225};
    lesson.ScaleMark(6).box = {7710, 6795, 450, 225}; // the middle over a sixth of the gauge
    lesson.ScaleMark(5).box = {9825, 6795, 600, 225};
    lesson.lblMark.box = {2760, 7365, 600, 270};
    lesson.lblResulotion.box = {1560, 7365, 1200, 270};
    lesson.lblSpeed.box = {9900, 7365, 600, 270};
    lesson.lblChar.box = {8700, 7365, 1200, 270};
}

void DesignCaps(CapArray& caps)
{
    const auto& designs = keyboard::CapDesigns();
    for (std::size_t cap = 0; cap < designs.size(); ++cap) {
        caps.text[cap] = designs[cap].designText;
        caps.box[cap] = {designs[cap].left, designs[cap].top, designs[cap].width,
                         designs[cap].height};
    }
    caps.foreColour.fill(black);
    caps.backColour.fill(white);
}

// The special kinds stand in the English list, so their rows are asked for there even when the
// drill before has left the exercise's language at Arabic.
void ReadRows(Lesson& lesson)
{
    const SessionContext& context = lesson.context;
    const bool arabicList = IsOrdinary(context) && context.arabicExercise;
    course::GetExerciseRows(course::textKeyboard, context.lessonNo, context.exerciseNo, arabicList,
                            lesson.rowCount, lesson.exerciseRows);
}

void SetDirection(Lesson& lesson)
{
    const bool rightToLeft = lesson.context.arabicExercise;
    lesson.txtOrigin.rightToLeft = rightToLeft;
    lesson.txtTest.rightToLeft = rightToLeft;
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        lesson.caps.rightToLeft[static_cast<std::size_t>(cap)] =
            rightToLeft && keyboard::FollowsExerciseDirection(cap);
    }
}

void ShowFirstRow(Lesson& lesson)
{
    lesson.txtOrigin.SetText(lesson.exerciseRows[1]);
    lesson.currentRow = 1;
    lesson.caretPos = 0;
    lesson.correctCount = 0;
    lesson.errorCount = 0;
}

// A hand's picture is its own size; the two stand the same way from the middle of the window, and
// in the wide layout on the frame of the gauges.
void PlaceHands(Lesson& lesson)
{
    constexpr int middle = lessonWidth / 2;
    constexpr int gap = 420;
    constexpr int bottom = 6600;
    lesson.handPictureOffset = lesson.context.colouredHands ? colouredHandOffset : 0;
    const bool coloured = lesson.handPictureOffset != 0;
    const int width = coloured ? 2130 : 1920;
    const int height = coloured ? 2430 : 2205;
    lesson.imgLeftHand.box = {middle - gap - width, bottom - height, width, height};
    lesson.imgRightHand.box = {middle + gap, bottom - height, width, height};
    lesson.imgLeftHand.bitmap = leftHandAtRest + lesson.handPictureOffset;
    lesson.imgRightHand.bitmap = rightHandAtRest + lesson.handPictureOffset;
}

void ShowButtons(Lesson& lesson)
{
    lesson.imgStop.bitmap = stopOut;
    lesson.imgRest.bitmap = restOut;
    lesson.imgResume.bitmap = resumeOut;
    lesson.imgResume.visible = false;
    lesson.label7.visible = false;
    lesson.txtOrigin.cursor = customPointer;
    lesson.txtTest.cursor = customPointer;
}

void SetGauges(Lesson& lesson)
{
    const SessionContext& context = lesson.context;
    lesson.lblTimer.caption = u"00:00";
    lesson.pbSpeed.maximum = 300;
    const int standard =
        progress::StandardMark(context.lessonNo, context.exerciseNo, context.arabicExercise);
    if (standard != 0) {
        lesson.pbMark.maximum = standard;
    }
    lesson.ScaleMark(1).caption = Decimal(lesson.pbMark.maximum / 2);
    lesson.ScaleMark(2).caption = Decimal(lesson.pbMark.maximum);
    lesson.ScaleMark(3).caption = u"0";
    lesson.ScaleMark(4).caption = u"0";
    lesson.ScaleMark(6).caption = u"50";
    lesson.ScaleMark(5).caption = u"300";
}

void HideAidsThatAreOff(Lesson& lesson)
{
    constexpr int outOfSight = 10000;
    const SessionContext& context = lesson.context;
    if (!context.optKeyCaps) {
        for (Box& box : lesson.caps.box) {
            box.top += outOfSight;
        }
    }
    lesson.imgLeftHand.visible = context.optHands;
    lesson.imgRightHand.visible = context.optHands;
    lesson.lblTimer.visible = context.optClock;
}

void WidenLayout(Lesson& lesson)
{
    constexpr int functionRowLast = 15;
    Box& origin = lesson.txtOrigin.box;
    origin = {150, origin.top - 345, lessonWidth - 300, origin.height + 20};
    Box& test = lesson.txtTest.box;
    test = {150, origin.top + origin.height + 1, lessonWidth - 300, test.height + 75};
    for (Box& box : lesson.caps.box) {
        box.top += 180;
    }
    for (std::size_t cap = 0; cap <= functionRowLast; ++cap) {
        lesson.caps.box[cap].top += 75;
    }
    lesson.caps.box[keyboard::capBlank].top = lesson.caps.box[keyboard::capEscape].top;
    lesson.imgLeftHand.box.top += 135;
    lesson.imgRightHand.box.top = lesson.imgLeftHand.box.top;
}

void SizeText(Lesson& lesson)
{
    constexpr int designSize = 12;
    constexpr int firstWideSize = 13;
    const std::int32_t size = lesson.context.fontSize;
    lesson.txtOrigin.fontSize = size < 1 ? designSize : size;
    lesson.txtTest.fontSize = lesson.txtOrigin.fontSize;
    if (size >= firstWideSize) {
        WidenLayout(lesson);
    }
}

void HideCounterIfOff(Lesson& lesson)
{
    const SessionContext& context = lesson.context;
    if (context.optCounter) {
        return;
    }
    for (Label& mark : lesson.scaleMarks) {
        mark.visible = false;
    }
    lesson.lblSpeed.visible = false;
    lesson.lblChar.visible = false;
    lesson.lblMark.visible = false;
    lesson.lblResulotion.visible = false;
    lesson.pbMark.visible = false;
    lesson.pbSpeed.visible = false;
    lesson.shape1.visible = context.optClock;
}

void SizeForPassage(Lesson& lesson)
{
    const SessionContext& context = lesson.context;
    if (context.lessonNo != course::lessonCount || !IsOrdinary(context) ||
        course::IsSpecialExercise(context.lessonNo, context.exerciseNo, context.arabicExercise)) {
        return;
    }
    Box& origin = lesson.txtOrigin.box;
    origin.height = 3 * origin.height + 960;
    lesson.txtTest.box.height = origin.height;
    lesson.txtTest.box.top = origin.top + origin.height + 15;
}

// A letter at random; "" where there are none.
std::u16string_view PickLetter(const Lesson& lesson)
{
    const std::u16string_view letters = lesson.context.freeTextChars;
    const double drawn = lesson.platform.random() * static_cast<double>(letters.size());
    const auto position = static_cast<std::size_t>(std::floor(drawn));
    return letters.substr(std::min(position, letters.size()), 1);
}

std::u16string ArabicDrill(const Lesson& lesson)
{
    const std::size_t count = lesson.context.freeTextChars.size();
    if (count == 0) {
        throw context::FatalError("An anagram was opened without letters.");
    }
    const double repeats = context::RoundHalfEven(30.0 / static_cast<double>(count));
    const std::size_t letters = static_cast<std::size_t>(repeats) * count;
    std::u16string drill;
    for (std::size_t i = 0; i < letters; ++i) {
        drill += PickLetter(lesson);
        drill += u' ';
    }
    return drill;
}

std::u16string EnglishDrill(const Lesson& lesson)
{
    constexpr int groups = 9;
    constexpr int groupSize = 5;
    std::u16string drill = lesson.context.freeTextChars + u' ';
    for (int group = 0; group < groups; ++group) {
        for (int i = 0; i < groupSize; ++i) {
            drill += PickLetter(lesson);
        }
        drill += u' ';
    }
    return drill;
}

// rowCount stays as GetExerciseRows left it, 1 in the places of the special exercises.
void BuildSpecialText(Lesson& lesson)
{
    const SessionContext& context = lesson.context;
    if (context.arabicAnagram || context.englishAnagram) {
        lesson.platform.seedRandom(lesson.platform.secondsSinceMidnight());
        lesson.drill = context.arabicAnagram ? ArabicDrill(lesson) : EnglishDrill(lesson);
        lesson.txtOrigin.SetText(lesson.drill);
        lesson.exerciseRows[1] = lesson.drill;
    }
    if (context.freeText) {
        lesson.txtTest.visible = false;
        lesson.txtOrigin.box.height = 5 * lesson.txtOrigin.box.height - 60;
        lesson.txtOrigin.readOnly = false;
    }
}

void CaptionInEnglish(Lesson& lesson)
{
    lesson.lblChar.caption = u" Chars pm. :";
    lesson.lblResulotion.caption = u" Resulotion:";
    lesson.lblSpeed.box.left = 9900;
    lesson.lblMark.box.left = 2760;
    lesson.label7.fontSize = 8;
}

void CaptionInArabic(Lesson& lesson)
{
    lesson.lblChar.caption = u"  حرف بالدقيقة:";
    lesson.lblResulotion.caption = u"  علامة الدقة:";
    for (Label* label : {&lesson.lblChar, &lesson.lblResulotion}) {
        label->rightToLeft = true;
        label->rightAligned = true;
    }
    // A number stands at the left of its caption here.
    lesson.lblSpeed.box.left = 8715;
    lesson.lblSpeed.box.width = 435;
    lesson.lblChar.box.left = 9150;
    lesson.lblChar.box.width = 1290;
    lesson.lblMark.box.left = 1725;
    lesson.lblMark.box.width = 435;
    lesson.lblResulotion.box.left = 2160;
    lesson.lblResulotion.box.width = 1125;
}

void CaptionWindow(Lesson& lesson)
{
    const SessionContext& context = lesson.context;
    const bool arabic = context.arabicInterface;
    std::u16string title = arabic ? u"الدرس رقم : (" : u"Lesson No: (";
    title += Decimal(context.lessonNo);
    title += u" ) ";
    title += course::LessonName(context.lessonNo, arabic);
    title += arabic ? u" - التمرين رقم : (" : u" - Exercise No : (";
    title += Decimal(context.exerciseNo);
    title += u" )";
    lesson.lblTitle.caption = title;
    lesson.lblTitle.rightToLeft = arabic;
    if (arabic) {
        CaptionInArabic(lesson);
    } else {
        CaptionInEnglish(lesson);
    }
}

void OpenPlayers(const Lesson& lesson)
{
    lesson.platform.openPlayer(Player::Enter, u"/enter.wav");
    lesson.platform.openPlayer(Player::Char, u"/char.wav");
    lesson.platform.openPlayer(Player::Space, u"/space.wav");
    lesson.platform.openPlayer(Player::Caps, u"/caps.wav");
    lesson.platform.openPlayer(Player::Back, u"/Back.wav");
}

// Room for every text that keys can build, so that no key asks for memory. A passage may be typed
// with caps of three characters for one, and what is typed past that may cost an allocation.
void ReserveTexts(Lesson& lesson)
{
    const std::size_t row = lesson.txtOrigin.Text().size();
    lesson.txtTest.Reserve(std::max<std::size_t>(3 * row, 400));
    lesson.txtOrigin.Reserve(lesson.context.freeText ? 31000 : 400);
    lesson.savedTestText.reserve(400);
    lesson.label7.caption.reserve(64);
    lesson.text1.reserve(16);
    lesson.litChar.reserve(8);
}

// Meant: drawing and loading count in the same variable as the blinks and leave the first multiple
// of 60 above the window's height in it, so that the next blink ends at its first tick.
constexpr std::int16_t blinkCountAfterDrawing = lessonHeight / 60 * 60 + 60;

} // namespace

bool IsOrdinary(const SessionContext& context)
{
    return !context.arabicAnagram && !context.englishAnagram && !context.freeText;
}

void Load(Lesson& lesson)
{
    SessionContext& context = lesson.context;
    context.inExercise = false;
    PlaceControls(lesson);
    DesignCaps(lesson.caps);
    ReadRows(lesson);
    if (!IsOrdinary(context)) {
        context.arabicExercise = context.anagramLanguage;
    }
    ShowKeyCaps(lesson, context.keyboardKind, false, true);
    context.sessionRun = true;
    SetDirection(lesson);
    ShowFirstRow(lesson);
    PlaceHands(lesson);
    ShowButtons(lesson);
    SetGauges(lesson);
    HideAidsThatAreOff(lesson);
    SizeText(lesson);
    HideCounterIfOff(lesson);
    SizeForPassage(lesson);
    BuildSpecialText(lesson);
    ReserveTexts(lesson);
    CaptionWindow(lesson);
    OpenPlayers(lesson);
    lesson.TimerOf(TimerName::Selection).Start();
    lesson.imgNextShown = context.exerciseNo < course::exerciseCount;
    lesson.imgBackShown = context.exerciseNo >= 2;
    lesson.imgDuplicateShown = true;
    lesson.blinkCount = blinkCountAfterDrawing;
}

void BackgroundDrawn(Lesson& lesson)
{
    lesson.blinkCount = blinkCountAfterDrawing;
    lesson.window.paintBackground();
}

void Activate(Lesson& lesson)
{
    BackgroundDrawn(lesson);
    SelectCurrentChar(lesson);
    ShowHands(lesson, lesson.txtOrigin.SelectedText());
    if (!lesson.context.freeText) {
        lesson.window.hideCaret(FieldName::Origin);
    }
    SyncCapsCap(lesson, lesson.platform.capsLockState());
}

} // namespace keyfluent::session
