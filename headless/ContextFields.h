// The fields of the application's state by name, as the console sets and prints them.
#pragma once

#include "context/SessionContext.h"
#include "headless/Arguments.h"

#include <string>

namespace keyfluent::headless
{

// Takes the field's name and its new value from the first two arguments. Throws UsageError for an
// unknown name and for a value that the field's type does not hold.
void SetField(context::SessionContext& context, const Arguments& arguments);

// The value of the field that the first argument names.
std::string PrintField(const context::SessionContext& context, const Arguments& arguments);

} // namespace keyfluent::headless
