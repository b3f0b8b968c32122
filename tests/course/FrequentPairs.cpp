#include "LetterCounts.h"

namespace keyfluent::course::fixtures
{
namespace
{

// English: their order in large counts over printed books.
constexpr std::u16string_view englishPairs =
    u"th he in er an re on at en nd ti es or te of ed is it al ar "
    u"st to nt ng se ha as ou io le ve co me de hi ri ro ic ne ea "
    u"ra ce li ch ll be ma si om ur ca el ta la ns di fo ho pe ec "
    u"pr no ct us ac ot il tr ly nc et ut ss so rs un lo wa ge ie "
    u"wh ee wi em ad ol rt po we na ul ni ts mo ow pa im mi ai sh";

// Arabic: the mean of their shares in three collections that lean to different sides, the word list
// of a spelling dictionary, the messages of a desktop in Arabic, and the notes and pages of this
// program.
constexpr std::u16string_view arabicPairs =
    u"ال ين لي ان لم في لا وا نا ما ية ات ار لت ست ري عل من ام يد "
    u"ها لو تا ون ير تم يم لأ ول يا فا تي تر رة را لع لى تن اب اح "
    u"يت تو با تع نت مف لف كل مر مل اف دي مس مة يح أن لل اس نص كا "
    u"بع تح يس رو ور مي وي بي فت لك سر ذا مت أو مو ني لح لن لس سا "
    u"تب عا قا مع حر تت ند عن صو تك نق وف غي عد دا صر اء نن عر تق";

} // namespace

std::vector<std::u16string> FrequentPairs(bool arabic)
{
    return WordsIn(arabic ? arabicPairs : englishPairs);
}

} // namespace keyfluent::course::fixtures
