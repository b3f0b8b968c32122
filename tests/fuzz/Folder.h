// A program's folder for a fuzz target: in memory where the system has such a place, one for the
// whole process, gone with it.
#pragma once

#include "tests/fuzz/Target.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::fuzz
{

using Bytes = std::vector<std::uint8_t>;

class Folder
{
public:
    Folder()
    {
        const std::filesystem::path memory("/dev/shm");
        const bool hasMemory = std::filesystem::is_directory(memory);
        std::string name =
            (hasMemory ? memory : std::filesystem::temp_directory_path()) / "keyfluent-fuzz-XXXXXX";
        Require(mkdtemp(name.data()) != nullptr, "there is a folder to work in");
        path_ = std::filesystem::path(name) / "program";
        Empty();
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_.parent_path(), ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    void Empty() const
    {
        std::filesystem::remove_all(path_);
        std::filesystem::create_directory(path_);
    }

    const std::filesystem::path& Path() const { return path_; }

    void Write(std::string_view name, std::span<const std::uint8_t> bytes) const
    {
        const std::filesystem::path path = path_ / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }

    Bytes Read(std::string_view name) const
    {
        std::ifstream file(path_ / name, std::ios::binary);
        Require(file.good(), "the file is there");
        const std::string text{std::istreambuf_iterator<char>(file),
                               std::istreambuf_iterator<char>()};
        return {text.begin(), text.end()};
    }

    // Nothing may be written but the preferences and the students' files, and beside the program's
    // folder nothing at all.
    void RequireOnlyOwnFiles() const
    {
        for (const auto& entry : std::filesystem::directory_iterator(path_.parent_path())) {
            Require(entry.path() == path_, "nothing is written beside the program's folder");
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
            const std::string name = entry.path().lexically_relative(path_).string();
            const bool own = name == "Students" || name == "KeyFluent Preference.prf" ||
                             (entry.path().parent_path() == path_ / "Students" &&
                              entry.is_regular_file() && name.ends_with(".W"));
            Require(own, "nothing is written but the program's own files");
        }
    }

private:
    std::filesystem::path path_;
};

} // namespace keyfluent::fuzz
