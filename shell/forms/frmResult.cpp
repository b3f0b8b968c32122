#include "shell/forms/frmResult.h"

#include "progress/Result.h"
#include "shell/Program.h"

namespace keyfluent::shell
{

frmResult::frmResult(Program& program) : Form(program, "frmResult", {400, 230})
{
    const progress::ResultTexts texts = progress::LoadResult(state(), program.Machine());
    AddTitle(texts.title);
    AddLabel("lblRes", {40, 55, 320, 26}, texts.res, 11);
    AddLabel("lblBonus", {40, 85, 320, 26}, texts.bonus, 11);
    AddLabel("lblResult", {40, 115, 320, 28}, texts.result, 12, true);
    AddLabel("lblNote", {40, 155, 320, 60}, texts.note, 10, true)->setVisible(texts.noteVisible);
    CloseOnPress();
}

} // namespace keyfluent::shell
