// Prints docs/course-letters.md.
#include "LetterCounts.h"

#include <iostream>

int main()
{
    std::cout << keyfluent::course::fixtures::LetterDocument();
    return std::cout.flush() ? 0 : 1;
}
