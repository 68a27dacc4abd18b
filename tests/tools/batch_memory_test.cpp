// The memory of a batch does not grow with the number of its people: with 20,000 of them its
// peak stays within a few MiB of that with 200.

#include "tests/tools/folder_test.h"
#include "tools/batch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include <malloc.h>
#include <zlib.h>

namespace {

constexpr int few = 200;
constexpr int many = 20'000;
constexpr long mostMore = 4 * 1024; // KiB

/// From here on the peak is that of what follows. What was freed goes back to the system before,
/// else what follows could use it unseen.
void BeginPeak() {
    malloc_trim(0);
    std::ofstream reset("/proc/self/clear_refs");
    EXPECT_TRUE(reset << '5' << std::flush);
}

/// The greatest resident size of this process since BeginPeak, in KiB.
long Peak() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word)
        if (word == "VmHWM:") {
            long size = 0;
            status >> size;
            return size;
        }
    ADD_FAILURE() << "no peak in /proc/self/status";
    return 0;
}

using Line = std::string (*)(int index);

/// No two next to each other are alike.
std::string JsonLine(int index) {
    return R"({"first":"Ann)" + std::to_string(index) + R"(","last":"Lee","month":)" +
           std::to_string(index % 12 + 1) + R"(,"day":7,"year":)" +
           std::to_string(1900 + index % 100) + "}\n";
}

std::string CsvLine(int index) {
    return index == 0 ? "first,last,month,day,year\n"
                      : "Ann" + std::to_string(index) + ",\"Lee\",3,7," +
                            std::to_string(1900 + index % 100) + '\n';
}

std::string WrongLine(int index) {
    return R"({"first":"Ann)" + std::to_string(index) + "\",\"month\":13}\n";
}

class BatchMemory : public FolderTest {
protected:
    /// The peak of a batch of `count` lines.
    long After(Line line, int count, ExitCode expected) const {
        std::ofstream people(Path("people"));
        for (int index = 0; index < count; ++index)
            people << line(index);
        people.close();
        Options options;
        options.task = Options::Task::Batch;
        options.format = Format::Json;
        options.topics = {u"Personal Day"};
        options.batchFiles = {QString::fromStdString(Path("people"))};
        options.output = QString::fromStdString(Path("answers"));
        testing::internal::CaptureStderr(); // to a file
        BeginPeak();
        EXPECT_EQ(RunBatch(options), expected);
        const long peak = Peak();
        EXPECT_EQ(testing::internal::GetCapturedStderr().empty(), expected == ExitCode::Ok);
        std::ifstream answers(Path("answers"));
        EXPECT_EQ(std::count(std::istreambuf_iterator<char>(answers), {}, '\n'),
                  line == CsvLine ? count - 1 : count);
        return peak;
    }
};

TEST_F(BatchMemory, DoesNotGrowWithItsPeople) {
    for (const auto &[line, expected] : {std::pair(Line(JsonLine), ExitCode::Ok),
                                         {Line(CsvLine), ExitCode::Ok},
                                         {Line(WrongLine), ExitCode::SomeLinesWrong}}) {
        const long small = After(line, few, expected);
        EXPECT_LE(After(line, many, expected) - small, mostMore) << "KiB";
    }
}

// Nor with the length of a line: one of 50 MB is answered and passed over, as is one of 50 MB
// of gzip, which has 50 KB.
TEST_F(BatchMemory, DoesNotGrowWithTheLengthOfALine) {
    const long before = After(JsonLine, few, ExitCode::Ok);
    const std::string piece(1'000'000, '-');
    std::ofstream plain(Path("plain"));
    const gzFile packed = gzopen(Path("packed").c_str(), "wb");
    for (int count = 0; count < 50; ++count) {
        plain << piece;
        gzwrite(packed, piece.data(), static_cast<unsigned>(piece.size()));
    }
    plain.close();
    gzclose(packed);
    for (const char *name : {"plain", "packed"}) {
        Options options;
        options.format = Format::Json;
        options.topics = {u"Personal Day"};
        options.batchFiles = {QString::fromStdString(Path(name))};
        options.output = QString::fromStdString(Path("answers"));
        testing::internal::CaptureStderr();
        EXPECT_EQ(RunBatch(options), ExitCode::SomeLinesWrong);
        EXPECT_NE(testing::internal::GetCapturedStderr().find("longer than 1 MB"),
                  std::string::npos);
    }
    EXPECT_LE(Peak() - before, 2 * mostMore) << "KiB";
}

// The meter sees memory that is used.
TEST_F(BatchMemory, IsSeenByTheMeter) {
    BeginPeak();
    const long before = Peak();
    const std::vector<char> much(64 * 1024 * 1024, 'x');
    EXPECT_GT(Peak() - before, static_cast<long>(much.size() / 1024 / 2));
}

} // namespace
