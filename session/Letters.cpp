#include "session/Letters.h"

#include "context/Text.h"

namespace keyfluent::session
{

void OpenLetters(context::SessionContext& context)
{
    context.freeTextChars.clear();
    context.anagramLanguage = true;
}

bool ConfirmLetters(context::SessionContext& context, std::u16string_view typed)
{
    constexpr std::size_t limit = 10;
    if (context::TrimBlanks(typed).empty()) {
        return false;
    }
    // Meant: which ten are kept goes by the language of the interface, not by that of the letters.
    const bool keepLast = context.arabicInterface && typed.size() > limit;
    context.freeTextChars = typed.substr(keepLast ? typed.size() - limit : 0, limit);
    return true;
}

void CancelLetters(context::SessionContext& context)
{
    context.freeTextChars.clear();
}

} // namespace keyfluent::session
