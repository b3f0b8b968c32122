// English lesson 13: the right hand, the left hand, then all letters in one sentence.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"No, John is one month older than I am. ڑ",
    u"In July, I hope, you'll join us in Oslo. ڑ",
    u"Kyoto, Japan, is lovely in June, no? ڑ",
    u"Pink lilies bloom on a hill in Lyon. ڑ",
    u"Unlike Hull, Honolulu is hilly. ڑ",
    u"Oh, look: a million minnows in my pool! ڑ",
    u"You spill the milk; Phil mops it up.",
};

constexpr Row exercise2[] = {
    u"When every question had been answered, we were free to sit ",
    u"down and rest. ڑ",
    u"Great Arctic waves erased every trace. ڑ",
    u"Captain Tiger, a cat, faced a rat. ڑ",
    u"Waiters served sweet Ceylon tea. ڑ",
    u"Sea birds rested at Cape Verde. ڑ",
    u"We traded dates at a Qatar bazaar. ڑ",
    u"Rain saved red beets across Texas. ڑ",
    u"Jovial foxes quickly zip by the damp red wagon. ڑ",
    u"Victor quickly judged six maps of frozen white bays. ڑ",
    u"Quartz jewelry is packed in five gold boxes for him. ڑ",
    u"Why did the quiet ox jump over frozen blocks of sage? ڑ",
    u"The free hand holds the Shift key. ڑ",
    u"Even Shift and X need a light touch.",
};
// clang-format on

} // namespace

const LessonTexts english13 = {exercise1, exercise2, {}, {}, {}};

} // namespace keyfluent::course
