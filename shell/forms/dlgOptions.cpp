#include "shell/forms/dlgOptions.h"

#include "course/Notes.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/forms/dlgExercise.h"
#include "shell/forms/frmFree.h"
#include "shell/forms/frmLesson.h"
#include "shell/platform/Fonts.h"

#include <QPainter>

namespace keyfluent::shell
{
namespace
{

constexpr int formWidth = 720;
constexpr int formHeight = 400;
constexpr int rule = Pixels(2710);
constexpr int ruleMargin = Pixels(750);
constexpr int firstAid = rule + 32;
constexpr int aidPitch = Pixels(345);

struct AidCaption {
    const char* image;
    const char* label;
    const char16_t* arabic;
    const char16_t* english;
};

// In the order of course::Aid.
constexpr AidCaption aidCaptions[] = {
    {"imgKeys", "lblKeys", u"مجموعة المفاتيح", u"Key Caps"},
    {"imgHands", "lblHands", u"الأيدي", u"Hands"},
    {"imgCounter", "lblCounter", u"العداد", u"Counter"},
    {"imgTimer", "lblTimer", u"الكرونومتر", u"Clock Timer"},
    {"imgSound", "lblSound", u"صوت", u"Sound"},
};

constexpr int boxFixedEmpty = 125;
constexpr int boxEmpty = 126;
constexpr int boxTicked = 127;
constexpr int boxFixedTicked = 128;

} // namespace

dlgOptions::dlgOptions(Program& program)
    : Form(program, "dlgOptions", {formWidth, formHeight}), plan_(course::DecideAids(state()))
{
    const bool arabic = Arabic();
    AddTitle(arabic ? u"حدد خياراتك" : u"Select your options");
    AddNote();
    AddLabel("lblP", {arabic ? formWidth - 200 : 50, rule + 7, 150, 22},
             arabic ? u"اعرض:" : u"Show:", 11, true);
    AddAids();
    const int top = formHeight - 54;
    const Button ok =
        AddButton("cmdOK", "lblOK", {arabic ? formWidth / 2 + 10 : formWidth / 2 - 125, top},
                  arabic ? u"تابع" : u"Continue", [this] { Confirm(); });
    const Button cancel = AddButton(
        "cmdCansel", "lblCansel", {arabic ? formWidth / 2 - 125 : formWidth / 2 + 10, top},
        arabic ? u"إلغاء الأمر" : u"Cancel", [this, &program] {
            Unload([&program] { return std::make_unique<dlgExercise>(program); });
        });
    FlashOnReturn(ok);
    FlashOnEscape(cancel);
}

// The note stands between the title and the rule, in the largest face in which it fits.
void dlgOptions::AddNote()
{
    constexpr double largest = 11;
    constexpr double smallest = 8;
    const bool rightToLeft = state().arabicExercise || state().arabicAnagram;
    const QRect place(ruleMargin, 33, formWidth - 2 * ruleMargin, rule - 38);
    TextLabel* note = AddLabel(
        "lblText", place,
        course::ExerciseNote(state().lessonNo, state().exerciseNo, state().arabicExercise));
    note->SetReading(rightToLeft);
    note->FitFace([](double points) { return FormFont(points, false); }, largest, smallest);
}

void dlgOptions::AddAids()
{
    constexpr int boxWidth = 23;
    constexpr int labelWidth = 200;
    constexpr int gap = 8;
    const bool arabic = Arabic();
    const int boxLeft = arabic ? formWidth - 70 - boxWidth : 70;
    const int labelLeft = arabic ? boxLeft - gap - labelWidth : boxLeft + boxWidth + gap;
    for (const course::Aid aid : course::allAids) {
        const auto index = static_cast<std::size_t>(aid);
        const AidCaption& caption = aidCaptions[index];
        const int top = firstAid + static_cast<int>(index) * aidPitch;
        AidControl& control = aids_[index];
        control.image = AddImage(caption.image, {boxLeft, top}, boxEmpty);
        control.label = AddLabel(caption.label, {labelLeft, top, labelWidth, aidPitch - 1},
                                 arabic ? caption.arabic : caption.english, 10);
        control.image->SetKind(ImageControl::Kind::CheckBox);
        control.image->SetCaptionName(control.label->text());
        connect(control.image, &ImageControl::clicked, this, [this, aid] { TurnAid(aid); });
        DrawAid(aid);
    }
}

void dlgOptions::DrawAid(course::Aid aid)
{
    const bool value = course::AidValue(state(), aid);
    const bool free = plan_[aid] == course::AidRule::Free;
    AidControl& control = aids_[static_cast<std::size_t>(aid)];
    if (free) {
        control.image->SetBitmap(value ? boxTicked : boxEmpty);
    } else {
        control.image->SetBitmap(value ? boxFixedTicked : boxFixedEmpty);
    }
    control.image->SetChecked(value);
    control.image->SetFixed(!free);
    control.label->setEnabled(free);
}

void dlgOptions::TurnAid(course::Aid aid)
{
    course::TurnAid(state(), plan_, aid);
    DrawAid(aid);
}

void dlgOptions::Confirm()
{
    if (state().arabicAnagram || state().englishAnagram) {
        ShowAbove(std::make_unique<frmFree>(program()));
        if (program().Ending() || state().freeTextChars.empty()) {
            return;
        }
    }
    Unload([&program = program()] { return std::make_unique<frmLesson>(program); });
}

void dlgOptions::PaintExtra(QPainter& painter)
{
    painter.fillRect(ruleMargin, rule, formWidth - 2 * ruleMargin, 1, Qt::black);
}

} // namespace keyfluent::shell
