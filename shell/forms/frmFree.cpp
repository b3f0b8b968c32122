#include "shell/forms/frmFree.h"

#include "session/Letters.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/TextConversion.h"

#include <QLineEdit>

namespace keyfluent::shell
{
namespace
{

constexpr int boxEmpty = 126;
constexpr int boxTicked = 127;

} // namespace

frmFree::frmFree(Program& program) : Form(program, "frmFree", {460, 230})
{
    session::OpenLetters(state());
    const bool arabic = Arabic();
    AddTitle(arabic ? u"الجناس التصحيفي" : u"Anagram");
    AddLabel("lblDesc", {30, 44, 400, 48},
             arabic ? u"حدد الحروف التي تود التمرن عليها، عشرة حروف كحد أقصى:"
                    : u"Specify the characeters you would like to Practice,\r"
                      u"Maximum ten letters allowed",
             10);
    txtFree_ = new QLineEdit(this);
    txtFree_->setObjectName(QStringLiteral("txtFree"));
    txtFree_->setFont(FormFont(11, false));
    txtFree_->setTextMargins(4, 0, 4, 0);
    txtFree_->setGeometry(30, 98, 400, 28);
    txtFree_->setAccessibleName(
        findChild<TextLabel*>(QStringLiteral("lblDesc"))->text().simplified());

    constexpr int labelWidth = Pixels(4450);
    constexpr int boxGap = Pixels(45);
    constexpr int boxWidth = 23;
    const int labelLeft = arabic ? 430 - boxWidth - boxGap - labelWidth : 30 + boxWidth + 8;
    const int boxLeft = arabic ? labelLeft + labelWidth + boxGap : 30;
    TextLabel* keyboard = AddLabel("lblKeyboard", {labelLeft, 138, labelWidth, 22},
                                   arabic ? u"لوح المفاتيح العربي." : u"Arabic Keyboard.", 10);
    imgKeyboard_ = AddImage("imgKeyboard", {boxLeft, 138}, boxTicked);
    imgKeyboard_->SetKind(ImageControl::Kind::CheckBox);
    imgKeyboard_->SetCaptionName(keyboard->text());
    connect(imgKeyboard_, &ImageControl::clicked, this, [this] {
        state().anagramLanguage = !state().anagramLanguage;
        ShowLanguage();
    });
    ShowLanguage();

    ok_ = AddButton("cmdOK", "lblOK", {arabic ? 235 : 105, 178}, arabic ? u"موافق" : u"OK",
                    [this] { Confirm(); });
    AddButton("cmdCansel", "lblCansel", {arabic ? 105 : 235, 178}, arabic ? u"إلغاء" : u"Cancel",
              [this] {
                  session::CancelLetters(state());
                  Unload();
              });
    connect(txtFree_, &QLineEdit::textChanged, this, [this](const QString& text) {
        ok_.image->setEnabled(!text.isEmpty());
        ok_.label->setEnabled(!text.isEmpty());
    });
    ok_.image->setEnabled(false);
    ok_.label->setEnabled(false);
    txtFree_->setFocus();
    ActOnClose([this] {
        session::CancelLetters(state());
        Unload();
    });
}

void frmFree::ShowLanguage()
{
    imgKeyboard_->SetBitmap(state().anagramLanguage ? boxTicked : boxEmpty);
    imgKeyboard_->SetChecked(state().anagramLanguage);
}

void frmFree::Confirm()
{
    if (session::ConfirmLetters(state(), FromQString(txtFree_->text()))) {
        Unload();
    } else {
        program().Machine().beep();
    }
}

} // namespace keyfluent::shell
