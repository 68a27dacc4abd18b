#include "report/pdf_engine.h"

#include <QFile>
#include <QStandardPaths>

#include <utility>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// What the process runs. It reads documents from its standard input, the length in bytes and
/// the size of the pages on a line before each, and answers each with its length likewise, and
/// "pdf" or "trouble" before it. It ends where its input does, or when it is asked to, and takes
/// its temporary files with it.
constexpr auto script = R"(
import signal, sys, tempfile
sys.path[:] = filter(None, sys.path)  # no module of the current folder
source, target = sys.stdin.buffer, sys.stdout.buffer
sys.stdout = sys.stderr  # only answers go there
signal.signal(signal.SIGINT, signal.SIG_IGN)  # it is for the program that asks
signal.signal(signal.SIGTERM, lambda *_: sys.exit())

from weasyprint import CSS, HTML

def load_nothing(url, *_, **__):
    raise ValueError("nothing is loaded: " + url)

with tempfile.TemporaryDirectory(prefix="orravane-") as tempfile.tempdir:
    while line := source.readline():
        length, paper = line.decode().split()
        html = source.read(int(length)).decode()
        try:
            pages = CSS(string="@page { size: %s }" % paper)
            document = HTML(string=html, url_fetcher=load_nothing)
            kind, answer = b"pdf", document.write_pdf(stylesheets=[pages])
        except Exception as error:
            kind, answer = b"trouble", f"{type(error).__name__}: {error}".encode()
        target.write(b"%s %d\n" % (kind, len(answer)))
        target.write(answer)
        target.flush()
)"_L1;

/// The command that runs a program for the Python in which WeasyPrint is installed: the one
/// that the first line of its own program names. Empty when there is none.
QStringList Interpreter() {
    QFile program(QStandardPaths::findExecutable(u"weasyprint"_s));
    if (program.fileName().isEmpty() || !program.open(QIODevice::ReadOnly))
        return {};
    const QString firstLine = QString::fromLocal8Bit(program.readLine(4096)).trimmed();
    if (!firstLine.startsWith("#!"_L1) || !firstLine.contains("python"_L1))
        return {};
    return firstLine.sliced(2).split(u' ', Qt::SkipEmptyParts);
}

/// The last line of `errors` that says something.
QString LastLine(const QByteArray &errors) {
    return QString::fromLocal8Bit(errors).trimmed().section(u'\n', -1).trimmed();
}

PdfAnswer Trouble(const QString &what) {
    return {{}, u"WeasyPrint cannot make the PDF: %1"_s.arg(what)};
}

} // namespace

PdfEngine::PdfEngine(QObject *parent) : QObject(parent) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The fonts in a PDF carry the time at which they were put there, unless a date is given.
    if (!environment.contains(u"SOURCE_DATE_EPOCH"_s))
        environment.insert(u"SOURCE_DATE_EPOCH"_s, u"0"_s);
    process_.setProcessEnvironment(environment);
#ifdef Q_OS_LINUX
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    connect(&process_, &QProcess::readyReadStandardOutput, this, &PdfEngine::TakeOutput);
    connect(&process_, &QProcess::finished, this, &PdfEngine::HasEnded);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            HasEnded();
    });
}

PdfEngine::~PdfEngine() { Cancel(); }

QString PdfEngine::WhatIsMissing() {
#ifdef Q_OS_WIN
    return u"PDF cannot be made on Windows; choose another format"_s;
#else
    if (!Interpreter().isEmpty())
        return {};
    return u"PDF needs WeasyPrint, which is not installed; install the package weasyprint"_s;
#endif
}

void PdfEngine::Launch() {
    QStringList command = Interpreter();
    if (command.isEmpty()) {
        Answer({{}, WhatIsMissing()});
        return;
    }
    const QString program = command.takeFirst();
    process_.start(program, command << u"-c"_s << script);
}

void PdfEngine::Start(const std::string &html, Paper paper) {
    atWork_ = true;
    received_.clear();
    if (process_.state() == QProcess::NotRunning)
        Launch();
    if (!atWork_)
        return;
    process_.write(QByteArray::number(static_cast<qulonglong>(html.size())) +
                   (paper == Paper::A4 ? " A4\n" : " letter\n"));
    process_.write(html.data(), static_cast<qint64>(html.size()));
}

void PdfEngine::Cancel() {
    atWork_ = false;
    if (process_.state() == QProcess::NotRunning)
        return;
    constexpr int patience = 2000; // in milliseconds
    process_.terminate();
    if (!process_.waitForFinished(patience)) {
        process_.kill();
        process_.waitForFinished();
    }
}

PdfAnswer PdfEngine::Make(const std::string &html, Paper paper) {
    PdfAnswer answer;
    waiting_ = &answer;
    Start(html, paper);
    while (atWork_ && process_.waitForReadyRead(-1)) {
    }
    if (atWork_) // it has ended, and said so before it was waited for
        HasEnded();
    waiting_ = nullptr;
    return answer;
}

void PdfEngine::TakeOutput() {
    received_ += process_.readAllStandardOutput();
    const qsizetype endOfLine = received_.indexOf('\n');
    if (!atWork_ || endOfLine < 0)
        return;
    const QByteArrayView line = QByteArrayView(received_).first(endOfLine);
    const qsizetype blank = line.indexOf(' ');
    const qsizetype length = line.sliced(blank + 1).toLongLong();
    if (received_.size() - endOfLine - 1 < length)
        return;
    const bool isPdf = line.first(qMax<qsizetype>(blank, 0)) == "pdf";
    const QByteArray body = received_.sliced(endOfLine + 1, length);
    Answer(isPdf ? PdfAnswer{body, {}} : Trouble(LastLine(body)));
}

void PdfEngine::HasEnded() {
    if (!atWork_)
        return;
    if (process_.error() == QProcess::FailedToStart)
        return Answer(Trouble(process_.errorString()));
    const QString said = LastLine(process_.readAllStandardError());
    if (!said.isEmpty())
        return Answer(Trouble(said));
    Answer(Trouble(process_.exitStatus() == QProcess::CrashExit
                       ? u"its process was ended by signal %1"_s.arg(process_.exitCode())
                       : u"its process ended with exit code %1"_s.arg(process_.exitCode())));
}

void PdfEngine::Answer(PdfAnswer answer) {
    atWork_ = false;
    if (waiting_ != nullptr)
        *waiting_ = std::move(answer);
    else
        emit answered(answer);
}
