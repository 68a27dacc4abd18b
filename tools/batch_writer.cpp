#include "tools/batch_writer.h"

#include "report/pdf_engine.h"
#include "report/rtf.h"
#include "tools/explanation.h"
#include "tools/number_rows.h"
#include "tools/reading.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <QFileInfo>

#include <filesystem>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

PersonReading ReadAs(const Options &options, const modReadings::UserProfile &person) {
    PersonReading reading = ReadPerson(person, options.topics);
    if (options.head)
        reading.head = HeadOf(reading.person, reading.day);
    return reading;
}

/// What one person gets alone. `engine` is needed for a PDF only.
std::string BytesOf(const Options &options, const modReadings::UserProfile &person,
                    const modReadings::GivenName &given, PdfEngine *engine) {
    if (options.explain)
        return ExplanationAsText(Explain(person, options.topics));
    if (!IsDocument(options.format))
        return ReadingAs(options.format, ReadAs(options, person));
    std::string document = DocumentAs(options.format, person, given);
    if (options.format != Format::Pdf)
        return document;
    const PdfAnswer answer = engine->Make(document, options.paper);
    if (!answer.trouble.isEmpty())
        throw Refusal(answer.trouble, ExitCode::CannotReadOrWrite);
    return answer.pdf.toStdString();
}

QString EndingOf(Format format) {
    switch (format) {
    case Format::Rtf:
        return u".rtf"_s;
    case Format::Html:
        return u".html"_s;
    case Format::Pdf:
        return u".pdf"_s;
    case Format::Markdown:
        return u".md"_s;
    default:
        return u".txt"_s;
    }
}

/// All people in one output.
class OneOutput : public BatchWriter {
public:
    OneOutput(const Options &options, ByteSink &sink, Place place)
        : options_(options), sink_(sink), between_(place == Place::Behind) {}

    void Begin() override {
        if (options_.format == Format::Csv || options_.format == Format::Tsv)
            sink_.Write(HeaderRow(options_.format));
        else if (options_.format == Format::Rtf)
            sink_.Write(modReadings::RtfBeginning());
    }

    void WritePerson(const modReadings::UserProfile &person, const LineFacts &line) override {
        if (std::exchange(between_, true) && !BetweenPeople(options_).empty())
            sink_.Write(BetweenPeople(options_));
        sink_.Write(Bytes(person, line));
    }

    void WriteError(const LineFacts &line, std::string_view message) override {
        if (options_.format == Format::Json)
            sink_.Write(ErrorAsJson(line, message));
        else if (options_.numbers)
            sink_.Write(ErrorAsRow(options_.format, line, message));
    }

    void Finish() override {
        if (options_.format == Format::Rtf)
            sink_.Write(modReadings::rtfEnd);
    }

private:
    std::string Bytes(const modReadings::UserProfile &person, const LineFacts &line) const {
        if (options_.numbers)
            return options_.format == Format::Json ? NumbersAsJson(person, line)
                                                   : NumbersAsRow(options_.format, person, line);
        if (options_.explain)
            return options_.format == Format::Json
                       ? ExplanationAsJson(Explain(person, options_.topics), line)
                       : ExplanationAsText(Explain(person, options_.topics));
        const PersonReading reading = ReadAs(options_, person);
        if (options_.format == Format::Json)
            return ReadingAsJson(reading, line);
        return options_.format == Format::Rtf ? ReadingAsRtfBody(reading) : ReadingAsText(reading);
    }

    const Options &options_;
    ByteSink &sink_;
    bool between_; ///< whether the next person stands behind another
};

/// One file a person. A wrong line has none.
class FilesInFolder : public BatchWriter {
public:
    explicit FilesInFolder(const Options &options)
        : options_(options), ending_(EndingOf(options.format)) {
        if (options.format == Format::Pdf)
            engine_ = std::make_unique<PdfEngine>();
    }

    // Only now, so that a batch that is refused leaves no folder behind.
    void Begin() override {
        if (engine_ != nullptr && !PdfEngine::WhatIsMissing().isEmpty())
            throw Refusal(PdfEngine::WhatIsMissing(), ExitCode::CannotReadOrWrite);
        std::error_code error;
        std::filesystem::create_directories(options_.outputDir.toStdU16String(), error);
        if (error)
            throw Refusal(u"--output-dir: the directory \"%1\" cannot be made (%2)"_s.arg(
                              Excerpt(options_.outputDir),
                              // In English, where the system itself may speak another language.
                              QString::fromStdString(error.default_error_condition().message())),
                          ExitCode::CannotReadOrWrite);
    }

    void WritePerson(const modReadings::UserProfile &person, const LineFacts &line) override {
        const QString path =
            options_.outputDir + u'/' + options_.fileNames.Of(person, line.number, ending_);
        const QFileInfo present(path);
        if (options_.noClobber && (present.exists() || present.isSymLink()))
            return;
        const std::string bytes = BytesOf(options_, person, line.given, engine_.get());
        Output file(path, options_.noClobber ? Output::Kind::NewInFolder : Output::Kind::InFolder);
        file.Write(bytes);
        file.Finish();
    }

    void WriteError(const LineFacts &, std::string_view) override {}

    void Finish() override {}

private:
    const Options &options_;
    const QString ending_;
    std::unique_ptr<PdfEngine> engine_; ///< for PDFs; its process lives as long as the writer
};

} // namespace

std::unique_ptr<BatchWriter> MakeBatchWriter(const Options &options, ByteSink *sink, Place place) {
    if (options.outputDir.isEmpty())
        return std::make_unique<OneOutput>(options, *sink, place);
    return std::make_unique<FilesInFolder>(options);
}

std::string_view BetweenPeople(const Options &options) {
    if (!options.outputDir.isEmpty())
        return {};
    if (options.format == Format::Text)
        return "\n";
    return options.format == Format::Rtf ? modReadings::rtfPageBreak : std::string_view();
}

std::string AnswerTo(const modReadings::UserProfile &person, const modReadings::GivenName &given,
                     const Options &options) {
    if (options.explain && options.format == Format::Json)
        return ExplanationAsJson(Explain(person, options.topics));
    if (!options.numbers) {
        const auto engine = options.format == Format::Pdf ? std::make_unique<PdfEngine>() : nullptr;
        return BytesOf(options, person, given, engine.get());
    }
    if (options.format == Format::Json)
        return NumbersAsJson(person, {});
    return HeaderRow(options.format) + NumbersAsRow(options.format, person, {});
}
