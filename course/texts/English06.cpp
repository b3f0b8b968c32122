// English lesson 6: the bottom row. b m z x.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"none; ", u"once; ", u"nine; ", u"cane; ", u"canyon ", u"violin ", u"velvet ", u"cover ",
    u"vacation ", u"inventor ", u"vine ", u"vinegar ",
    u"caravan ", u"given ", u"canvas ", u"even ڑ",
    u"clever ", u"novel ", u"cave ", u"cavern ", u"ocean ", u"canoe ", u"vacant ", u"convince ",
    u"prince ", u"princess ", u"science ", u"scene ",
    u"accent ", u"ancient ", u"circus ", u"voice ڑ",
    u"nice; ", u"niece; ", u"since; ", u"fence; ", u"dance ", u"chance ", u"lance ", u"entrance ",
    u"voyage ",
};

constexpr Row exercise2[] = {
    u"fbf ", u"jmj ", u"aza ", u"sxs ", u"fbjm ", u"azsx ", u"bmzx ", u"xzmb ",
    u"bib ", u"mom ", u"zip ", u"fix ", u"box ", u"mix ", u"zoo ", u"ax ڑ",
    u"bmb ", u"zxz ", u"mzm ", u"xbx ", u"bzx ", u"mxb ", u"zmb ", u"xmz ",
    u"boxer ", u"mixer ", u"zebra ", u"maze ", u"exam ", u"bronze ", u"lamb ", u"index ڑ",
    u"fbxj ", u"zjmx ", u"bsmz ", u"xamb ", u"zbox ", u"mazx ", u"bxzm ", u"mzxb ",
    u"blaze ", u"amaze ", u"maximum ", u"example ", u"excite ", u"bamboo ", u"zoom ", u"buzz ڑ",
    u"next ", u"text ", u"expert ", u"extra ", u"relax ", u"oxygen ", u"sixty ", u"wax ",
    u"size ", u"prize ", u"lazy ", u"crazy ", u"dozen ", u"frozen ", u"bazaar ", u"puzzle ڑ",
    u"remember ", u"number ", u"timber ", u"member ", u"climb ", u"thumb ", u"symbol ", u"bottom ",
    u"xmbz ", u"zbxm ", u"mbzx ", u"bzmx ", u"xbzm ", u"zmxb ", u"mxzb ", u"bxmz ڑ",
    u"fizzy ", u"breeze ", u"lizard ", u"gaze ", u"taxi ", u"exit ", u"exact ", u"waxy ",
    u"tuxedo ", u"fox ", u"zest ", u"zero ",
};

constexpr Row exercise3[] = {
    u"madam magic macro magnum machine ڑ",
    u"map mail main market mango music ڑ",
    u"summer hammer simmer comma ڑ",
    u"lamp camp swim team dream steam ڑ",
    u"mix maximum exam example mixer ڑ",
    u"dime time home some name same ڑ",
    u"six next exit extra explain ڑ",
    u"exact excite exercise expert ڑ",
    u"moment memory member them ڑ",
    u"merry museum mammal minimum ڑ",
    u"my mom makes warm maple cream; ڑ",
    u"mix the milk with some melon; ڑ",
    u"six climbers examine an extra map; ڑ",
    u"a calm mind makes most work simple ڑ",
};

constexpr Row exercise4[] = {
    u"beverage brevity brave benevolent ڑ",
    u"baby back bake ball banana basket ڑ",
    u"beach bean bear begin believe ڑ",
    u"bird bite blue boat bottle bread ڑ",
    u"bubble rubber ribbon rabbit ڑ",
    u"table cable noble double marble ڑ",
    u"zero zone zebra zinc zipper ڑ",
    u"maze gaze blaze breeze bronze ڑ",
    u"dizzy fuzzy puzzle drizzle ڑ",
    u"prize size lazy crazy dozen ڑ",
    u"a brave beaver builds a big dam; ڑ",
    u"a dozen zebras doze by the bamboo; ڑ",
    u"bring back a bag of baked beans; ڑ",
    u"a breeze blew across the bright bay",
};

constexpr Row exercise5[] = {
    u"these big blue books are both in the box; ڑ",
    u"my mother baked six dozen muffins; ڑ",
    u"the next museum bus comes at noon; ڑ",
    u"lazy lizards doze on warm bricks; ڑ",
    u"mix a bit of blue with the amber; ڑ",
    u"a zebra grazes by the muddy bank; ڑ",
    u"an expert examined the bronze bell; ڑ",
    u"bees buzz among the blossoms; ڑ",
    u"an extra blanket keeps him warm; ڑ",
    u"it is amazing what a box can hold",
};
// clang-format on

} // namespace

const LessonTexts english06 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
