#include "shell/forms/frmWelcome.h"

#include "progress/StudentFile.h"
#include "progress/Welcome.h"
#include "shell/Program.h"

#include <algorithm>

namespace keyfluent::shell
{

frmWelcome::frmWelcome(Program& program) : Form(program, "frmWelcome", {480, 220})
{
    progress::LoadStudent(state());
    const bool arabic = Arabic();
    AddTitle(arabic ? u"كي فلونت" : u"KeyFluent");
    TextLabel* text = AddLabel("lblText", {30, 50, 420, 90},
                               progress::WelcomeText(state(), program.Machine()), 11);
    text->resize(text->width(), std::max(text->FitHeight(), 80));
    const int bottom = text->geometry().bottom();
    const Button ok = AddButton("cmdOK", "lblOK", {182, bottom + 20}, arabic ? u"موافق" : u"OK",
                                [this, &program] {
                                    Unload([&program]() -> std::unique_ptr<Form> {
                                        program.EnterAsKnownStudent();
                                        return nullptr;
                                    });
                                });
    FlashOnReturn(ok);
    setFixedHeight(bottom + 70);
}

} // namespace keyfluent::shell
