#include "tools/options.h"

#include "tools/excerpt.h"

#include <QCommandLineParser>
#include <QDate>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

QString Dashed(const QCommandLineOption &option) {
    return QStringLiteral("--") + option.names().constFirst();
}

struct CommandLine {
    QCommandLineParser parser;
    QCommandLineOption first{QStringLiteral("first"), QStringLiteral("First name."),
                             QStringLiteral("NAME")};
    QCommandLineOption middle{QStringLiteral("middle"), QStringLiteral("Middle name."),
                              QStringLiteral("NAME")};
    QCommandLineOption last{QStringLiteral("last"), QStringLiteral("Last name."),
                            QStringLiteral("NAME")};
    QCommandLineOption month{QStringLiteral("month"),
                             QStringLiteral("Birth month: an English month name or 1 to 12."),
                             QStringLiteral("MONTH")};
    QCommandLineOption day{QStringLiteral("day"), QStringLiteral("Birth day: 1 to 31."),
                           QStringLiteral("N")};
    QCommandLineOption year{QStringLiteral("year"), QStringLiteral("Birth year: 1900 to 2050."),
                            QStringLiteral("N")};
    QCommandLineOption today{QStringLiteral("today"),
                             QStringLiteral("Read for this day instead of today."),
                             QStringLiteral("YYYY-MM-DD")};
    QCommandLineOption topic{QStringLiteral("topic"),
                             QStringLiteral("Print this topic, a caption of the window's tree or "
                                            "\"Comprehensive Reading\"; may be given "
                                            "several times. Default: all topics."),
                             QStringLiteral("CAPTION")};
    QCommandLineOption format{QStringLiteral("format"),
                              QStringLiteral("text (default), json or rtf."),
                              QStringLiteral("FORMAT")};
    QCommandLineOption output{
        QStringLiteral("output"),
        QStringLiteral("Write to this file, whole or not at all, instead of standard output."),
        QStringLiteral("FILE")};
    QCommandLineOption book{
        QStringLiteral("book"),
        QStringLiteral("Print every reading and fixed text that the program holds.")};
    QCommandLineOption batch{
        QStringLiteral("batch"),
        QStringLiteral("Read many people, one a line: JSON Lines, or CSV with a header row "
                       "first,middle,last,month,day,year. - is standard input. Prints one JSON "
                       "object a line."),
        QStringLiteral("FILE")};
    QCommandLineOption outputDir{
        QStringLiteral("output-dir"),
        QStringLiteral("With --batch and --format text or rtf: one file a person here, named "
                       "after the line."),
        QStringLiteral("DIR")};
    QCommandLineOption help{QStringLiteral("help"), QStringLiteral("Show this help.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Show the version.")};

    CommandLine() {
        parser.setApplicationDescription(
            QStringLiteral("The Orravane numerology report without the window.\n\n"
                           "A person:  orravane-report --first NAME [--middle NAME] --last NAME "
                           "--month MONTH --day N "
                           "--year N\n"
                           "The prose: orravane-report --book\n"
                           "Many:      orravane-report --batch FILE"));
        parser.addOptions({first, middle, last, month, day, year, today, topic, format, output,
                           book, batch, outputDir, help, version});
    }

    bool Given(const QCommandLineOption &option) const { return parser.isSet(option); }

    /// The option that takes the word behind `argument` as its value, or nullptr.
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
        const QCommandLineOption *open = OptionBefore(end);
        if (open != nullptr && parser.errorText().contains(end))
            return QStringLiteral("%1: the value is missing; give %2. %3")
                .arg(end, open->valueName(), open->description());
        if (!parser.unknownOptionNames().isEmpty())
            return QStringLiteral("Unknown option \"%1\"; see --help for the options.")
                .arg(Excerpt(parser.unknownOptionNames().constFirst()));
        return parser.errorText() + QStringLiteral(" See --help for the options.");
    }
};

class Complaint {
public:
    explicit Complaint(QString &line) : line_(line) {}

    std::nullopt_t operator()(const QString &line) const {
        line_ = line;
        return std::nullopt;
    }

private:
    QString &line_;
};

/// A date that exists, written YYYY-MM-DD.
std::optional<std::chrono::year_month_day> DateFrom(const QString &text) {
    static const QRegularExpression form(QStringLiteral("\\A[0-9]{4}-[0-9]{2}-[0-9]{2}\\z"));
    const QDate date = QDate::fromString(text, Qt::ISODate);
    if (!form.match(text).hasMatch() || !date.isValid())
        return std::nullopt;
    return std::chrono::year_month_day(std::chrono::year(date.year()),
                                       std::chrono::month(static_cast<unsigned>(date.month())),
                                       std::chrono::day(static_cast<unsigned>(date.day())));
}

std::optional<Format> FormatFrom(const QString &text) {
    if (text == QLatin1StringView("text"))
        return Format::Text;
    if (text == QLatin1StringView("json"))
        return Format::Json;
    if (text == QLatin1StringView("rtf"))
        return Format::Rtf;
    return std::nullopt;
}

} // namespace

