#include "shell/forms/frmEName.h"

#include "progress/SignIn.h"
#include "progress/StudentFile.h"
#include "shell/Program.h"
#include "shell/forms/DlgWelcome.h"
#include "shell/forms/frmWelcome.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/TextConversion.h"

#include <QLineEdit>

namespace keyfluent::shell
{

frmEName::frmEName(Program& program)
    : Form(program, "frmEName", {430, 200}), nameAtOpening_(program.State().studentName)
{
    constexpr int greetingPicture = 105;
    const bool arabic = Arabic();
    AddTitle(arabic ? u"كي فلونت" : u"Key Fluent");
    AddImage("imgIcon", {arabic ? 320 : 20, 42}, greetingPicture);
    const int left = arabic ? 20 : 130;
    AddLabel("lblName", {left, 48, 280, 42}, progress::NameQuestion(state()), 11, true);
    txtName_ = new QLineEdit(this);
    txtName_->setObjectName(QStringLiteral("txtName"));
    txtName_->setMaxLength(static_cast<int>(progress::nameLimit));
    txtName_->setFont(FormFont(11, false));
    txtName_->setTextMargins(4, 0, 4, 0);
    txtName_->setGeometry(left, 98, 280, 28);
    txtName_->setLayoutDirection(arabic ? Qt::RightToLeft : Qt::LeftToRight);
    txtName_->setAlignment((arabic ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
    txtName_->setAccessibleName(ToQString(progress::NameQuestion(state())));
    connect(txtName_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (progress::ChangeName(state(), FromQString(text))) {
            this->program().Machine().beep();
        }
    });
    const Button ok = AddButton("imgOK", "lblOK", {arabic ? 225 : 90, 150},
                                arabic ? u"موافق" : u"OK", [this] { Confirm(); });
    const Button cancel = AddButton("imgCansel", "lblCansel", {arabic ? 90 : 225, 150},
                                    arabic ? u"إلغاء" : u"Cancel", [this] { Cancel(); });
    FlashOnReturn(ok);
    FlashOnEscape(cancel);
}

void frmEName::Activated()
{
    txtName_->setFocus();
}

void frmEName::Confirm()
{
    if (!progress::HasName(state())) {
        program().Machine().beep();
        return;
    }
    Program& program = this->program();
    if (!progress::IsNewStudent(state())) {
        Unload([&program] { return std::make_unique<frmWelcome>(program); });
        return;
    }
    // Meant: what follows the greeting follows it however the greeting ended.
    Unload([&program]() -> std::unique_ptr<Form> {
        program.Show<DlgWelcome>();
        program.EnterAsNewStudent();
        return nullptr;
    });
}

void frmEName::Cancel()
{
    progress::CancelSignIn(state(), nameAtOpening_);
    Unload();
    if (state().quitting) {
        program().End();
    }
}

} // namespace keyfluent::shell
