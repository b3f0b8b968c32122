#include "shell/forms/DlgGBye.h"

#include "progress/Farewell.h"
#include "shell/Program.h"

#include <algorithm>

namespace keyfluent::shell
{

DlgGBye::DlgGBye(Program& program) : Form(program, "DlgGBye", {460, 200})
{
    const progress::ByeTexts texts = progress::ByeMessage(state(), program.Machine());
    AddTitle(Arabic() ? u"كي فلونت" : u"KeyFluent");
    TextLabel* message = AddLabel("lblByeMsg", {30, 52, 400, 80}, texts.message, 11);
    const int bottom = std::max(message->geometry().top() + message->FitHeight(), 120);
    const Button bye =
        AddButton("cmdGoodBye", "lblGoodBye", {172, bottom + 20}, texts.caption, [this, &program] {
            Unload();
            program.End();
        });
    FlashOnReturn(bye);
    FlashOnEscape(bye);
    setFixedHeight(bottom + 70);
}

} // namespace keyfluent::shell
