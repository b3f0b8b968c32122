#include "shell/forms/frmPrefs.h"

#include "context/KeyboardKind.h"
#include "progress/Preferences.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/forms/frmBlack.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/TextConversion.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace keyfluent::shell
{

// A colour on show; a press picks another.
class ColourSwatch : public ImageControl
{
public:
    ColourSwatch(QWidget* parent, const QColor& colour) : ImageControl(parent)
    {
        SetKind(Kind::Button);
        SetColour(colour);
    }

    const QColor& Colour() const { return colour_; }
    void SetColour(const QColor& colour)
    {
        colour_ = colour;
        setAccessibleDescription(colour.name());
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0x1F, 0x3A, 0x4D), 1.5));
        painter.setBrush(colour_);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
        painter.end();
        ImageControl::paintEvent(event);
    }

private:
    QColor colour_;
};

namespace
{

// Takes digits and Backspace from the keyboard, and what moves the caret or leaves the field. What
// is pasted goes in as it is.
class SizeField : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    // No input method: it would bring letters past the keys.
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override
    {
        return query == Qt::ImEnabled ? QVariant(false) : QLineEdit::inputMethodQuery(query);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (Takes(*event)) {
            QLineEdit::keyPressEvent(event);
        }
    }

private:
    static bool Takes(const QKeyEvent& event)
    {
        constexpr int leaving[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape};
        const QString typed = event.text();
        return typed.isEmpty() || std::ranges::find(leaving, event.key()) != std::end(leaving) ||
               progress::SizeFieldTakes(typed.at(0).unicode()) ||
               event.matches(QKeySequence::Paste);
    }
};

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
                     shown.keyboardKind == context::macintoshKeyboard);
    hand_ = AddBox("imgHand", "lblHand", 122,
                   arabic ? u"استخدم الأيدي الملونة للتوضيح." : u"Use the colored hands.",
                   shown.colouredHands);
    heading("lblColor", 158, arabic ? u"تفضيلات الألوان:" : u"Color Setting:");
    lblHilite_ = AddSwatch("lblHilite", "lblTrue", 188,
                           arabic ? u"المفاتيح الصح:" : u"True Keys Color:", shown.trueKeyColour);
    lblWarn_ = AddSwatch("lblWarn", "lblErr", 220, arabic ? u"المفاتيح الخطأ:" : u"Err Keys Color:",
                         shown.errKeyColour);
    AddSizeField(266, shown.fontSize);

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
    box.label->AnswerClicks();
    connect(box.label, &TextLabel::clicked, box.image, &ImageControl::Press);
    connect(box.image, &ImageControl::clicked, this, [image = box.image] {
        const bool now = image->Bitmap() != boxTicked;
        image->SetBitmap(now ? boxTicked : boxEmpty);
        image->SetChecked(now);
    });
    return box;
}

ColourSwatch* frmPrefs::AddSwatch(const char* name, const char* labelName, int top,
                                  const char16_t* caption, std::int32_t colour)
{
    const TextLabel* label =
        AddLabel(labelName, Mirrored(Arabic(), {margin + 10, top, 150, 26}), caption, 10);
    auto* swatch = new ColourSwatch(this, QColor::fromRgb(RgbOf(colour)));
    swatch->setObjectName(QString::fromLatin1(name));
    swatch->setGeometry(Mirrored(Arabic(), {margin + 170, top, 72, 26}));
    swatch->SetCaptionName(label->text());
    connect(swatch, &ImageControl::clicked, this, [this, swatch] {
        const QColor picked = program().World().pickColour(swatch->Colour(), this);
        if (picked.isValid()) {
            swatch->SetColour(picked);
        }
    });
    return swatch;
}

// The field stands over the gap in its label.
void frmPrefs::AddSizeField(int top, std::int32_t size)
{
    constexpr int space = 4; // on either side of the field
    constexpr int height = 26;
    const bool arabic = Arabic();
    const QRect place = Mirrored(arabic, {margin, top, 240, height});
    const TextLabel* label =
        AddLabel("lblSize", place,
                 arabic ? u"حجم الخط:              بكسل" : u"Size:              points", 10);
    const QFontMetrics metrics(label->font());
    const int before =
        metrics.horizontalAdvance(arabic ? QStringLiteral("حجم الخط:") : QStringLiteral("Size:")) +
        space;
    const int width = metrics.horizontalAdvance(QString(14, u' ')) - 2 * space;
    txtSize_ = new SizeField(this);
    txtSize_->setObjectName(QStringLiteral("txtSize"));
    txtSize_->setFont(FormFont(10, false));
    txtSize_->setAlignment(Qt::AlignHCenter);
    txtSize_->setText(QString::number(size));
    txtSize_->setAccessibleName(label->text().simplified());
    txtSize_->setGeometry(arabic ? place.right() + 1 - before - width : place.left() + before, top,
                          width, height);
}

void frmPrefs::Confirm()
{
    const std::u16string size = FromQString(txtSize_->text());
    txtSize_->setText(QString::number(progress::FontSizeOf(size)));
    progress::PreferencesForm form;
    form.arabicInterface = interface_.image->Bitmap() != boxTicked;
    form.keyboardKind = system_.image->Bitmap() == boxTicked ? context::macintoshKeyboard
                                                             : context::windowsKeyboard;
    form.size = FromQString(txtSize_->text());
    form.trueKeyColour = ColourOf(lblHilite_->Colour());
    form.errKeyColour = ColourOf(lblWarn_->Colour());
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
