#include "tools/batch.h"

#include "tools/batch_jobs.h"
#include "tools/batch_line.h"

#include <optional>
#include <utility>

namespace {

/// One run over a batch of people.
class Batch {
public:
    explicit Batch(const Options &options)
        : options_(options), input_(options), progress_(input_.Size()) {
        if (options.outputDir.isEmpty())
            output_.emplace(options.output);
        writer_ = MakeBatchWriter(options, output_ ? &*output_ : nullptr);
    }

    ExitCode Run() {
        const auto begin = [this] { writer_->Begin(); };
        // Which files a folder gets before too many lines are wrong is decided line by line.
        const bool oneByOne = !options_.outputDir.isEmpty() && options_.maxErrors;
        if (options_.jobs > 1 && !oneByOne)
            AnswerInProcesses(options_, input_, output_ ? &*output_ : nullptr, begin, progress_,
                              wrong_);
        else
            AnswerHere();
        if (input_.HasBegun())
            writer_->Finish();
        if (output_)
            output_->Finish();
        return wrong_.Count() == 0 ? ExitCode::Ok : ExitCode::SomeLinesWrong;
    }

private:
    void AnswerHere() {
        BatchLine line;
        bool begun = false;
        for (long long people = 0;;) {
            const bool there = input_.Next(line);
            if (input_.HasBegun() && !std::exchange(begun, true))
                writer_->Begin();
            if (!there)
                break;
            progress_.ClearForOutput();
            if (const auto message = AnswerLine(line, input_.Lines(), *writer_)) {
                wrong_.Report(line.number, line.file, line.numberInFile, *message);
                wrong_.RefuseTooMany();
            }
            progress_.Show(input_.Passed(), ++people);
        }
    }

    const Options &options_;
    BatchInput input_;
    Progress progress_;
    WrongLines wrong_{options_, progress_};
    std::optional<Output> output_; ///< none with a folder
    std::unique_ptr<BatchWriter> writer_;
};

} // namespace

ExitCode RunBatch(const Options &options) { return Batch(options).Run(); }
