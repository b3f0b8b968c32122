// English lesson 1: the guide row. a s d f and j k l ; then e i, then g h.
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
// clang-format on

} // namespace

const LessonTexts english01 = {exercise1, {}, {}, {}, {}};

} // namespace keyfluent::course
