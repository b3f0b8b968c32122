// English lesson 5: the bottom row. c, then n v, and the endings ion, an, ing, rn.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"shark ", u"sheep ", u"goose ", u"horse ", u"giraffe ", u"tiger ", u"eagle ", u"parrot ",
    u"poodle ", u"otter ", u"spider ", u"turtle ", u"owl ", u"wolf ", u"hare ", u"weasel ڑ",
    u"house ", u"roof ", u"sofa ", u"stool ", u"shelf ", u"plate ", u"kettle ", u"pillow ",
    u"quilt ", u"towel ", u"ladle ", u"door ", u"gate ", u"yard ", u"garage ", u"wall ڑ",
    u"desk ", u"ruler ", u"letter ", u"page ", u"story ", u"title ", u"poster ", u"report ",
    u"write ", u"keep ", u"wait ", u"pull ", u"push ", u"lift ", u"drop ", u"grow ڑ",
    u"stop ", u"speak ", u"shout ", u"laugh ", u"whisper ", u"wish ", u"whistle ", u"argue ",
    u"happy ", u"sad ", u"quiet ", u"loud ", u"tall ", u"short ", u"great ", u"little ڑ",
    u"soft ", u"hard ", u"sweet ", u"sour ", u"wet ", u"dry ", u"hot ", u"swift ",
    u"today ", u"week ", u"year ", u"hour ", u"day ",
};

constexpr Row exercise2[] = {
    u"dcd ", u"dcdc ", u"cdcd ", u"edce ", u"dcde ", u"kcdk ", u"dckc ", u"cded ",
    u"cat ", u"car ", u"ice ", u"lace ", u"face ", u"each ", u"cash ", u"city ڑ",
    u"care ", u"cart ", u"case ", u"calf ", u"clip ", u"clay ", u"clock ", u"click ",
    u"cloud ", u"coast ", u"coat ", u"coffee ", u"cold ", u"color ", u"cook ", u"copy ڑ",
    u"cheese ", u"cherry ", u"chair ", u"chalk ", u"chart ", u"child ", u"chess ", u"chief ",
    u"school ", u"scale ", u"score ", u"scout ", u"secret ", u"select ", u"sketch ", u"cactus ڑ",
    u"circle ", u"cycle ", u"choice ", u"office ", u"police ", u"slice ", u"price ", u"twice ",
    u"check ", u"catch ", u"watch ", u"fetch ", u"stitch ", u"pitch ", u"ditch ", u"latch ڑ",
    u"lack ", u"rock ", u"pack ", u"pocket ", u"rocket ", u"ticket ", u"track ", u"trick ",
    u"actor ", u"factory ", u"doctor ", u"picture ", u"cup ", u"race ", u"collect ", u"act ڑ",
    u"peacock ", u"cupcake ", u"cut ", u"success ", u"direct ",
};

constexpr Row exercise3[] = {
    u"price; ", u"cent ", u"jnj ", u"fvf ", u"jnjn ", u"fvfv ", u"nvnv ", u"vfnj ",
    u"van ", u"vine ", u"even ", u"oven ", u"seven ", u"never ", u"event ", u"invent ڑ",
    u"nine ", u"ten ", u"one ", u"north ", u"inch ", u"once ", u"niece ", u"nephew ",
    u"voice ", u"vast ", u"vivid ", u"vault ", u"view ", u"valley ", u"visit ", u"violet ڑ",
    u"line ", u"pine ", u"lane ", u"lion ", u"train ", u"open ", u"learn ", u"native ",
    u"river ", u"clever ", u"silver ", u"velvet ", u"every ", u"very ", u"drive ", u"save ڑ",
    u"nation ", u"invite ", u"vanilla ", u"cavern ",
    u"ravine ", u"convince ", u"advance ", u"given ",
    u"window ", u"kitchen ", u"garden ", u"dinner ", u"noon ", u"hunt ", u"king ", u"spring ڑ",
    u"travel ", u"evening ",
};

constexpr Row exercise4[] = {
    u"love rove over pave have rave five ڑ",
    u"dive drive alive given ever ڑ",
    u"action nation station vacation ڑ",
    u"question version vision television ڑ",
    u"option portion fiction function ڑ",
    u"an and any can fan plan ocean ڑ",
    u"land hand sand stand island ڑ",
    u"sing ring king spring evening ڑ",
    u"reading writing playing singing ڑ",
    u"turn return corn horn learn ڑ",
    u"fern western southern lantern ڑ",
    u"the engine is running; turn it down; ڑ",
    u"each evening we hear a violin; ڑ",
    u"a young captain returns soon; ڑ",
    u"the train is leaving at seven ڑ",
};

constexpr Row exercise5[] = {
    u"these fifteen very ancient stoves are hot; ڑ",
    u"the captain is looking at the coast; ڑ",
    u"our cousins travel in a yellow van; ڑ",
    u"seven children are racing their kites; ڑ",
    u"five lanterns hung on the stairs; ڑ",
    u"a kind aunt is knitting new socks",
};
// clang-format on

} // namespace

const LessonTexts english05 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
