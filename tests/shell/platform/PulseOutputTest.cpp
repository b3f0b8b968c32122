#include "shell/platform/PulseOutput.h"

#include "shell/platform/SoundPlayer.h"
#include "tests/shell/FailOnWarning.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstring>
#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace keyfluent::shell
{
namespace
{

// Takes connections and never answers, as a server does that is stopped.
class SilentServer
{
public:
    explicit SilentServer(const QString& path)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray name = QFile::encodeName(path);
        std::memcpy(address.sun_path, name.constData(),
                    std::min(std::size_t(name.size()), sizeof address.sun_path - 1));
        socket_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        listens_ =
            ::bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
            ::listen(socket_, 8) == 0;
    }

    ~SilentServer() { ::close(socket_); }

    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    bool Listens() const { return listens_; }

    // Waits for a client.
    bool Accept() const
    {
        const int client = ::accept(socket_, nullptr, nullptr);
        return client >= 0; // left open, so that the client goes on waiting
    }

private:
    int socket_ = -1;
    bool listens_ = false;
};

} // namespace

class PulseOutputTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    // Otherwise the tests below would show nothing.
    void LibraryIsHere()
    {
        void* library = ::dlopen("libpulse.so.0", RTLD_NOW | RTLD_LOCAL);
        QVERIFY2(library != nullptr, "libpulse.so.0 is not installed");
        ::dlclose(library);
    }

    void NothingOpensWithoutAServer()
    {
        SetServer(folder_.filePath(QStringLiteral("nobody")));
        const std::unique_ptr<SoundOutput> output = MakePulseOutput();
        QVERIFY(!output->Open());
        QVERIFY(!output->Open());
        output->Close();
    }

    void PlayerIsSilentWithoutAServer()
    {
        SetServer(folder_.filePath(QStringLiteral("nobody")));
        SoundPlayer player;
        player.Open(context::Player::Char, QStringLiteral("none"));
        player.Command(context::Player::Char, context::PlayerCommand::Prev);
        player.Command(context::Player::Char, context::PlayerCommand::Play);
    }

    void ServerThatNeverAnswersHoldsUpNeitherCallsNorTheEnd()
    {
        const QString path = folder_.filePath(QStringLiteral("silent"));
        const SilentServer server(path);
        QVERIFY(server.Listens());
        SetServer(path);
        QElapsedTimer timer;
        {
            SoundPlayer player;
            player.Open(context::Player::Char, QStringLiteral("none"));
            QVERIFY(server.Accept());
            for (int call = 0; call < 1000; ++call) {
                player.Command(context::Player::Char, context::PlayerCommand::Play);
            }
            timer.start();
        }
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    }

private:
    static void SetServer(const QString& path) { qputenv("PULSE_SERVER", "unix:" + path.toUtf8()); }

    QTemporaryDir folder_;
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::PulseOutputTest)

#include "PulseOutputTest.moc"
