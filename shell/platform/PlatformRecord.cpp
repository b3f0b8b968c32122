#include "shell/platform/PlatformRecord.h"

#include "context/Random.h"
#include "shell/platform/CapsLock.h"
#include "shell/platform/SoundPlayer.h"
#include "shell/platform/TextConversion.h"

#include <QApplication>
#include <QCalendar>
#include <QDate>
#include <QTime>

#include <memory>

namespace keyfluent::shell
{

context::Platform MakePlatform(CapsLockWatch& capsLock, SoundPlayer& sounds, const QString& folder)
{
    context::Platform platform;
    platform.secondsSinceMidnight = [] {
        constexpr double millisecondsPerSecond = 1000;
        return QTime::currentTime().msecsSinceStartOfDay() / millisecondsPerSecond;
    };
    platform.today = [] {
        const QDate date = QDate::currentDate();
        const QCalendar gregorian(QCalendar::System::Gregorian);
        return context::CalendarDate{date.year(gregorian), date.month(gregorian),
                                     date.day(gregorian)};
    };
    const auto generator = std::make_shared<context::RandomGenerator>();
    platform.seedRandom = [generator](double seconds) { generator->Seed(seconds); };
    platform.random = [generator] { return generator->Next(); };
    platform.capsLockState = [&capsLock] { return capsLock.State(); };
    platform.openPlayer = [&sounds, folder](context::Player player, const std::u16string& file) {
        sounds.Open(player, folder + ToQString(file));
    };
    platform.commandPlayer = [&sounds](context::Player player, context::PlayerCommand command) {
        sounds.Command(player, command);
    };
    platform.beep = [] { QApplication::beep(); };
    return platform;
}

} // namespace keyfluent::shell
