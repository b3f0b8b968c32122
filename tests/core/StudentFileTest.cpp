#include "progress/StudentFile.h"

#include "tests/core/ProgressSupport.h"

#include <array>
#include <random>

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;
using context::StudentRecord;
using context::StudentTable;

// A student's file written out by hand: one record a line, as its bytes and as its numbers.
struct GoldenRecord {
    const char* bytes;
    StudentRecord numbers;
};

// clang-format off
const std::array<GoldenRecord, 31> golden = {{
    {"03000000000000000000 05000000000000000000", {3, 0, 0, 0, 0, 5, 0, 0, 0, 0}},
    {"64003200640064002C01 6400320063006400C800", {100, 50, 100, 100, 300, 100, 50, 99, 100, 200}},
    {"01000200030004000500 06000700080009000A00", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
    {"FF000001010110012001 00100020004000610062", {255, 256, 257, 272, 288, 4096, 8192, 16384, 24832, 25088}},
    {"FFFFFEFF00FF01FF0080 FF7FFE7F01800000FFFF", {-1, -2, -256, -255, -32768, 32767, 32766, -32767, 0, -1}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"0A000000000000000000 00000000000000000000", {10, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000B00000000000000 00000000000000000000", {0, 11, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"000000000C0000000000 00000000000000000000", {0, 0, 12, 0, 0, 0, 0, 0, 0, 0}},
    {"0000000000000D000000 00000000000000000000", {0, 0, 0, 13, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000E00 00000000000000000000", {0, 0, 0, 0, 14, 0, 0, 0, 0, 0}},
    {"00000000000000000000 0F000000000000000000", {0, 0, 0, 0, 0, 15, 0, 0, 0, 0}},
    {"00000000000000000000 00001000000000000000", {0, 0, 0, 0, 0, 0, 16, 0, 0, 0}},
    {"64003200640064002C01 640032006400640090F9", {100, 50, 100, 100, 300, 100, 50, 100, 100, -1648}},
    {"00000000000000000000 00000000120000000000", {0, 0, 0, 0, 0, 0, 0, 18, 0, 0}},
    {"00000000000000000000 00000000000013000000", {0, 0, 0, 0, 0, 0, 0, 0, 19, 0}},
    {"00000000000000000000 00000000000000001400", {0, 0, 0, 0, 0, 0, 0, 0, 0, 20}},
    {"15000000000000000000 00000000000000000000", {21, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"00000000000000000000 00000000000000000000", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"1D000000000000000000 00000000000000000000", {29, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"6E00780082008C009600 5E01F4011F000100EA07", {110, 120, 130, 140, 150, 350, 500, 31, 1, 2026}},
}};
// clang-format on

Bytes GoldenBytes()
{
    std::string text;
    for (const GoldenRecord& record : golden) {
        text += record.bytes;
    }
    return FromHex(text);
}

StudentTable GoldenTable()
{
    StudentTable table;
    for (std::size_t i = 0; i < golden.size(); ++i) {
        table.records[i] = golden[i].numbers;
    }
    return table;
}

// A folder with the file of one student, "Ali", and a context that stands for its program.
struct WithFile {
    TemporaryFolder folder;
    std::filesystem::path path;
    SessionContext context;

    explicit WithFile(const Bytes& bytes) : path(folder / "Students/Ali.W")
    {
        std::filesystem::create_directory(folder / "Students");
        WriteBytes(path, bytes);
        context = ContextIn(folder, u"Ali");
    }
};

void LoadBytes(const Bytes& bytes)
{
    WithFile student(bytes);
    LoadStudent(student.context);
}

void SetNumber(Bytes& bytes, int record, int field, int number)
{
    const auto at = static_cast<std::size_t>(20 * (record - 1) + 2 * field);
    bytes.at(at) = static_cast<std::uint8_t>(number & 0xFF);
    bytes.at(at + 1) = static_cast<std::uint8_t>((number >> 8) & 0xFF);
}

// A student at the end of both keyboards with all four courses done and the given totals, each
// total as the first mark of its course.
Bytes FinishedStudent(int arabicMac, int englishMac, int arabicWin, int englishWin)
{
    Bytes bytes(620);
    for (const int field : {0, 5}) {
        SetNumber(bytes, 1, field, 15);
    }
    for (const int field : {1, 2, 3, 7, 8}) {
        SetNumber(bytes, 1, field, 100);
    }
    SetNumber(bytes, 16, 0, arabicMac);
    SetNumber(bytes, 16, 5, englishMac);
    SetNumber(bytes, 31, 0, arabicWin);
    SetNumber(bytes, 31, 5, englishWin);
    return bytes;
}

std::array<int, 4> Grades(const SessionContext& context)
{
    return {context.gradeArabicMac, context.gradeEnglishMac, context.gradeArabicWin,
            context.gradeEnglishWin};
}

std::array<bool, 4> CoursesDone(const SessionContext& context)
{
    return {context.courseDoneArabicMac, context.courseDoneEnglishMac, context.courseDoneArabicWin,
            context.courseDoneEnglishWin};
}

constexpr std::array<bool, 4> noCourse = {false, false, false, false};
constexpr std::array<bool, 4> allCourses = {true, true, true, true};

TEST(StudentFile, TheGoldenFileIsWrittenOutInFull)
{
    EXPECT_EQ(GoldenBytes().size(), 620U);
}

TEST(StudentFile, TheRecordsOfLessonsBeginBehindTheHeaderAndBehindTheMacintoshLessons)
{
    SessionContext context;
    context.keyboardKind = 0;
    EXPECT_EQ(RecordBase(context), 1);
    for (const std::int32_t kind : {192, 1, -1, 7, 256}) {
        context.keyboardKind = kind;
        EXPECT_EQ(RecordBase(context), 16) << kind;
    }
}

TEST(StudentFile, LoadingTakesEveryFieldOfEveryRecord)
{
    WithFile student(GoldenBytes());
    LoadStudent(student.context);
    for (int number = 1; number <= 31; ++number) {
        EXPECT_EQ(student.context.studentTable.Record(number),
                  golden[static_cast<std::size_t>(number - 1)].numbers)
            << "record " << number;
    }
    EXPECT_EQ(ReadBytes(student.path), GoldenBytes());
}

TEST(StudentFile, LoadingSetsReachedAndLastLessonsAndNotThePresentOne)
{
    WithFile student(GoldenBytes());
    student.context.lessonNo = 9;
    LoadStudent(student.context);
    EXPECT_EQ(student.context.reachedLessonMac, 3);
    EXPECT_EQ(student.context.lastLessonMac, 3);
    EXPECT_EQ(student.context.reachedLessonWin, 5);
    EXPECT_EQ(student.context.lastLessonWin, 5);
    EXPECT_EQ(student.context.lessonNo, 9);
}

TEST(StudentFile, SavingWritesEveryFieldOfEveryRecord)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "Students");
    SessionContext context = ContextIn(folder, u"Ali");
    context.studentTable = GoldenTable();
    context.reachedLessonMac = 3;
    context.reachedLessonWin = 5;
    SaveStudent(context);
    EXPECT_EQ(ReadBytes(folder / "Students/Ali.W"), GoldenBytes());
    EXPECT_EQ(folder.Everything(), (std::vector<std::string>{"Students", "Students/Ali.W"}));
}

TEST(StudentFile, SavingPutsTheReachedLessonsIntoTheHeader)
{
    WithFile student(GoldenBytes());
    LoadStudent(student.context);
    student.context.reachedLessonMac = 4;
    student.context.reachedLessonWin = 200;
    SaveStudent(student.context);
    Bytes expected = GoldenBytes();
    SetNumber(expected, 1, 0, 4);
    SetNumber(expected, 1, 5, 200);
    EXPECT_EQ(ReadBytes(student.path), expected);
    EXPECT_EQ(student.context.studentTable.Record(1)[0], 4);
    EXPECT_EQ(student.context.studentTable.Record(1)[5], 200);
}

// The numbers of a file whose reached lessons are below 256: every length is told apart by its
// last byte.
Bytes Patterned(std::size_t length)
{
    Bytes bytes(length);
    for (std::size_t i = 0; i < length; ++i) {
        bytes[i] = static_cast<std::uint8_t>(i == 1 || i == 11 ? 0 : (7 * i + 1) % 251);
    }
    return bytes;
}

TEST(StudentFile, AFileOfAnyLengthIsTakenAsItStandsAndKeepsItsFurtherBytes)
{
    for (std::size_t length = 0; length <= 700; ++length) {
        WithFile student(Patterned(length));
        LoadStudent(student.context);
        Bytes expected = Patterned(length);
        expected.resize(std::max<std::size_t>(length, 620));
        for (std::size_t i = 0; i < 310; ++i) {
            const int number = expected[2 * i] + 256 * expected[2 * i + 1];
            ASSERT_EQ(student.context.studentTable.records[i / 10][i % 10],
                      static_cast<std::int16_t>(number))
                << "length " << length << ", number " << i;
        }
        ASSERT_EQ(student.context.reachedLessonMac, expected[0]) << length;
        ASSERT_EQ(student.context.reachedLessonWin, expected[10]) << length;
        SaveStudent(student.context);
        ASSERT_EQ(ReadBytes(student.path), expected) << length;
    }
}

TEST(StudentFile, AMissingFileIsMadeEmptyByLoading)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "Students");
    SessionContext context = ContextIn(folder, u"Ali");
    context.reachedLessonMac = 7;
    context.studentTable = GoldenTable();
    LoadStudent(context);
    EXPECT_EQ(std::filesystem::file_size(folder / "Students/Ali.W"), 0U);
    EXPECT_EQ(context.studentTable, StudentTable{});
    EXPECT_EQ(context.reachedLessonMac, 0);
    EXPECT_EQ(context.reachedLessonWin, 0);
}

TEST(StudentFile, AStudentWithAFileIsKnownAndNothingChanges)
{
    WithFile student(GoldenBytes());
    student.context.lessonNo = 4;
    student.context.reachedLessonMac = 6;
    student.context.studentTable.Record(31)[9] = 2026;
    EXPECT_FALSE(IsNewStudent(student.context));
    EXPECT_EQ(student.context.lessonNo, 4);
    EXPECT_EQ(student.context.reachedLessonMac, 6);
    EXPECT_EQ(student.context.studentTable.Record(31)[9], 2026);
    EXPECT_EQ(ReadBytes(student.path), GoldenBytes());
}

TEST(StudentFile, ANewStudentBeginsAtLesson1OnBothKeyboardsWithoutMarksAndWithoutAFile)
{
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"Ali");
    context.lessonNo = 9;
    context.studentTable = GoldenTable();
    EXPECT_TRUE(IsNewStudent(context));
    EXPECT_EQ(context.lessonNo, 1);
    EXPECT_EQ(context.reachedLessonMac, 1);
    EXPECT_EQ(context.reachedLessonWin, 1);
    EXPECT_EQ(context.lastLessonMac, 1);
    EXPECT_EQ(context.lastLessonWin, 1);
    StudentTable expected;
    expected.Record(1) = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0};
    EXPECT_EQ(context.studentTable, expected);
    EXPECT_EQ(folder.Everything(), (std::vector<std::string>{"Students"}));
}

TEST(StudentFile, ANewStudentKeepsTheCoursesAndGradesOfTheStudentBefore)
{
    WithFile student(FinishedStudent(250, 501, 801, 1050));
    LoadStudent(student.context);
    student.context.studentName = u"Zaid";
    EXPECT_TRUE(IsNewStudent(student.context));
    EXPECT_EQ(CoursesDone(student.context), allCourses);
    EXPECT_EQ(Grades(student.context), (std::array{2, 3, 1, 4}));
}

TEST(StudentFile, TheFirstSaveOfANewStudentMakesTheFile)
{
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"Ali");
    ASSERT_TRUE(IsNewStudent(context));
    SaveStudent(context);
    Bytes expected(620);
    expected[0] = 1;
    expected[10] = 1;
    EXPECT_EQ(ReadBytes(folder / "Students/Ali.W"), expected);
    EXPECT_FALSE(IsNewStudent(context));
}

