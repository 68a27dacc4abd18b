// Several processes give the bytes of one.

#include "core/clock.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"
#include "tools/batch.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <zlib.h>

namespace {

/// As long as this lives, the system has no room for messages between processes.
class NoRoomForMessages {
public:
    NoRoomForMessages() { isThere = true; }
    ~NoRoomForMessages() { isThere = false; }
    NoRoomForMessages(const NoRoomForMessages &) = delete;
    NoRoomForMessages &operator=(const NoRoomForMessages &) = delete;

    static inline bool isThere = false;
};

} // namespace

/// Stands in for the system's own.
extern "C" ssize_t send(int socket, const void *bytes, std::size_t count, int flags) {
    if (!NoRoomForMessages::isThere)
        return syscall(SYS_sendto, socket, bytes, count, flags, nullptr, 0);
    errno = ENOBUFS;
    return -1;
}

namespace {

class BatchJobs : public FolderTest {
protected:
    /// All that can be seen of a run.
    struct Seen {
        int code = -1;
        std::string refusal;
        std::string out; ///< to the file of --output
        std::string err;
        FileMap folder;
        friend bool operator==(const Seen &, const Seen &) = default;
    };

    Seen Run(Options options, int jobs) const {
        std::filesystem::remove_all(Path("d"));
        std::filesystem::remove(Path("out"));
        options.jobs = jobs;
        // A pipe's end is written as it goes; a descriptor stands for it here.
        const bool toFile = options.output.isEmpty() && options.outputDir.isEmpty();
        std::FILE *const out = std::fopen(Path("out").c_str(), "wb");
        if (toFile)
            options.output = "/dev/fd/" + QString::number(fileno(out));
        Seen seen;
        testing::internal::CaptureStderr();
        try {
            seen.code = static_cast<int>(RunBatch(options));
        } catch (const Refusal &refusal) {
            seen.code = static_cast<int>(refusal.Code());
            seen.refusal = OneLine(refusal.Line());
        }
        seen.err = testing::internal::GetCapturedStderr();
        std::fclose(out);
        seen.out = Read(Path("out"));
        if (!options.outputDir.isEmpty() && std::filesystem::exists(Path("d")))
            seen.folder = Files(Path("d"));
        return seen;
    }

    /// Expects the same of one and of several processes, and returns it.
    Seen Same(const Options &options) const {
        Seen one = Run(options, 1);
        for (const int jobs : {2, 5})
            EXPECT_TRUE(Run(options, jobs) == one) << jobs << " jobs, " << one.refusal;
        return one;
    }

