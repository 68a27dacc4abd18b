#include "report/pdf_engine.h"

#include "pdf_engine_script.h"

#include <QFile>
#include <QStandardPaths>

#include <optional>
#include <utility>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace {

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

/// The line before the bytes of an answer.
struct AnswerLine {
    bool isPdf;
    qsizetype length;
};

/// What `line` announces; nothing where it announces no answer.
std::optional<AnswerLine> ReadAnswerLine(const QByteArray &line) {
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 2 || (words[0] != "pdf" && words[0] != "trouble"))
        return {};
    bool isNumber = false;
    const auto length = static_cast<qsizetype>(words[1].toUInt(&isNumber));
    if (!isNumber)
        return {};
    return AnswerLine{words[0] == "pdf", length};
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
    process_.start(program, command << u"-c"_s << QString::fromUtf8(modReadings::pdfEngineScript));
}

void PdfEngine::Start(const std::string &html, Paper paper) {
    atWork_ = true;
    received_.clear();
    if (process_.state() == QProcess::NotRunning)
        Launch();
    else
        process_.readAllStandardError(); // of the documents before; it says nothing of this one
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
    const std::optional<AnswerLine> line = ReadAnswerLine(received_.first(endOfLine));
    if (!line) {
        // The true answer may still come, and must not be taken for that of the next document.
        Cancel();
        Answer(Trouble(u"its process answered in an unknown form"_s));
        return;
    }
    if (received_.size() - endOfLine - 1 < line->length)
        return;
    const QByteArray body = received_.sliced(endOfLine + 1, line->length);
    Answer(line->isPdf ? PdfAnswer{body, {}} : Trouble(LastLine(body)));
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
