// keyfluent: the desktop program.
#include "shell/Application.h"

int main(int argc, char** argv)
{
    return keyfluent::shell::RunProgram(argc, argv);
}
