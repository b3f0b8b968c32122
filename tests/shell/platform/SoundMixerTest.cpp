#include "shell/platform/SoundMixer.h"

#include "tests/shell/FailOnWarning.h"

namespace keyfluent::shell
{
namespace
{

using context::Player;
using std::chrono::milliseconds;

constexpr std::size_t framesPerMillisecond = soundRate / 1000;

// A sound of one height.
Samples Tone(int durationMs, std::int16_t height)
{
    return Samples(static_cast<std::size_t>(durationMs) * framesPerMillisecond * soundChannels,
                   height);
}

// "20 x 3, 10 x 1": how long in milliseconds each height is heard.
QString Heard(const Samples& samples)
{
    QStringList parts;
    for (std::size_t begin = 0; begin < samples.size();) {
        std::size_t end = begin;
        while (end < samples.size() && samples[end] == samples[begin]) {
            ++end;
        }
        parts += QStringLiteral("%1 x %2")
                     .arg((end - begin) / soundChannels / framesPerMillisecond)
                     .arg(samples[begin]);
        begin = end;
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

class SoundMixerTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarning();
        mixer_ = SoundMixer();
        mixer_.SetSound(Player::Enter, Tone(100, 1000));
        mixer_.SetSound(Player::Char, Tone(50, 20));
        mixer_.SetSound(Player::Space, Tone(80, 3));
    }

    void NothingIsHeardBeforeAStart() { QCOMPARE(HeardAt(0), QString()); }

    void SoundIsHeardOnceToItsEnd()
    {
        QVERIFY(mixer_.Start(Player::Char, At(0)));
        QCOMPARE(HeardAt(0), QStringLiteral("50 x 20"));
        QCOMPARE(HeardAt(20), QStringLiteral("30 x 20"));
        QCOMPARE(HeardAt(50), QString());
        QCOMPARE(HeardAt(100000), QString());
        QVERIFY(!mixer_.Start(Player::Char, At(60)));
        QCOMPARE(HeardAt(60), QString());
    }

    void RewoundPlayerCutsItsOwnPlayingOff()
    {
        mixer_.Start(Player::Char, At(0));
        mixer_.Rewind(Player::Char);
        QVERIFY(mixer_.Start(Player::Char, At(30)));
        QCOMPARE(HeardAt(30), QStringLiteral("50 x 20"));
    }

    void PlayersAreHeardTogether()
    {
        mixer_.Start(Player::Enter, At(0));
        mixer_.Start(Player::Char, At(10));
        mixer_.Start(Player::Space, At(20));
        QCOMPARE(HeardAt(20), QStringLiteral("40 x 1023, 40 x 1003"));
        QCOMPARE(HeardAt(70), QStringLiteral("30 x 1003"));
    }

    void RewindingLeavesThePlayingAlone()
    {
        mixer_.Start(Player::Space, At(0));
        mixer_.Rewind(Player::Space);
        QCOMPARE(HeardAt(30), QStringLiteral("50 x 3"));
        QVERIFY(mixer_.Start(Player::Space, At(200)));
        QCOMPARE(HeardAt(200), QStringLiteral("80 x 3"));
    }

    void StartWithoutRewindingLetsThePlayingGoOn()
    {
        mixer_.Start(Player::Space, At(0));
        QVERIFY(!mixer_.Start(Player::Space, At(30)));
        QCOMPARE(HeardAt(30), QStringLiteral("50 x 3"));
    }

    void NewSoundIsAtItsStartAndSilent()
    {
        mixer_.Start(Player::Char, At(0));
        mixer_.SetSound(Player::Char, Tone(10, 7));
        QCOMPARE(HeardAt(0), QString());
        QVERIFY(mixer_.Start(Player::Char, At(0)));
        QCOMPARE(HeardAt(0), QStringLiteral("10 x 7"));
    }

    void PlayerWithoutASoundIsSilent()
    {
        QVERIFY(!mixer_.Start(Player::Back, At(0)));
        mixer_.Rewind(Player::Back);
        QVERIFY(!mixer_.Start(Player::Back, At(0)));
        mixer_.SetSound(Player::Char, {});
        QVERIFY(!mixer_.Start(Player::Char, At(0)));
        QCOMPARE(HeardAt(0), QString());
    }

    void SkippedPlayingIsNotHeard()
    {
        mixer_.Skip(Player::Char);
        QVERIFY(!mixer_.Start(Player::Char, At(0)));
        QCOMPARE(HeardAt(0), QString());
        mixer_.Rewind(Player::Char);
        mixer_.Start(Player::Char, At(0));
        mixer_.Skip(Player::Char);
        QCOMPARE(HeardAt(10), QString());
    }

    void LoudSoundsStopAtTheLimit()
    {
        mixer_.SetSound(Player::Caps, Tone(10, 32767));
        mixer_.SetSound(Player::Back, Tone(10, 32767));
        mixer_.Start(Player::Caps, At(0));
        mixer_.Start(Player::Back, At(0));
        QCOMPARE(HeardAt(0), QStringLiteral("10 x 32767"));
        mixer_.SetSound(Player::Caps, Tone(10, -32768));
        mixer_.SetSound(Player::Back, Tone(10, -1));
        mixer_.Start(Player::Caps, At(0));
        mixer_.Start(Player::Back, At(0));
        QCOMPARE(HeardAt(0), QStringLiteral("10 x -32768"));
    }

    void ChannelsStayApart()
    {
        mixer_.SetSound(Player::Caps, {1, -1, 2, -2});
        mixer_.SetSound(Player::Back, {10, 20});
        mixer_.Start(Player::Caps, At(0));
        mixer_.Start(Player::Back, At(0));
        QVERIFY(mixer_.Mix(At(0)) == (Samples{11, 19, 2, -2}));
    }

private:
    static SoundMixer::Clock::time_point At(int time)
    {
        return SoundMixer::Clock::time_point(std::chrono::hours(1) + milliseconds(time));
    }

    QString HeardAt(int time) { return Heard(mixer_.Mix(At(time))); }

    SoundMixer mixer_;
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::SoundMixerTest)

#include "SoundMixerTest.moc"
