#include "shell/forms/frmScreen.h"

#include "context/Text.h"
#include "shell/Program.h"

namespace keyfluent::shell
{
namespace
{

std::u16string Explanation(bool arabic, QSize screen)
{
    const std::u16string width = context::Decimal(screen.width());
    const std::u16string height = context::Decimal(screen.height());
    if (arabic) {
        return u"برنامج كي فلونت يتطلب أن تكون شدة وضوح الشاشة على الأقل 600*800، الرجاء فتح لوحة "
               u"التحكم الخاصة بالعرض وتغيير وضوح الشاشة. وإعادة تشغيل برنامج كي فلونت.\r\r"
               u"عرض الشاشة الحالي: " +
               width + u"  .ارتفاع الشاشة الحالي: " + height;
    }
    return u"KeyFluent need at least (800*600) screen resolution, Please open the Display control "
           u"panel and change the screen resolution. and restart KeyFluent.\r\r"
           u"Current Screen Width: " +
           width + u".  Current Screen Height: " + height;
}

} // namespace

frmScreen::frmScreen(Program& program, QSize screen) : Form(program, "frmScreen", {460, 240})
{
    AddTitle(Arabic() ? u"وضوح الشاشة" : u"Screen Resolution");
    TextLabel* text = AddLabel("lblText", {30, 50, 400, 10}, Explanation(Arabic(), screen), 11);
    const int bottom = text->geometry().top() + text->FitHeight();
    setFixedHeight(bottom + 76);
    AddButton("cmdThank", "lblThank", {172, bottom + 24}, Arabic() ? u"إنهاء" : u"Quit",
              [this, &program] {
                  Unload();
                  program.End();
              });
}

} // namespace keyfluent::shell
