#include "tools/batch_writer.h"

#include "tools/output.h"
#include "tools/reading.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// One JSON object a line, all in one output.
class JsonLines : public BatchWriter {
public:
    explicit JsonLines(const Options &options) : options_(options), output_(options.output) {}

    void Begin() override {}

    void WritePerson(const modReadings::UserProfile &person, const LineFacts &line) override {
        output_.Write(ReadingAsJson(ReadPerson(person, options_.topics), line));
    }

    void WriteError(const LineFacts &line, std::string_view message) override {
        output_.Write(ErrorAsJson(line, message));
    }

    void Finish() override { output_.Finish(); }

private:
    const Options &options_;
    Output output_;
};

/// One file a person, named after the line. A wrong line has none.
class FilesInFolder : public BatchWriter {
public:
    explicit FilesInFolder(const Options &options)
        : options_(options), ending_(options.format == Format::Rtf ? u"rtf"_s : u"txt"_s) {}

    // Only now, so that a batch that is refused leaves no folder behind.
    void Begin() override {
        if (!QDir().mkpath(options_.outputDir))
            throw Refusal(u"--output-dir: the folder \"%1\" cannot be made"_s.arg(
                              Excerpt(options_.outputDir)),
                          ExitCode::CannotReadOrWrite);
    }

    void WritePerson(const modReadings::UserProfile &person, const LineFacts &line) override {
        const QString name = u"person-%1.%2"_s.arg(line.number, 6, 10, '0'_L1).arg(ending_);
        Output file(QDir(options_.outputDir).filePath(name), Output::Kind::InFolder);
        file.Write(ReadingAs(options_.format, ReadPerson(person, options_.topics)));
        file.Finish();
    }

    void WriteError(const LineFacts &, std::string_view) override {}

    void Finish() override {}

private:
    const Options &options_;
    const QString ending_;
};

} // namespace

std::unique_ptr<BatchWriter> MakeBatchWriter(const Options &options) {
    if (options.outputDir.isEmpty())
        return std::make_unique<JsonLines>(options);
    return std::make_unique<FilesInFolder>(options);
}
