// A binary file of records, as the student's file and the preferences are kept: no header, numbers
// little-endian, written in place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace keyfluent::progress
{

// Open from construction to Close or destruction. Every failure throws context::FatalError with a
// sentence that names the file and what failed.
class RecordFile
{
public:
    // Opens the file for reading and writing, and makes it, empty, where it is missing; its folder
    // must exist. path is UTF-8; one with a zero byte, which the system would cut short, fails.
    explicit RecordFile(std::string path);
    // Closes without a report. What was written is only known to be kept after Close.
    ~RecordFile();
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    // In bytes.
    std::int64_t Length() const;

    // Fills record from the bytes at offset, in one call where the system gives them at once. Bytes
    // beyond the end of the file read as zero.
    void Read(std::int64_t offset, std::span<std::uint8_t> record) const;
    void Write(std::int64_t offset, std::span<const std::uint8_t> record);

    // Waits until what was written is on the disk, then closes.
    void Close();

private:
    std::string path_;
    int descriptor_ = -1;
    bool written_ = false;
};

// A path as a sentence may show it: in double quotes, each control character as a question mark.
std::string Quoted(const std::string& path);

// Little-endian numbers at a place in a record; the record is long enough.
std::int16_t GetInt16(std::span<const std::uint8_t> record, std::size_t offset);
std::int32_t GetInt32(std::span<const std::uint8_t> record, std::size_t offset);
void PutInt16(std::span<std::uint8_t> record, std::size_t offset, std::int16_t value);
void PutInt32(std::span<std::uint8_t> record, std::size_t offset, std::int32_t value);

} // namespace keyfluent::progress
