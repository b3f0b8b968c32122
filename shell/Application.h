// The process: from the command line to the end, on a real desktop.
#pragma once

#include "context/FatalError.h"

#include <QApplication>

#include <functional>

class QKeyEvent;

namespace keyfluent::shell
{

// Every failure that ends the program arrives at onFailure, from whatever event it comes. That must
// be set before the first event.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    std::function<void(const context::FatalError&)> onFailure;
    // Each key event of any window of the process, once, before anything is done about it.
    std::function<void(const QKeyEvent&)> onKey;

    bool notify(QObject* receiver, QEvent* event) override;
};

// What an application object needs before the first window: pictures, faces, looks, and the way in
// for assistive technology. Also for the tests and the pictures of windows. Once, right after it
// has been made.
void PrepareApplication();

// Runs the program to its end and returns the exit status: 0, or 1 after a failure that was
// reported.
int RunProgram(int argc, char** argv);

} // namespace keyfluent::shell
