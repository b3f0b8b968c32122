#include "shell/platform/PlatformRecord.h"

#include "shell/platform/CapsLock.h"
#include "shell/platform/SoundPlayer.h"
#include "tests/shell/FailOnWarning.h"

#include <QCalendar>
#include <QDate>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTime>

#include <cmath>
#include <mutex>

namespace keyfluent::shell
{
namespace
{

using context::Player;
using context::PlayerCommand;

// What was played, by its first sample.
struct Heard {
    void Add(std::int16_t sample)
    {
        const std::lock_guard lock(mutex);
        samples.push_back(sample);
    }
    std::vector<std::int16_t> All()
    {
        const std::lock_guard lock(mutex);
        return samples;
    }

    std::mutex mutex;
    std::vector<std::int16_t> samples;
};

class Output : public SoundOutput
{
public:
    explicit Output(std::shared_ptr<Heard> heard) : heard_(std::move(heard)) {}

    bool Open() override { return true; }
    bool Play(const Samples& samples) override
    {
        heard_->Add(samples.front());
        return true;
    }
    void Close() override {}

private:
    std::shared_ptr<Heard> heard_;
};

// A wave file of one frame: this many 256ths of the full height.
QByteArray WaveOf(char height)
{
    const QByteArray header =
        QByteArray::fromHex("524946462600000057415645666d7420100000000100010080bb000000770100"
                            "020010006461746102000000");
    return header + '\0' + height;
}

} // namespace

class PlatformRecordTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarning();
        heard_ = std::make_shared<Heard>();
        sounds_ = std::make_unique<SoundPlayer>(std::make_unique<Output>(heard_));
        capsLock_ = CapsLockWatch();
        platform_ = MakePlatform(capsLock_, *sounds_, folder_.path());
    }

    void NothingIsLeftEmpty()
    {
        QVERIFY(platform_.secondsSinceMidnight && platform_.today && platform_.seedRandom &&
                platform_.random && platform_.capsLockState && platform_.openPlayer &&
                platform_.commandPlayer && platform_.beep);
    }

    void TimeIsTheLocalTimeOfDay()
    {
        for (int attempt = 0; attempt < 2; ++attempt) {
            const double before = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
            const double now = platform_.secondsSinceMidnight();
            const double after = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
            if (before <= after) { // not over midnight
                QVERIFY(before <= now && now <= after);
                return;
            }
        }
        QFAIL("two midnights in a row");
    }

    void TimeHasAFractionAndGoesOn()
    {
        const double first = platform_.secondsSinceMidnight();
        QTRY_VERIFY(platform_.secondsSinceMidnight() != first);
        QTRY_VERIFY(std::fmod(platform_.secondsSinceMidnight(), 1) != 0);
        QVERIFY(first >= 0 && first < 86400);
    }

    void DateIsToday()
    {
        for (int attempt = 0; attempt < 2; ++attempt) {
            const QDate before = QDate::currentDate();
            const context::CalendarDate today = platform_.today();
            if (before == QDate::currentDate()) {
                QVERIFY(QDate(today.year, today.month, today.day) == before);
                return;
            }
        }
        QFAIL("two midnights in a row");
    }

    void RandomNumbersAreSpread()
    {
        int low = 0;
        for (int draw = 0; draw < 1000; ++draw) {
            const double number = platform_.random();
            QVERIFY(number >= 0 && number < 1);
            low += number < 0.5 ? 1 : 0;
        }
        QVERIFY(low > 400 && low < 600);
    }

    void SeedingMixesTheTimeIn()
    {
        context::Platform other = MakePlatform(capsLock_, *sounds_, folder_.path());
        QCOMPARE(platform_.random(), other.random());
        platform_.seedRandom(1.5);
        other.seedRandom(2.5);
        QVERIFY(platform_.random() != other.random());
    }

    void CopyOfTheRecordIsTheSameMachine()
    {
        context::Platform fresh = MakePlatform(capsLock_, *sounds_, folder_.path());
        const double first = fresh.random();
        const double second = fresh.random();
        const context::Platform copy = platform_;
        QCOMPARE(copy.random(), first);
        QCOMPARE(platform_.random(), second);
    }

    void CapsLockIsThatOfTheWatch()
    {
        QCOMPARE(platform_.capsLockState(), std::int16_t{0});
        capsLock_.KeyEvent(QKeyEvent(QEvent::KeyPress, Qt::Key_CapsLock, Qt::NoModifier, 66, 0, 0));
        QCOMPARE(platform_.capsLockState(), std::int16_t{1});
    }

    void SoundsLieInTheProgramsFolder()
    {
        const struct {
            Player player;
            const char16_t* file;
            char height;
        } sounds[] = {{Player::Enter, u"/enter.wav", 1},
                      {Player::Char, u"/char.wav", 2},
                      {Player::Space, u"/space.wav", 4},
                      {Player::Caps, u"/caps.wav", 8},
                      {Player::Back, u"/Back.wav", 16}};
        for (const auto& sound : sounds) {
            QFile file(folder_.path() + QString::fromUtf16(sound.file));
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(WaveOf(sound.height)), qint64{46});
            file.close();
            platform_.openPlayer(sound.player, sound.file);
        }
        std::size_t count = 0;
        for (const auto& sound : sounds) {
            platform_.commandPlayer(sound.player, PlayerCommand::Prev);
            platform_.commandPlayer(sound.player, PlayerCommand::Play);
            ++count;
            QTRY_COMPARE(heard_->All().size(), count);
            // One that still sounds may be mixed in: each height is a bit of its own.
            QVERIFY((heard_->All().back() >> 8) & sound.height);
        }
    }

    void BeepCanBeAskedFor() { platform_.beep(); }

private:
    QTemporaryDir folder_;
    std::shared_ptr<Heard> heard_;
    std::unique_ptr<SoundPlayer> sounds_;
    CapsLockWatch capsLock_;
    context::Platform platform_;
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::PlatformRecordTest)

#include "PlatformRecordTest.moc"
