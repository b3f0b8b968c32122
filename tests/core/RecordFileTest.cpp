#include "progress/RecordFile.h"

#include "progress/Preferences.h"
#include "progress/StudentFile.h"
#include "tests/core/ProgressSupport.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <numeric>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// The calls that a record file makes of the system, standing in front of the library's own: they
// count themselves, and fail where a test has told them to.
namespace
{

struct Faults {
    std::size_t mostBytes = SIZE_MAX; // of one transfer
    int interruptions = 0;            // so many calls are interrupted first
    std::int64_t writableBytes = INT64_MAX;
    bool writesNothing = false;
    int measureError = 0;
    int readError = 0;
    int syncError = 0;
    int closeError = 0;

    int reads = 0;
    int writes = 0;
    int syncs = 0;
};

Faults faults;

class WithFaults
{
public:
    explicit WithFaults(const Faults& told) { faults = told; }
    ~WithFaults() { faults = Faults{}; }
    WithFaults(const WithFaults&) = delete;
    WithFaults& operator=(const WithFaults&) = delete;
};

bool Fails(int error)
{
    errno = error;
    return error != 0;
}

bool IsInterrupted()
{
    return faults.interruptions > 0 && faults.interruptions-- > 0 && Fails(EINTR);
}

} // namespace

extern "C" ssize_t pread(int descriptor, void* bytes, size_t count, off_t offset)
{
    ++faults.reads;
    if (IsInterrupted() || Fails(faults.readError)) {
        return -1;
    }
    return syscall(SYS_pread64, descriptor, bytes, std::min(count, faults.mostBytes), offset);
}

extern "C" ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset)
{
    ++faults.writes;
    if (faults.writesNothing) {
        return 0;
    }
    if (IsInterrupted() || (faults.writableBytes <= offset && Fails(ENOSPC))) {
        return -1;
    }
    const auto room = static_cast<std::uint64_t>(faults.writableBytes - offset);
    const size_t allowed = std::min({count, faults.mostBytes, static_cast<size_t>(room)});
    return syscall(SYS_pwrite64, descriptor, bytes, allowed, offset);
}

extern "C" int fstat(int descriptor, struct stat* status)
{
    return Fails(faults.measureError) ? -1 : fstatat(descriptor, "", status, AT_EMPTY_PATH);
}

