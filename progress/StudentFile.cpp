#include "progress/StudentFile.h"

#include "context/FatalError.h"
#include "progress/Courses.h"
#include "progress/Keyboards.h"
#include "progress/RecordFile.h"
#include "progress/Records.h"
#include "progress/StudentPath.h"

#include <array>
#include <limits>
#include <string>

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;
using context::StudentRecord;
using context::StudentTable;

constexpr std::size_t recordLength = 20;
using RecordBytes = std::array<std::uint8_t, recordLength>;

StudentRecord Decode(const RecordBytes& bytes)
{
    StudentRecord record{};
    for (std::size_t field = 0; field < record.size(); ++field) {
        record[field] = GetInt16(bytes, 2 * field);
    }
    return record;
}

RecordBytes Encode(const StudentRecord& record)
{
    RecordBytes bytes{};
    for (std::size_t field = 0; field < record.size(); ++field) {
        PutInt16(bytes, 2 * field, record[field]);
    }
    return bytes;
}

StudentTable ReadTable(const std::string& path)
{
    StudentTable table;
    RecordFile file(path);
    std::int64_t offset = 0;
    for (StudentRecord& record : table.records) {
        RecordBytes bytes{};
        file.Read(offset, bytes);
        record = Decode(bytes);
        offset += static_cast<std::int64_t>(recordLength);
    }
    file.Close();
    return table;
}

std::uint8_t ReachedLessonFrom(const std::string& path, std::int16_t value)
{
    if (value < 0 || value > std::numeric_limits<std::uint8_t>::max()) {
        throw context::FatalError("The file " + Quoted(path) + " could not be used: it gives " +
                                  std::to_string(value) + " as the number of a reached lesson.");
    }
    return static_cast<std::uint8_t>(value);
}

void TakeCoursesDone(SessionContext& context)
{
    const StudentRecord& header = context.studentTable.Record(headerRecord);
    for (const Course& course : courses) {
        context.*course.done = false;
        const bool reachedEnd = ReachedLesson(context, course.onWindows) == course::lessonCount;
        if (reachedEnd && header[HeaderField::diplomaEarned] == context::recordYes &&
            header[course.headerField] == context::recordYes) {
            context.*course.done = true;
            TakeGrade(context, course);
        }
    }
}

} // namespace

int RecordBase(const SessionContext& context)
{
    return CountsAsWindows(context) ? 16 : 1;
}

bool IsNewStudent(SessionContext& context)
{
    if (!StudentFileIsMissing(context)) {
        return false;
    }
    context.lessonNo = 1;
    context.reachedLessonMac = 1;
    context.reachedLessonWin = 1;
    context.lastLessonMac = 1;
    context.lastLessonWin = 1;
    context.studentTable = {};
    StudentRecord& header = context.studentTable.Record(headerRecord);
    header[HeaderField::reachedLessonMac] = context.reachedLessonMac;
    header[HeaderField::reachedLessonWin] = context.reachedLessonWin;
    return true;
}

void LoadStudent(SessionContext& context)
{
    const std::string path = UsableStudentPath(context);
    const StudentTable table = ReadTable(path);
    const StudentRecord& header = table.Record(headerRecord);
    const auto reachedMac = ReachedLessonFrom(path, header[HeaderField::reachedLessonMac]);
    const auto reachedWin = ReachedLessonFrom(path, header[HeaderField::reachedLessonWin]);

    context.studentTable = table;
    context.reachedLessonMac = reachedMac;
    context.reachedLessonWin = reachedWin;
    context.lastLessonWin = reachedWin;
    context.lastLessonMac = reachedMac;
    TakeCoursesDone(context);
}

void SaveStudent(SessionContext& context)
{
    RecordFile file(UsableStudentPath(context));
    StudentRecord& header = context.studentTable.Record(headerRecord);
    header[HeaderField::reachedLessonMac] = context.reachedLessonMac;
    header[HeaderField::reachedLessonWin] = context.reachedLessonWin;
    std::int64_t offset = 0;
    for (const StudentRecord& record : context.studentTable.records) {
        file.Write(offset, Encode(record));
        offset += static_cast<std::int64_t>(recordLength);
    }
    file.Close();
}

} // namespace keyfluent::progress
