// What the tests of the console share: a console in an empty folder, told a line or a script at a
// time.
#pragma once

#include "ProgressSupport.h"
#include "headless/Console.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace keyfluent::headless::fixtures
{

class ConsoleFixture : public ::testing::Test
{
protected:
    // What the lines answer, one after the other. A mistake fails the test.
    std::string Run(std::string_view script)
    {
        std::string answers;
        while (!script.empty()) {
            const std::size_t end = std::min(script.find('\n'), script.size());
            const std::string_view line = script.substr(0, end);
            script.remove_prefix(std::min(end + 1, script.size()));
            try {
                answers += console.Execute(line);
            } catch (const UsageError& error) {
                ADD_FAILURE() << line << ": " << error.what();
            }
        }
        return answers;
    }

    // The sentence that a line which is a mistake is answered with; "" where it is none.
    std::string Mistake(std::string_view line)
    {
        try {
            console.Execute(line);
        } catch (const UsageError& error) {
            return error.what();
        }
        return {};
    }

    void ExpectMistakes(std::initializer_list<std::string_view> lines)
    {
        for (const std::string_view line : lines) {
            EXPECT_NE(Mistake(line), "") << line;
        }
    }

    // The events since the last time, and the line that ends them.
    std::string Events() { return Run("events"); }

    progress::support::TemporaryFolder folder;
    Console console{folder.Path().string()};
};

} // namespace keyfluent::headless::fixtures
