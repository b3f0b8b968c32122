// English lesson 14: the frequent pairs ou er rt oi, and practice in the mind.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"All kind of wild plants do not grow here. ڑ",
    u"Our neighbors found a round house. ڑ",
    u"Pour out four ounces of flour. ڑ",
    u"A clever gardener waters her ferns. ڑ",
    u"The baker offered her better butter. ڑ",
    u"Short summers hurt the northern crop. ڑ",
    u"The artist started a sturdy fort. ڑ",
    u"Avoid noise: choose a quiet voice. ڑ",
    u"Point the hose: moist soil is best. ڑ",
    u"Thousands of flowers surround us. ڑ",
    u"Good effort is worth a loud cheer.",
};

constexpr Row exercise2[] = {
    u"Conditions in the world today are good for typists. ڑ",
    u"Nearly every desk has a keyboard. ڑ",
    u"Yet you can practice without one. ڑ",
    u"Sit back and close both eyes. ڑ",
    u"Picture the rows of keys, one by one. ڑ",
    u"Spell a word; feel each finger move. ڑ",
    u"Hear the light tap of every key. ڑ",
    u"Begin with words you use each day. ڑ",
    u"Use long ones next: neighborhood. ڑ",
    u"Musicians do this on long trips. ڑ",
    u"Swimmers do it beside the pool. ڑ",
    u"The mind never tires the fingers. ڑ",
    u"Tomorrow your hands will remember.",
};
// clang-format on

} // namespace

const LessonTexts english14 = {exercise1, exercise2, {}, {}, {}};

} // namespace keyfluent::course
