// What the tests of the student's progress share: a folder of their own, bytes of files, a platform
// with a clock that stands still and a queue of drawn numbers.
#pragma once

#include "context/FatalError.h"
#include "context/Platform.h"
#include "context/SessionContext.h"
#include "context/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::progress::support
{

using Bytes = std::vector<std::uint8_t>;

class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string name = std::filesystem::temp_directory_path() / "keyfluent-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path_ = name;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    // Everything below the folder, sorted, by path from it.
    std::vector<std::string> Everything() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
            names.push_back(entry.path().lexically_relative(path_).string());
        }
        std::ranges::sort(names);
        return names;
    }

private:
    std::filesystem::path path_;
};

inline void WriteBytes(const std::filesystem::path& path, const Bytes& bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.close();
    ASSERT_TRUE(file.good()) << path;
}

inline Bytes ReadBytes(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return {text.begin(), text.end()};
}

// Pairs of hexadecimal digits; blanks are passed over.
inline Bytes FromHex(std::string_view text)
{
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits), [](char c) { return c != ' '; });
    Bytes bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

// The message of the FatalError that the call throws; "" if it throws none.
template <typename Call> std::string FatalMessage(Call call)
{
    try {
        call();
    } catch (const context::FatalError& error) {
        return error.what();
    }
    return {};
}

// So that a failing comparison prints text and not numbers.
inline std::string Shown(std::u16string_view text)
{
    return context::ToUtf8(text);
}

struct FakePlatform {
    double seconds = 36000;
    context::CalendarDate date{2026, 1, 31};
    std::deque<double> draws; // an empty queue is a draw too many
    std::vector<double> seeds;

    context::Platform Services()
    {
        context::Platform platform;
        platform.secondsSinceMidnight = [this] { return seconds; };
        platform.today = [this] { return date; };
        platform.seedRandom = [this](double seed) { seeds.push_back(seed); };
        platform.random = [this] {
            if (draws.empty()) {
                throw std::logic_error("a draw too many");
            }
            const double drawn = draws.front();
            draws.pop_front();
            return drawn;
        };
        return platform;
    }
};

inline context::SessionContext ContextIn(const TemporaryFolder& folder, std::u16string name = u"")
{
    context::SessionContext context;
    context.appFolder = context::FromUtf8(folder.Path().string());
    context.studentName = std::move(name);
    return context;
}

} // namespace keyfluent::progress::support
