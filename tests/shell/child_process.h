#pragma once

// A second process of the test program itself, for what a process can do only once or
// only to another one: hold the lock, be killed, live in another language, end.

#include <QProcess>
#include <QStringList>

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
