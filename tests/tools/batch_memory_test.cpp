// The memory of a batch does not grow with the number of its people: with 20,000 of them its
// peak stays within a few MiB of that with 200.

#include "tests/tools/folder_test.h"
#include "tools/batch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

constexpr int few = 200;
constexpr int many = 20'000;
constexpr long mostMore = 4 * 1024; // KiB

/// The greatest resident size of this process so far, in KiB.
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
    /// The peak behind a batch of `count` lines.
    long After(Line line, int count, ExitCode expected) const {
        std::ofstream people(Path("people"));
        for (int index = 0; index < count; ++index)
            people << line(index);
        people.close();
        Options options;
        options.task = Options::Task::Batch;
        options.format = Format::Json;
        options.topics = {u"Personal Day"};
        options.batchFile = QString::fromStdString(Path("people"));
        options.output = QString::fromStdString(Path("answers"));
        testing::internal::CaptureStderr(); // to a file
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
                                         {Line(WrongLine), ExitCode::Failed}}) {
        const long small = After(line, few, expected);
        EXPECT_LE(After(line, many, expected) - small, mostMore) << "KiB";
    }
}

// The meter sees memory that is used: one person with a name of 15 MiB.
TEST_F(BatchMemory, IsSeenByTheMeter) {
    const long before = Peak();
    const auto longName = [](int) {
        return R"({"first":")" + std::string(15 * 1024 * 1024, '-') + "\"}\n";
    };
    EXPECT_GT(After(longName, 1, ExitCode::Failed) - before, 15 * 1024);
}

} // namespace
