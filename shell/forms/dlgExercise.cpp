#include "shell/forms/dlgExercise.h"

#include "progress/Chooser.h"
#include "shell/Program.h"
#include "shell/forms/dlgOptions.h"
#include "shell/forms/frmImage.h"
#include "shell/platform/TextConversion.h"

#include <QKeyEvent>
#include <QPainter>

namespace keyfluent::shell
{
namespace
{

constexpr int formWidth = 680;
constexpr int formHeight = 480;
constexpr int columnWidth = formWidth / 2;
constexpr int margin = 24;
constexpr int firstRow = 154;
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
    const int bottom = firstRow + 5 * rowPitch + 12;
    const QRect left(margin, bottom, columnWidth - 2 * margin, 24);
    const QRect right = left.translated(columnWidth, 0);
    AddLabel("lblPMark", arabic ? right : left, texts.passing, 11, true);
    AddLabel("lblYourSum", arabic ? left : right, texts.sum, 11, true);
    AddLabel("lblSpeedNote", {margin, bottom + 27, formWidth - 2 * margin, 22},
             arabic ? u"تدل النجمة (*) على تمرين له مكافأة على سرعة الكتابة."
                    : u"The star (*) stands for an exercise give bonus on speed.",
             9);
    AddButton("imgCansel", "lblCansel", {(formWidth - 115) / 2, bottom + 56},
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
        DescribeExercise(column, *image, standards[index], marks[index]);
        exercises_[column][index] = image;
        // Meant: an exercise is chosen as the button goes down.
        connect(image, &ImageControl::pressed, this, [this, column, i] { Choose(column, i); });
        connect(image, &ImageControl::hovered, this, [this, image] { LightButton(*image); });
    }
}

// What stands over and beside the button: its column and its two marks under their headings.
void dlgExercise::DescribeExercise(Column column, ImageControl& image,
                                   const std::u16string& standard, const std::u16string& mark)
{
    const auto heading = [this](const char* name) {
        return findChild<TextLabel*>(QString::fromLatin1(name))->text();
    };
    const bool right = column == Arabic;
    image.setAccessibleDescription(
        QStringLiteral("%1. %2: %3. %4: %5")
            .arg(heading(right ? "lblATitle" : "lblETitle"),
                 heading(right ? "lblMainMark2" : "lblMainMark"), ToQString(standard),
                 heading(right ? "lblCurrMark2" : "lblCurrMark"), ToQString(mark)));
}

// A panel behind each of the two columns.
void dlgExercise::PaintExtra(QPainter& painter)
{
    constexpr int top = 96;
    constexpr int inset = 12;
    const QRectF panel(inset + 0.5, top + 0.5, columnWidth - 1.5 * inset,
                       firstRow + 5 * rowPitch - top);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x6B, 0x7F, 0x8C), 1));
    painter.setBrush(QColor(255, 255, 255, 150));
    for (const double left : {0.0, columnWidth - inset / 2.0}) {
        painter.drawRoundedRect(panel.translated(left, 0), 6, 6);
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
