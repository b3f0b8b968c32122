// English lesson 3: both upper rows again, then the left and the right index finger.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"write ", u"author ", u"poet ", u"editor ", u"artist ", u"typist ", u"pilot ", u"sailor ",
    u"tailor ", u"jeweler ", u"waiter ", u"potter ",
    u"porter ", u"teller ", u"golfer ", u"lawyer ڑ",
    u"usher ", u"shepherd ", u"tiler ", u"rider ", u"ruler ", u"paper ", u"folder ", u"stapler ",
    u"pliers ", u"ladder ", u"pulley ", u"pedal ", u"thread ", u"wheel ", u"drawer ", u"highway ڑ",
    u"forty ", u"eighty ", u"daylight ", u"today ", u"later ", u"forest ", u"glass ", u"owl ",
    u"kettle ", u"shape ", u"upright ", u"quietly ",
};

constexpr Row exercise2[] = {
    u"quiet write wrote were pour type ڑ",
    u"poet poetry pretty pity purity ڑ",
    u"tree tire tower root typewriter ڑ",
    u"require quit quite quote equip ڑ",
    u"your yet wire weep port power ڑ",
    u"territory property proper ڑ",
    u"upper pepper puppet otter utter ڑ",
    u"flag glad glass flask fall shall ڑ",
    u"half gas sad dad has ask alas ڑ",
    u"order sport right letter sugar ڑ",
    u"we wrote to the proper address; ڑ",
    u"put the paper there; sit upright ڑ",
};

constexpr Row exercise3[] = {
    u"tiger ", u"target ", u"after ", u"draft ", u"raft ", u"gift ", u"graft ", u"drift ",
    u"great ", u"grater ", u"grit ", u"gritty ", u"greet ", u"gate ", u"regret ", u"forget ڑ",
    u"forgot ", u"first ", u"forest ", u"forty ", u"fort ", u"effort ", u"afford ", u"offer ",
    u"fruit ", u"fresh ", u"fright ", u"free ", u"trout ", u"tuft ", u"trifle ", u"true ڑ",
    u"trust ", u"truth ", u"trot ", u"got ", u"street ", u"straw ", u"start ", u"straight ",
    u"stage ", u"tag ", u"guitar ", u"guard ", u"garage ", u"gutter ", u"guest ", u"gather ڑ",
    u"together ", u"giraffe ", u"grief ", u"graph ", u"grape ", u"grill ", u"group ", u"treat ",
    u"trail ", u"tray ", u"trip ", u"truffle ", u"tutor ", u"test ", u"rattle ", u"rotate ڑ",
    u"rafter ", u"refresh ",
};

constexpr Row exercise4[] = {
    u"jay lay day gay flay slay yard tray ڑ",
    u"jury judge jug just joyful jolly ڑ",
    u"you your youth yours yet year ڑ",
    u"hush hut huge hurt house hurry ڑ",
    u"thirty duty truly justly study ڑ",
    u"they hurried to the jetty at dusk; ڑ",
    u"a youth juggled eight jars of jelly",
};

constexpr Row exercise5[] = {
    u"the little girl says that the tiger is shy; ڑ",
    u"it ate eight fish for its supper; ڑ",
    u"her father likes its yellow eyes; ڑ",
    u"two other tigers rest there too; ڑ",
    u"the keeper feeds the whole group; ڑ",
    u"the kids would like to stay late; ڑ",
    u"it is already four; the gates shut",
};
// clang-format on

} // namespace

const LessonTexts english03 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
