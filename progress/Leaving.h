// The way out: a log-out or the end of the program, and the three answers to the question whether
// to save. What follows an answer is the caller's: the farewell while quitting is true, else the
// main window.
#pragma once

#include "context/SessionContext.h"

namespace keyfluent::progress
{

// Before the question. BeginQuit answers whether there is anyone to ask: false when nobody is
// signed in, and then the program ends at once.
bool BeginQuit(context::SessionContext& context);
void BeginLogout(context::SessionContext& context);

// Yes saves the student's file and throws context::FatalError where that fails. Yes and No empty
// studentName unless quitting, as the farewell still speaks to the student.
// Meant: Yes does not clear leaveNoSave, only Cancel does.
void LeaveYes(context::SessionContext& context);
void LeaveNo(context::SessionContext& context);
void LeaveCancel(context::SessionContext& context);

// After the question of a log-out: true, with loggedOut set, if the student has left; false, with
// nothing changed, after Cancel.
bool ConfirmLogout(context::SessionContext& context);

} // namespace keyfluent::progress
