#include "tools/batch.h"

#include "core/clock.h"
#include "tools/batch_writer.h"
#include "tools/line_reader.h"
#include "tools/people_lines.h"
#include "tools/progress.h"
#include "tools/text.h"

#include <cstdio>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool IsBlank(const std::string &line) { return line.find_first_not_of(" \t") == std::string::npos; }

/// One run over a batch of people.
class Batch {
public:
    explicit Batch(const Options &options)
        : options_(options), input_(options.batchFile), progress_(input_.Size(), options.verbosity),
          writer_(MakeBatchWriter(options)), number_(options.firstLine - 1) {}

    ExitCode Run() {
        LineReader::Found found{};
        while ((found = input_.Next(line_)) != LineReader::Found::End) {
            ++number_;
            if (IsBlank(line_) && found == LineReader::Found::Line)
                continue;
            if (!std::exchange(begun_, true) && Begin(found))
                continue;
            ReadLine(found);
            count_.bytes = input_.Passed();
            progress_.Show(count_);
        }
        writer_->Finish();
        progress_.Finish(count_);
        return count_.wrong == 0 ? ExitCode::Ok : ExitCode::SomeLinesWrong;
    }

private:
    /// Takes the first line that is not blank. Returns true when it was a header.
    bool Begin(LineReader::Found found) {
        bool header = false;
        try {
            header = lines_.Begin(line_);
            if (header && found == LineReader::Found::TooLong)
                throw Refusal(u"the header is longer than 1 MB"_s);
        } catch (const Refusal &refusal) {
            throw Refusal(u"--batch: line %1: %2"_s.arg(number_).arg(refusal.Line()));
        }
        writer_->Begin();
        return header;
    }

    void ReadLine(LineReader::Found found) {
        const modReadings::FixedClock oneDay(
            modReadings::Clock::Date()); // the same for the check and the reading
        LineFacts facts{number_, {}};
        std::optional<modReadings::UserProfile> person;
        try {
            if (found == LineReader::Found::TooLong)
                throw Refusal(u"the line is longer than 1 MB, which no person needs"_s);
            std::optional<PersonLine> parsed = lines_.Parse(line_);
            if (!parsed)
                return;
            facts.further = std::move(parsed->further);
            person = CheckPerson(parsed->person);
        } catch (const Refusal &refusal) {
            ReportWrong(facts, OneLine(refusal.Line()));
        }
        if (!person)
            return;
        if (options_.outputDir.isEmpty())
            progress_.ClearForOutput();
        writer_->WritePerson(*person, facts);
        ++count_.people;
    }

    void ReportWrong(const LineFacts &facts, const std::string &message) {
        progress_.Clear();
        std::fprintf(stderr, "orravane-report: line %lld: %s\n", number_, message.c_str());
        writer_->WriteError(facts, message);
        if (++count_.wrong == options_.maxErrors)
            throw Refusal(
                u"--max-errors: given up at line %1, after %2 wrong lines"_s.arg(number_).arg(
                    count_.wrong),
                ExitCode::SomeLinesWrong);
    }

    const Options &options_;
    LineReader input_;
    Progress progress_;
    std::unique_ptr<BatchWriter> writer_;
    PeopleLines lines_;
    std::string line_;
    long long number_; ///< of the line
    bool begun_ = false;
    BatchCount count_;
};

} // namespace

ExitCode RunBatch(const Options &options) { return Batch(options).Run(); }
