#include "tools/options.h"

#include "tools/option_table.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <QCommandLineParser>
#include <QDate>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostJobs = 256;

QString Text(std::string_view text) { return QString::fromUtf8(text); }

QString Dashed(const OptionRow &row) { return u"--"_s + Text(row.name); }
QString Dashed(OptionId id) { return Dashed(RowOf(id)); }

/// The option that `argument` is, written "--name", "--name=value" or "-n"; nullptr for
/// anything else.
const OptionRow *RowOf(const QString &argument) {
    const QString word = argument.section(u'=', 0, 0);
    const auto table = OptionTable();
    const auto row = std::ranges::find_if(table, [&](const OptionRow &each) {
        return word == Dashed(each) ||
               (each.letter != 0 && word == u"-"_s + QLatin1Char(each.letter));
    });
    return row == table.end() ? nullptr : &*row;
}

/// Whether the word behind `argument`, which is the option `row`, is its value.
bool TakesNextWord(const OptionRow &row, const QString &argument) {
    return !row.value.empty() && !argument.contains(u'=');
}

/// The parser reads the command line; the table says which options there are.
class CommandLine {
public:
    /// Throws Refusal unless `arguments` are known options, each with its value.
    explicit CommandLine(const QStringList &arguments) {
        for (const OptionRow &row : OptionTable()) {
            QStringList names{Text(row.name)};
            if (row.letter != 0)
                names << QString(QLatin1Char(row.letter));
            parser_.addOption({names, Text(row.help), Text(row.value)});
        }
        RefuseUnknownAndValueless(arguments);
        if (parser_.parse(arguments))
            return;
        if (!parser_.unknownOptionNames().isEmpty()) // among letters that are written together
            throw Unknown(u"-"_s + parser_.unknownOptionNames().constFirst());
        throw Refusal(parser_.errorText() + u" See --help for the options."_s);
    }

    bool Given(OptionId id) const { return parser_.isSet(Text(RowOf(id).name)); }
    QString Value(OptionId id) const { return parser_.value(Text(RowOf(id).name)); }
    QStringList Values(OptionId id) const { return parser_.values(Text(RowOf(id).name)); }
    QStringList Words() const { return parser_.positionalArguments(); }

    void RefuseDoubled() const {
        const QStringList given = parser_.optionNames();
        for (const OptionRow &row : OptionTable()) {
            const auto count =
                given.count(Text(row.name)) +
                (row.letter == 0 ? 0 : given.count(QString(QLatin1Char(row.letter))));
            if (!row.repeatable && count > 1)
                throw Refusal(u"%1 is given more than once; give it once."_s.arg(Dashed(row)));
        }
    }

    /// `task` is one of goesWith, and `named` what asked for it, unless it is a person's.
    void RefuseWhatDoesNotGoWith(unsigned task, const QString &named) const {
        for (const OptionRow &row : OptionTable()) {
            if ((row.tasks & task) != 0 || !Given(row.id))
                continue;
            if (task == goesWith::person)
                throw Refusal(u"%1 goes with --batch only; see --help."_s.arg(Dashed(row)));
            throw Refusal(
                u"%1 does not go with %2; leave one of them out."_s.arg(Dashed(row), named));
        }
    }

private:
    static Refusal Unknown(const QString &typed) {
        return Refusal(u"Unknown option \"%1\"; see --help for the options."_s.arg(Excerpt(typed)));
    }

    static void RefuseUnknownAndValueless(const QStringList &arguments) {
        for (qsizetype index = 1; index < arguments.size(); ++index) {
            const QString &argument = arguments[index];
            if (argument == "--"_L1)
                return;
            const OptionRow *row = RowOf(argument);
            const bool isOption = argument.size() > 1 && argument.startsWith(u'-');
            const bool isLong = argument.startsWith("--"_L1);
            if (isOption && row == nullptr && (isLong || RowOf(argument.first(2)) == nullptr))
                throw Unknown(argument.section(u'=', 0, 0));
            if (row == nullptr || !TakesNextWord(*row, argument))
                continue;
            const QString give = u"give %1. %2"_s.arg(Text(row->value), Text(row->help));
            if (++index == arguments.size())
                throw Refusal(u"%1 lacks its value; %2"_s.arg(argument, give));
            if (RowOf(arguments[index]) != nullptr)
                throw Refusal(u"%1 lacks its value, as %2 is an option too (%1=%2 makes it the "
                              "value); %3"_s.arg(argument, Excerpt(arguments[index]), give));
        }
    }

