#include "shell/forms/frmNotAllowed.h"

#include "shell/Program.h"

namespace keyfluent::shell
{

frmNotAllowed::frmNotAllowed(Program& program) : Form(program, "frmNotAllowed", {400, 150})
{
    const bool arabic = Arabic();
    AddTitle(arabic ? u"تحذير!" : u"Caution!");
    AddLabel("lblText", {30, 48, 340, 40},
             arabic ? u"الرجاء عدم الضغط بالفأرة على هذين الحقلين..."
                    : u"Plese don't click the mouse on these fields...",
             11);
    const Button ok =
        AddButton("cmdOK", "lblOK", {142, 100}, arabic ? u"موافق" : u"OK", [this] { Unload(); });
    FlashOnReturn(ok);
    FlashOnEscape(ok);
}

} // namespace keyfluent::shell