TEST(StudentFile, AReachedLessonOutside0To255EndsTheProgramAndInsideIsTaken)
{
    for (const int field : {0, 5}) {
        for (const int number : {0, 1, 15, 16, 254, 255}) {
            Bytes bytes(620);
            SetNumber(bytes, 1, field, number);
            WithFile student(bytes);
            LoadStudent(student.context);
            EXPECT_EQ(field == 0 ? student.context.reachedLessonMac
                                 : student.context.reachedLessonWin,
                      number);
        }
        for (const int number : {-1, -32768, 256, 32767}) {
            Bytes bytes(620);
            SetNumber(bytes, 1, field, number);
            WithFile student(bytes);
            student.context.studentTable = GoldenTable();
            const std::string message = FatalMessage([&] { LoadStudent(student.context); });
            EXPECT_NE(message.find(student.path.string()), std::string::npos) << message;
            EXPECT_NE(message.find(std::to_string(number)), std::string::npos) << message;
            EXPECT_EQ(student.context.studentTable, GoldenTable());
        }
    }
}

TEST(StudentFile, AFinishedStudentHasTheCoursesAndTheirGradesFromTheTotals)
{
    WithFile student(FinishedStudent(250, 501, 801, 1050));
    LoadStudent(student.context);
    EXPECT_EQ(CoursesDone(student.context), allCourses);
    EXPECT_EQ(Grades(student.context), (std::array{2, 3, 1, 4}));
}

