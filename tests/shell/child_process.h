#pragma once

// A second process of the test program itself, for what a process can do only once or
// only to another one: hold the lock, be killed, live in another language, end.

#include "tests/shell/temporary_home.h"

#include <QProcess>
#include <QStringList>

#include <optional>

class ChildProcess {
public:
    /// Starts the program again as the child `role`, with these variables besides its own.
    explicit ChildProcess(const QString &role, const QStringList &variables = {});

    /// Ends the process if it still runs.
    ~ChildProcess();

    /// The next line that the child writes. Empty when it ends without one.
    QString Line();

    /// Sends a line to the child.
    void Say(const QString &line);

    /// Waits for the end. Returns the exit code, or -1 for a crash.
    int WaitForEnd();

    /// Ends the process as a crash or the system would, without a chance to tidy up.
    void Kill();

    bool IsRunning() const { return process_.state() == QProcess::Running; }

private:
    QProcess process_;
};

/// Writes a line for the parent.
void TellParent(const QString &line);

/// Reads a line of the parent. Empty at the end.
QString AskParent();

/// Runs the Qt Test class `Tests` as a program, or `RunChild(role)` where it was started by
/// ChildProcess. The child stays in the home of its parent.
#define ORRAVANE_TEST_PROGRAM_WITH_CHILD(Tests, RunChild)                                          \
    int main(int argc, char *argv[]) {                                                             \
        const bool isChild = argc == 3 && QByteArray(argv[1]) == "--child";                        \
        const std::optional<TemporaryHome> home =                                                  \
            isChild ? std::nullopt : std::optional<TemporaryHome>(std::in_place);                  \
        QApplication application(argc, argv);                                                      \
        App::Identify();                                                                           \
        if (isChild)                                                                               \
            return RunChild(QString::fromUtf8(argv[2]));                                           \
        Tests tests;                                                                               \
        return QTest::qExec(&tests, argc, argv);                                                   \
    }
