#include "tools/batch.h"

#include "core/clock.h"
#include "tools/output.h"
#include "tools/people_lines.h"
#include "tools/progress.h"
#include "tools/reading.h"
#include "tools/text.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool IsBlank(const std::string &line) { return line.find_first_not_of(" \t") == std::string::npos; }

/// One run over a batch of people.
class Batch {
public:
    Batch(const Options &options, std::istream &input, long long inputSize)
        : options_(options), input_(input), progress_(inputSize),
          output_(options.outputDir.isEmpty() ? options.output : QString()) {}

    ExitCode Run() {
        while (NextLine()) {
            if (IsBlank(line_))
                continue;
            if (!std::exchange(begun_, true) && Begin())
                continue;
            ReadLine();
        }
        if (input_.bad()) // broken off, which is not the same as having come to its end
            throw Refusal(u"--batch: reading the input stopped before its end (%1)"_s.arg(
                              QString::fromLocal8Bit(std::strerror(errno))),
                          number_ == 0 ? ExitCode::WrongInput : ExitCode::Failed);
        if (options_.outputDir.isEmpty())
            output_.Finish();
        return wrong_ == 0 ? ExitCode::Ok : ExitCode::Failed;
    }

private:
    bool NextLine() {
        if (!std::getline(input_, line_))
            return false;
        bytes_ += static_cast<long long>(line_.size()) + 1;
        if (++number_ == 1 && line_.starts_with("\xEF\xBB\xBF"))
            line_.erase(0, 3);
        if (line_.ends_with('\r'))
            line_.pop_back();
        return true;
    }

    /// Takes the first line that is not blank. Returns true when it was a header.
    bool Begin() {
        bool header = false;
        try {
            header = lines_.Begin(line_);
        } catch (const Refusal &refusal) {
            throw Refusal(u"--batch: line %1: %2"_s.arg(number_).arg(refusal.Line()));
        }
        // Made only now, so that a batch that is refused leaves no folder behind.
        if (!options_.outputDir.isEmpty() && !QDir().mkpath(options_.outputDir))
            throw Refusal(u"--output-dir: the folder \"%1\" cannot be made"_s.arg(
                Excerpt(options_.outputDir)));
        return header;
    }

    void ReadLine() {
        const modReadings::FixedClock oneDay(
            modReadings::Clock::Date()); // the same for the check and the reading
        std::optional<modReadings::UserProfile> person;
        try {
            person = CheckPerson(lines_.Parse(line_));
        } catch (const Refusal &refusal) {
            ReportWrong(refusal.Line());
        }
        if (person)
            Write(ReadingAs(options_.format, ReadPerson(*person, options_.topics)));
        progress_.Show(bytes_, ++people_);
    }

    void ReportWrong(const QString &message) {
        ++wrong_;
        progress_.Clear();
        const std::string line = OneLine(message);
        std::fprintf(stderr, "orravane-report: line %lld: %s\n", number_, line.c_str());
        if (options_.outputDir.isEmpty())
            output_.Write(ErrorAsJson(number_, line));
    }

    void Write(const std::string &reading) {
        if (options_.outputDir.isEmpty()) {
            progress_.ClearForOutput();
            output_.Write(reading);
            return;
        }
        const QString name = u"person-%1.%2"_s.arg(number_, 6, 10, '0'_L1)
                                 .arg(options_.format == Format::Rtf ? "rtf"_L1 : "txt"_L1);
        Output file(QDir(options_.outputDir).filePath(name), Output::Kind::InFolder);
        file.Write(reading);
        file.Finish();
    }

    const Options &options_;
    std::istream &input_;
    Progress progress_;
    Output output_;
    PeopleLines lines_;
    std::string line_;
    long long number_ = 0; ///< of the line, from 1
    bool begun_ = false;
    long long bytes_ = 0;
    long long people_ = 0;
    long long wrong_ = 0;
};

} // namespace

ExitCode RunBatch(const Options &options) {
    if (options.batchFile == "-"_L1) {
        std::ios::sync_with_stdio(false); // takes what a pipe has, line by line
        return Batch(options, std::cin, 0).Run();
    }
    std::ifstream file(options.batchFile.toStdString());
    const QFileInfo info(options.batchFile);
    if (!file || info.isDir())
        throw Refusal(u"--batch: the file \"%1\" cannot be read (%2)"_s.arg(
            Excerpt(options.batchFile),
            QString::fromLocal8Bit(std::strerror(file ? EISDIR : errno))));
    return Batch(options, file, info.size()).Run();
}
