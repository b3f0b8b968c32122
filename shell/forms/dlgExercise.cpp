#include "shell/forms/dlgExercise.h"

#include "progress/Chooser.h"
#include "shell/Program.h"
#include "shell/forms/dlgOptions.h"
#include "shell/forms/frmImage.h"

#include <QKeyEvent>

namespace keyfluent::shell
{
namespace
{

constexpr int formWidth = 680;
constexpr int formHeight = 452;
constexpr int columnWidth = formWidth / 2;
constexpr int margin = 20;
constexpr int firstRow = 150;
constexpr int rowPitch = 42;

// The three cells of a row, from the reading side on: the button and its two marks.
struct Cells {
    QRect button;
    QRect standard;
    QRect mark;
};

Cells CellsOf(bool rightColumn, bool arabic, int top)
{
    constexpr int face = 115;
    constexpr int faceHeight = 34;
    constexpr int markWidth = 80;
    constexpr int gap = 8;
    const int left = (rightColumn ? columnWidth : 0) + margin;
    const int right = left + columnWidth - 2 * margin;
    const auto cell = [=](int from, int width) {
        return QRect(arabic ? right - from - width : left + from, top, width, faceHeight);
    };
    return {cell(0, face), cell(face + gap, markWidth),
            cell(face + 2 * gap + markWidth, markWidth)};
}

QByteArray Numbered(const char* name, int index)
{
    return QByteArray(name) + '_' + QByteArray::number(index);
}

} // namespace

dlgExercise::dlgExercise(Program& program) : Form(program, "dlgExercise", {formWidth, formHeight})
{
    const bool arabic = Form::Arabic();
    const progress::ChooserTexts texts = progress::LoadChooser(state());
    AddTitle(arabic ? u"التمارين" : u"Exercises", "dlgTitle");
    const QRect whole(margin, 40, formWidth - 2 * margin, 26);
    AddLabel("lblLessonTitle", whole, texts.lessonTitle, 12, true)->SetSide(Side::Centre);
    AddLabel("lblLessonNote", whole.translated(0, 28),
             arabic ? u"انقر الزر الموافق للتمرين المختار"
                    : u"Select the lesson by clicking it's button",
             10)
        ->SetSide(Side::Centre);
    AddHeadings();
    AddColumn(English);
    AddColumn(Arabic);
    const int bottom = firstRow + 5 * rowPitch + 4;
    const int half = columnWidth - margin;
    AddLabel("lblPMark", {arabic ? columnWidth : margin, bottom, half, 24}, texts.passing, 11,
             true);
    AddLabel("lblYourSum", {arabic ? margin : columnWidth, bottom, half, 24}, texts.sum, 11, true);
    AddLabel("lblSpeedNote", {margin, bottom + 26, formWidth - 2 * margin, 22},
             arabic ? u"تدل النجمة (*) على تمرين له مكافأة على سرعة الكتابة."
                    : u"The star (*) stands for an exercise give bonus on speed.",
             9);
    AddButton("imgCansel", "lblCansel", {(formWidth - 115) / 2, bottom + 50},
              arabic ? u"إلغاء الأمر" : u"Cansel", [this] { Cancel(); });
}

void dlgExercise::AddHeadings()
{
    const bool arabic = Form::Arabic();
    constexpr int top = 100;
    const auto centred = [this](const char* name, const QRect& place, const char16_t* caption,
                                double points, bool bold) {
        AddLabel(name, place, caption, points, bold)->SetSide(Side::Centre);
    };
    centred("lblETitle", {0, top, columnWidth, 24},
            arabic ? u"التمرين الإنجليزي" : u"English Exercise", 11, true);
    centred("lblATitle", {columnWidth, top, columnWidth, 24},
            arabic ? u"التمرين العربي" : u"Arabic Exercise", 11, true);
    const Cells left = CellsOf(false, arabic, top + 20);
    const Cells right = CellsOf(true, arabic, top + 20);
    constexpr int spread = 4;
    const auto heading = [](const QRect& cell) { return cell.adjusted(-spread, 0, spread, -6); };
    const char16_t* current = arabic ? u"العلامة الفعلية" : u"Exact Mark";
    centred("lblMainMark", heading(left.standard), arabic ? u"العلامة الأساسية" : u"Standard Mark",
            8, false);
    centred("lblCurrMark", heading(left.mark), current, 8, false);
    centred("lblMainMark2", heading(right.standard),
            arabic ? u"العلامة الأساسية" : u"Standara Mark", 8, false);
    centred("lblCurrMark2", heading(right.mark), current, 8, false);
}

void dlgExercise::AddColumn(Column column)
{
    const progress::ChooserTexts texts = progress::LoadChooser(state());
    const bool right = column == Arabic;
    const auto& captions = right ? texts.arabicButton : texts.englishButton;
    const auto& standards = right ? texts.arabicStandard : texts.englishStandard;
    const auto& marks = right ? texts.arabicMark : texts.englishMark;
    for (int i = 0; i < 5; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const Cells cells = CellsOf(right, Form::Arabic(), firstRow + i * rowPitch);
        ImageControl* image =
            AddImage(Numbered(right ? "imgAExercise" : "imgEExercise", i).constData(),
                     cells.button.topLeft(), faceOut);
        image->SetKind(ImageControl::Kind::Button);
        const auto label = [&](const char* name, const QRect& place, const std::u16string& text,
                               bool bold) {
            TextLabel* made = AddLabel(Numbered(name, i).constData(), place, text, 10, bold);
            made->SetSide(Side::Centre);
            return made;
        };
        TextLabel* caption =
            label(right ? "lblAExercise" : "lblEExercise", cells.button, captions[index], true);
        image->SetCaptionName(caption->text());
        label(right ? "lblAMM" : "lblEMM", cells.standard, standards[index], false);
        label(right ? "lblACM" : "lblECM", cells.mark, marks[index], true);
        exercises_[column][index] = image;
        // Meant: an exercise is chosen as the button goes down.
        connect(image, &ImageControl::pressed, this, [this, column, i] { Choose(column, i); });
        connect(image, &ImageControl::hovered, this, [this, image] { LightButton(*image); });
    }
}

void dlgExercise::LightButton(ImageControl& image)
{
    for (const Column column : {English, Arabic}) {
        for (std::size_t i = 0; i < exercises_[column].size(); ++i) {
            if (exercises_[column][i] == &image && lit_[column] != static_cast<int>(i)) {
                for (ImageControl* other : exercises_[column]) {
                    other->SetBitmap(faceOut);
                }
                image.SetBitmap(faceIn);
                lit_[column] = static_cast<int>(i);
            }
        }
    }
    Form::LightButton(image);
}

void dlgExercise::PutOutButtons()
{
    for (const Column column : {English, Arabic}) {
        if (lit_[column] >= 0) {
            exercises_[column][static_cast<std::size_t>(lit_[column])]->SetBitmap(faceOut);
            lit_[column] = -1;
        }
    }
    Form::PutOutButtons();
}

void dlgExercise::Choose(Column column, int index)
{
    progress::ChooseExercise(state(), static_cast<std::uint8_t>(index + 1), column == Arabic);
    Unload([&program = program()] { return std::make_unique<dlgOptions>(program); });
}

void dlgExercise::Cancel()
{
    Unload([&program = program()] { return std::make_unique<frmImage>(program); });
}

void dlgExercise::KeyReached(QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) {
        Cancel();
    }
}

} // namespace keyfluent::shell
