// English lesson 12: the keyboard by rows, top, guide and bottom.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"are ", u"write ", u"type ", u"tower ", u"query ", u"quiet ", u"quote ", u"pretty ",
    u"poetry ", u"proper ", u"require ", u"upper ", u"pepper ", u"power ", u"report ", u"route ڑ",
    u"typewriter ", u"you ", u"our ", u"outer ", u"tree ", u"tire ", u"weep ", u"pity ",
    u"glass ", u"flash ", u"glad ", u"half ", u"hall ", u"shall ", u"flask ", u"salad ڑ",
    u"dash ", u"slash ", u"flags ", u"falls ", u"ask ", u"lads ", u"gas ", u"had ",
    u"zinc ", u"exam ", u"cabin ", u"mix ", u"minimum ", u"canvas ", u"vacuum ", u"bench ڑ",
    u"banana ", u"common ", u"examine ", u"bronze ", u"comb ", u"cave ", u"venom ", u"ocean ",
    u"house ", u"family ", u"garden ", u"second ", u"window ", u"market ", u"name ", u"morning ڑ",
    u"journey ", u"quickly ", u"record ", u"secret ", u"picture ", u"sun ", u"nature ", u"evening ",
    u"question ", u"answers ", u"bike ", u"direct ", u"hill ", u"insect ", u"under ", u"bridge ڑ",
    u"yellow ", u"purple ", u"orange ", u"silver ", u"golden ", u"dense ", u"black ", u"white ",
    u"bread ", u"dinner ", u"lemons ", u"soup ", u"cake ", u"eggs ", u"fruits ", u"salt ڑ",
    u"lights ", u"plants ", u"sports ", u"uncle ", u"hundred ", u"dance ", u"empty ", u"system ",
    u"radio ", u"pens ", u"problem ", u"them ", u"lesson ", u"item ", u"done ",
};

constexpr Row exercise2[] = {
    u"Try to put those old ropes in the tower. ڑ",
    u"Your typewriter wrote pretty poetry. ڑ",
    u"Two tired porters quit their route. ڑ",
    u"Dad has a salad; a lad has half. ڑ",
    u"All gas lamps flash as a flag falls. ڑ",
    u"Can ten men move a bronze box? ڑ",
    u"Combine cinnamon and vanilla. ڑ",
    u"Zinc boxes came back by van. ڑ",
    u"Know each row from top to bottom. ڑ",
    u"Your hands return to the guide row.",
};
// clang-format on

} // namespace

const LessonTexts english12 = {exercise1, exercise2, {}, {}, {}};

} // namespace keyfluent::course
