#include "shell/platform/SoundWishes.h"

#include "tests/shell/FailOnWarning.h"

#include <random>

namespace keyfluent::shell
{
namespace
{

// What a player of one file does, call by call: counts the playings that begin at its start.
struct PlainPlayer {
    bool atStart = true;
    int heard = 0;

    void Rewind() { atStart = true; }
    void Play()
    {
        heard += atStart ? 1 : 0;
        atStart = false;
    }
    void Fulfil(const SoundWish& wish)
    {
        if (wish.rewindFirst) {
            Rewind();
        }
        if (wish.play) {
            Play();
        }
        if (wish.rewindAfter) {
            Rewind();
        }
    }
};

} // namespace

class SoundWishesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    // However many calls a wish gathers, the player stands afterwards where each call by itself
    // would have brought it, and is heard once if it would have been heard at all.
    void WishEndsWhereItsCallsWouldHaveEnded()
    {
        std::mt19937 random(7);
        for (int round = 0; round < 5000; ++round) {
            PlainPlayer each;
            PlainPlayer gathered;
            each.atStart = gathered.atStart = (random() & 1U) != 0;
            SoundWish wish;
            for (auto call = random() % 7; call > 0; --call) {
                if ((random() & 1U) != 0) {
                    each.Rewind();
                    wish.Rewind();
                } else {
                    each.Play();
                    wish.Play();
                }
            }
            gathered.Fulfil(wish);
            QCOMPARE(gathered.atStart, each.atStart);
            QCOMPARE(gathered.heard, std::min(each.heard, 1));
        }
    }

    void NewFileForgetsWhatTheOldOneWasAskedFor()
    {
        SoundWish wish;
        wish.Play();
        wish.Rewind();
        wish.Open(QStringLiteral("a"));
        QVERIFY(!wish.play && !wish.rewindFirst && !wish.rewindAfter);
        wish.Play();
        QVERIFY(wish.play);
        QCOMPARE(*wish.file, QStringLiteral("a"));
    }

    void TimeIsThatOfThePlayingThatIsLeft()
    {
        SoundWish wish;
        wish.Play();
        const auto first = wish.asked;
        wish.Play();
        QVERIFY(wish.asked == first);
        QTest::qWait(2);
        wish.Rewind();
        wish.Play();
        QVERIFY(wish.asked > first);
    }

    void RewindingAloneLetsTheThreadSleep()
    {
        SoundWishes wishes;
        QVERIFY(!wishes.NeedTheThread());
        wishes.Of(context::Player::Back).Rewind();
        QVERIFY(!wishes.NeedTheThread());
        wishes.Of(context::Player::Back).Play();
        QVERIFY(wishes.NeedTheThread());
        wishes = SoundWishes();
        wishes.Of(context::Player::Enter).Open(QString());
        QVERIFY(wishes.NeedTheThread());
        wishes = SoundWishes();
        wishes.rest = true;
        QVERIFY(wishes.NeedTheThread());
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::SoundWishesTest)

#include "SoundWishesTest.moc"
