// English lesson 4: the little and the ring fingers of both hands.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"apple ", u"papaya ", u"paper ", u"pupil ", u"puppy ", u"pulp ", u"pull ", u"apply ",
    u"appeal ", u"appear ", u"apart ", u"appetite ", u"opal ", u"apiary ", u"opaque ", u"quail ڑ",
    u"quay ", u"query ", u"quota ", u"quip ", u"quill ", u"queue ", u"squall ", u"squeal ",
    u"plaque ", u"aqua ", u"equal ", u"squid ", u"squad ", u"qualify ", u"slow ", u"low ڑ",
    u"owl ", u"allow ", u"wallow ", u"swallow ", u"hollow ", u"sallow ", u"wool ", u"loss ",
    u"loose ", u"lasso ", u"solo ", u"sole ", u"slope ", u"swoop; ", u"show ", u"slaw ڑ",
    u"saw ", u"wasp ", u"sweep ", u"swipe ", u"sloop ", u"pass; ", u"slap; ",
};

constexpr Row exercise2[] = {
    u"afar adapt ahead apathy apart appeal ڑ",
    u"aqua area aria awake away apply ڑ",
    u"art aside ask asleep aspire ڑ",
    u"adult afraid after agile alley ڑ",
    u"apple paper papaya parade pasta ڑ",
    u"salad data saga alas safari ڑ",
    u"quail quota quarter square quit ڑ",
    u"people pepper purple pupil pulp ڑ",
    u"pass; slap; lap; flap; sip; tip; ڑ",
    u"a parrot sat upright at a party; ڑ",
    u"ripe apples; a pale papaya; ڑ",
    u"a poet paid a quarter for a quilt; ڑ",
    u"keep a quill at your side; ڑ",
    u"a plaque will please all pupils ڑ",
};

constexpr Row exercise3[] = {
    u"was walk word sword few law jaw ڑ",
    u"low slow flow follow allow swallow ڑ",
    u"wool wolf owl howl world would ڑ",
    u"sow show shower slower lower ڑ",
    u"sole soil solo also lose loss ڑ",
    u"loose goose foolish lasso ڑ",
    u"sweet sweep swift swirl sway ڑ",
    u"wise west wasp widow willow walls ڑ",
    u"soap rose load hold sold told ڑ",
    u"wish wash swap straw sweater ڑ",
    u"the owl was too slow to follow us; ڑ",
    u"so we saw two swallows fly low; ڑ",
    u"a willow also grows at our pool; ڑ",
    u"sow wide rows of yellow flowers",
};

constexpr Row exercise4[] = {
    u"wrap your wrist; would swallow a pea; ڑ",
    u"wipe a wet plate; sow sweet peas; ڑ",
    u"follow the slow road past a wall; ڑ",
    u"the wise owl sat; two wasps flew off; ڑ",
    u"put a purple quilt away at last; ڑ",
    u"show quality paper dolls to pupils",
};

constexpr Row exercise5[] = {
    u"we are sorry your wife was ill today; ڑ",
    u"we hope fresh air will do her good; ڑ",
    u"please tell her to rest for a week; ڑ",
    u"a pot of hot apple tea would help; ڑ",
    u"the youth group says hello to her; ڑ",
    u"her pupils keep up their work; ڑ",
    u"we look forward to your letters; ڑ",
    u"do write if you require our help",
};
// clang-format on

} // namespace

const LessonTexts english04 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
