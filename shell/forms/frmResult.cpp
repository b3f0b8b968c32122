#include "shell/forms/frmResult.h"

#include "progress/Result.h"
#include "shell/Program.h"

#include <QPainter>

namespace keyfluent::shell
{

frmResult::frmResult(Program& program) : Form(program, "frmResult", {400, 170})
{
    const progress::ResultTexts texts = progress::LoadResult(state(), program.Machine());
    // A press on the window closes it, and a click on one of these labels.
    const auto answer = [this](TextLabel* label) {
        label->AnswerClicks();
        connect(label, &TextLabel::clicked, this, [this] { Unload(); });
        return label;
    };
    answer(AddTitle(texts.title));
    const auto line = [&](const char* name, int top, const std::u16string& text, bool bold) {
        answer(AddLabel(name, {50, top, 300, 26}, text, 11, bold))->SetNumberApart(true);
    };
    line("lblRes", 46, texts.res, false);
    line("lblBonus", 76, texts.bonus, false);
    line("lblResult", 112, texts.result, true);
    TextLabel* note = AddLabel("lblNote", {50, 154, 300, 10}, texts.note, 10, true);
    note->setVisible(texts.noteVisible);
    if (texts.noteVisible && !texts.note.empty()) {
        setFixedHeight(note->geometry().top() + note->FitHeight() + 24);
    }
    CloseOnPress();
}

// A line over the sum of the two marks above it.
void frmResult::PaintExtra(QPainter& painter)
{
    painter.fillRect(50, 107, 300, 1, QColor(0x6B, 0x7F, 0x8C));
}

} // namespace keyfluent::shell
