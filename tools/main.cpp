#include "core/clock.h"
#include "tools/batch.h"
#include "tools/one_line.h"
#include "tools/options.h"
#include "tools/output.h"
#include "version.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

namespace {

enum ExitCode { ok = 0, failed = 1, wrongInput = 2 };

/// One line on standard error.
int Complain(const QString &complaint, ExitCode code) {
    std::fprintf(stderr, "orravane-report: %s\n", OneLine(complaint).c_str());
    return code;
}

int Print(const QString &fileName, const std::string &bytes) {
    Output output(fileName);
    output.Write(bytes);
    output.Finish();
    return output.Error().isEmpty() ? ok : Complain(output.Error(), failed);
}

int PrintBook(const Options &options) {
    const auto book = modReadings::Book();
    return Print(options.output,
                 options.format == Format::Json ? BookAsJson(book) : BookAsText(book));
}

int PrintPerson(const Options &options) {
    const modReadings::FixedClock oneDay(
        modReadings::Clock::Date()); // for numbers and "today" alike
    QString complaint;
    const auto person = CheckPerson(options.person, {QStringLiteral("--")}, complaint);
    if (!person)
        return Complain(complaint, wrongInput);
    return Print(options.output, ReadingsAs(options.format, ReadPerson(*person, options.topics)));
}

int PrintBatch(const Options &options) {
    QString complaint;
    const BatchResult result = RunBatch(options, complaint);
    if (!complaint.isEmpty())
        return Complain(complaint, result == BatchResult::Unusable ? wrongInput : failed);
    return result == BatchResult::AllRead ? ok : failed;
}

/// A file that is opened later must not get the place of a stream that came closed, or it
/// would be read or written in its stead. What stands there now is open the wrong way round,
/// so that the stream fails as a closed one does.
void KeepClosedStreamsClosed() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) < 0 && errno == EBADF)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

} // namespace

int main(int argc, char *argv[]) {
    KeepClosedStreamsClosed();
    std::setvbuf(stdout, nullptr, _IONBF, 0); // a report leaves in one write, whole and at once
    qputenv("LC_ALL", "C.UTF-8");             // the tool speaks English and UTF-8 wherever it runs
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orravane-report"));

    QString complaint;
    if (!AreUtf8(argc, argv, complaint))
        return Complain(complaint, wrongInput);
    const auto options = ParseOptions(QCoreApplication::arguments(), complaint);
    if (!options)
        return Complain(complaint, wrongInput);

    std::optional<modReadings::FixedClock> today;
    if (options->today)
        today.emplace(*options->today);

    switch (options->task) {
    case Options::Task::Help:
        return Print({}, options->help.toStdString());
    case Options::Task::Version:
        return Print({}, std::string("orravane-report ") + orravaneVersion + '\n');
    case Options::Task::Book:
        return PrintBook(*options);
    case Options::Task::Batch:
        return PrintBatch(*options);
    case Options::Task::Person:
        return PrintPerson(*options);
    }
    return failed;
}
