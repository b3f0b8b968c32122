// The frame of the window tests: one class with test slots per file, started by
// KEYFLUENT_TEST_MAIN, on the toolkit's offscreen platform unless the caller asks for another. Any
// warning that the toolkit prints while a test function runs fails that function.
//
// A test class has a private slot `void init() { FailOnWarning(); }`; the frame refuses to start a
// class without one.
#pragma once

#include <QApplication>
#include <QRegularExpression>
#include <QTest>

#include <cstdio>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace keyfluent::shell
{

// To be called at the start of each test function, and of initTestCase where there is one. Two
// kinds of message tell of the test's surroundings and not of the program: what the offscreen
// platform has no means for, and the missing folder for run-time files.
inline void FailOnWarning()
{
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin (does not support|supports)|QStandardPaths: )")));
}

// While it lives, what is allocated may be lost without a report of the sanitizer. For what the
// toolkit itself loses, and as short as can be.
#if defined(__SANITIZE_ADDRESS__)
using LeaksAreForgiven = __lsan::ScopedDisabler;
#else
struct LeaksAreForgiven {
    LeaksAreForgiven() {}
    ~LeaksAreForgiven() {}
};
#endif

inline int RunTests(QObject& test, int argc, char** argv)
{
    if (test.metaObject()->indexOfMethod("init()") < 0) {
        std::fprintf(stderr, "%s has no slot init()\n", test.metaObject()->className());
        return 1;
    }
    return QTest::qExec(&test, argc, argv);
}

} // namespace keyfluent::shell

#define KEYFLUENT_TEST_MAIN(TestClass)                                                             \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {                                       \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                               \
        }                                                                                          \
        QApplication application(argc, argv);                                                      \
        TestClass test;                                                                            \
        return keyfluent::shell::RunTests(test, argc, argv);                                       \
    }
