#include "progress/Leaving.h"

#include "progress/StudentFile.h"

namespace keyfluent::progress
{
namespace
{

void SignOut(context::SessionContext& context)
{
    if (!context.quitting) {
        context.studentName.clear();
    }
}

} // namespace

bool BeginQuit(context::SessionContext& context)
{
    context.quitting = true;
    return !context.studentName.empty();
}

void BeginLogout(context::SessionContext& context)
{
    context.quitting = false;
}

void LeaveYes(context::SessionContext& context)
{
    context.leaveConfirmed = true;
    SaveStudent(context);
    SignOut(context);
}

void LeaveNo(context::SessionContext& context)
{
    context.leaveNoSave = true;
    context.leaveConfirmed = true;
    SignOut(context);
}

void LeaveCancel(context::SessionContext& context)
{
    context.leaveNoSave = false;
    context.leaveConfirmed = false;
}

bool ConfirmLogout(context::SessionContext& context)
{
    if (!context.leaveConfirmed) {
        return false;
    }
    context.loggedOut = true;
    return true;
}

} // namespace keyfluent::progress
