#include "progress/SignIn.h"

#include "context/Text.h"
#include "progress/Wording.h"

namespace keyfluent::progress
{

bool ChangeName(context::SessionContext& context, std::u16string_view text)
{
    context.studentName = context::TrimBlanks(text);
    context.studentNameCopy = context.studentName;
    return text.size() >= nameWarning;
}

bool HasName(const context::SessionContext& context)
{
    return !context::TrimBlanks(context.studentName).empty();
}

void CancelSignIn(context::SessionContext& context, std::u16string_view nameAtOpening)
{
    context.studentName = nameAtOpening;
}

std::u16string_view NameQuestion(const context::SessionContext& context)
{
    if (context.loggedOut) {
        return context.arabicInterface ? u"كيف حالك، مااسمك؟" : u"How are you, your name?";
    }
    return context.arabicInterface ? u"السلام عليكم وأهلا وسهلا, ما اسمك؟"
                                   : u"Hello, How are you, what is your name?";
}

std::u16string NewStudentGreeting(const context::SessionContext& context)
{
    if (context.arabicInterface) {
        return Join({u"لم يحصل لي الشرف بمعرفتك يا ", context.studentName, u". \r\r",
                     u"هل تود أن تصبح أحد طلابي الجدد؟"});
    }
    return Join({u"I could'nt recognize you ", context.studentName, u". \r\r",
                 u"Whould you like to be one of my new students?"});
}

} // namespace keyfluent::progress
