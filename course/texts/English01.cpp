// English lesson 1: the guide row. a s d f and j k l ; then e i, then g h, first short sentences.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"asdf ", u"asdf ", u"asdf ", u"jkl; ", u"jkl; ", u"jkl; ", u"asdf ", u"jkl; ",
    u"ffff ", u"jjjj ", u"dddd ", u"kkkk ", u"ssss ", u"llll ", u"aaaa ", u";;;; ",
    u"ffff ", u"jjjj ", u"dddd ", u"kkkk ", u"ssss ", u"llll ", u"aaaa ", u";;;; ",
    u"fdsa ", u"jkl; ", u"dkfj ", u"a;sl ", u"asdf ", u";lkj ", u"jf;a ", u"lska ",
    u"ksla ", u"skal ", u"lad; ", u"alas ", u"lads ", u"all; ", u"ask; ", u"fall ",
    u"lass ", u"sad; ", u"dad; ", u"fad; ", u"add; ", u"ass; ",
};

constexpr Row exercise2[] = {
    u"ded ", u"kik ", u"ded ", u"kik ", u"dede ", u"kiki ", u"eded ", u"ikik ",
    u"fed ", u"kid ", u"sea ", u"ski ", u"led ", u"lid ", u"eel ", u"ill ڑ",
    u"dsei ", u"kjie ", u"aedi ", u";lie ", u"ki;d ", u"jife ", u"slid ", u"else ",
    u"side ", u"like ", u"idea ", u"file ", u"life ", u"feed ", u"leek ", u"isle ڑ",
    u"said ", u"seal ", u"kids ", u"safe ", u"disk ", u"desk ", u"lied ", u"sale ",
    u"skies ", u"slide ", u"field ", u"ideal ", u"fails ", u"ideas ", u"easel ", u"seaside ",
};

constexpr Row exercise3[] = {
    u"lead; ", u"deal; ", u"idea; ", u"seal; ", u"file ", u"life ", u"like ", u"lake ",
    u"sail; ", u"said; ", u"lied; ", u"idle; ", u"leaf ", u"safe ", u"sale ", u"sake ڑ",
    u"desk; ", u"disk; ", u"skid; ", u"slid; ", u"seed ", u"feed ", u"feel ", u"leek ",
    u"self ", u"side ", u"jade ", u"fade ", u"fake ", u"flake ", u"slide ", u"field ڑ",
    u"lad; ", u"ask; ", u"fad; ", u"add; ", u"lids ", u"silk ", u"fill ", u"kale ",
    u"asks; ", u"salad; ", u"flask; ", u"lass; ", u"aisle ", u"isle ", u"ideal ", u"alike ڑ",
    u"saddle; ", u"fiddle; ", u"dislike; ", u"seaside; ",
    u"failed ", u"sailed ", u"sealed ", u"filled ",
    u"fields ", u"ideals ", u"flea; ", u"falls; ",
};

constexpr Row exercise4[] = {
    u"fgf ", u"jhj ", u"fgf ", u"jhj ", u"ghgh ", u"hghg ", u"fghj ", u"jhgf ",
    u"gag ", u"ha ", u"gas ", u"has ", u"had ", u"he ", u"she ", u"his ڑ",
    u"glad ", u"half ", u"hall ", u"head ", u"high ", u"sigh ", u"held ", u"flag ",
    u"hill ", u"fish ", u"dish ", u"dash ", u"flash ", u"ash ", u"shed ", u"shelf ڑ",
    u"egg ", u"edge ", u"hedge ", u"ledge ", u"legs ", u"gale ", u"glass ", u"glide ",
    u"shall ", u"shade ", u"shield ", u"heel ", u"heal ", u"hail ", u"sleigh ", u"geese ڑ",
    u"eagle ", u"legal ", u"giggle ", u"jiggle ", u"seashell ", u"fig ", u"agile ", u"flesh ",
};

constexpr Row exercise5[] = {
    u"a las a flask falls; ڑ",
    u"a lad feeds fish; he likes lakes; ڑ",
    u"she had a salad; dad had a fig; ڑ",
    u"a kid slides; he falls; she giggles; ڑ",
    u"a high hill hides a field; geese glide; ڑ",
    u"if dad sighs she asks if he is ill",
};
// clang-format on

} // namespace

const LessonTexts english01 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
