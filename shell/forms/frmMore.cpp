#include "shell/forms/frmMore.h"

#include "shell/Program.h"

namespace keyfluent::shell
{

frmMore::frmMore(Program& program) : Form(program, "frmMore", {480, 300})
{
    const bool arabic = Arabic();
    AddTitle(arabic ? u"معلومات أخرى..." : u"Others...");
    TextLabel* text = AddLabel(
        "lblText", {30, 46, 420, 200},
        arabic ? u"كي فلونت معلم للطباعة باللمس لمن يكتب العربية والإنجليزية: خمسة عشر درسا في "
                 u"كل لغة، على لوحة مفاتيح النوافذ أو الماكنتوش.\r\r"
                 u"تحفظ علاماتك في ملف باسمك داخل مجلد (Students) بجانب البرنامج، وتحفظ "
                 u"التفضيلات في ملف واحد بجانبه. انسخ المجلد كله لتحفظ نسخة احتياطية.\r\r"
                 u"البرنامج حر بموجب رخصة MIT. الخطوط: نوتو نسخ العربي، والخط الأميري، "
                 u"وديجافو."
               : u"KeyFluent teaches touch typing to people who write Arabic and English: "
                 u"fifteen lessons in each language, on a Windows or a Macintosh "
                 u"keyboard.\r\r"
                 u"Your marks are kept in a file with your name, in the folder Students "
                 u"beside the program, and the preferences in one file next to it. Copy the "
                 u"whole folder to keep a backup.\r\r"
                 u"Free software under the MIT licence. Faces: Noto Naskh Arabic, Amiri and "
                 u"DejaVu Sans.",
        10.5);
    setFixedHeight(46 + text->FitHeight() + 24);
    CloseOnPress();
}

} // namespace keyfluent::shell
