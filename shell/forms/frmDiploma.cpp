#include "shell/forms/frmDiploma.h"

#include "shell/Program.h"
#include "shell/base/Pictures.h"
#include "shell/base/Twips.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/TextConversion.h"

#include <QPainter>
#include <QPrinter>

namespace keyfluent::shell
{
namespace
{

constexpr int windowPicture = 1125;
constexpr int sheetPicture = 1126;
// Of the sheet, in twips from its left top corner.
constexpr int nameTop = 6450;
constexpr int courseTop = nameTop + 1710;
constexpr int dateTop = courseTop + 815;
constexpr int dateLeft = 1980;
// The window shows the sheet at this scale, with its corner here.
constexpr double windowScale = 0.72;
constexpr int windowLeft = 26;
constexpr int windowTop = 10;

// A face whose size is told in points, drawn on a painter that counts in twips: twenty to a point.
QFont InTwips(int points, bool bold)
{
    QFont font = DiplomaFont(points, bold);
    font.setPixelSize(points * 20);
    return font;
}

int OnWindow(int twips)
{
    return static_cast<int>(Pixels(twips) * windowScale);
}

} // namespace

frmDiploma::frmDiploma(Program& program)
    : Form(program, "frmDiploma", {700, 567}), texts_(progress::LoadDiploma(state()))
{
    SetStriped(false);
    NameWindow(Arabic() ? u"شهادة التخرج" : u"Diploma");
    const auto add = [this](const char* name, const QRect& place, const std::u16string& text,
                            double points, bool bold) {
        TextLabel* label = AddLabel(name, place, text, points, bold);
        label->setFont(DiplomaFont(points, bold));
        label->SetReading(false);
        return label;
    };
    constexpr int textWidth = 600;
    constexpr int textLeft = (700 - textWidth) / 2;
    const auto centred = [&](const char* name, int top, const std::u16string& text, double points,
                             bool bold) {
        constexpr double smallest = 4;
        TextLabel* label =
            add(name, {textLeft, windowTop + OnWindow(top), textWidth, 34}, text, points, bold);
        label->SetSide(Side::Centre);
        label->FitFace([bold](double size) { return DiplomaFont(size, bold); }, points, smallest);
        return label;
    };
    centred("lblName", nameTop, texts_.name, 14.5, true)->ReadByLetters();
    centred("lblCourse", courseTop, texts_.course, 10, false);
    add("lblDate", {windowLeft + OnWindow(dateLeft), windowTop + OnWindow(dateTop), 200, 22},
        texts_.date, 8.75, false);
    // Meant: these two captions are Arabic in both interfaces.
    AddButton("cmdPrint", "lblPrint", {225, 524}, u"طباعة", [this] { Print(); });
    AddButton("cmdCansel", "lblCansel", {360, 524}, u"إغلاق", [this] { Unload(); });
    ActOnClose([this] { Unload(); });
}

void frmDiploma::PaintExtra(QPainter& painter)
{
    painter.drawPixmap(0, 0, LoadBitmap(windowPicture, devicePixelRatioF()));
}

// A cancel and every error of the printer end here in the same way: the window closes and says
// nothing.
void frmDiploma::Print()
{
    program().World().printPages(
        this, [this](QPainter& painter, QSize page) { DrawDiplomaPage(painter, texts_, page); });
    Unload();
}

void DrawDiplomaPage(QPainter& painter, const progress::DiplomaTexts& texts, QSize page)
{
    const QPixmap sheet = LoadBitmap(sheetPicture, 3);
    const QSize sheetSize(Twips(900), Twips(700));
    const QPoint corner((page.width() - sheetSize.width()) / 2,
                        (page.height() - sheetSize.height()) / 2);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(corner, sheetSize), sheet, QRect(QPoint(), sheet.size()));
    painter.setPen(Qt::black);
    const auto centred = [&](const std::u16string& text, int points, bool bold, int top) {
        painter.setFont(InTwips(points, bold));
        painter.drawText(QRect(0, corner.y() + top, page.width(), 2 * points * 20),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip | Qt::TextSingleLine,
                         ToQString(text));
    };
    // The name reads the way of its letters, all else is English in both interfaces.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    centred(texts.name, 20, true, nameTop);
    painter.setLayoutDirection(Qt::LeftToRight);
    centred(texts.course, 14, false, courseTop);
    painter.setFont(InTwips(12, false));
    painter.drawText(QRect(corner.x() + dateLeft, corner.y() + dateTop, 6000, 480),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip | Qt::TextSingleLine,
                     ToQString(texts.date));
}

} // namespace keyfluent::shell
