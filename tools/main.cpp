#include "core/clock.h"
#include "tools/batch.h"
#include "tools/batch_writer.h"
#include "tools/completion.h"
#include "tools/help.h"
#include "tools/options.h"
#include "tools/output.h"
#include "tools/reading.h"
#include "tools/system.h"
#include "tools/text.h"
#include "version.h"

#include <QCoreApplication>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

void Complain(const QString &line) {
    WriteToStandardError("orravane-report: " + OneLine(line) + '\n');
}

void Print(const QString &fileName, const std::string &bytes) {
    Output output(fileName);
    output.Write(bytes);
    output.Finish();
}

ExitCode Run(int argc, char *argv[]) {
    if (ArgumentsAreBytes())
        RequireUtf8(argc, argv);
    const Options options = ParseOptions(QCoreApplication::arguments());

    std::optional<modReadings::FixedClock> today;
    if (options.today)
        today.emplace(*options.today);

    switch (options.task) {
    case Options::Task::Help:
        Print({}, HelpText());
        break;
    case Options::Task::ListTopics:
        Print({}, TopicList());
        break;
    case Options::Task::Completion:
        Print({}, CompletionFor(options.shell));
        break;
    case Options::Task::Version:
        Print({}, std::string("orravane-report ") + orravaneVersion + '\n');
        break;
    case Options::Task::Book: {
        const auto book = modReadings::Book();
        Print(options.output, options.format == Format::Json ? BookAsJson(book) : BookAsText(book));
        break;
    }
    case Options::Task::Batch:
        return RunBatch(options);
    case Options::Task::Person: {
        if (options.format == Format::Pdf &&
            (options.output.isEmpty() || options.output == u"-"_s) && IsTerminal(1))
            throw Refusal(
                u"--format: \"pdf\" is nothing for a terminal; give --output FILE, or let "
                "a program read it."_s);
        const modReadings::FixedClock oneDay(modReadings::Clock::Date()); // the same for both
        const PersonInput input = options.normalize ? Composed(options.person) : options.person;
        const InputNames names(u"--"_s);
        const auto person = CheckPerson(input, names);
        if (const QString remark = DecomposedRemark(input, names); !remark.isEmpty())
            Complain(remark);
        Print(options.output, AnswerTo(person, options));
        break;
    }
    }
    return ExitCode::Ok;
}

} // namespace

int main(int argc, char *argv[]) {
    const StandardStreams streams;
    std::setvbuf(stdout, nullptr, _IONBF, 0); // a report leaves in one write, whole and at once
    qputenv("LC_ALL", "C.UTF-8");             // the tool speaks English and UTF-8 wherever it runs
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"orravane-report"_s);

    try {
        return static_cast<int>(Run(argc, argv));
    } catch (const Refusal &refusal) {
        Complain(refusal.Line());
        return static_cast<int>(refusal.Code());
    }
}
