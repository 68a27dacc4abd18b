#include "tools/batch_jobs.h"

#include "tools/batch_line.h"
#include "tools/refusal.h"
#include "tools/worker_processes.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <exception>
#include <optional>
#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t slotsOfAWorker = 2;
constexpr std::size_t slotSize = 8 * LineReader::longestLine; // a header, an open row, the lines
constexpr std::size_t fullChunk = 262'144;                    // bytes of lines
constexpr std::size_t linesOfReadings = 8;
constexpr std::size_t linesOfNumbers = 512;

/// How many lines a chunk has at most: as many as are soon done, and as make it worth while.
std::size_t MostLines(const Options &options) {
    if (options.format == Format::Pdf)
        return 1;
    return options.numbers ? linesOfNumbers : linesOfReadings;
}

/// The kinds of WorkerMessage.
enum Kind : std::uint32_t {
    Chunk,   ///< to the worker: there are lines in the slot
    Answer,  ///< from the worker: what there is to know of its answer is in the slot
    Write,   ///< to the worker: write its bytes from `first` to `second`
    Written, ///< from the worker: it has
    Failed   ///< from the worker: exit code `second`, a message in the slot
};

/// Puts numbers and texts into a slot, one behind the other.
class Packer {
public:
    explicit Packer(char *slot) : slot_(slot) {}

    void Put(std::uint64_t number) { PutBytes(&number, sizeof number); }
    void Put(std::string_view text) {
        Put(std::uint64_t{text.size()});
        PutBytes(text.data(), text.size());
    }
    std::size_t Size() const { return size_; }

private:
    void PutBytes(const void *bytes, std::size_t count) {
        if (count > slotSize - size_)
            throw Refusal(u"--jobs: a piece of the work is too large"_s,
                          ExitCode::CannotReadOrWrite);
        if (count != 0)
            std::memcpy(slot_ + size_, bytes, count);
        size_ += count;
    }

    char *slot_;
    std::size_t size_ = 0;
};

/// Takes them out again, in the same order.
class Unpacker {
public:
    explicit Unpacker(const char *slot) : at_(slot) {}

    std::uint64_t Number() {
        std::uint64_t number = 0;
        std::memcpy(&number, at_, sizeof number);
        at_ += sizeof number;
        return number;
    }
    std::string_view Text() {
        const std::size_t size = Number();
        at_ += size;
        return {at_ - size, size};
    }

private:
    const char *at_;
};

/// The slots of all workers, in memory that they and the parent share.
class Slots {
public:
    explicit Slots(char *memory) : memory_(memory) {}
    static std::size_t SizeFor(std::size_t workers) { return workers * slotsOfAWorker * slotSize; }

    char *Of(std::size_t worker, std::size_t slot) const {
        return memory_ + (worker * slotsOfAWorker + slot) * slotSize;
    }

private:
    char *memory_;
};

struct Bytes : ByteSink {
    void Write(std::string_view more) override { bytes += more; }
    std::string bytes;
};

/// What one of the processes does.
class Worker {
public:
    Worker(const Options &options, Output *output, const WorkerSeat &seat)
        : options_(options), output_(output), memory_(seat.memory), worker_(seat.worker),
          parent_(seat.parent) {}

    [[noreturn]] void Run() {
        std::deque<WorkerMessage> waiting;
        for (;;) {
            if (waiting.empty())
                waiting.push_back(parent_.Receive());
            while (const auto message = parent_.ReceiveIfThere())
                waiting.push_back(*message);
            // Who may write writes first: others wait for it.
            auto next =
                std::ranges::find(waiting, std::uint32_t{Kind::Write}, &WorkerMessage::kind);
            if (next == waiting.end())
                next = waiting.begin();
            const WorkerMessage message = *next;
            waiting.erase(next);
            try {
                if (message.kind == Kind::Write)
                    WriteBytes(message);
                else
                    AnswerChunk(message.slot);
            } catch (const Refusal &refusal) {
                Packer packer(memory_.Of(worker_, message.slot));
                packer.Put(std::string_view(refusal.Line().toStdString()));
                parent_.Send({Failed, message.slot, 0, static_cast<std::uint64_t>(refusal.Code())});
            }
        }
    }

private:
    /// What is told of a line.
    struct Message {
        std::uint64_t number;
        std::uint64_t wrong; ///< 1 for a wrong line, 0 for a remark
        std::uint64_t end;   ///< where the bytes of its answer end
        std::string text;
    };

