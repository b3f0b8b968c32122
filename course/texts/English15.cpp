// English lesson 15: whole passages, typed without aids and put right afterwards.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"Every letter should be a credit to the one who signs it. ڑ\r\n"
    u"The reader can't see your smile; only the page is there, ڑ\r\n"
    u"so let it speak well of you.  First say why you write. ڑ\r\n"
    u"Choose plain words and short sentences.  Mind the small ڑ\r\n"
    u"things, too: a name spelled wrong can spoil ten lines of ڑ\r\n"
    u"praise.  Before you seal it, read it once more, as if a ڑ\r\n"
    u"stranger had sent it.  Would you be glad to get it?  Then ڑ\r\n"
    u"send it, and wait for the answer!",
};

constexpr Row exercise2[] = {
    u"You often hear people in England speak about the weather. ڑ\r\n"
    u"Neighbors at a garden gate and strangers at a bus stop all ڑ\r\n"
    u"begin with the sky.  Why?  It never stays the same for ڑ\r\n"
    u"long: the sun may shine at 8, rain may pour at 10, and by ڑ\r\n"
    u"noon a wind has dried the streets.  A wise walker takes a ڑ\r\n"
    u"hat, an umbrella, and a good book (for indoors).  The talk ڑ\r\n"
    u"isn't really about clouds; it's a way to say hello and to ڑ\r\n"
    u"share a smile.  So nod, and say the garden will be glad!",
};
// clang-format on

} // namespace

const LessonTexts english15 = {exercise1, exercise2, {}, {}, {}};

} // namespace keyfluent::course
