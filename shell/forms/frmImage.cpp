#include "shell/forms/frmImage.h"

#include "context/Random.h"
#include "course/PictureWords.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"

#include <QKeyEvent>

namespace keyfluent::shell
{
namespace
{

constexpr int firstPicture = 138;
constexpr int lastPicture = 157;
constexpr int fingerChart = 146;
constexpr int padChart = 147;
constexpr int guideRow = 148;
constexpr int frame = Pixels(300);

} // namespace

frmImage::frmImage(Program& program) : Form(program, "frmImage", {1, 1})
{
    const int bitmap = context::RandomBetween(program.Machine(), firstPicture, lastPicture);
    ImageControl* picture = AddImage("Image1", {frame, frame}, bitmap);
    setFixedSize(picture->size() + QSize(2 * frame, 2 * frame));
    NameWindow(course::PictureWords(bitmap, Arabic()));
    AddCaption(bitmap, *picture);
    connect(picture, &ImageControl::clicked, this, [this] { Unload(); });
    CloseOnClick();
}

// Three of the pictures carry a caption, Arabic in both interfaces.
void frmImage::AddCaption(int bitmap, ImageControl& picture)
{
    constexpr int lineHeight = 24;
    TextLabel* caption = AddLabel("lblT1", {0, 0, width(), lineHeight}, u"", 10, true);
    caption->SetRightToLeft(true);
    caption->SetSide(Side::Centre);
    caption->setVisible(bitmap >= fingerChart && bitmap <= guideRow);
    if (bitmap == fingerChart) {
        caption->SetCaption(u"توافق الأصابع والمفاتيح");
        caption->move(0, height() - Pixels(750));
    } else if (bitmap == guideRow) {
        caption->SetCaption(u"صف الارتكاز");
        caption->move(0, height() - Pixels(500));
    } else if (bitmap == padChart) {
        caption->SetCaption(u"توافق الأصابع مع المفاتحيح الخاصة بلوحة الأرقام");
        setFixedWidth(width() + Pixels(1050));
        picture.move(picture.x() + Pixels(1035), picture.y());
        caption->setGeometry(8, Pixels(900), picture.x() - 12, Pixels(600));
        caption->SetSide(Side::Right);
        caption->FitHeight();
    }
}

void frmImage::KeyReached(QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) {
        Unload();
    }
}

} // namespace keyfluent::shell