    void AnswerChunk(std::uint32_t slot) {
        Unpacker chunk(memory_.Of(worker_, slot));
        const std::string_view header = chunk.Text();
        if (header != header_ || !begun_) {
            lines_ = PeopleLines(options_.delimiter);
            header_ = header;
            begun_ = true;
            if (!header.empty())
                lines_.Begin(header_);
        }
        lines_.ContinueBehind(std::string(chunk.Text()));

        Bytes &answer = answers_[slot];
        answer.bytes.clear();
        // A writer of files has the engine of its PDFs, which takes its time to start.
        if (writer_ == nullptr || options_.outputDir.isEmpty())
            writer_ = MakeBatchWriter(options_, &answer, Place::Behind);
        std::vector<Message> messages;
        std::uint64_t people = 0;
        while (const std::uint64_t number = chunk.Number()) { // 0 ends them
            line_.number = static_cast<long long>(number);
            line_.tooLong = chunk.Number() != 0;
            line_.text = chunk.Text();
            LineAnswer answered = AnswerLine(line_, lines_, options_.normalize, *writer_);
            people += answered.person ? 1 : 0;
            if (answered.wrong)
                messages.push_back({number, 1, answer.bytes.size(), std::move(*answered.wrong)});
            if (answered.remark)
                messages.push_back({number, 0, answer.bytes.size(), std::move(*answered.remark)});
        }

        Packer packer(memory_.Of(worker_, slot));
        packer.Put(std::string_view(lines_.OpenRows()));
        packer.Put(people);
        packer.Put(std::uint64_t{answer.bytes.size()});
        packer.Put(std::uint64_t{messages.size()});
        for (const Message &each : messages) {
            packer.Put(each.number);
            packer.Put(each.wrong);
            packer.Put(each.end);
            packer.Put(std::string_view(each.text));
        }
        parent_.Send({Answer, slot, 0, 0});
    }

    void WriteBytes(const WorkerMessage &message) {
        output_->Write(std::string_view(answers_[message.slot].bytes)
                           .substr(message.first, message.second - message.first));
        parent_.Send({Written, message.slot, 0, 0});
    }

    const Options &options_;
    Output *const output_;
    const Slots memory_;
    const std::size_t worker_;
    const ParentChannel parent_;
    PeopleLines lines_;
    std::string header_;
    bool begun_ = false;
    BatchLine line_;
    std::array<Bytes, slotsOfAWorker> answers_;
    std::unique_ptr<BatchWriter> writer_;
};

/// The parent: hands out chunks and has their answers written in order.
class Dispatcher {
public:
    Dispatcher(const Options &options, BatchInput &input, Output *output,
               const std::function<void()> &begin, Progress &progress, WrongLines &wrong)
        : options_(options), input_(input), begin_(begin), progress_(progress), wrong_(wrong),
          free_(static_cast<std::size_t>(options.jobs), {1, 0}),
          memory_(Slots::SizeFor(free_.size())), slots_(memory_.Data()),
          workers_(free_.size(), memory_, output != nullptr ? output->Descriptor() : -1,
                   [&](const WorkerSeat &seat) { Worker(options, output, seat).Run(); }) {}

    /// Returns how many people were read.
    long long Run() {
        ReadLine();
        for (;;) {
            while (lineThere_ && MayHandOut())
                HandOut();
            if (pieces_.empty())
                break;
            Listen();
            while (!pieces_.empty() && pieces_.front().state == State::Answered)
                TakeAnswer();
        }
        if (inputFailure_)
            std::rethrow_exception(inputFailure_);
        return people_;
    }

private:
    enum class State { InWork, Answered, Writing };

    /// A chunk that a worker has.
    struct Piece {
        std::size_t worker;
        std::uint32_t slot;
        std::size_t file;
        long long before;      ///< the number of the line before its file
        bool mayLeaveOpen;     ///< whether rows of CSV may go on in the next chunk
        std::size_t lines = 0; ///< how many it has
        long long people = 0;  ///< who were read
        long long passed = 0;  ///< bytes of the input behind it
        State state = State::InWork;
        bool failed = false;
        ExitCode code = ExitCode::Ok; ///< with which it failed
    };

    /// The line that comes next, if there is one.
    void ReadLine() {
        try {
            lineThere_ = input_.Next(line_);
            if (input_.HasBegun() && !std::exchange(begun_, true))
                begin_();
        } catch (const Refusal &) {
            inputFailure_ = std::current_exception(); // when all before it is written
            lineThere_ = false;
        }
    }

    /// Whether a worker has room, and how the lines before go out is known well enough.
    bool MayHandOut() const {
        if (std::ranges::all_of(free_, [](const auto &each) { return each.empty(); }))
            return false;
        return pieces_.empty() || !pieces_.back().mayLeaveOpen ||
               pieces_.back().state != State::InWork || pieces_.back().file != line_.file;
    }

