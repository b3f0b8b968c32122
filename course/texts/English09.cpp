// English lesson 9: the punctuation marks again, then the exclamation mark.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"Each day, thousands of electronic letters go out. ڑ",
    u"Where do they go?  Who reads them? ڑ",
    u"Some are short: a yes/no, a thank-you. ڑ",
    u"Others are long, kind, and well-made. ڑ",
    u"A few are never read; isn't it sad? ڑ",
    u"Before you send yours, stop and look. ڑ",
    u"Is the name right?  Is it polite? ڑ",
    u"Don't write a joke that may hurt. ڑ",
    u"Say please: it doesn't cost a cent. ڑ",
    u"Use one subject only; be brief. ڑ",
    u"A letter has three parts: a greeting, the message itself, ",
    u"and a close. ڑ",
    u"Grandfather's rule holds: think first. ڑ",
    u"He kept a dictionary close by, too. ڑ",
    u"He'd look up one new word a day. ڑ",
};

constexpr Row exercise2[] = {
    u"a!a ", u";!; ", u"a!a ", u";!; ", u"!a! ", u"a;! ", u"Oh! ", u"Ah! ",
    u"Go! ", u"Stop! ", u"Look! ", u"Wait! ", u"Help! ", u"Thanks! ", u"Bravo! ", u"Hurrah! ڑ",
    u"Really? ", u"Listen! ", u"Quick! ", u"Hush! ", u"Come, ", u"now! ", u"Well, ", u"yes! ",
    u"Don't! ", u"Never! ", u"Great! ", u"Super! ", u"Wow! ", u"Ready? ", u"Steady! ", u"Jump! ڑ",
    u"Catch! ", u"Throw! ", u"Hello! ", u"Welcome! ",
    u"Enough! ", u"Careful! ", u"Faster! ", u"Done! ",
};

constexpr Row exercise3[] = {
    u"Stop, thief!  Stop, thief!  Catch him, someone!ڑ",
    u"Quick, the bread is burning! ڑ",
    u"Look out, the paint is wet! ڑ",
    u"What a goal!  The town is dancing! ڑ",
    u"Wait!  He only took his own hat!",
};

constexpr Row exercise4[] = {
    u"To excel at tennis, football, or typing, practice! ڑ",
    u"Champions aren't born; they grow. ڑ",
    u"Ten calm minutes beat a tired hour. ڑ",
    u"Warm up: shake your hands first. ڑ",
    u"Keep your eyes on the text/screen! ڑ",
    u"A well-timed rest is work, too. ڑ",
    u"Did you miss a key?  Find the beat! ڑ",
    u"Beginners hurry; experts keep time. ڑ",
    u"How good it feels to know the way!",
};
// clang-format on

} // namespace

const LessonTexts english09 = {exercise1, exercise2, exercise3, exercise4, {}};

} // namespace keyfluent::course