TEST(StudentFile, TheTotalsAreOfAllArabicAndOfTwoEnglishExercises)
{
    Bytes bytes = FinishedStudent(0, 0, 0, 0);
    for (const int record : {16, 31}) {
        for (int field = 0; field < 5; ++field) {
            SetNumber(bytes, record, field, 100 + field);
        }
        SetNumber(bytes, record, 5, 300);
        SetNumber(bytes, record, 6, 500);
        for (int field = 7; field < 10; ++field) {
            SetNumber(bytes, record, field, 1000);
        }
    }
    WithFile student(bytes);
    LoadStudent(student.context);
    EXPECT_EQ(Grades(student.context), (std::array{4, 3, 4, 3})); // of 510 and of 800
}

TEST(StudentFile, ATotalOutsideEveryRangeLeavesTheGradeOfTheStudentBefore)
{
    WithFile student(FinishedStudent(249, 349, 1001, 1401));
    student.context.gradeArabicMac = 3;
    student.context.gradeEnglishMac = 2;
    student.context.gradeArabicWin = 4;
    student.context.gradeEnglishWin = 1;
    LoadStudent(student.context);
    EXPECT_EQ(CoursesDone(student.context), allCourses);
    EXPECT_EQ(Grades(student.context), (std::array{3, 2, 4, 1}));
}

