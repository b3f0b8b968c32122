#include "shell/forms/frmPrefs.h"

#include "keyboard/KeyboardKind.h"
#include "progress/Preferences.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/forms/frmBlack.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/TextConversion.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace keyfluent::shell
{
namespace
{

constexpr int formWidth = 400;
constexpr int formHeight = 372;
constexpr int margin = 24;
constexpr int boxEmpty = 126;
constexpr int boxTicked = 127;

std::int32_t ColourOf(const QColor& colour)
{
    return colour.red() | (colour.green() << 8) | (colour.blue() << 16);
}

// Places are told for English; in Arabic they stand on the other side.
QRect Mirrored(bool arabic, const QRect& place)
{
    return arabic ? QRect(formWidth - place.right() - 1, place.top(), place.width(), place.height())
                  : place;
}

} // namespace

frmPrefs::frmPrefs(Program& program) : Form(program, "frmPrefs", {formWidth, formHeight})
{
    const progress::Preferences shown = progress::OpenPreferences(state());
    const bool arabic = Arabic();
    AddTitle(arabic ? u"التفضيلات" : u"Preferences");
    const auto heading = [&](const char* name, int top, const char16_t* caption) {
        AddLabel(name, Mirrored(arabic, {margin, top, 300, 24}), caption, 11, true);
    };
    heading("lblGeneral", 38, arabic ? u"تفضيلات عامة:" : u"General Editing:");
    interface_ = AddBox("imgInterface", "lblInterface", 66,
                        arabic ? u"واجهة استخدام باللغة الإنجليزية." : u"English user Interface",
                        !shown.arabicInterface);
    system_ = AddBox("imgSystem", "lblSystem", 94,
                     arabic ? u"اعتماد لوحة مفاتيح الماكنتوش." : u"Use Macintosh Keyboard",
                     shown.keyboardKind == keyboard::macintoshKeyboard);
    hand_ = AddBox("imgHand", "lblHand", 122,
                   arabic ? u"استخدم الأيدي الملونة للتوضيح." : u"Use the colored hands.",
                   shown.colouredHands);
    heading("lblColor", 158, arabic ? u"تفضيلات الألوان:" : u"Color Setting:");
    AddSwatch(hilite_, "lblHilite", "lblTrue", 186,
              arabic ? u"المفاتيح الصح:" : u"True Keys Color:", shown.trueKeyColour);
    AddSwatch(warn_, "lblWarn", "lblErr", 216, arabic ? u"المفاتيح الخطأ:" : u"Err Keys Color:",
              shown.errKeyColour);

    const QRect sizeLabel = Mirrored(arabic, {margin, 262, 240, 26});
    TextLabel* size =
        AddLabel("lblSize", sizeLabel,
                 arabic ? u"حجم الخط:              بكسل" : u"Size:              points", 10);
    txtSize_ = new QLineEdit(this);
    txtSize_->setObjectName(QStringLiteral("txtSize"));
    txtSize_->setFont(FormFont(10, false));
    txtSize_->setAlignment(Qt::AlignHCenter);
    txtSize_->setText(QString::number(shown.fontSize));
    txtSize_->setAccessibleName(size->text().simplified());
    txtSize_->setContextMenuPolicy(Qt::DefaultContextMenu);
    txtSize_->installEventFilter(this);
    // The field stands over the gap in its label.
    const QFontMetrics metrics(size->font());
    const int before =
        metrics.horizontalAdvance(arabic ? QStringLiteral("حجم الخط: ") : QStringLiteral("Size: "));
    const int gap = metrics.horizontalAdvance(QStringLiteral("             "));
    const int fieldLeft = arabic ? sizeLabel.right() - before - gap : sizeLabel.left() + before;
    txtSize_->setGeometry(fieldLeft, 262, gap, 26);

    const Button ok = AddButton("cmdOK", "lblOK", {arabic ? 205 : 80, 320},
                                arabic ? u"موافق" : u"OK", [this] { Confirm(); });
    const Button cancel = AddButton("cmdCansel", "lblCansel", {arabic ? 80 : 205, 320},
                                    arabic ? u"إلغاء الأمر" : u"Cancel", [this] { Unload(); });
    FlashOnReturn(ok);
    FlashOnEscape(cancel);
}

frmPrefs::Box frmPrefs::AddBox(const char* imageName, const char* labelName, int top,
                               const char16_t* caption, bool ticked)
{
    Box box;
    box.image = AddImage(imageName, Mirrored(Arabic(), {margin + 10, top, 23, 22}).topLeft(),
                         ticked ? boxTicked : boxEmpty);
    box.label = AddLabel(labelName, Mirrored(Arabic(), {margin + 42, top, 290, 22}), caption, 10);
    box.image->SetKind(ImageControl::Kind::CheckBox);
    box.image->SetChecked(ticked);
    box.image->SetCaptionName(box.label->text());
    // The label turns the box over too.
    box.label->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    box.label->installEventFilter(this);
    connect(box.image, &ImageControl::clicked, this, [image = box.image] {
        const bool now = image->Bitmap() != boxTicked;
        image->SetBitmap(now ? boxTicked : boxEmpty);
        image->SetChecked(now);
    });
    return box;
}

void frmPrefs::AddSwatch(Swatch& swatch, const char* name, const char* labelName, int top,
                         const char16_t* caption, std::int32_t colour)
{
    AddLabel(labelName, Mirrored(Arabic(), {margin + 10, top, 150, 24}), caption, 10);
    auto* image = new ImageControl(this);
    image->setObjectName(QString::fromLatin1(name));
    image->setGeometry(Mirrored(Arabic(), {margin + 170, top, 60, 24}));
    image->SetKind(ImageControl::Kind::Button);
    image->SetCaptionName(findChild<TextLabel*>(QString::fromLatin1(labelName))->text());
    swatch.widget = image;
    SetColour(swatch, QColor::fromRgb(RgbOf(colour)));
    connect(image, &ImageControl::clicked, this, [this, &swatch] { PickColour(swatch); });
}

void frmPrefs::SetColour(Swatch& swatch, const QColor& colour)
{
    swatch.colour = colour;
    QPalette palette = swatch.widget->palette();
    palette.setColor(QPalette::Window, colour);
    swatch.widget->setPalette(palette);
    swatch.widget->setAutoFillBackground(true);
    swatch.widget->update();
}

void frmPrefs::PickColour(Swatch& swatch)
{
    const QColor picked = program().World().pickColour(swatch.colour, this);
    if (picked.isValid()) {
        SetColour(swatch, picked);
    }
}

bool frmPrefs::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == txtSize_ && event->type() == QEvent::KeyPress) {
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool passes = typed.isEmpty() || key == Qt::Key_Tab || key == Qt::Key_Backtab ||
                            key == Qt::Key_Return || key == Qt::Key_Enter ||
                            key == Qt::Key_Escape ||
                            progress::SizeFieldTakes(typed.at(0).unicode()) ||
                            static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste);
        return !passes;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        for (const Box& box : {interface_, system_, hand_}) {
            if (watched == box.label) {
                box.image->Press();
                return true;
            }
        }
    }
    return Form::eventFilter(watched, event);
}

void frmPrefs::Confirm()
{
    const std::u16string size = FromQString(txtSize_->text());
    txtSize_->setText(QString::number(progress::FontSizeOf(size)));
    progress::PreferencesForm form;
    form.arabicInterface = interface_.image->Bitmap() != boxTicked;
    form.keyboardKind = system_.image->Bitmap() == boxTicked ? keyboard::macintoshKeyboard
                                                             : keyboard::windowsKeyboard;
    form.size = FromQString(txtSize_->text());
    form.trueKeyColour = ColourOf(hilite_.colour);
    form.errKeyColour = ColourOf(warn_.colour);
    form.colouredHands = hand_.image->Bitmap() == boxTicked;
    progress::SavePreferences(state(), form);
    Unload([&program = program()]() -> std::unique_ptr<Form> {
        if (frmBlack* backdrop = program.MainWindow()) {
            backdrop->ApplyLanguage();
        }
        return nullptr;
    });
}

} // namespace keyfluent::shell
