// English lesson 2: the top row. r t y u, then q w o p, word by word.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"frf ", u"ftf ", u"jyj ", u"juj ", u"frft ", u"jyju ", u"rtyu ", u"uytr ",
    u"rut ", u"try ", u"tray ", u"true ", u"duty ", u"dust ", u"rust ", u"jury ڑ",
    u"trut ", u"yuty ", u"rytu ", u"utry ", u"tryu ", u"yutr ", u"jytu ", u"furt ",
    u"fury ", u"dirty ", u"dusty ", u"rusty ", u"study ", u"sturdy ", u"truth ", u"thirsty ڑ",
    u"thirty ", u"hurry ", u"fairy ", u"daily ", u"early ", u"yard ", u"stray ", u"just ",
    u"jelly ", u"guilty ", u"faulty ", u"sugary ",
    u"treaty ", u"artistry ", u"laughter ", u"fruity ڑ",
    u"fruit ", u"guitar ", u"hurt ", u"turtle ", u"yesterday ", u"rudely ", u"truly ", u"utter ",
    u"future ", u"jittery ", u"useful ", u"gusty ", u"tasty ", u"usually ",
};

constexpr Row exercise2[] = {
    u"drag ", u"grade ", u"great ", u"guest ", u"light ", u"right ", u"eighty ", u"rest ",
    u"tray ", u"star ", u"daily ", u"juggle ", u"shirt ", u"sugar ", u"far ", u"lid ڑ",
    u"early ", u"heart ", u"ready ", u"street ", u"fruit ", u"guide ", u"kettle ", u"title ",
    u"year ", u"letter ", u"truth ", u"thirst ", u"judge ", u"ladder ", u"future ", u"earth ڑ",
    u"hurry ", u"fresh ", u"gift ", u"feast ", u"lake ", u"stage ", u"trust ", u"daisy ",
    u"usual ", u"height ", u"dairy ", u"start ", u"field ", u"leather ", u"jelly ", u"figure ڑ",
    u"dusty ", u"rather ", u"skate ", u"third ", u"glide ", u"easy ", u"yard ", u"tell ",
    u"large ", u"study ", u"tiger ", u"fifty ", u"health ", u"side ", u"truly ", u"ears ڑ",
    u"drift ", u"steel ", u"flight ", u"gather ", u"hard ", u"ideal ", u"laugh ", u"trail ",
    u"dress ", u"jug ", u"least ", u"grass ", u"theater ", u"kite ", u"feel ", u"salt ڑ",
    u"heat ", u"fairy ", u"silk ", u"daughter ", u"tidy ", u"red ", u"guitar ", u"later ",
    u"useful ", u"teeth ", u"jar ", u"shade ", u"tired ", u"skirt ", u"surely ", u"eight ڑ",
    u"fire ", u"sage ", u"halt ", u"lilies ", u"dark ", u"rigid ", u"rustle ", u"sight ",
};

constexpr Row exercise3[] = {
    u"was waste wasted wasteful we well wealth welfare wheel whe",
    u"elwright ڑ",
    u"what wheat where while white whole ڑ",
    u"paper parade park party path pearl ڑ",
    u"quail quality quart quiet quilt quote ڑ",
    u"oak oasis off oil old other our out ڑ",
    u"power tower shower towel powder ڑ",
    u"equal equip request square squeak ڑ",
    u"food four follow flow hotel ڑ",
    u"people please pupil purple puppy ڑ",
    u"squirrel swap sweet swift sword ڑ",
    u"a quiet pool; a wide road; a low wall",
};

constexpr Row exercise4[] = {
    u"dwell ", u"towel ", u"hope ", u"grow ", u"flower ", u"yellow ", u"willow ", u"shadow ",
    u"world ", u"word ", u"work ", u"walk ", u"water ", u"waiter ", u"wheat ", u"wheel ڑ",
    u"whole ", u"white ", u"while ", u"wide ", u"wild ", u"wire ", u"wish ", u"wood ",
    u"wool ", u"worth ", u"write ", u"wrote ", u"awake ", u"always ", u"quiet ", u"quite ڑ",
    u"quote ", u"quota ", u"quality ", u"quart ", u"quarter ", u"quilt ", u"quail ", u"equal ",
    u"equip ", u"quill ", u"square ", u"quay ", u"squeak ", u"people ", u"paper ", u"park ڑ",
    u"party ", u"path ", u"pastry ", u"pear ", u"pearl ", u"petal ", u"pilot ", u"pipe ",
    u"plate ", u"play ", u"please ", u"poet ", u"pool ", u"port ", u"post ", u"potato ڑ",
    u"pour ", u"pride ", u"powder ", u"proud ", u"pure ", u"purple ", u"puppy ", u"put ",
    u"group ", u"soup ", u"stop ", u"step ", u"ship ", u"shop ", u"shape ", u"sheep ڑ",
    u"sleep ", u"slope ", u"spot ", u"sport ", u"spread ", u"speak ", u"road ", u"roof ",
    u"rope ", u"rose ", u"route ", u"royal ", u"oil ", u"old ", u"order ", u"other ڑ",
    u"outside ", u"owl ", u"wet ", u"hotel ", u"house ", u"hour ", u"goat ",
};

constexpr Row exercise5[] = {
    u"this gay lady was a whole day at sea; ڑ",
    u"her two daughters sailed as well; ڑ",
    u"the fog rose; the sky was pale; ڑ",
    u"they saw a large whale at eight; ڑ",
    u"it raised its huge tail to say hello; ڑ",
    u"the sailor had a fish pie ready; ڑ",
    u"they ate it with hot rye toast; ڑ",
    u"later the sky grew quite dark; ڑ",
    u"the water swirled; it started to pour; ڑ",
    u"they got to the quay just at dusk; ڑ",
    u"what a pity; yet what a great trip",
};
// clang-format on

} // namespace

const LessonTexts english02 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
