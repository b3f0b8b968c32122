#include "shell/forms/frmAbout.h"

#include "shell/Program.h"
#include "shell/forms/frmMore.h"

namespace keyfluent::shell
{

frmAbout::frmAbout(Program& program) : Form(program, "frmAbout", {409, 500})
{
    constexpr int aboutPicture = 205;
    const bool arabic = Arabic();
    AddTitle(arabic ? u"حول كي فلونت 1.0" : u"About Key Fluent 1.0");
    ImageControl* picture = AddImage("Image1", {20, 42}, aboutPicture);
    picture->setAccessibleName(QStringLiteral("KeyFluent 1.0"));
    connect(picture, &ImageControl::clicked, this, [this] { Unload(); });
    connect(picture, &ImageControl::hovered, this, [this] { PutOutButtons(); });
    AddButton("imgOK", "lblOK", {arabic ? 214 : 80, 452},
              arabic ? u"معلومات أخرى..." : u"Others...",
              [this, &program] { ShowAbove(std::make_unique<frmMore>(program)); });
    AddButton("imgCansel", "lblCansel", {arabic ? 80 : 214, 452},
              arabic ? u"معلومات النظام" : u"System Info", [&program] {
                  if (!program.World().startSystemInformation()) {
                      program.World().showMessage(
                          QStringLiteral("System Information Is Unavailable At This Time"));
                  }
              });
    CloseOnPress();
    ActOnClose([this] { Unload(); });
}

} // namespace keyfluent::shell
