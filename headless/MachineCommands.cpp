#include "headless/Commands.h"

#include "context/Arithmetic.h"
#include "headless/ContextFields.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace keyfluent::headless
{
namespace
{

constexpr int firstRecord = 1;

int RecordNumber(const Arguments& arguments)
{
    return static_cast<int>(arguments.Integer(0, firstRecord, context::StudentTable::recordCount));
}

int DateNumber(std::string_view digits)
{
    int number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return result.ec == std::errc() && result.ptr == digits.data() + digits.size() ? number : -1;
}

int DaysOf(int month, int year)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[month - 1];
}

} // namespace

std::string Commands::Now(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    constexpr double secondsOfDay = 86400;
    const double milliseconds = context::RoundHalfEven(arguments.Real(0, 0, secondsOfDay) * 1000);
    console.machine_.Clock().SetOfDay(static_cast<std::int64_t>(milliseconds));
    return {};
}

std::string Commands::Wait(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    console.machine_.Wait(arguments.Integer(0, 0, std::numeric_limits<std::int32_t>::max()));
    return {};
}

std::string Commands::Date(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    const std::string_view word = arguments.Word(0);
    const bool shaped = word.size() == 10 && word[2] == '-' && word[5] == '-';
    const int month = shaped ? DateNumber(word.substr(0, 2)) : 0;
    const int day = shaped ? DateNumber(word.substr(3, 2)) : 0;
    const int year = shaped ? DateNumber(word.substr(6)) : 0;
    if (month < 1 || month > 12 || year < 1 || day < 1 || day > DaysOf(month, year)) {
        throw UsageError("a date is wanted as MM-DD-YYYY, not " + std::string(word));
    }
    console.machine_.date = {year, month, day};
    return {};
}

std::string Commands::Random(Console& console, const Arguments& arguments)
{
    if (arguments.Count() == 0) {
        throw UsageError("random wants at least one number");
    }
    for (int i = 0; i < arguments.Count(); ++i) {
        console.machine_.queuedRandom.push_back(arguments.Real(i, 0, 1));
    }
    return {};
}

std::string Commands::CapsLock(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    console.machine_.capsLock = arguments.Choice(0, "on", "off");
    return {};
}

std::string Commands::Events(Console& console, const Arguments& arguments)
{
    arguments.Expect(0);
    std::string block;
    for (const std::string& event : console.machine_.TakeEvents()) {
        block += event + "\n";
    }
    return block + "end\n";
}

std::string Commands::Set(Console& console, const Arguments& arguments)
{
    SetField(console.context_, arguments);
    return {};
}

std::string Commands::Get(Console& console, const Arguments& arguments)
{
    return PrintField(console.context_, arguments) + "\n";
}

std::string Commands::Record(Console& console, const Arguments& arguments)
{
    arguments.Expect(1);
    std::string line;
    for (const std::int16_t value : console.context_.studentTable.Record(RecordNumber(arguments))) {
        line += (line.empty() ? "" : " ") + std::to_string(value);
    }
    return line + "\n";
}

std::string Commands::SetRecord(Console& console, const Arguments& arguments)
{
    using Limits = std::numeric_limits<std::int16_t>;
    context::StudentRecord record{};
    arguments.Expect(1 + static_cast<int>(record.size()));
    const int number = RecordNumber(arguments);
    for (std::size_t i = 0; i < record.size(); ++i) {
        record[i] = static_cast<std::int16_t>(
            arguments.Integer(static_cast<int>(i) + 1, Limits::min(), Limits::max()));
    }
    console.context_.studentTable.Record(number) = record;
    return {};
}

} // namespace keyfluent::headless