TEST(StudentFile, EachCourseNeedsItsFlagItsReachedLessonAndTheDiploma)
{
    struct Row {
        int field;
        int number;
        std::array<bool, 4> done;
    };
    const Row rows[] = {
        {0, 14, {false, false, true, true}},
        {0, 16, {false, false, true, true}},
        {5, 14, {true, true, false, false}},
        {5, 255, {true, true, false, false}},
        {1, 0, noCourse},
        {1, 1, noCourse},
        {1, -1, noCourse},
        {1, 99, noCourse},
        {2, 0, {false, true, true, true}},
        {2, 101, {false, true, true, true}},
        {3, 1, {true, false, true, true}},
        {7, -100, {true, true, false, true}},
        {8, 99, {true, true, true, false}},
        {4, 100, allCourses},
        {6, 100, allCourses},
        {9, 100, allCourses},
    };
    for (const Row& row : rows) {
        Bytes bytes = FinishedStudent(400, 400, 400, 400);
        SetNumber(bytes, 1, row.field, row.number);
        WithFile student(bytes);
        student.context.courseDoneArabicMac = true;
        student.context.courseDoneEnglishMac = true;
        student.context.courseDoneArabicWin = true;
        student.context.courseDoneEnglishWin = true;
        LoadStudent(student.context);
        EXPECT_EQ(CoursesDone(student.context), row.done) << row.field << ": " << row.number;
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(Grades(student.context)[i], row.done[i] ? 2 : 0) << row.field;
        }
    }
}

