// Which exercises let wrong keys through and check them later.
#pragma once

namespace keyfluent::course
{

// True where a wrong key is typed through and counted: in lesson 15 until the whole passage stands,
// elsewhere until the row is full. False where it is refused at once, and outside the course.
// arabic is the language of the exercise.
bool ChecksLate(int lesson, int exercise, bool arabic);

} // namespace keyfluent::course