bool AreUtf8(int argc, const char *const *argv, QString &complaint) {
    const CommandLine line;
    const QCommandLineOption *option = nullptr; // that takes the argument as its value
    for (int index = 1; index < argc; ++index) {
        const std::string_view bytes = argv[index];
        const auto argument = FromUtf8(bytes);
        if (!argument) {
            if (option == nullptr)
                option = line.OptionBefore(QString::fromUtf8(bytes.substr(0, bytes.find('='))));
            const QString name =
                option == nullptr ? QString() : Dashed(*option) + QStringLiteral(": ");
            complaint = QStringLiteral("%1\"%2\" is not UTF-8; give a text in UTF-8.")
                            .arg(name, Excerpt(QString::fromUtf8(bytes)));
            return false;
        }
        option = option == nullptr ? line.OptionBefore(*argument) : nullptr;
    }
    return true;
}

std::optional<Options> ParseOptions(const QStringList &arguments, QString &complaint) {
    CommandLine line;
    const Complaint complain(complaint);
    if (!line.parser.parse(arguments))
        return complain(line.WhyNotParsed(arguments.constLast()));

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
        return complain(QStringLiteral("\"%1\" is not an option; see --help for what is allowed.")
                            .arg(Excerpt(line.parser.positionalArguments().constFirst())));
    for (const QCommandLineOption *once :
         {&line.first, &line.middle, &line.last, &line.month, &line.day, &line.year, &line.today,
          &line.format, &line.output, &line.batch, &line.outputDir})
        if (line.parser.values(*once).size() > 1)
            return complain(
                QStringLiteral("%1 is given more than once; give it once.").arg(Dashed(*once)));

    options.task = line.Given(line.book)    ? Options::Task::Book
                   : line.Given(line.batch) ? Options::Task::Batch
                                            : Options::Task::Person;
    if (line.Given(line.book) && line.Given(line.batch))
        return complain(QStringLiteral("--book and --batch do not go together; give one of them."));

    const QString only =
        options.task == Options::Task::Book ? Dashed(line.book) : Dashed(line.batch);
    if (options.task != Options::Task::Person)
        for (const QCommandLineOption *person :
             {&line.first, &line.middle, &line.last, &line.month, &line.day, &line.year})
            if (line.Given(*person))
                return complain(QStringLiteral("%1 does not go with %2; leave one of them out.")
                                    .arg(Dashed(*person), only));
    if (options.task == Options::Task::Book)
        for (const QCommandLineOption *reading : {&line.today, &line.topic})
            if (line.Given(*reading))
                return complain(QStringLiteral("%1 does not go with --book; leave one of them out.")
                                    .arg(Dashed(*reading)));

    if (line.Given(line.format)) {
        const auto format = FormatFrom(line.parser.value(line.format));
        if (!format)
            return complain(
                QStringLiteral("--format: \"%1\" is not allowed; give text, json or rtf.")
                    .arg(Excerpt(line.parser.value(line.format))));
        options.format = *format;
    } else if (options.task == Options::Task::Batch && !line.Given(line.outputDir)) {
        options.format = Format::Json;
    }
    if (options.task == Options::Task::Book && options.format == Format::Rtf)
        return complain(
            QStringLiteral("--format: \"rtf\" does not go with --book; give text or json."));

    options.outputDir = line.parser.value(line.outputDir);
    if (line.Given(line.outputDir) && options.task != Options::Task::Batch)
        return complain(QStringLiteral(
            "--output-dir goes with --batch only; for one person give --output FILE."));
    if (line.Given(line.outputDir) && options.outputDir.isEmpty())
        return complain(QStringLiteral("--output-dir is empty; give the name of a folder."));
    if (options.task == Options::Task::Batch) {
        const bool files = !options.outputDir.isEmpty();
        if (files && options.format == Format::Json)
            return complain(QStringLiteral(
                "--format: \"json\" does not go with --output-dir; give text or rtf."));
        if (!files && options.format != Format::Json)
            return complain(QStringLiteral("--format: only json goes to one output with --batch; "
                                           "give --output-dir DIR for text and rtf."));
        if (files && line.Given(line.output))
            return complain(
                QStringLiteral("--output does not go with --output-dir; leave one of them out."));
    }

    if (line.Given(line.today)) {
        options.today = DateFrom(line.parser.value(line.today));
        if (!options.today)
            return complain(
                QStringLiteral("--today: \"%1\" is not allowed; give a date as YYYY-MM-DD.")
                    .arg(Excerpt(line.parser.value(line.today))));
    }
    for (const QString &caption : line.parser.values(line.topic)) {
        const std::u16string_view known = KnownCaption(caption.toStdU16String());
        if (known.empty())
            return complain(
                QStringLiteral(
                    "--topic: \"%1\" is not a topic; give a caption of the tree, such as "
                    "\"Life Path Number\" or \"Comprehensive Reading\".")
                    .arg(Excerpt(caption)));
        options.topics.push_back(known);
    }
    if (options.topics.empty())
        options.topics = AllCaptions();

    options.batchFile = line.parser.value(line.batch);
    if (line.Given(line.batch) && options.batchFile.isEmpty())
        return complain(
            QStringLiteral("--batch is empty; give the name of a file, or - for standard input."));
    options.output = line.parser.value(line.output);
    if (line.Given(line.output) && options.output.isEmpty())
        return complain(QStringLiteral("--output is empty; give the name of a file."));
    options.person = {line.parser.value(line.first), line.parser.value(line.middle),
                      line.parser.value(line.last),  line.parser.value(line.month),
                      line.parser.value(line.day),   line.parser.value(line.year)};
    return options;
}