TEST(StudentFile, ATotalThatOverflowsEndsTheProgramOnlyWhereItIsAskedFor)
{
    Bytes bytes = FinishedStudent(32767, 0, 0, 0);
    SetNumber(bytes, 16, 1, 1);
    SetNumber(bytes, 16, 2, -1000); // the whole sum would fit, the sum on the way does not
    EXPECT_NE(FatalMessage([&] { LoadBytes(bytes); }), "");
    SetNumber(bytes, 1, 2, 0);
    EXPECT_EQ(FatalMessage([&] { LoadBytes(bytes); }), "");
    bytes = FinishedStudent(0, 0, 0, -32768);
    SetNumber(bytes, 31, 6, -1);
    EXPECT_NE(FatalMessage([&] { LoadBytes(bytes); }), "");
    SetNumber(bytes, 1, 5, 14);
    EXPECT_EQ(FatalMessage([&] { LoadBytes(bytes); }), "");
}

TEST(StudentFile, AFileOfOneByteThroughoutIsTakenOrReported)
{
    for (int byte = 0; byte < 256; ++byte) {
        WithFile student(Bytes(620, static_cast<std::uint8_t>(byte)));
        const std::string message = FatalMessage([&] { LoadStudent(student.context); });
        // Any byte but zero makes the reached lesson 257 times itself.
        EXPECT_EQ(message.empty(), byte == 0) << byte;
        Bytes bytes(620, static_cast<std::uint8_t>(byte));
        SetNumber(bytes, 1, 0, byte);
        SetNumber(bytes, 1, 5, 255 - byte);
        WithFile other(bytes);
        LoadStudent(other.context);
        EXPECT_EQ(other.context.reachedLessonMac, byte);
        EXPECT_EQ(other.context.reachedLessonWin, 255 - byte);
        EXPECT_EQ(other.context.studentTable.Record(31)[9], static_cast<std::int16_t>(257 * byte));
    }
}

TEST(StudentFile, AFileOfAnyContentIsTakenOrReported)
{
    std::mt19937 generator(20260131);
    int taken = 0;
    for (int round = 0; round < 1000; ++round) {
        Bytes bytes(generator() % 701);
        std::ranges::generate(bytes, [&] { return static_cast<std::uint8_t>(generator()); });
        for (const std::size_t high : {std::size_t{1}, std::size_t{11}}) {
            if (bytes.size() > high && generator() % 8 != 0) {
                bytes[high] = 0;
            }
        }
        WithFile student(bytes);
        const std::string message = FatalMessage([&] { LoadStudent(student.context); });
        bytes.resize(std::max<std::size_t>(bytes.size(), 620));
        ASSERT_EQ(message.empty(), bytes[1] == 0 && bytes[11] == 0) << message;
        taken += message.empty() ? 1 : 0;
    }
    EXPECT_GT(taken, 500);
}

} // namespace
} // namespace keyfluent::progress
