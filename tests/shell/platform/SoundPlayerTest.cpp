#include "shell/platform/SoundPlayer.h"

#include "tests/shell/FailOnWarning.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <condition_variable>
#include <mutex>
#include <unistd.h>
#include <vector>

namespace keyfluent::shell
{
namespace
{

using context::Player;
using context::PlayerCommand;

// A sound server that writes down what it gets and can stand still or fail.
class Server
{
public:
    bool Open()
    {
        std::unique_lock lock(mutex_);
        ++opens_;
        thread_ = ::gettid();
        WaitWhileFrozen(lock);
        return reachable_;
    }

    bool Play(const Samples& samples)
    {
        std::unique_lock lock(mutex_);
        WaitWhileFrozen(lock);
        if (std::exchange(failsOnce_, false)) {
            return false;
        }
        played_.push_back(samples);
        return true;
    }

    void Close()
    {
        const std::lock_guard lock(mutex_);
        ++closes_;
    }

    void Freeze()
    {
        const std::lock_guard lock(mutex_);
        frozen_ = true;
    }

    void Thaw()
    {
        const std::lock_guard lock(mutex_);
        frozen_ = false;
        thawed_.notify_all();
    }

    void SetReachable(bool reachable)
    {
        const std::lock_guard lock(mutex_);
        reachable_ = reachable;
    }

    void FailOnce()
    {
        const std::lock_guard lock(mutex_);
        failsOnce_ = true;
    }

    int Opens() const { return Locked(opens_); }
    int Closes() const { return Locked(closes_); }
    bool HoldsTheThread() const { return Locked(waiting_); }
    pid_t Thread() const { return Locked(thread_); }
    std::vector<Samples> Played() const { return Locked(played_); }
    std::size_t PlayedCount() const { return Played().size(); }

private:
    void WaitWhileFrozen(std::unique_lock<std::mutex>& lock)
    {
        waiting_ = frozen_;
        thawed_.wait(lock, [this] { return !frozen_; });
        waiting_ = false;
    }

    template <typename Value> Value Locked(const Value& value) const
    {
        const std::lock_guard lock(mutex_);
        return value;
    }

    mutable std::mutex mutex_;
    std::condition_variable thawed_;
    bool frozen_ = false;
    bool waiting_ = false;
    bool reachable_ = true;
    bool failsOnce_ = false;
    int opens_ = 0;
    int closes_ = 0;
    pid_t thread_ = 0;
    std::vector<Samples> played_;
};

class Output : public SoundOutput
{
public:
    explicit Output(std::shared_ptr<Server> server) : server_(std::move(server)) {}

    bool Open() override { return server_->Open(); }
    bool Play(const Samples& samples) override { return server_->Play(samples); }
    void Close() override { server_->Close(); }

private:
    std::shared_ptr<Server> server_;
};

// A sound of two milliseconds and one height.
Samples Click(std::int16_t height)
{
    return Samples(static_cast<std::size_t>(2 * soundRate / 1000 * soundChannels), height);
}

QByteArray WaveOf(const Samples& samples)
{
    const auto size = static_cast<quint32>(samples.size() * sizeof(samples[0]));
    const auto number = [](quint32 value) {
        return QByteArray(reinterpret_cast<const char*>(&value), 4);
    };
    return "RIFF" + number(36 + size) + "WAVEfmt " + number(16) +
           QByteArray::fromHex("0100020080bb000000ee020004001000") + "data" + number(size) +
           QByteArray(reinterpret_cast<const char*>(samples.data()), qsizetype(size));
}

// How often the thread has gone to sleep since it began.
QByteArray SleepCount(pid_t thread)
{
    QFile status(QStringLiteral("/proc/self/task/%1/status").arg(thread));
    if (!status.open(QIODevice::ReadOnly)) {
        return {};
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("voluntary_ctxt_switches:")) {
            return line;
        }
    }
    return {};
}

} // namespace

class SoundPlayerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        FailOnWarning();
        QVERIFY(folder_.isValid());
        WriteFile(QStringLiteral("enter"), WaveOf(Click(100)));
        WriteFile(QStringLiteral("char"), WaveOf(Click(1000)));
        WriteFile(QStringLiteral("broken"), "RIFF");
        WriteFile(QStringLiteral("long"), WaveOf(Samples(std::size_t{soundRate}, 7)));
    }

    void init()
    {
        FailOnWarning();
        server_ = std::make_shared<Server>();
        player_ = std::make_unique<SoundPlayer>(std::make_unique<Output>(server_));
    }

    void cleanup()
    {
        server_->Thaw();
        player_.reset();
        server_.reset();
    }

    void RewoundPlayerIsHeardEachTime()
    {
        OpenAndWait(Player::Char, "char");
        for (std::size_t count = 1; count <= 5; ++count) {
            PrevPlay(Player::Char);
            QTRY_COMPARE(server_->PlayedCount(), count);
            QVERIFY(server_->Played().back() == Click(1000));
        }
        QCOMPARE(server_->Opens(), 1);
        QCOMPARE(server_->Closes(), 0);
    }

    void RewindingAfterwardsServesTheNextTime()
    {
        OpenAndWait(Player::Caps, "char");
        for (std::size_t count = 1; count <= 5; ++count) {
            player_->Command(Player::Caps, PlayerCommand::Play);
            player_->Command(Player::Caps, PlayerCommand::Prev);
            QTRY_COMPARE(server_->PlayedCount(), count);
            QVERIFY(server_->Played().back() == Click(1000));
        }
    }

    void PlayerAtItsEndHasNothingToPlay()
    {
        OpenAndWait(Player::Char, "char");
        OpenAndWait(Player::Enter, "enter");
        player_->Command(Player::Char, PlayerCommand::Play);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
        player_->Command(Player::Char, PlayerCommand::Play);
        QTest::qWait(10); // longer than the sound, so that the next is heard alone
        PrevPlay(Player::Enter);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        QVERIFY(server_->Played().back() == Click(100));
    }

    void OpeningAnewRewinds()
    {
        OpenAndWait(Player::Char, "char");
        player_->Command(Player::Char, PlayerCommand::Play);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
        player_->Open(Player::Char, File("enter"));
        player_->Command(Player::Char, PlayerCommand::Play);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        QVERIFY(server_->Played().back() == Click(100));
    }

    void PlayersStartedTogetherAreHeardTogether()
    {
        OpenAndWait(Player::Char, "char");
        OpenAndWait(Player::Enter, "enter");
        server_->Freeze();
        PrevPlay(Player::Char);
        QTRY_VERIFY(server_->HoldsTheThread());
        PrevPlay(Player::Enter);
        PrevPlay(Player::Char);
        server_->Thaw();
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        QCOMPARE(server_->Played().back().front(), std::int16_t{1100});
    }

    void MissingOrBrokenFileIsSilent()
    {
        OpenAndWait(Player::Char, "missing");
        OpenAndWait(Player::Back, "broken");
        OpenAndWait(Player::Enter, "enter");
        PrevPlay(Player::Char);
        PrevPlay(Player::Back);
        PrevPlay(Player::Space); // never opened
        PrevPlay(Player::Enter);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
        QVERIFY(server_->Played().back() == Click(100));
    }

    void FrozenServerHoldsUpNoCall()
    {
        server_->Freeze();
        player_->Open(Player::Char, File("char"));
        QTRY_VERIFY(server_->HoldsTheThread());
        for (int call = 0; call < 10000; ++call) {
            player_->Open(Player::Enter, File("enter"));
            PrevPlay(Player::Char);
            player_->Rest();
        }
        // All calls have come back although the server is still frozen.
        QVERIFY(server_->HoldsTheThread());
        QCOMPARE(server_->PlayedCount(), std::size_t{0});
    }

    void ServerFrozenInAPlayingHoldsUpNoCall()
    {
        OpenAndWait(Player::Char, "char");
        server_->Freeze();
        PrevPlay(Player::Char);
        QTRY_VERIFY(server_->HoldsTheThread());
        for (int call = 0; call < 10000; ++call) {
            PrevPlay(Player::Char);
        }
        QVERIFY(server_->HoldsTheThread());
    }

    void OnePlayingWaitsAtMost()
    {
        OpenAndWait(Player::Char, "char");
        server_->Freeze();
        PrevPlay(Player::Char);
        QTRY_VERIFY(server_->HoldsTheThread());
        for (int call = 0; call < 100; ++call) {
            PrevPlay(Player::Char);
        }
        server_->Thaw();
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        SettleThread();
        QCOMPARE(server_->PlayedCount(), std::size_t{2});
    }

    void PlayingThatComesTooLateIsGivenUp()
    {
        OpenAndWait(Player::Char, "char");
        OpenAndWait(Player::Caps, "enter");
        server_->Freeze();
        PrevPlay(Player::Char);
        QTRY_VERIFY(server_->HoldsTheThread());
        PrevPlay(Player::Char);
        player_->Command(Player::Caps, PlayerCommand::Play);
        player_->Command(Player::Caps, PlayerCommand::Prev);
        QTest::qWait(300); // beyond the quarter of a second
        server_->Thaw();
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
        SettleThread();
        QCOMPARE(server_->PlayedCount(), std::size_t{1});
        // And the players stand where they would stand had they been heard.
        player_->Command(Player::Char, PlayerCommand::Play);
        player_->Command(Player::Caps, PlayerCommand::Play);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        QVERIFY(server_->Played().back() == Click(100));
    }

    void EndDoesNotWaitForAFrozenServer()
    {
        server_->Freeze();
        player_->Open(Player::Char, File("char"));
        QTRY_VERIFY(server_->HoldsTheThread());
        QElapsedTimer timer;
        timer.start();
        player_.reset();
        QVERIFY(timer.elapsed() >= 290);
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(server_->HoldsTheThread());
        // The thread that was left behind ends by itself and gives all back.
        server_->Thaw();
        QTRY_COMPARE(server_.use_count(), 1L);
    }

    void EndOfAnIdleThreadTakesNoTime()
    {
        OpenAndWait(Player::Char, "char");
        QElapsedTimer timer;
        timer.start();
        player_.reset();
        QVERIFY2(timer.elapsed() < 250, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(server_.use_count(), 1L);
    }

    void ThreadSleepsWhileNothingPlays()
    {
        OpenAndWait(Player::Char, "char");
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
        SettleThread();
        const QByteArray before = SleepCount(server_->Thread());
        QVERIFY(!before.isEmpty());
        QTest::qWait(500);
        QCOMPARE(SleepCount(server_->Thread()), before);
    }

    void MissingServerIsSilentAndSeldomTried()
    {
        server_->SetReachable(false);
        player_->Open(Player::Char, File("char"));
        for (int call = 0; call < 20; ++call) {
            PrevPlay(Player::Char);
            SettleThread();
        }
        // Once more at once, then after a second at the earliest.
        QVERIFY2(server_->Opens() >= 2 && server_->Opens() <= 4,
                 qPrintable(QString::number(server_->Opens())));
        QCOMPARE(server_->PlayedCount(), std::size_t{0});
    }

    void ServerThatComesLaterIsFound()
    {
        server_->SetReachable(false);
        player_->Open(Player::Char, File("char"));
        QTRY_COMPARE(server_->Opens(), 1);
        server_->SetReachable(true);
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
    }

    void LostConnectionIsMadeAnew()
    {
        OpenAndWait(Player::Char, "char");
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
        server_->FailOnce();
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        QCOMPARE(server_->Opens(), 2);
        server_->FailOnce();
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{3});
        QCOMPARE(server_->Opens(), 3);
    }

    void RestLetsGoOfTheServerOnceTheSoundHasEnded()
    {
        OpenAndWait(Player::Char, "long");
        QElapsedTimer timer;
        timer.start();
        PrevPlay(Player::Char);
        player_->Rest();
        QTRY_COMPARE(server_->Closes(), 1);
        QVERIFY(timer.elapsed() >= 500);
        QCOMPARE(server_->PlayedCount(), std::size_t{1});
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        QCOMPARE(server_->Opens(), 2);
    }

    void PlayingEndsTheRest()
    {
        OpenAndWait(Player::Char, "long");
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{1});
        player_->Rest(); // begins when the sound has ended
        PrevPlay(Player::Char);
        QTRY_COMPARE(server_->PlayedCount(), std::size_t{2});
        QTest::qWait(900); // beyond that moment
        QCOMPARE(server_->Closes(), 0);
    }

    void RestOfAClosedPlayerIsNothing()
    {
        player_->Rest();
        player_->Rest();
        OpenAndWait(Player::Char, "char");
        QCOMPARE(server_->Closes(), 0);
    }

private:
    QString File(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

    void WriteFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(folder_.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    void PrevPlay(Player player)
    {
        player_->Command(player, PlayerCommand::Prev);
        player_->Command(player, PlayerCommand::Play);
    }

    // Until the thread has done what it was asked for.
    void OpenAndWait(Player player, const char* name)
    {
        player_->Open(player, File(name));
        QTRY_VERIFY(server_->Opens() > 0);
        SettleThread();
    }

    // Until the thread sleeps: the count of its sleeps stays the same for a while.
    void SettleThread()
    {
        QByteArray before;
        do {
            before = SleepCount(server_->Thread());
            QTest::qWait(5);
        } while (SleepCount(server_->Thread()) != before);
    }

    QTemporaryDir folder_;
    std::shared_ptr<Server> server_;
    std::unique_ptr<SoundPlayer> player_;
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::SoundPlayerTest)

#include "SoundPlayerTest.moc"
