// One file per student, below the program's folder: "Students/", the name, ".W". It holds the 31
// records of the student's table, 20 bytes each, in order. Between LoadStudent and SaveStudent the
// table in memory is the truth. A student is known by nothing but the name, taken as typed.
#pragma once

#include "context/SessionContext.h"

namespace keyfluent::progress
{

// What is added to a lesson's number to give its record: 1 on the Macintosh keyboard, 16 on any
// other.
int RecordBase(const context::SessionContext& context);

// True when there is no file for studentName: then a new student stands in memory, at lesson 1 on
// both keyboards and without marks, and nothing is written. Makes the students' folder if that is
// missing. False for a known student, and for every other answer of the file system: a name that
// cannot be a file name, a folder that is none. LoadStudent reports these.
// Meant: the courses done and the grades of the student before stay in the context.
bool IsNewStudent(context::SessionContext& context);

// Reads the file, which is made, empty, if it is missing (its folder is not); bytes beyond its end
// count as zero, further bytes are not looked at, and the marks are taken as they stand. Sets the
// reached and last lessons, and the courses done with their grades from the totals of lesson 15.
// Meant: a grade whose total fits no range keeps the value of the student before.
// Throws context::FatalError when the file cannot be opened, read or closed, when a reached lesson
// is outside 0 to 255, when a total overflows 16 bits, and for a name that holds "/" or a zero
// character.
void LoadStudent(context::SessionContext& context);

// Writes the reached lessons into the table and the table into the file, in place: a failure half
// way leaves old and new records mixed. Makes the file if it is missing, not its folder. On return
// the file is on the disk. Throws context::FatalError as LoadStudent does.
void SaveStudent(context::SessionContext& context);

} // namespace keyfluent::progress
