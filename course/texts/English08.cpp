// English lesson 8: ? ' ) then the dash and the slash.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u";?; ", u";'; ", u";?; ", u";'; ", u";?) ", u"?') ", u";); ", u":) ",
    u"who? ", u"what? ", u"when? ", u"where? ", u"it's ", u"he's ", u"she's ", u"we're ڑ",
    u"a) ", u"b) ", u"c) ", u"d) ", u"don't ", u"can't ", u"isn't ", u"won't ",
    u"why? ", u"how? ", u"which? ", u"whose? ", u"I'm ", u"I'll ", u"you've ", u"they're ڑ",
    u"one) ", u"two) ", u"yes) ", u"no) ",
};

constexpr Row exercise2[] = {
    u"How are you?  Who is she?  Where is he? ڑ",
    u"What's this?  Why isn't it open? ڑ",
    u"Is this the Seven Snails Express? ڑ",
    u"No, it's the Dizzy Dolphin Bakery. ڑ",
    u"Where's the Left Boot Shoe Company? ڑ",
    u"Don't you see it?  It's over there. ڑ",
    u"Does Lazy Whale Travel sell maps? ڑ",
    u"They'll have some, won't they? ڑ",
    u"When does the Vienna train leave? ڑ",
    u"Whose hat is that?  Isn't it ours? ڑ",
    u"a) Knock.  b) Wait.  c) Say hello.",
};

constexpr Row exercise3[] = {
    u";-; ", u";/; ", u"p-p ", u"l/l ", u"-;- ", u"/;/ ", u"-/- ", u"/-/ ",
    u"and/or ", u"he/she ", u"yes/no ", u"on/off ",
    u"two-way ", u"self-made ", u"well-known ", u"ice-cold ڑ",
    u"day/night ", u"left/right ", u"half-full ", u"twenty-one ",
    u"in/out ", u"up-to-date ", u"part-time ", u"win/lose ",
};

constexpr Row exercise4[] = {
    u"twenty-one; thirty-two; fifty-five ڑ",
    u"My sister-in-law is left-handed. ڑ",
    u"Is it a ten-minute walk/ride? ڑ",
    u"The lamp has an on/off switch. ڑ",
    u"Her X-ray shows a well-set bone. ڑ",
    u"Take tea and/or milk; say yes/no. ڑ",
    u"Here's a half-eaten, ice-cold pie. ڑ",
    u"A wind-up clock may run fast/slow. ڑ",
    u"Sign each page: front/back, left/right.",
};
// clang-format on

} // namespace

const LessonTexts english08 = {exercise1, exercise2, exercise3, exercise4, {}};

} // namespace keyfluent::course
