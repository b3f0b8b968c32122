#include "shell/forms/frmStopNote.h"

#include "course/Notes.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"

namespace keyfluent::shell
{

frmStopNote::frmStopNote(Program& program, int note) : Form(program, "frmStopNote", {1, 1})
{
    constexpr int notePicture = 108;
    constexpr int noteWithPicture = 9;
    const bool pictured = note == noteWithPicture;
    NameWindow(Arabic() ? u"ملاحظة" : u"Note");
    TextLabel* text = AddLabel("lblNote", {Pixels(pictured ? 1600 : 800), Pixels(470), 10, 10},
                               course::StopNoteText(note), 12);
    text->SetReading(true);
    text->resize(text->sizeHint());
    text->AnswerClicks();
    connect(text, &TextLabel::clicked, this, [this] { Unload(); });
    ImageControl* icon = AddImage("imgIcon", {Pixels(140), Pixels(140)}, notePicture);
    icon->setVisible(pictured);
    connect(icon, &ImageControl::clicked, this, [this] { Unload(); });
    setFixedSize(text->width() + Pixels(pictured ? 2000 : 1600), text->height() + Pixels(1000));
    CloseOnPress();
}

} // namespace keyfluent::shell
