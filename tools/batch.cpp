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
        : options_(options), input_(options), progress_(input_.Size(), options.verbosity) {
        if (options.outputDir.isEmpty())
            output_.emplace(options.output);
        writer_ = MakeBatchWriter(options, output_ ? &*output_ : nullptr);
    }

    ExitCode Run() {
        const auto begin = [this] { writer_->Begin(); };
        // Which files a folder gets before too many lines are wrong is decided line by line.
        const bool oneByOne = !options_.outputDir.isEmpty() && options_.maxErrors;
        if (options_.jobs > 1 && !oneByOne)
            people_ = AnswerInProcesses(options_, input_, output_ ? &*output_ : nullptr, begin,
                                        progress_, wrong_);
        else
            AnswerHere();
        if (input_.HasBegun())
            writer_->Finish();
        if (output_)
            output_->Finish();
        progress_.Finish(Count());
        return wrong_.Count() == 0 ? ExitCode::Ok : ExitCode::SomeLinesWrong;
    }

private:
    void AnswerHere() {
        BatchLine line;
        bool begun = false;
        for (;;) {
            const bool there = input_.Next(line);
            if (input_.HasBegun() && !std::exchange(begun, true))
                writer_->Begin();
            if (!there)
                break;
            progress_.ClearForOutput();
            const LineAnswer answer =
                AnswerLine(line, input_.Lines(), options_.normalize, *writer_);
            if (answer.wrong) {
                wrong_.Report(line.number, line.file, line.numberInFile, *answer.wrong);
                wrong_.RefuseTooMany();
            }
            if (answer.remark)
                wrong_.Remark(line.number, line.file, line.numberInFile, *answer.remark);
            people_ += answer.person ? 1 : 0;
            progress_.Show(Count());
        }
    }

    BatchCount Count() const { return {input_.Passed(), people_, wrong_.Count()}; }

    const Options &options_;
    BatchInput input_;
    Progress progress_;
    WrongLines wrong_{options_, progress_};
    std::optional<Output> output_; ///< none with a folder
    std::unique_ptr<BatchWriter> writer_;
    long long people_ = 0;
};

} // namespace

ExitCode RunBatch(const Options &options) {
    WorkIfStartedFor(options);
    return Batch(options).Run();
}
