// Every window but the main one, made as the program makes it, for the tests that go through all of
// them.
#pragma once

#include "tests/shell/forms/FormsHarness.h"

#include <vector>

namespace keyfluent::shell
{

struct FormMaker {
    const char* name;
    // Sets what the window asks of the world besides the student's place, and makes it.
    std::unique_ptr<Form> (*make)(World& world);
};

// In the order in which a student meets them.
const std::vector<FormMaker>& FormMakers();
std::unique_ptr<Form> MakeForm(World& world, const char* name);

// A student in the fourth lesson on the Windows keyboard with marks in all exercises, before
// exercise 2 of the English list; both courses of that keyboard are completed.
void PlaceStudent(World& world);

} // namespace keyfluent::shell