    Options Of(const QStringList &names) const {
        Options options;
        options.task = Options::Task::Batch;
        options.format = Format::Json;
        options.topics = {u"Personal Day"};
        for (const QString &name : names)
            options.batchFiles << QString::fromStdString(Path(name.toStdString()));
        return options;
    }

    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
};

std::string Row(int index) {
    return "id" + std::to_string(index) + ",Ann" + std::to_string(index) + ",Lee,1990-03-" +
           (index % 28 < 9 ? "0" : "") + std::to_string(index % 28 + 1) + '\n';
}

/// `count` rows, each seventh of which is wrong and each ninth blank.
std::string Rows(int count) {
    std::string rows = "id,first,last,birthdate\n";
    for (int index = 0; index < count; ++index)
        rows += index % 7 == 3 ? "x,Ann,,\n" : index % 9 == 4 ? " \n" : Row(index);
    return rows;
}

TEST_F(BatchJobs, GiveTheBytesOfOneInEveryForm) {
    Make("people", Rows(2000));
    for (const bool numbers : {false, true})
        for (const Format format : numbers ? std::vector{Format::Json, Format::Csv, Format::Tsv}
                                           : std::vector{Format::Json, Format::Text, Format::Rtf}) {
            Options options = Of({"people"});
            options.numbers = numbers;
            options.format = format;
            options.head = !numbers;
            const Seen seen = Same(options);
            EXPECT_EQ(seen.code, 1);
            EXPECT_EQ(std::ranges::count(seen.err, '\n'), 2000 / 7 + 1);
            EXPECT_GT(seen.out.size(), 100'000U);
        }
}

TEST_F(BatchJobs, ExplainAsOneDoes) {
    Make("people", Rows(300));
    for (const Format format : {Format::Json, Format::Text}) {
        Options options = Of({"people"});
        options.format = format;
        options.explain = true;
        EXPECT_EQ(Same(options).code, 1);
    }
}

// A name in decomposed letters is told of in its place among the wrong lines, but is none.
TEST_F(BatchJobs, TellOfDecomposedNamesAsOneDoes) {
    std::string people;
    for (int index = 0; index < 40; ++index)
        people += index % 8 == 5 ? "{}\n"
                                 : R"({"first":"Zoe\u0301","last":"Lee","birthdate":"1990-03-07"})"
                                   "\n";
    Make("people", people);
    Options options = Of({"people"});
    Seen seen = Same(options);
    EXPECT_EQ(std::ranges::count(seen.err, '\n'), 40);
    ExpectLine(seen.err.substr(0, seen.err.find('\n')), {"line 1: first: not in composed letters"});
    EXPECT_NE(seen.err.find("line 6: first is missing"), std::string::npos);
    options.maxErrors = 2; // the second wrong line is the 14th
    seen = Same(options);
    EXPECT_EQ(std::ranges::count(seen.err, '\n'), 14);

    options.maxErrors.reset();
    options.normalize = true;
    seen = Same(options);
    EXPECT_EQ(std::ranges::count(seen.err, '\n'), 5); // the wrong lines
    EXPECT_EQ(seen.err.find("composed"), std::string::npos);
    EXPECT_NE(seen.out.find("ZO\u00C9"), std::string::npos);
}

TEST_F(BatchJobs, GiveTheFilesOfOne) {
    Make("people", Rows(300));
    Options options = Of({"people"});
    options.format = Format::Text;
    options.outputDir = QString::fromStdString(Path("d"));
    options.fileNames = FileNames("{last}-{line}");
    const Seen seen = Same(options);
    EXPECT_EQ(seen.code, 1);
    EXPECT_GT(seen.folder.size(), 200U);
    options.maxErrors = 5;
    // The fifth wrong row is the 32nd; four wrong and three blank ones stand before it.
    EXPECT_EQ(Same(options).folder.size(), 24U);
}

TEST_F(BatchJobs, GiveUpWhereOneDoes) {
    Make("people", Rows(600));
    for (const long long most : {1, 2, 50, 86, 87}) {
        for (const Format format : {Format::Json, Format::Text}) {
            Options options = Of({"people"});
            options.format = format;
            options.maxErrors = most;
            const Seen seen = Same(options);
            EXPECT_EQ(seen.code, 1);
            EXPECT_EQ(seen.refusal.empty(), most == 87);
            EXPECT_EQ(std::ranges::count(seen.err, '\n'), std::min(most, 86LL));
        }
    }
}

// Whatever stands behind a quotation mark that is left open, also where many are.
TEST_F(BatchJobs, ReadRowsThatAreLeftOpenAsOneDoes) {
    const std::string header = "id,first,last,birthdate\n";
    std::string now;
    std::string often = header;
    std::string always = header;
    std::string quoted = header;
    for (int index = 0; index < 500; ++index) {
        now += Row(index) + (index % 33 == 31 ? "1,\"Ann\nor Anna\",Lee,1990-03-07\n" : "");
        often += index % 3 == 0 ? "1,\"Ann\n" : index % 3 == 1 ? "x\n" : Row(index);
        always += "1,\"Ann\n";
        quoted += "1,\"An\"\"n\",\"Lee\",1990-03-07\n";
    }
    for (const std::string &input : {header + now, often, always, quoted}) {
        Make("people", input);
        EXPECT_NE(Same(Of({"people"})).out, "");
    }
}

TEST_F(BatchJobs, ReadSeveralFilesAsOneDoes) {
    Make("a.csv", Rows(100));
    Make("b.jsonl", R"({"first":"Ann","last":"Lee","birthdate":"1990-03-07"})"
                    "\n{}\n");
    Make("empty", "");
    const gzFile packed = gzopen(Path("c.gz").c_str(), "wb");
    const std::string rows = "last\tbirthdate\tfirst\nRay\t1991-04-08\tBob\n";
    gzwrite(packed, rows.data(), static_cast<unsigned>(rows.size()));
    gzclose(packed);
    Options options = Of({"a.csv", "empty", "b.jsonl", "c.gz", "a.csv"});
    options.numbers = true;
    const Seen seen = Same(options);
    EXPECT_EQ(seen.code, 1);
    // Lines count on; the message names the place in the file too.
    EXPECT_NE(seen.out.find(R"("line":105,)"), std::string::npos);
    EXPECT_NE(seen.err.find("orravane-report: line 103 (the file \"" + Shown(Path("b.jsonl")) +
                            "\", line 2): first is missing"),
              std::string::npos)
        << seen.err;
    EXPECT_NE(seen.out.find(R"("first":"BOB")"), std::string::npos);
}

// What was read before stands.
TEST_F(BatchJobs, AreRefusedWhereOneIs) {
    Make("a.csv", Rows(200));
    Make("wrong.csv", "first,last\nAnn,Lee\n");
    Make("broken.gz", "\x1F\x8B\x08half");
    for (const auto &[name, code, part] :
         {std::tuple("wrong.csv", 2, "lacks the column"), {"broken.gz", 3, "is gzip and"}}) {
        const Seen seen = Same(Of({"a.csv", name, "a.csv"}));
        EXPECT_EQ(seen.code, code);
        EXPECT_NE(seen.refusal.find(part), std::string::npos) << seen.refusal;
        EXPECT_EQ(std::ranges::count(seen.out, '\n'), 200 - 19); // blank ones
    }
    const Seen missing = Same(Of({"a.csv", "missing"}));
    EXPECT_EQ(missing.code, 3);
    EXPECT_EQ(missing.out, ""); // found out before the work
}

TEST_F(BatchJobs, ReadLinesOfAnyLength) {
    std::string people = "id,first,last,birthdate\n";
    for (int index = 0; index < 4; ++index)
        people += Row(index) + std::string(index % 2 == 0 ? 999'000 : 1'500'000, 'x') +
                  ",Ann,Lee,1990-03-07\n";
    Make("people", people);
    const Seen seen = Same(Of({"people"}));
    EXPECT_EQ(std::ranges::count(seen.out, '\n'), 8);
    EXPECT_EQ(std::ranges::count(seen.err, '\n'), 2);
}

TEST_F(BatchJobs, ReportAnOutputThatCannotBeWritten) {
    Make("people", Rows(2000));
    Options options = Of({"people"});
    options.output = "/dev/full";
    for (const int jobs : {1, 2}) {
        const Seen seen = Run(options, jobs);
        EXPECT_EQ(seen.code, 3);
        EXPECT_NE(seen.refusal.find("/dev/full: No space left"), std::string::npos) << seen.refusal;
    }
}

// A worker that lives but cannot be told anything would be waited for without end.
TEST_F(BatchJobs, EndWhereAWorkerCannotBeReached) {
    Make("people", "{}\n");
    const NoRoomForMessages none;
    const Seen seen = Run(Of({"people"}), 2);
    EXPECT_EQ(seen.code, 3);
    EXPECT_EQ(seen.refusal,
              "--jobs: a process cannot be told what to do (No buffer space available)");
}

} // namespace
