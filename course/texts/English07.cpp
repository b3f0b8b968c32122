// English lesson 7: comma, period, colon, and capitals with the Shift key.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"baby; ", u"maybe; ", u"zebra; ", u"album; ", u"bubble ", u"number ", u"member ", u"taxi ",
    u"exam; ", u"oxen; ", u"boxing; ", u"mixer; ", u"cabin ", u"marble ", u"climb ", u"zinc ڑ",
    u"amaze ", u"zoom ", u"dozen ", u"zone ", u"magnet ", u"banana ", u"cinema ", u"bench ",
    u"combine ", u"maximum ", u"convex ", u"vixen ", u"vivid ", u"volume ", u"complex ", u"mixed ڑ",
    u"bronze ", u"blanket ", u"command ", u"invent ",
    u"magazine ", u"victim ", u"bazaar ", u"lemon ",
    u"balance ", u"oxygen ", u"vacuum ", u"zigzag ",
};

constexpr Row exercise2[] = {
    u"k,k ", u"l.l ", u";:; ", u"k,k ", u"l.l ", u";:; ", u"k,l. ", u".;:, ",
    u"one, ", u"two, ", u"three, ", u"four. ", u"list: ", u"note: ", u"end. ", u"stop. ڑ",
    u",k. ", u".l: ", u":;, ", u"k,: ", u"l.; ", u";:. ", u",.: ", u":., ",
    u"well, ", u"then, ", u"now, ", u"here. ", u"first: ", u"next: ", u"soon. ", u"last. ڑ",
    u"yes, ", u"no, ", u"thus: ", u"done. ",
};

constexpr Row exercise3[] = {
    u"to be, or not to be, that is the comma at work. ڑ",
    u"one blank comes after a comma or colon; ڑ",
    u"two blanks come after a period here. ڑ",
    u"no blank ever comes before a comma.",
};

constexpr Row exercise4[] = {
    u"Africa.  America.  September.  Sunday. ڑ",
    u"Europe.  Asia.  October.  Friday. ڑ",
    u"Cairo, Lisbon, Quebec, and Zurich. ڑ",
    u"Kenya, Zambia, Norway, and Uganda. ڑ",
    u"Lake Victoria; the Nile; Mount Everest. ڑ",
    u"The Purple Penguin Paper Company. ڑ",
    u"Jolly Yak Wool and Yarn House. ڑ",
    u"Upside Down Umbrellas, Limited. ڑ",
    u"The Xylophone and Zither Factory. ڑ",
    u"Quiet Quail Quill and Ink Shop. ڑ",
    u"Five Foxes Box and Basket Shop. ڑ",
    u"Royal Rubber Ducks of Venice. ڑ",
    u"Giant Snail Alarm Clocks.",
};

constexpr Row exercise5[] = {
    u"The human body consists of the head, the trunk, the arms, ",
    u"and the legs. ڑ",
    u"The heart beats without a rest. ڑ",
    u"Bones carry us; muscles move us. ڑ",
    u"The skin is our largest organ. ڑ",
    u"A baby has more bones than you. ڑ",
    u"Veins lead blood back to the heart. ڑ",
    u"The ear also keeps us upright. ڑ",
    u"Tooth enamel is harder than bone. ڑ",
    u"The eye can tell countless colors. ڑ",
    u"A few hairs fall out every day. ڑ",
    u"We taste sweet, sour, and salty food. ڑ",
    u"Lungs fill, rest, and empty again. ڑ",
    u"Sleep mends the body each night. ڑ",
    u"Walk, stretch, and breathe deeply.",
};
// clang-format on

} // namespace

const LessonTexts english07 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