extern "C" int fsync(int descriptor)
{
    ++faults.syncs;
    if (IsInterrupted() || Fails(faults.syncError)) {
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" int close(int descriptor)
{
    const auto result = static_cast<int>(syscall(SYS_close, descriptor));
    return Fails(faults.closeError) ? -1 : result;
}

namespace keyfluent::progress
{
namespace
{

using namespace support;

constexpr std::int64_t preferencesLength = 532;

Bytes Counting(std::size_t count)
{
    Bytes bytes(count);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{1});
    return bytes;
}

Bytes ReadRecord(const std::filesystem::path& path, std::int64_t offset, std::size_t length)
{
    RecordFile file(path.string());
    Bytes record(length, 0xEE);
    file.Read(offset, record);
    file.Close();
    return record;
}

std::size_t OpenDescriptors()
{
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

TEST(RecordFile, AMissingFileIsMadeEmpty)
{
    const TemporaryFolder folder;
    RecordFile file((folder / "a").string());
    EXPECT_EQ(file.Length(), 0);
    file.Close();
    EXPECT_EQ(std::filesystem::file_size(folder / "a"), 0U);
}

TEST(RecordFile, ARecordIsWrittenInPlaceAndTheRestOfTheFileStays)
{
    const TemporaryFolder folder;
    WriteBytes(folder / "a", FromHex("11 22 33 44 55 66"));
    RecordFile file((folder / "a").string());
    EXPECT_EQ(file.Length(), 6);
    file.Write(2, FromHex("AA BB"));
    file.Close();
    EXPECT_EQ(ReadBytes(folder / "a"), FromHex("11 22 AA BB 55 66"));
}

TEST(RecordFile, ARecordBehindTheEndLeavesZerosBetween)
{
    const TemporaryFolder folder;
    RecordFile file((folder / "a").string());
    file.Write(3, FromHex("AA"));
    file.Close();
    EXPECT_EQ(ReadBytes(folder / "a"), FromHex("00 00 00 AA"));
}

TEST(RecordFile, BytesBeyondTheEndReadAsZero)
{
    const TemporaryFolder folder;
    WriteBytes(folder / "a", FromHex("11 22 33"));
    EXPECT_EQ(ReadRecord(folder / "a", 0, 3), FromHex("11 22 33"));
    EXPECT_EQ(ReadRecord(folder / "a", 1, 4), FromHex("22 33 00 00"));
    EXPECT_EQ(ReadRecord(folder / "a", 3, 2), FromHex("00 00"));
    EXPECT_EQ(ReadRecord(folder / "a", 1000, 2), FromHex("00 00"));
}

TEST(RecordFile, TransfersThatStopShortAreCarriedOn)
{
    const TemporaryFolder folder;
    const WithFaults told({.mostBytes = 3});
    RecordFile file((folder / "a").string());
    file.Write(0, Counting(20));
    file.Close();
    EXPECT_EQ(ReadBytes(folder / "a"), Counting(20));
    EXPECT_EQ(faults.writes, 7);
    EXPECT_EQ(ReadRecord(folder / "a", 0, 20), Counting(20));
}

TEST(RecordFile, InterruptedCallsAreRepeated)
{
    const TemporaryFolder folder;
    {
        const WithFaults told({.interruptions = 5});
        RecordFile file((folder / "a").string());
        file.Write(0, Counting(20));
        faults.interruptions = 2;
        file.Close();
        EXPECT_EQ(faults.syncs, 3);
        faults.interruptions = 5;
        EXPECT_EQ(ReadRecord(folder / "a", 0, 20), Counting(20));
        EXPECT_EQ(faults.interruptions, 0);
    }
    const WithFaults told({.closeError = EINTR});
    RecordFile(std::string(folder / "a")).Close();
}

TEST(RecordFile, EachRecordOfAStudentIsReadAndWrittenByOneCall)
{
    const TemporaryFolder folder;
    context::SessionContext context = ContextIn(folder, u"Ali");
    ASSERT_TRUE(IsNewStudent(context));
    const WithFaults told({});
    SaveStudent(context);
    EXPECT_EQ(faults.writes, 31);
    EXPECT_EQ(faults.reads, 0);
    EXPECT_EQ(faults.syncs, 1);
    LoadStudent(context);
    EXPECT_EQ(faults.reads, 31);
    EXPECT_EQ(faults.writes, 31);
    EXPECT_EQ(faults.syncs, 1);
}

TEST(RecordFile, ThePreferencesAreReadAndWrittenByOneCall)
{
    const TemporaryFolder folder;
    context::SessionContext context = ContextIn(folder);
    const WithFaults told({});
    SavePreferences(context, {});
    EXPECT_EQ(faults.writes, 1);
    LoadPreferences(context);
    EXPECT_EQ(faults.reads, 1);
    OpenPreferences(context);
    EXPECT_EQ(faults.reads, 2);
    EXPECT_EQ(faults.writes, 1);
}

TEST(RecordFile, AFileThatCannotBeOpenedIsNamedWithTheReason)
{
    const TemporaryFolder folder;
    const std::string path = (folder / "missing/a").string();
    EXPECT_EQ(FatalMessage([&] { RecordFile file(path); }),
              "The file \"" + path + "\" could not be opened: No such file or directory.");
}

TEST(RecordFile, APathWithAZeroByteIsNotCutShort)
{
    const TemporaryFolder folder;
    const std::string path = (folder / "a").string();
    EXPECT_EQ(FatalMessage([&] { RecordFile file(path + '\0' + "b"); }),
              "The file \"" + path + "?b\" could not be opened: Invalid argument.");
    EXPECT_TRUE(folder.Everything().empty());
}

TEST(RecordFile, AFailedReadIsReported)
{
    const TemporaryFolder folder;
    const WithFaults told({.readError = EIO});
    const std::string message = FatalMessage([&] { ReadRecord(folder / "a", 0, 20); });
    EXPECT_EQ(message, "The file \"" + (folder / "a").string() +
                           "\" could not be read: Input/output error.");
}

TEST(RecordFile, AFailedMeasurementIsReported)
{
    const TemporaryFolder folder;
    RecordFile file((folder / "a").string());
    const WithFaults told({.measureError = EIO});
    EXPECT_EQ(FatalMessage([&] { file.Length(); }), "The file \"" + (folder / "a").string() +
                                                        "\" could not be measured: "
                                                        "Input/output error.");
}

TEST(RecordFile, ADiskThatIsFullAfterAnyNumberOfBytesIsReported)
{
    for (std::int64_t room = 0; room < 620; ++room) {
        const TemporaryFolder folder;
        context::SessionContext context = ContextIn(folder, u"Ali");
        ASSERT_TRUE(IsNewStudent(context));
        const WithFaults told({.writableBytes = room});
        const std::string message = FatalMessage([&] { SaveStudent(context); });
        EXPECT_EQ(message, "The file \"" + (folder / "Students/Ali.W").string() +
                               "\" could not be written: No space left on device.");
        EXPECT_EQ(std::filesystem::file_size(folder / "Students/Ali.W"),
                  static_cast<std::uintmax_t>(room));
    }
}

TEST(RecordFile, ADiskThatIsFullWithinThePreferencesIsReported)
{
    for (const std::int64_t room : {std::int64_t{0}, std::int64_t{1}, preferencesLength - 1}) {
        const TemporaryFolder folder;
        context::SessionContext context = ContextIn(folder);
        const WithFaults told({.writableBytes = room});
        EXPECT_NE(FatalMessage([&] { OpenPreferences(context); }), "") << room;
        EXPECT_NE(FatalMessage([&] { SavePreferences(context, {}); }), "") << room;
    }
}

TEST(RecordFile, AWriteThatTakesNothingIsAFailureAndNoEndlessLoop)
{
    const TemporaryFolder folder;
    const WithFaults told({.writesNothing = true});
    RecordFile file((folder / "a").string());
    EXPECT_NE(FatalMessage([&] { file.Write(0, Counting(20)); }), "");
    EXPECT_EQ(faults.writes, 1);
}

TEST(RecordFile, ADiskThatTurnsOutFullAtTheEndIsReported)
{
    const TemporaryFolder folder;
    const std::string path = (folder / "a").string();
    {
        const WithFaults told({.syncError = ENOSPC});
        RecordFile file(path);
        file.Write(0, Counting(20));
        EXPECT_EQ(FatalMessage([&] { file.Close(); }),
                  "The file \"" + path + "\" could not be written: No space left on device.");
    }
    const WithFaults told({.closeError = EDQUOT});
    RecordFile file(path);
    EXPECT_EQ(FatalMessage([&] { file.Close(); }),
              "The file \"" + path + "\" could not be closed: Disk quota exceeded.");
}

TEST(RecordFile, AFileWithNothingToBringToADiskIsNoFailure)
{
    const TemporaryFolder folder;
    for (const int error : {EINVAL, EROFS}) {
        const WithFaults told({.syncError = error});
        RecordFile file((folder / "a").string());
        file.Write(0, Counting(20));
        EXPECT_EQ(FatalMessage([&] { file.Close(); }), "");
        EXPECT_EQ(faults.syncs, 1);
    }
}

TEST(RecordFile, AFileThatWasOnlyReadIsNotBroughtToTheDisk)
{
    const TemporaryFolder folder;
    const WithFaults told({});
    ReadRecord(folder / "a", 0, 20);
    EXPECT_EQ(faults.syncs, 0);
}

TEST(RecordFile, NothingStaysOpenAfterSuccessOrFailure)
{
    const TemporaryFolder folder;
    context::SessionContext context = ContextIn(folder, u"Ali");
    const std::size_t before = OpenDescriptors();
    ASSERT_TRUE(IsNewStudent(context));
    SaveStudent(context);
    LoadStudent(context);
    ASSERT_FALSE(IsNewStudent(context));
    EXPECT_EQ(OpenDescriptors(), before);
    {
        const WithFaults told({.writableBytes = 100, .syncError = EIO});
        EXPECT_NE(FatalMessage([&] { SaveStudent(context); }), "");
        EXPECT_NE(FatalMessage([&] { OpenPreferences(context); }), "");
    }
    {
        const WithFaults told({.readError = EIO});
        EXPECT_NE(FatalMessage([&] { LoadStudent(context); }), "");
    }
    EXPECT_EQ(OpenDescriptors(), before);
}

TEST(RecordFile, APathIsShownWithoutControlCharacters)
{
    EXPECT_EQ(Quoted("/a b/ب.W"), "\"/a b/ب.W\"");
    EXPECT_EQ(Quoted(std::string("a\nb\r\tc\0d\x7F", 9)), "\"a?b??c?d?\"");
}

TEST(RecordFile, NumbersAreLittleEndian)
{
    std::array<std::uint8_t, 8> record{};
    PutInt16(record, 1, 0x1234);
    PutInt32(record, 3, 0x01020304);
    EXPECT_EQ(Bytes(record.begin(), record.end()), FromHex("00 34 12 04 03 02 01 00"));
    EXPECT_EQ(GetInt16(record, 1), 0x1234);
    EXPECT_EQ(GetInt32(record, 3), 0x01020304);
}

TEST(RecordFile, NumbersKeepTheirSignAtTheirLimits)
{
    struct Row {
        std::int32_t number;
        const char* in16;
        const char* in32;
    };
    const Row rows[] = {
        {0, "00 00", "00 00 00 00"},     {1, "01 00", "01 00 00 00"},
        {-1, "FF FF", "FF FF FF FF"},    {-2, "FE FF", "FE FF FF FF"},
        {255, "FF 00", "FF 00 00 00"},   {256, "00 01", "00 01 00 00"},
        {32767, "FF 7F", "FF 7F 00 00"}, {-32768, "00 80", "00 80 FF FF"},
        {INT32_MAX, "", "FF FF FF 7F"},  {INT32_MIN, "", "00 00 00 80"},
        {0xC0, "C0 00", "C0 00 00 00"},  {0x80, "80 00", "80 00 00 00"},
    };
    for (const Row& row : rows) {
        Bytes record(4);
        PutInt32(record, 0, row.number);
        EXPECT_EQ(record, FromHex(row.in32)) << row.number;
        EXPECT_EQ(GetInt32(FromHex(row.in32), 0), row.number);
        if (row.in16[0] != '\0') {
            record.resize(2);
            PutInt16(record, 0, static_cast<std::int16_t>(row.number));
            EXPECT_EQ(record, FromHex(row.in16)) << row.number;
            EXPECT_EQ(GetInt16(FromHex(row.in16), 0), row.number);
        }
    }
}

} // namespace
} // namespace keyfluent::progress
