#include "tools/options.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <QCommandLineParser>
#include <QDate>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QString Dashed(const QCommandLineOption &option) { return u"--"_s + option.names().constFirst(); }

struct CommandLine {
    QCommandLineParser parser;
    QCommandLineOption first{u"first"_s, u"First name."_s, u"NAME"_s};
    QCommandLineOption middle{u"middle"_s, u"Middle name."_s, u"NAME"_s};
    QCommandLineOption last{u"last"_s, u"Last name."_s, u"NAME"_s};
    QCommandLineOption month{u"month"_s, u"Birth month: an English month name or 1 to 12."_s,
                             u"MONTH"_s};
    QCommandLineOption day{u"day"_s, u"Birth day: 1 to 31."_s, u"N"_s};
    QCommandLineOption year{u"year"_s, u"Birth year: 1900 to 2050."_s, u"N"_s};
    QCommandLineOption today{u"today"_s, u"Read for this day instead of today."_s, u"YYYY-MM-DD"_s};
    QCommandLineOption topic{u"topic"_s,
                             u"Print this topic, a caption of the window's tree or "
                             "\"Comprehensive Reading\"; may be given "
                             "several times. Default: all topics."_s,
                             u"CAPTION"_s};
    QCommandLineOption format{u"format"_s, u"text (default), json or rtf."_s, u"FORMAT"_s};
    QCommandLineOption output{
        u"output"_s, u"Write to this file, whole or not at all, instead of standard output."_s,
        u"FILE"_s};
    QCommandLineOption book{u"book"_s,
                            u"Print every reading and fixed text that the program holds."_s};
    QCommandLineOption batch{
        u"batch"_s,
        u"Read many people, one a line: JSON Lines, or CSV with a header row "
        "first,middle,last,month,day,year. - is standard input. Prints one JSON "
        "object a line."_s,
        u"FILE"_s};
    QCommandLineOption outputDir{
        u"output-dir"_s,
        u"With --batch and --format text or rtf: one file a person here, named "
        "after the line."_s,
        u"DIR"_s};
    QCommandLineOption help{u"help"_s, u"Show this help."_s};
    QCommandLineOption version{u"version"_s, u"Show the version."_s};

    CommandLine() {
        parser.setApplicationDescription(
            u"The Orravane numerology report without the window.\n\n"
            "A person:  orravane-report --first NAME [--middle NAME] --last NAME "
            "--month MONTH --day N "
            "--year N\n"
            "The prose: orravane-report --book\n"
            "Many:      orravane-report --batch FILE"_s);
        parser.addOptions({first, middle, last, month, day, year, today, topic, format, output,
                           book, batch, outputDir, help, version});
    }

    bool Given(const QCommandLineOption &option) const { return parser.isSet(option); }

    /// The option that `argument` is, if that takes the next word as its value; or nullptr.
    const QCommandLineOption *OptionBefore(const QString &argument) const {
        const std::array valued{&first, &middle, &last,   &month,  &day,   &year,
                                &today, &topic,  &format, &output, &batch, &outputDir};
        const auto option = std::ranges::find(
            valued, argument, [](const QCommandLineOption *each) { return Dashed(*each); });
        return option == valued.end() ? nullptr : *option;
    }

    /// Why the parser does not take `arguments`, the last of which is `end`.
    QString WhyNotParsed(const QString &end) const {
        // The parser's text names the option that lacks its value, or one that has a value
        // and takes none.
        const QCommandLineOption *valueless = OptionBefore(end);
        if (valueless != nullptr && parser.errorText().contains(end))
            return u"%1: the value is missing; give %2. %3"_s.arg(end, valueless->valueName(),
                                                                  valueless->description());
        if (!parser.unknownOptionNames().isEmpty())
            return u"Unknown option \"%1\"; see --help for the options."_s.arg(
                Excerpt(parser.unknownOptionNames().constFirst()));
        return parser.errorText() + u" See --help for the options."_s;
    }
};

/// A date that exists, written YYYY-MM-DD.
std::optional<std::chrono::year_month_day> DateFrom(const QString &text) {
    static const QRegularExpression form(u"\\A[0-9]{4}-[0-9]{2}-[0-9]{2}\\z"_s);
    const QDate date = QDate::fromString(text, Qt::ISODate);
    if (!form.match(text).hasMatch() || !date.isValid())
        return std::nullopt;
    return std::chrono::year_month_day(std::chrono::year(date.year()),
                                       std::chrono::month(static_cast<unsigned>(date.month())),
                                       std::chrono::day(static_cast<unsigned>(date.day())));
}

std::optional<Format> FormatFrom(const QString &text) {
    if (text == "text"_L1)
        return Format::Text;
    if (text == "json"_L1)
        return Format::Json;
    if (text == "rtf"_L1)
        return Format::Rtf;
    return std::nullopt;
}

} // namespace

