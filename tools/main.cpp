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
        Print(options.output, TopicList());
        break;
    case Options::Task::Completion:
        Print(options.output, CompletionFor(options.shell));
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
        const modReadings::FixedClock oneDay(modReadings::Clock::Date()); // the same for both
        const PersonInput input = options.normalize ? Composed(options.person) : options.person;
        const InputNames names(u"--"_s);
        const auto person = CheckPerson(input, names);
        if (const QString remark = DecomposedRemark(input, names); !remark.isEmpty())
            Complain(remark);
        Output output(options.output);
        if (options.format == Format::Pdf && output.IsTerminal())
            throw Refusal(
                u"--format: \"pdf\" is nothing for a terminal; give --output FILE, or let "
                "a program read it."_s);
        output.Write(AnswerTo(person, GivenNameOf(input), options));
        output.Finish();
        break;
    }
    }
    return ExitCode::Ok;
}

} // namespace

int main(int argc, char *argv[]) {
    const StandardStreams streams;
    // The tool speaks English and UTF-8 wherever it runs. The reasons that the system gives would
    // be in the language of LANGUAGE, whatever LC_ALL is.
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"orravane-report"_s);

    try {
        return static_cast<int>(Run(argc, argv));
    } catch (const Refusal &refusal) {
        Complain(refusal.Line());
        return static_cast<int>(refusal.Code());
    }
}