    void HandOut() {
        const auto freest =
            std::ranges::max_element(free_, {}, [](const auto &each) { return each.size(); });
        const auto worker = static_cast<std::size_t>(freest - free_.begin());
        const std::uint32_t slot = freest->back();
        freest->pop_back();

        if (line_.file != file_)
            openRows_.clear();
        file_ = line_.file;
        Piece piece{worker, slot, file_, line_.number - line_.numberInFile, !openRows_.empty()};
        const bool isCsv = !input_.Header().empty();
        const std::size_t mostLines = MostLines(options_);
        Packer packer(slots_.Of(worker, slot));
        packer.Put(std::string_view(input_.Header()));
        packer.Put(std::string_view(std::exchange(openRows_, {})));
        do {
            // It takes an odd number of quotation marks to leave a row open.
            if (isCsv && std::ranges::count(line_.text, '"') % 2 != 0)
                piece.mayLeaveOpen = true;
            packer.Put(static_cast<std::uint64_t>(line_.number));
            packer.Put(std::uint64_t{line_.tooLong ? 1U : 0U});
            packer.Put(std::string_view(line_.text));
            ++piece.lines;
            piece.passed = input_.Passed();
            ReadLine();
        } while (lineThere_ && line_.file == file_ && piece.lines < mostLines &&
                 packer.Size() < fullChunk + input_.Header().size());
        packer.Put(std::uint64_t{0});
        workers_.Send(worker, {Chunk, slot, 0, 0});
        pieces_.push_back(piece);
    }

    /// Waits for what one of the workers says.
    void Listen() {
        const WorkerProcesses::Received received = workers_.Receive();
        const WorkerMessage &message = received.message;
        const auto piece = std::ranges::find_if(pieces_, [&](const Piece &each) {
            return each.worker == received.worker && each.slot == message.slot;
        });
        if (message.kind == Written) {
            Finish();
            return;
        }
        piece->state = State::Answered;
        piece->failed = message.kind == Failed;
        piece->code = static_cast<ExitCode>(message.second);
        if (!piece->failed && &*piece == &pieces_.back())
            openRows_ = Unpacker(slots_.Of(received.worker, message.slot)).Text();
    }

    /// Tells what there is to tell of the first chunk and has its bytes written.
    void TakeAnswer() {
        Piece &piece = pieces_.front();
        Unpacker answer(slots_.Of(piece.worker, piece.slot));
        if (piece.failed) {
            const std::string_view line = answer.Text();
            throw Refusal(QString::fromUtf8(line), piece.code);
        }
        answer.Text(); // the open rows
        piece.people = static_cast<long long>(answer.Number());
        std::uint64_t end = answer.Number();
        for (std::uint64_t left = answer.Number(); left != 0 && !wrong_.AreTooMany(); --left) {
            const auto number = static_cast<long long>(answer.Number());
            const bool wrong = answer.Number() != 0;
            const std::uint64_t endOfAnswer = answer.Number();
            const std::string text(answer.Text());
            if (wrong)
                wrong_.Report(number, piece.file, number - piece.before, text);
            else
                wrong_.Remark(number, piece.file, number - piece.before, text);
            if (wrong_.AreTooMany())
                end = endOfAnswer;
        }
        const std::uint64_t begin =
            std::exchange(anyWritten_, anyWritten_ || end != 0)
                ? 0
                : std::min<std::uint64_t>(BetweenPeople(options_).size(), end);
        if (begin == end) {
            Finish();
            return;
        }
        progress_.ClearForOutput();
        workers_.Send(piece.worker, {Write, piece.slot, begin, end});
        piece.state = State::Writing;
    }

    /// The first chunk is done.
    void Finish() {
        const Piece piece = pieces_.front();
        pieces_.pop_front();
        free_[piece.worker].push_back(piece.slot);
        wrong_.RefuseTooMany();
        people_ += piece.people;
        progress_.Show({piece.passed, people_, wrong_.Count()});
    }

    const Options &options_;
    BatchInput &input_;
    const std::function<void()> &begin_;
    Progress &progress_;
    WrongLines &wrong_;
    std::vector<std::vector<std::uint32_t>> free_; ///< the slots of each worker
    SharedMemory memory_;
    const Slots slots_;
    WorkerProcesses workers_;
    std::deque<Piece> pieces_; ///< in the order of the lines
    BatchLine line_;           ///< the line that comes next
    bool lineThere_ = false;
    bool begun_ = false;
    std::exception_ptr inputFailure_;
    std::size_t file_ = 0; ///< of the latest chunk
    std::string openRows_; ///< that the latest chunk has left
    bool anyWritten_ = false;
    long long people_ = 0;
};

} // namespace

void WorkIfStartedFor(const Options &options) {
    const auto seat = WorkerProcesses::SeatOfThisProcess();
    if (!seat)
        return;
    std::optional<Output> output;
    if (options.outputDir.isEmpty())
        output.emplace(options.output, Output::Kind::OfParent);
    Worker(options, output ? &*output : nullptr, *seat).Run();
}

long long AnswerInProcesses(const Options &options, BatchInput &input, Output *output,
                            const std::function<void()> &begin, Progress &progress,
                            WrongLines &wrong) {
    return Dispatcher(options, input, output, begin, progress, wrong).Run();
}
