// keyfluent-headless: commands from standard input, answers on standard output.
#include "context/FatalError.h"
#include "headless/Arguments.h"
#include "headless/Console.h"

#include <filesystem>
#include <iostream>
#include <string>

#include <sys/stat.h>

namespace
{

constexpr int usageStatus = 2;
constexpr int fatalStatus = 3;

// A program at the other end of a pipe waits for each answer.
bool InputIsFile()
{
    struct stat status {
    };
    return fstat(0, &status) == 0 && S_ISREG(status.st_mode);
}

int Run()
{
    std::ios::sync_with_stdio(false);
    const bool flushEach = !InputIsFile();
    keyfluent::headless::Console console(std::filesystem::current_path().string());
    std::string line;
    for (long number = 1; std::getline(std::cin, line); ++number) {
        try {
            const std::string answer = console.Execute(line);
            std::cout << answer;
            if (flushEach && !answer.empty()) {
                std::cout.flush();
            }
        } catch (const keyfluent::headless::UsageError& error) {
            std::cout.flush();
            std::cerr << "error: " << number << ": " << error.what() << std::endl;
            return usageStatus;
        } catch (const keyfluent::context::FatalError& error) {
            std::cout.flush();
            std::cerr << "fatal: " << error.what() << std::endl;
            return fatalStatus;
        }
    }
    return 0;
}

} // namespace

int main()
{
    try {
        return Run();
    } catch (const std::exception& error) {
        std::cerr << "fatal: " << error.what() << std::endl;
        return fatalStatus;
    }
}
