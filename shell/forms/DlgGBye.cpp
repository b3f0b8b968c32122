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
    message->resize(message->width(), std::max(message->FitHeight(), 70));
    const int bottom = message->geometry().bottom();
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