void RequireUtf8(int argc, const char *const *argv) {
    const CommandLine line;
    const QCommandLineOption *option = nullptr; // that takes the argument as its value
    for (int index = 1; index < argc; ++index) {
        const std::string_view bytes = argv[index];
        const auto argument = FromUtf8(bytes);
        if (!argument) {
            if (option == nullptr)
                option = line.OptionBefore(QString::fromUtf8(bytes.substr(0, bytes.find('='))));
            const QString name = option == nullptr ? QString() : Dashed(*option) + u": "_s;
            throw Refusal(u"%1\"%2\" is not UTF-8; give a text in UTF-8."_s.arg(
                name, Excerpt(QString::fromUtf8(bytes))));
        }
        option = option == nullptr ? line.OptionBefore(*argument) : nullptr;
    }
}

Options ParseOptions(const QStringList &arguments) {
    CommandLine line;
    if (!line.parser.parse(arguments))
        throw Refusal(line.WhyNotParsed(arguments.constLast()));

    Options options;
    if (line.Given(line.help)) {
        options.task = Options::Task::Help;
        options.help = line.parser.helpText();
        return options;
    }
    if (line.Given(line.version)) {
        options.task = Options::Task::Version;
        return options;
    }
    if (!line.parser.positionalArguments().isEmpty())
        throw Refusal(u"\"%1\" is not an option; see --help for what is allowed."_s.arg(
            Excerpt(line.parser.positionalArguments().constFirst())));
    const QStringList given = line.parser.optionNames();
    for (const QString &name : given)
        if (name != line.topic.names().constFirst() && given.count(name) > 1)
            throw Refusal(u"--%1 is given more than once; give it once."_s.arg(name));

    options.task = line.Given(line.book)    ? Options::Task::Book
                   : line.Given(line.batch) ? Options::Task::Batch
                                            : Options::Task::Person;
    if (line.Given(line.book) && line.Given(line.batch))
        throw Refusal(u"--book and --batch do not go together; give one of them."_s);

    const QString only =
        options.task == Options::Task::Book ? Dashed(line.book) : Dashed(line.batch);
    if (options.task != Options::Task::Person)
        for (const QCommandLineOption *person :
             {&line.first, &line.middle, &line.last, &line.month, &line.day, &line.year})
            if (line.Given(*person))
                throw Refusal(
                    u"%1 does not go with %2; leave one of them out."_s.arg(Dashed(*person), only));
    if (options.task == Options::Task::Book)
        for (const QCommandLineOption *reading : {&line.today, &line.topic})
            if (line.Given(*reading))
                throw Refusal(
                    u"%1 does not go with --book; leave one of them out."_s.arg(Dashed(*reading)));

    if (line.Given(line.format)) {
        const auto format = FormatFrom(line.parser.value(line.format));
        if (!format)
            throw Refusal(u"--format: \"%1\" is not allowed; give text, json or rtf."_s.arg(
                Excerpt(line.parser.value(line.format))));
        options.format = *format;
    } else if (options.task == Options::Task::Batch && !line.Given(line.outputDir)) {
        options.format = Format::Json;
    }
    if (options.task == Options::Task::Book && options.format == Format::Rtf)
        throw Refusal(u"--format: \"rtf\" does not go with --book; give text or json."_s);

    options.outputDir = line.parser.value(line.outputDir);
    if (line.Given(line.outputDir) && options.task != Options::Task::Batch)
        throw Refusal(u"--output-dir goes with --batch only; for one person give --output FILE."_s);
    if (line.Given(line.outputDir) && options.outputDir.isEmpty())
        throw Refusal(u"--output-dir is empty; give the name of a folder."_s);
    if (options.task == Options::Task::Batch) {
        const bool files = !options.outputDir.isEmpty();
        if (files && options.format == Format::Json)
            throw Refusal(u"--format: \"json\" does not go with --output-dir; give text or rtf."_s);
        if (!files && options.format != Format::Json)
            throw Refusal(u"--format: only json goes to one output with --batch; "
                          "give --output-dir DIR for text and rtf."_s);
        if (files && line.Given(line.output))
            throw Refusal(u"--output does not go with --output-dir; leave one of them out."_s);
    }

    if (line.Given(line.today)) {
        options.today = DateFrom(line.parser.value(line.today));
        if (!options.today)
            throw Refusal(u"--today: \"%1\" is not allowed; give a date as YYYY-MM-DD."_s.arg(
                Excerpt(line.parser.value(line.today))));
    }
    for (const QString &caption : line.parser.values(line.topic)) {
        const std::u16string_view known = KnownCaption(caption.toStdU16String());
        if (known.empty())
            throw Refusal(
                u"--topic: \"%1\" is not a topic; give a caption of the tree, such as "
                "\"Life Path Number\" or \"Comprehensive Reading\"."_s.arg(Excerpt(caption)));
        options.topics.push_back(known);
    }
    if (options.topics.empty())
        options.topics = AllCaptions();

    options.batchFile = line.parser.value(line.batch);
    if (line.Given(line.batch) && options.batchFile.isEmpty())
        throw Refusal(u"--batch is empty; give the name of a file, or - for standard input."_s);
    options.output = line.parser.value(line.output);
    if (line.Given(line.output) && options.output.isEmpty())
        throw Refusal(u"--output is empty; give the name of a file."_s);
    options.person = {line.parser.value(line.first), line.parser.value(line.middle),
                      line.parser.value(line.last),  line.parser.value(line.month),
                      line.parser.value(line.day),   line.parser.value(line.year)};
    return options;
}
