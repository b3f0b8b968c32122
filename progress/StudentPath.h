// Where a student's file stands, below the program's folder: "Students/", the name as typed, ".W".
#pragma once

#include "context/SessionContext.h"

#include <string>

namespace keyfluent::progress
{

// Of studentName, in UTF-8. A name that cannot be a file name, because it holds "/" or a zero
// character, throws context::FatalError: it must never reach another folder.
std::string UsableStudentPath(const context::SessionContext& context);

// Whether studentName has no file. Makes the students' folder, once, if that is missing. False for
// every other answer of the file system: a name that cannot be a file name or is too long, a folder
// that cannot be made or is none, a file that may not be read.
bool StudentFileIsMissing(const context::SessionContext& context);

} // namespace keyfluent::progress
