#include "tests/shell/child_process.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

namespace {
constexpr int patience = 60'000; // milliseconds, for a machine that is busy
} // namespace

ChildProcess::ChildProcess(const QString &role, const QStringList &variables) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : variables) {
        const QString value = variable.section(u'=', 1);
        if (value.isEmpty())
            environment.remove(variable.section(u'=', 0, 0));
        else
            environment.insert(variable.section(u'=', 0, 0), value);
    }
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--child"), role});
    if (!process_.waitForStarted(patience))
        qFatal("the child does not start");
}

ChildProcess::~ChildProcess() {
    if (IsRunning())
        Kill();
}

QString ChildProcess::Line() {
    while (!process_.canReadLine() && process_.state() != QProcess::NotRunning)
        if (!process_.waitForReadyRead(patience))
            break;
    return QString::fromUtf8(process_.readLine()).trimmed();
}

void ChildProcess::Say(const QString &line) {
    process_.write(line.toUtf8() + '\n');
    process_.waitForBytesWritten(patience);
}

int ChildProcess::WaitForEnd() {
    process_.closeWriteChannel();
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(patience))
        return -1;
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

void ChildProcess::Kill() {
    process_.kill();
    process_.waitForFinished(patience);
}

void TellParent(const QString &line) {
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

QString AskParent() {
    static QTextStream input(stdin); // it reads ahead, so there is one for all lines
    return input.readLine();
}
