#include "shell/forms/frmLeave.h"

#include "progress/Leaving.h"
#include "shell/Program.h"
#include "shell/forms/DlgGBye.h"

namespace keyfluent::shell
{
namespace
{

const char16_t* TitleOf(bool arabic, bool quitting)
{
    if (quitting) {
        return arabic ? u"إنهاء" : u"Quit";
    }
    return arabic ? u"تسجيل الخروج" : u"Loggin Out";
}

} // namespace

frmLeave::frmLeave(Program& program) : Form(program, "frmLeave", {430, 160})
{
    const bool arabic = Arabic();
    AddTitle(TitleOf(arabic, state().quitting));
    AddLabel("lblString", {30, 50, 370, 40},
             arabic ? u"هل تريد تسجيل نتائج هذه المجموعة؟" : u"Do you want to save the results?",
             11);
    const auto place = [arabic](int fromReadingSide) {
        constexpr int step = 130;
        return QPoint(28 + (arabic ? 2 - fromReadingSide : fromReadingSide) * step, 108);
    };
    const Button yes = AddButton("cmdOK", "lblOK", place(0), arabic ? u"نعم" : u"Yes", [this] {
        progress::LeaveYes(state());
        Leave();
    });
    AddButton("cmdNo", "lblNo", place(1), arabic ? u"لا" : u"No", [this] {
        progress::LeaveNo(state());
        Leave();
    });
    const Button cancel =
        AddButton("cmdCancel", "lblCancel", place(2), arabic ? u"إلغاء الأمر" : u"Cancel", [this] {
            progress::LeaveCancel(state());
            Unload();
        });
    FlashOnReturn(yes);
    FlashOnEscape(cancel);
}

void frmLeave::Leave()
{
    if (!state().quitting) {
        Unload();
        return;
    }
    Unload([&program = program()] { return std::make_unique<DlgGBye>(program); });
}

} // namespace keyfluent::shell