    QCommandLineParser parser_;
};

/// A date that exists, written YYYY-MM-DD. Throws Refusal for anything else.
std::chrono::year_month_day DateFrom(const QString &text) {
    static const QRegularExpression form(u"\\A[0-9]{4}-[0-9]{2}-[0-9]{2}\\z"_s);
    if (!form.match(text).hasMatch())
        throw Refusal(
            u"--today: \"%1\" is not allowed; give a date as YYYY-MM-DD."_s.arg(Excerpt(text)));
    const QDate date = QDate::fromString(text, Qt::ISODate);
    if (!date.isValid())
        throw Refusal(u"--today: \"%1\" is not allowed, there is no such day; give a date that "
                      "exists as YYYY-MM-DD."_s.arg(text));
    return std::chrono::year_month_day(std::chrono::year(date.year()),
                                       std::chrono::month(static_cast<unsigned>(date.month())),
                                       std::chrono::day(static_cast<unsigned>(date.day())));
}

constexpr long long mostLines = 1'000'000'000'000'000; // beyond all lines there are

/// The value of an option that is a whole number from 1 to `most`.
long long CountFrom(OptionId id, const QString &text, long long most) {
    const bool digits = std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    bool fits = false;
    const long long count = text.toLongLong(&fits);
    if (!digits || !fits || count < 1 || count > most)
        throw Refusal(u"%1: \"%2\" is not allowed; give a whole number from 1 to %3."_s.arg(
            Dashed(id), Excerpt(text), QString::number(most)));
    return count;
}

/// The separator that --delimiter names.
char DelimiterFrom(const QString &text) {
    if (text.compare("tab"_L1, Qt::CaseInsensitive) == 0 || text == "\\t"_L1)
        return '\t';
    const char16_t unit = text.size() == 1 ? text.front().unicode() : u'\0';
    const bool letterOrDigit = (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
                               (unit >= u'a' && unit <= u'z');
    if (unit != u'\t' && (unit < u' ' || unit > u'~' || unit == u'"' || letterOrDigit))
        throw Refusal(u"--delimiter: \"%1\" is not allowed; give one character of ASCII that is no "
                      "letter, digit or quotation mark, or tab."_s.arg(Excerpt(text)));
    return static_cast<char>(unit);
}

bool GoesWithNumbers(Format format) { return format == Format::Json || IsTable(format); }

/// The names in `table` of the values that `wanted` picks out, as a message lists them: "a, b or
/// c".
template <typename Value, std::size_t size, typename Wanted>
QString Listed(const NameTable<Value, size> &table, Wanted wanted) {
    QStringList names;
    for (const auto &[name, value] : table)
        if (wanted(value))
            names << Text(name);
    const QString last = names.takeLast();
    return names.join(u", "_s) + u" or "_s + last;
}

/// The value of an option that has one of the names of `table`. Throws Refusal for any other, which
/// says what is `allowed`.
template <typename Value, std::size_t size>
Value Chosen(const CommandLine &line, OptionId id, const NameTable<Value, size> &table,
             const QString &allowed) {
    const QString text = line.Value(id);
    if (const auto value = ValueNamed(table, text.toStdString()))
        return *value;
    throw Refusal(u"%1: \"%2\" is not allowed; give %3."_s.arg(Dashed(id), Excerpt(text), allowed));
}

template <typename Value, std::size_t size>
Value Chosen(const CommandLine &line, OptionId id, const NameTable<Value, size> &table) {
    return Chosen(line, id, table, Listed(table, [](Value) { return true; }));
}

/// What is given as the name of a file or directory; empty where the option is not there. Throws
/// Refusal for an empty one, and says then what `allowed` is.
QString PathFrom(const CommandLine &line, OptionId id, const QString &allowed) {
    QString path = line.Value(id);
    if (line.Given(id) && path.isEmpty())
        throw Refusal(u"%1 is empty; give %2."_s.arg(Dashed(id), allowed));
    return path;
}

} // namespace

