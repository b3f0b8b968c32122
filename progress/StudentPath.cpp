#include "progress/StudentPath.h"

#include "context/FatalError.h"
#include "context/Text.h"
#include "progress/RecordFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;

std::string StudentsFolder(const SessionContext& context)
{
    return context::ToUtf8(context.appFolder) + "/Students";
}

std::string StudentPath(const SessionContext& context)
{
    return StudentsFolder(context) + "/" + context::ToUtf8(context.studentName) + ".W";
}

// A slash in the name would lead into another folder, a zero character would cut the path short.
bool IsUsable(const SessionContext& context)
{
    return context.studentName.find(u'/') == std::u16string::npos &&
           StudentPath(context).find('\0') == std::string::npos;
}

// 0 when the file can be opened for reading, else the error number.
int TryToOpen(const std::string& path)
{
    int descriptor = -1;
    do {
        // Without waiting: a pipe in the file's place must not hold the program up.
        descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    } while (descriptor == -1 && errno == EINTR);
    if (descriptor == -1) {
        return errno;
    }
    close(descriptor);
    return 0;
}

bool IsMissing(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == -1 && errno == ENOENT;
}

} // namespace

std::string UsableStudentPath(const SessionContext& context)
{
    const std::string path = StudentPath(context);
    if (!IsUsable(context)) {
        throw context::FatalError("The file " + Quoted(path) +
                                  " could not be opened: a name in a file name holds no slash and "
                                  "no zero character.");
    }
    return path;
}

bool StudentFileIsMissing(const SessionContext& context)
{
    if (!IsUsable(context)) {
        return false;
    }
    const std::string path = StudentPath(context);
    int error = TryToOpen(path);
    // The system says the same of a missing file and of a missing folder.
    const std::string folder = StudentsFolder(context);
    if (error == ENOENT && IsMissing(folder)) {
        if (mkdir(folder.c_str(), 0777) == -1) {
            return false;
        }
        error = TryToOpen(path);
    }
    return error == ENOENT;
}

} // namespace keyfluent::progress
