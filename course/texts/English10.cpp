// English lesson 10: the marks in dialogue, then parentheses.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"- Do you know? I was the first at school. ڑ",
    u"- Really, are you sure of that? ڑ",
    u"- Quite sure: I came by boat! ڑ",
    u"- By boat, up to the top of a hill? ڑ",
    u"- It rained all night, didn't it? ڑ",
    u"- You're joking; where is it now? ڑ",
    u"- In the yard, next to the swings. ڑ",
    u"- May I row it after class? ڑ",
    u"- Of course: you row, and I'll steer! ڑ",
    u"- Who will bail the water out? ڑ",
    u"- The teacher; he has a large hat! ڑ",
    u"- Then ask him; he can't say no. ڑ",
    u"- Hush, here he comes with wet feet!",
};

constexpr Row exercise2[] = {
    u"ki( ", u"lo) ", u"ki( ", u"lo) ", u"k(l) ", u"l(k) ", u"(k) ", u"(l) ",
    u"(a) ", u"(b) ", u"(one) ", u"(two) ", u"(yes) ", u"(no) ", u"(see) ", u"(map) ڑ",
    u"(red) ", u"(green) ", u"(blue) ", u"(always) ",
    u"(never) ", u"(perhaps) ", u"(page) ", u"(noon) ",
    u"(really?) ", u"(again!) ",
};

constexpr Row exercise3[] = {
    u"Rome (it is said) was not built in a day. ڑ",
    u"A penguin (it's a bird) can't fly. ڑ",
    u"Venus (our neighbor) is very hot. ڑ",
    u"Xylophones (unlike bells) are wooden. ڑ",
    u"My cousin (the tall one) is a baker. ڑ",
    u"Honey (if sealed) keeps for years. ڑ",
    u"A whale (it's no fish) needs air. ڑ",
    u"Is the soup (the green one) hot? ڑ",
    u"Add salt (a pinch) and stir (slowly). ڑ",
    u"Zebras (all of them) have stripes. ڑ",
    u"He read it twice (aloud!) and smiled. ڑ",
    u"A small gift (gladly given) is great.",
};
// clang-format on

} // namespace

const LessonTexts english10 = {exercise1, exercise2, exercise3, {}, {}};

} // namespace keyfluent::course