void RequireUtf8(int argc, const char *const *argv) {
    const OptionRow *option = nullptr; // that takes the argument as its value
    for (int index = 1; index < argc; ++index) {
        const std::string_view bytes = argv[index];
        const auto argument = FromUtf8(bytes);
        if (!argument) {
            if (option == nullptr)
                option = RowOf(QString::fromUtf8(bytes));
            if (option != nullptr && option->value.empty())
                option = nullptr;
            const QString name = option == nullptr ? QString() : Dashed(*option) + u": "_s;
            throw Refusal(u"%1\"%2\" is not UTF-8; give a text in UTF-8."_s.arg(
                name, Excerpt(QString::fromUtf8(bytes))));
        }
        const OptionRow *const next = option == nullptr ? RowOf(*argument) : nullptr;
        option = next != nullptr && TakesNextWord(*next, *argument) ? next : nullptr;
    }
}

Options ParseOptions(const QStringList &arguments) {
    using enum OptionId;
    if (arguments.size() < 2)
        throw Refusal(u"Nothing to do; see --help for what is possible."_s);
    const CommandLine line(arguments);

    Options options;
    for (const auto &[id, task] :
         {std::pair(Help, Options::Task::Help), {Version, Options::Task::Version}})
        if (line.Given(id)) {
            options.task = task;
            return options;
        }

    line.RefuseDoubled();
    options.output = PathFrom(line, Output, u"the name of a file, or - for standard output"_s);
    if (line.Given(ListTopics)) {
        options.task = Options::Task::ListTopics;
        return options;
    }
    if (line.Given(Completion)) {
        options.task = Options::Task::Completion;
        options.shell = Chosen(line, Completion, shellNames);
        return options;
    }

    if (!line.Words().isEmpty() && !line.Given(Batch))
        throw Refusal(u"\"%1\" is not an option; see --help for what is allowed."_s.arg(
            Excerpt(line.Words().constFirst())));

    if (line.Given(Book)) {
        options.task = Options::Task::Book;
        line.RefuseWhatDoesNotGoWith(goesWith::book, Dashed(Book));
    } else if (line.Given(Batch)) {
        options.task = Options::Task::Batch;
        line.RefuseWhatDoesNotGoWith(goesWith::batch, Dashed(Batch));
    } else {
        line.RefuseWhatDoesNotGoWith(goesWith::person, {});
    }

    if (line.Given(OptionId::Format)) {
        options.format =
            Chosen(line, OptionId::Format, formatNames,
                   Listed(formatNames, [](::Format format) { return !IsTable(format); }) +
                       u", and with --numbers "_s + Listed(formatNames, GoesWithNumbers));
    } else if (line.Given(Numbers) ||
               (options.task == Options::Task::Batch && !line.Given(OutputDir))) {
        options.format = ::Format::Json;
    }
    options.numbers = line.Given(Numbers);
    options.explain = line.Given(Explain);
    options.normalize = line.Given(Normalize);
    const bool isPage = options.format == ::Format::Text || options.format == ::Format::Rtf;
    if (IsTable(options.format) && !options.numbers)
        throw Refusal(
            u"--format: \"%1\" goes with --numbers only."_s.arg(line.Value(OptionId::Format)));
    const bool isDocument = IsDocument(options.format);
    if (options.numbers && !GoesWithNumbers(options.format))
        throw Refusal(u"--format: \"%1\" does not go with --numbers; give %2."_s.arg(
            line.Value(OptionId::Format), Listed(formatNames, GoesWithNumbers)));
    if (options.explain && (options.format == ::Format::Rtf || isDocument))
        throw Refusal(u"--format: \"%1\" does not go with --explain; give text or json."_s.arg(
            line.Value(OptionId::Format)));
    for (const OptionId id : {Numbers, Head, NoHead})
        if (options.explain && line.Given(id))
            throw Refusal(
                u"%1 does not go with --explain; leave one of them out."_s.arg(Dashed(id)));
    if (options.task == Options::Task::Book && (options.format == ::Format::Rtf || isDocument))
        throw Refusal(u"--format: \"%1\" does not go with --book; give text or json."_s.arg(
            line.Value(OptionId::Format)));
    if (isDocument && line.Given(Topic))
        throw Refusal(u"--topic does not go with the format %1, which has all topics; leave one of "
                      "them out."_s.arg(line.Value(OptionId::Format)));
    for (const OptionId id : {Topic, OutputDir, Head, NoHead})
        if (options.numbers && line.Given(id))
            throw Refusal(
                u"%1 does not go with --numbers; leave one of them out."_s.arg(Dashed(id)));
    for (const OptionId id : {Head, NoHead})
        if (line.Given(id) && !isPage)
            throw Refusal(u"%1 goes with the formats text and rtf only."_s.arg(Dashed(id)));
    if (line.Given(OptionId::Paper)) {
        if (options.format != ::Format::Pdf)
            throw Refusal(u"--paper goes with the format pdf only."_s);
        options.paper = Chosen(line, OptionId::Paper, paperNames);
    }
    if (line.Given(Head) && line.Given(NoHead))
        throw Refusal(u"--head does not go with --no-head; leave one of them out."_s);
    options.head =
        isPage && !line.Given(NoHead) && (line.Given(Head) || options.task == Options::Task::Batch);

    const QString batchFile =
        PathFrom(line, Batch, u"the name of a file, or - for standard input"_s);
    if (line.Given(Batch))
        options.batchFiles = QStringList(batchFile) + line.Words();
    if (options.batchFiles.contains(QString()))
        throw Refusal(u"--batch: one of the files has an empty name."_s);
    if (options.batchFiles.count(u"-"_s) > 1)
        throw Refusal(u"--batch: - is standard input and can be read only once."_s);
    options.outputDir = PathFrom(line, OutputDir, u"the name of a directory"_s);
    if (options.task == Options::Task::Batch) {
        const bool files = line.Given(OutputDir);
        if (files && options.format == ::Format::Json)
            throw Refusal(u"--format: \"json\" does not go with --output-dir; give %1."_s.arg(
                Listed(formatNames, [](::Format format) {
                    return format != ::Format::Json && !IsTable(format);
                })));
        if (!files && isDocument)
            throw Refusal(u"--format: \"%1\" makes one file a person; give --output-dir."_s.arg(
                line.Value(OptionId::Format)));
        for (const OptionId id : {NameTemplate, NoClobber})
            if (!files && line.Given(id))
                throw Refusal(u"%1 goes with --output-dir only; see --help."_s.arg(Dashed(id)));
        if (files && line.Given(Output))
            throw Refusal(u"--output does not go with --output-dir; leave one of them out."_s);
    }
    if (line.Given(Quiet) && line.Given(Summary))
        throw Refusal(u"--quiet does not go with --summary; leave one of them out."_s);
    if (line.Given(Quiet))
        options.verbosity = Progress::Verbosity::Quiet;
    else if (line.Given(Summary))
        options.verbosity = Progress::Verbosity::Summary;
    if (line.Given(FirstLine))
        options.firstLine = CountFrom(FirstLine, line.Value(FirstLine), mostLines);
    if (line.Given(MaxErrors))
        options.maxErrors = CountFrom(MaxErrors, line.Value(MaxErrors), mostLines);
    if (line.Given(Delimiter))
        options.delimiter = DelimiterFrom(line.Value(Delimiter));
    if (line.Given(Jobs))
        options.jobs = static_cast<int>(CountFrom(Jobs, line.Value(Jobs), mostJobs));
    if (line.Given(NameTemplate))
        options.fileNames = FileNames(line.Value(NameTemplate));
    options.noClobber = line.Given(NoClobber);

    if (line.Given(Today))
        options.today = DateFrom(line.Value(Today));
    for (const QString &caption : line.Values(Topic)) {
        const std::u16string_view known = KnownCaption(caption.toStdU16String());
        if (known.empty())
            throw Refusal(u"--topic: \"%1\" is not a topic; --list-topics shows what is one."_s.arg(
                Excerpt(caption)));
        options.topics.push_back(known);
    }
    if (options.topics.empty())
        options.topics = AllCaptions();

    options.person = {line.Value(First), line.Value(Middle), line.Value(Last), line.Value(Month),
                      line.Value(Day),   line.Value(Year),   line.Value(Date)};
    return options;
}
