#include "progress/RecordFile.h"

#include "context/FatalError.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace keyfluent::progress
{
namespace
{

[[noreturn]] void Fail(const std::string& path, const std::string& what, int error)
{
    throw context::FatalError("The file " + Quoted(path) + " could not be " + what + ": " +
                              std::generic_category().message(error) + ".");
}

template <typename Call> auto Uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

// Some kinds of files have nothing to bring to a disk.
bool CannotSync(int error)
{
    return error == EINVAL || error == EROFS;
}

} // namespace

RecordFile::RecordFile(std::string path) : path_(std::move(path))
{
    if (path_.find('\0') != std::string::npos) {
        Fail(path_, "opened", EINVAL);
    }
    descriptor_ = Uninterrupted(
        [this] { return open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY, 0666); });
    if (descriptor_ == -1) {
        Fail(path_, "opened", errno);
    }
}

RecordFile::~RecordFile()
{
    if (descriptor_ != -1) {
        close(descriptor_);
    }
}

std::int64_t RecordFile::Length() const
{
    struct stat status = {};
    if (fstat(descriptor_, &status) == -1) {
        Fail(path_, "measured", errno);
    }
    return status.st_size;
}

void RecordFile::Read(std::int64_t offset, std::span<std::uint8_t> record) const
{
    while (!record.empty()) {
        const auto count =
            Uninterrupted([&] { return pread(descriptor_, record.data(), record.size(), offset); });
        if (count == -1) {
            Fail(path_, "read", errno);
        }
        if (count == 0) {
            std::ranges::fill(record, std::uint8_t{0});
            return;
        }
        record = record.subspan(static_cast<std::size_t>(count));
        offset += count;
    }
}

void RecordFile::Write(std::int64_t offset, std::span<const std::uint8_t> record)
{
    written_ = true;
    while (!record.empty()) {
        const auto count = Uninterrupted(
            [&] { return pwrite(descriptor_, record.data(), record.size(), offset); });
        if (count <= 0) {
            Fail(path_, "written", count == 0 ? EIO : errno);
        }
        record = record.subspan(static_cast<std::size_t>(count));
        offset += count;
    }
}

void RecordFile::Close()
{
    // A disk may find out that it is full only here.
    if (written_ && Uninterrupted([this] { return fsync(descriptor_); }) == -1 &&
        !CannotSync(errno)) {
        Fail(path_, "written", errno);
    }
    // The descriptor is gone after close whatever it answers, so an interruption is no failure.
    if (close(std::exchange(descriptor_, -1)) == -1 && errno != EINTR) {
        Fail(path_, "closed", errno);
    }
}

std::string Quoted(const std::string& path)
{
    std::string shown = path;
    std::ranges::replace_if(
        shown,
        [](char byte) {
            const auto code = static_cast<unsigned char>(byte);
            return code < 0x20 || code == 0x7F;
        },
        '?');
    return '"' + shown + '"';
}

std::int16_t GetInt16(std::span<const std::uint8_t> record, std::size_t offset)
{
    return static_cast<std::int16_t>(record[offset] | (record[offset + 1] << 8));
}

std::int32_t GetInt32(std::span<const std::uint8_t> record, std::size_t offset)
{
    std::uint32_t bits = 0;
    for (std::size_t i = 4; i > 0; --i) {
        bits = (bits << 8) | record[offset + i - 1];
    }
    return static_cast<std::int32_t>(bits);
}

void PutInt16(std::span<std::uint8_t> record, std::size_t offset, std::int16_t value)
{
    const auto bits = static_cast<std::uint16_t>(value);
    record[offset] = static_cast<std::uint8_t>(bits & 0xFF);
    record[offset + 1] = static_cast<std::uint8_t>(bits >> 8);
}

void PutInt32(std::span<std::uint8_t> record, std::size_t offset, std::int32_t value)
{
    auto bits = static_cast<std::uint32_t>(value);
    for (std::size_t i = 0; i < 4; ++i) {
        record[offset + i] = static_cast<std::uint8_t>(bits & 0xFF);
        bits >>= 8;
    }
}

} // namespace keyfluent::progress
