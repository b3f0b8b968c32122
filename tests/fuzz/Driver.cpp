// The loop that looks for inputs: it runs all inputs of the corpus, then changes those that have
// led to new edges of the code, for as long as it is told to.
//
// usage: fuzz-TARGET [--seconds N] [--seed N] [--keep FOLDER] [--grow FOLDER] CORPUS...
//
// A CORPUS is a file or a folder, looked through with its folders; of files in pairs, those that
// end in .expected are left out. --seconds 0 runs the corpus and nothing more. An input that ends
// the process, or takes longer than thirty seconds, is saved in the folder of --keep (here, when
// none is told). --grow saves each input that led to new edges.
#include "tests/fuzz/Coverage.h"
#include "tests/fuzz/Target.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

#pragma weak LLVMFuzzerCustomMutator

namespace keyfluent::fuzz
{
namespace
{

using Input = std::vector<std::uint8_t>;
using Clock = std::chrono::steady_clock;

constexpr std::size_t maxSize = 8192;
constexpr unsigned secondsOfOneInput = 30;

struct Options {
    int seconds = 60;
    std::uint32_t seed = 1;
    std::string keep = ".";
    std::string grow;
    std::vector<std::string> corpus;
};

// The input that is running and where it goes when it ends the process. Plain memory: it is read
// while the process dies.
struct Running {
    const std::uint8_t* data = nullptr;
    std::size_t size = 0;
    char path[4096] = {};
};
Running running;

// Called once, by the sanitizers or by a signal.
void SaveRunning()
{
    if (running.data == nullptr) {
        return;
    }
    const int file = open(running.path, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (file != -1) {
        const auto written = write(file, running.data, running.size);
        const bool whole = written == static_cast<ssize_t>(running.size);
        std::fprintf(stderr, "%s %s\n", whole ? "saved as" : "could not be saved as", running.path);
        close(file);
    }
    running.data = nullptr;
}

extern "C" void EndBySignal(int number)
{
    if (number == SIGALRM) {
        std::fprintf(stderr, "an input took longer than %u seconds\n", secondsOfOneInput);
    }
    SaveRunning();
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

std::string NameOf(const Input& input)
{
    std::uint64_t hash = 14695981039346656037U; // FNV-1a
    for (const std::uint8_t byte : input) {
        hash = (hash ^ byte) * 1099511628211U;
    }
    std::array<char, 17> name{};
    std::snprintf(name.data(), name.size(), "%016llx", static_cast<unsigned long long>(hash));
    return name.data();
}

bool IsBeside(const std::filesystem::path& path)
{
    constexpr std::string_view suffixes[] = {".expected", ".py", ".pyc"};
    return std::ranges::find(suffixes, path.extension().string()) != std::end(suffixes);
}

void SaveAs(const std::filesystem::path& path, const Input& input)
{
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(input.data()),
               static_cast<std::streamsize>(input.size()));
}

// 0 for none, else the power of two that a count falls on: passing an edge a few times more is
// nothing new, passing it twice as often is.
std::uint8_t Step(std::uint8_t count)
{
    std::uint8_t step = 0;
    for (; count > 0; count = static_cast<std::uint8_t>(count >> 1)) {
        ++step;
    }
    return step;
}

class Search
{
public:
    explicit Search(const Options& options) : options_(options), random_(options.seed) {}

    void Load(const std::string& place)
    {
        const std::filesystem::path path(place);
        if (!std::filesystem::is_directory(path)) {
            return LoadFile(path);
        }
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
            if (entry.is_regular_file() && !IsBeside(entry.path())) {
                files.push_back(entry.path());
            }
        }
        std::ranges::sort(files);
        std::ranges::for_each(files, [this](const auto& file) { LoadFile(file); });
    }

    void RunFor(std::chrono::seconds time)
    {
        const auto end = Clock::now() + time;
        if (corpus_.empty()) {
            corpus_.push_back({});
        }
        while (Clock::now() < end) {
            Input input = Pick();
            Change(input);
            if (Run(input)) {
                if (!options_.grow.empty()) {
                    SaveAs(std::filesystem::path(options_.grow) / NameOf(input), input);
                }
                corpus_.push_back(std::move(input));
            }
        }
    }

    void Report() const
    {
        const auto edges = std::ranges::count_if(seen_, [](std::uint8_t step) { return step > 0; });
        std::printf("%ld inputs run, %zu kept, %td edges\n", count_, corpus_.size(), edges);
    }

private:
    void LoadFile(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        Input input((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        Run(input);
        if (input.size() <= maxSize) {
            corpus_.push_back(std::move(input));
        }
    }

    std::size_t Draw(std::size_t end) { return end == 0 ? 0 : random_() % end; }

    // The newest inputs have had the fewest turns.
    const Input& Pick()
    {
        const std::size_t newest = std::min<std::size_t>(corpus_.size(), 16);
        return Draw(2) == 0 ? corpus_[corpus_.size() - 1 - Draw(newest)]
                            : corpus_[Draw(corpus_.size())];
    }

    void Change(Input& input)
    {
        for (std::size_t times = 1 + Draw(4); times > 0; --times) {
            if (LLVMFuzzerCustomMutator != nullptr && Draw(4) != 0) {
                const std::size_t size = input.size();
                input.resize(maxSize);
                input.resize(LLVMFuzzerCustomMutator(input.data(), size, maxSize,
                                                     static_cast<unsigned>(random_())));
            } else if (Draw(8) == 0) {
                Splice(input);
            } else {
                ChangeBytes(input);
            }
        }
    }

    // A part of another input, at any place.
    void Splice(Input& input)
    {
        const Input& other = corpus_[Draw(corpus_.size())];
        const std::size_t from = Draw(other.size() + 1);
        const std::size_t length = Draw(other.size() - from + 1);
        const auto at = input.begin() + static_cast<std::ptrdiff_t>(Draw(input.size() + 1));
        const auto first = other.begin() + static_cast<std::ptrdiff_t>(from);
        const Input part(first, first + static_cast<std::ptrdiff_t>(length));
        input.insert(at, part.begin(), part.end());
        input.resize(std::min(input.size(), maxSize));
    }

    void ChangeBytes(Input& input)
    {
        static constexpr std::uint8_t extremes[] = {0, 1, 0x0A, 0x0D, 0x20, 0x7F, 0x80, 0xFF};
        const std::size_t at = Draw(input.size());
        const auto place = input.begin() + static_cast<std::ptrdiff_t>(at);
        const auto kind = input.empty() ? 4 : Draw(6);
        switch (kind) {
        case 0:
            input[at] = static_cast<std::uint8_t>(input[at] ^ (1U << Draw(8)));
            break;
        case 1:
            input[at] = extremes[Draw(std::size(extremes))];
            break;
        case 2:
            input[at] = static_cast<std::uint8_t>(random_());
            break;
        case 3:
            input.erase(place, place + static_cast<std::ptrdiff_t>(
                                           1 + Draw(std::min<std::size_t>(input.size() - at, 32))));
            break;
        case 4:
            if (input.size() < maxSize) {
                input.insert(place, static_cast<std::uint8_t>(random_()));
            }
            break;
        default:
            input.resize(1 + Draw(input.size()));
        }
    }

    // True when the input passed an edge that none before it had passed, or passed one much more
    // often.
    bool Run(const Input& input)
    {
        ++count_;
        const std::string name = "crash-" + NameOf(input);
        std::snprintf(running.path, sizeof(running.path), "%s/%s", options_.keep.c_str(),
                      name.c_str());
        running.size = input.size();
        running.data = input.data();
        coverage.fill(0);
        alarm(secondsOfOneInput);
        LLVMFuzzerTestOneInput(input.data(), input.size());
        alarm(0);
        running.data = nullptr;
        bool fresh = false;
        for (std::size_t i = 0; i < coverage.size(); ++i) {
            const std::uint8_t step = Step(coverage[i]);
            if (step > seen_[i]) {
                seen_[i] = step;
                fresh = true;
            }
        }
        return fresh;
    }

    const Options& options_;
    std::mt19937 random_;
    std::vector<Input> corpus_;
    std::array<std::uint8_t, coverageSize> seen_{};
    long count_ = 0;
};

[[noreturn]] void Usage()
{
    std::fprintf(stderr, "usage: fuzz-TARGET [--seconds N] [--seed N] [--keep FOLDER] "
                         "[--grow FOLDER] CORPUS...\n");
    std::exit(2);
}

template <typename Number> Number NumberOf(std::string_view word)
{
    Number number = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
    if (result.ec != std::errc() || result.ptr != word.data() + word.size()) {
        Usage();
    }
    return number;
}

Options Parse(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (!word.starts_with("--")) {
            options.corpus.emplace_back(word);
            continue;
        }
        if (++i == argc) {
            Usage();
        }
        if (word == "--seconds") {
            options.seconds = NumberOf<int>(argv[i]);
        } else if (word == "--seed") {
            options.seed = NumberOf<std::uint32_t>(argv[i]);
        } else if (word == "--keep") {
            options.keep = argv[i];
        } else if (word == "--grow") {
            options.grow = argv[i];
        } else {
            Usage();
        }
    }
    return options;
}

} // namespace

void RunDriver(int argc, char** argv)
{
    const Options options = Parse(argc, argv);
    std::signal(SIGABRT, EndBySignal);
    std::signal(SIGALRM, EndBySignal);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(SaveRunning);
#endif
    Search search(options);
    for (const std::string& place : options.corpus) {
        search.Load(place);
    }
    search.RunFor(std::chrono::seconds(options.seconds));
    search.Report();
}

} // namespace keyfluent::fuzz

int main(int argc, char** argv)
{
    keyfluent::fuzz::RunDriver(argc, argv);
    return 0;
}
