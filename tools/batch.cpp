#include "tools/batch.h"

#include "core/clock.h"
#include "tools/excerpt.h"
#include "tools/one_line.h"
#include "tools/output.h"
#include "tools/people_lines.h"
#include "tools/progress.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>

namespace {

bool IsBlank(const std::string &line) { return line.find_first_not_of(" \t") == std::string::npos; }

/// One run over a batch of people.
class Batch {
public:
    Batch(const Options &options, std::istream &input, long long inputSize)
        : options_(options), input_(input), progress_(inputSize),
          output_(options.outputDir.isEmpty() ? options.output : QString()) {}

    BatchResult Run(QString &complaint) {
        bool begun = false;
        while (NextLine()) {
            if (IsBlank(line_))
                continue;
            if (!begun) {
                begun = true;
                const bool header = lines_.Begin(line_, complaint);
                if (complaint.isEmpty())
                    MakeFolder(complaint); // not before it is known that there is something to read
                else
                    complaint = QStringLiteral("--batch: line %1: %2").arg(number_).arg(complaint);
                if (!complaint.isEmpty())
                    return BatchResult::Unusable;
                if (header)
                    continue;
            }
            ReadLine();
            if (!error_.isEmpty()) {
                complaint = error_;
                return BatchResult::Broken;
            }
        }
        if (input_.bad()) { // broken off, which is not the same as having come to its end
            complaint = QStringLiteral("--batch: the input cannot be read to its end (%1)")
                            .arg(QString::fromLocal8Bit(std::strerror(errno)));
            return number_ == 0 ? BatchResult::Unusable : BatchResult::Broken;
        }
        if (options_.outputDir.isEmpty()) {
            output_.Finish();
            complaint = output_.Error();
        }
        if (!complaint.isEmpty())
            return BatchResult::Broken;
        return wrong_ == 0 ? BatchResult::AllRead : BatchResult::SomeWrong;
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

    void MakeFolder(QString &complaint) const {
        if (!options_.outputDir.isEmpty() && !QDir().mkpath(options_.outputDir))
            complaint = QStringLiteral("--output-dir: the folder \"%1\" cannot be made")
                            .arg(Excerpt(options_.outputDir));
    }

    void ReadLine() {
        const modReadings::FixedClock oneDay(modReadings::Clock::Date()); // for the whole person
        QString complaint;
        const auto input = lines_.Parse(line_, complaint);
        const auto person = input ? CheckPerson(*input, {}, complaint) : std::nullopt;
        if (person)
            Write(ReadingsAs(options_.format, ReadPerson(*person, options_.topics)));
        else
            Report(complaint);
        progress_.Show(bytes_, ++people_);
    }

    void Report(const QString &complaint) {
        ++wrong_;
        progress_.Clear();
        const std::string line = OneLine(complaint);
        std::fprintf(stderr, "orravane-report: line %lld: %s\n", number_, line.c_str());
        if (options_.outputDir.isEmpty())
            WriteTo(output_, ErrorAsJson(number_, line));
    }

    void Write(const std::string &reading) {
        if (options_.outputDir.isEmpty()) {
            progress_.MakeRoomForOutput();
            WriteTo(output_, reading);
            return;
        }
        const QString name =
            QStringLiteral("person-%1.%2")
                .arg(number_, 6, 10, QLatin1Char('0'))
                .arg(QLatin1StringView(options_.format == Format::Rtf ? "rtf" : "txt"));
        Output file(QDir(options_.outputDir).filePath(name), QStringLiteral("--output-dir"));
        WriteTo(file, reading);
        file.Finish();
        error_ = file.Error();
    }

    void WriteTo(Output &output, const std::string &bytes) {
        output.Write(bytes);
        error_ = output.Error();
    }

    const Options &options_;
    std::istream &input_;
    Progress progress_;
    Output output_;
    PeopleLines lines_;
    std::string line_;
    long long number_ = 0; ///< of the line, from 1
    long long bytes_ = 0;
    long long people_ = 0;
    long long wrong_ = 0;
    QString error_;
};

} // namespace

BatchResult RunBatch(const Options &options, QString &complaint) {
    if (options.batchFile == QLatin1StringView("-")) {
        std::ios::sync_with_stdio(false); // takes what a pipe has, line by line
        return Batch(options, std::cin, 0).Run(complaint);
    }
    std::ifstream file(options.batchFile.toStdString());
    if (!file || QFileInfo(options.batchFile).isDir()) {
        complaint = QStringLiteral("--batch: the file \"%1\" cannot be read (%2)")
                        .arg(Excerpt(options.batchFile),
                             QString::fromLocal8Bit(std::strerror(file ? EISDIR : errno)));
        return BatchResult::Unusable;
    }
    return Batch(options, file, QFileInfo(options.batchFile).size()).Run(complaint);
}
