#include "shell/platform/SingleInstance.h"

#include "tests/shell/FailOnWarning.h"

#include <QFile>
#include <QProcess>

#include <atomic>
#include <csignal>
#include <memory>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace keyfluent::shell
{
namespace
{

// A name that no other run of the tests uses.
std::string FreshName()
{
    static int count = 0;
    return "keyfluent-test-" + std::to_string(::getpid()) + "-" + std::to_string(++count);
}

// A process that takes the name, says so, and waits to be killed.
class Holder
{
public:
    explicit Holder(const std::string& name)
    {
        int ends[2] = {-1, -1};
        if (::pipe(ends) != 0) {
            return;
        }
        pid_ = ::fork();
        if (pid_ == 0) {
            SingleInstance instance(name);
            const char answer = instance.Acquire() ? 'y' : 'n';
            const bool told = ::write(ends[1], &answer, 1) == 1;
            while (told) {
                ::pause();
            }
            ::_exit(0);
        }
        ::close(ends[1]);
        char answer = '?';
        holds_ = ::read(ends[0], &answer, 1) == 1 && answer == 'y';
        ::close(ends[0]);
    }

    ~Holder() { Kill(); }

    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

    bool Holds() const { return holds_; }

    void Kill()
    {
        if (pid_ > 0) {
            ::kill(pid_, SIGKILL);
            ::waitpid(pid_, nullptr, 0);
            pid_ = -1;
        }
    }

private:
    pid_t pid_ = -1;
    bool holds_ = false;
};

} // namespace

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void FirstHoldsTheNameUntilItEnds()
    {
        const std::string name = FreshName();
        SingleInstance second(name);
        {
            SingleInstance first(name);
            QVERIFY(first.Acquire());
            QVERIFY(first.Acquire());
            QVERIFY(!second.Acquire());
            QVERIFY(!second.Acquire());
        }
        QVERIFY(second.Acquire());
    }

    void RefusedOneLeavesTheNameToItsHolder()
    {
        const std::string name = FreshName();
        SingleInstance first(name);
        QVERIFY(first.Acquire());
        {
            SingleInstance second(name);
            QVERIFY(!second.Acquire());
        }
        SingleInstance third(name);
        QVERIFY(!third.Acquire());
    }

    void NamesAreIndependent()
    {
        SingleInstance first(FreshName());
        SingleInstance second(FreshName());
        QVERIFY(first.Acquire());
        QVERIFY(second.Acquire());
    }

    void AnotherProcessIsSeen()
    {
        const std::string name = FreshName();
        const Holder holder(name);
        QVERIFY(holder.Holds());
        SingleInstance instance(name);
        QVERIFY(!instance.Acquire());
    }

    void KilledProcessHoldsNothing()
    {
        const std::string name = FreshName();
        for (int round = 0; round < 20; ++round) {
            Holder holder(name);
            QVERIFY(holder.Holds());
            holder.Kill();
            SingleInstance instance(name);
            QVERIFY(instance.Acquire());
        }
    }

    void OneOfManyAtOnceWins()
    {
        const std::string name = FreshName();
        for (int round = 0; round < 50; ++round) {
            std::vector<std::unique_ptr<SingleInstance>> instances;
            std::vector<std::thread> threads;
            std::atomic<int> winners = 0;
            for (int each = 0; each < 8; ++each) {
                instances.push_back(std::make_unique<SingleInstance>(name));
                threads.emplace_back([&winners, instance = instances.back().get()] {
                    winners += instance->Acquire() ? 1 : 0;
                });
            }
            for (std::thread& thread : threads) {
                thread.join();
            }
            QCOMPARE(winners.load(), 1);
        }
    }

    void ProgramStartedFromThisOneDoesNotInheritTheName()
    {
        const std::string name = FreshName();
        QProcess child;
        {
            SingleInstance first(name);
            QVERIFY(first.Acquire());
            child.start(QStringLiteral("sleep"), {QStringLiteral("600")});
            QVERIFY(child.waitForStarted());
        }
        SingleInstance second(name);
        QVERIFY(second.Acquire());
        child.kill();
        QVERIFY(child.waitForFinished());
    }

    // Held by this test, or by a program that the developer has open.
    void UsersNameIsInTheSocketTableAndNoFile()
    {
        SingleInstance instance;
        instance.Acquire();
        QFile table(QStringLiteral("/proc/net/unix"));
        QVERIFY(table.open(QIODevice::ReadOnly));
        const QByteArray name = "@keyfluent-" + QByteArray::number(uint(::getuid()));
        QVERIFY(table.readAll().contains(' ' + name + '\n'));
        QVERIFY(!QFile::exists(QString::fromUtf8(name)));
    }

    void OverlongNameServesAsWell()
    {
        const std::string name = FreshName() + std::string(1000, 'x');
        SingleInstance first(name);
        SingleInstance second(name);
        QVERIFY(first.Acquire());
        QVERIFY(!second.Acquire());
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::SingleInstanceTest)

#include "SingleInstanceTest.moc"
