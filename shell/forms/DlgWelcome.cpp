#include "shell/forms/DlgWelcome.h"

#include "progress/SignIn.h"
#include "shell/Program.h"
#include "shell/forms/frmEName.h"

#include <algorithm>

namespace keyfluent::shell
{

DlgWelcome::DlgWelcome(Program& program) : Form(program, "DlgWelcome", {460, 220})
{
    constexpr int greetingPicture = 104;
    const bool arabic = Arabic();
    AddTitle(arabic ? u"مرحبا بك" : u"Welcome");
    AddImage("imgIcon", {arabic ? 350 : 20, 45}, greetingPicture);
    TextLabel* message = AddLabel("lblWelcomeMsg", {arabic ? 20 : 130, 50, 310, 90},
                                  progress::NewStudentGreeting(state()), 11);
    message->resize(message->width(), std::max(message->FitHeight(), 82));
    const int bottom = message->geometry().bottom();
    const Button ok = AddButton("cmdOK", "lblOK", {arabic ? 240 : 105, bottom + 20},
                                arabic ? u"موافق" : u"OK", [this] { Unload(); });
    const Button cancel = AddButton(
        "cmdCansel", "lblCansel", {arabic ? 105 : 240, bottom + 20}, arabic ? u"إلغاء" : u"Cancel",
        [this, &program] { Unload([&program] { return std::make_unique<frmEName>(program); }); });
    FlashOnReturn(ok);
    FlashOnEscape(cancel);
    setFixedHeight(bottom + 70);
}

} // namespace keyfluent::shell
