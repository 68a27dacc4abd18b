// The memory of a batch does not grow with the number of its people: its peak with 20,000
// of them stays within a few MiB of that with 200.

#include "tests/tools/batch_lines.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace {

constexpr int few = 200;
constexpr int many = 20'000;
constexpr long mostMore = 4 * 1024; // KiB

using People = std::string (*)(int count);

/// No two lines next to each other are alike.
std::string JsonPeople(int count) {
    std::string lines;
    for (int index = 0; index < count; ++index)
        lines += R"({"first":"Ann)" + std::to_string(index) + R"(","last":"Lee","month":)" +
                 std::to_string(index % 12 + 1) + R"(,"day":)" + std::to_string(index % 31 + 1) +
                 R"(,"year":)" + std::to_string(1900 + index % 100) + "}\n";
    return lines;
}

std::string CsvPeople(int count) {
    std::string lines = "first,last,month,day,year\n";
    for (int index = 0; index < count; ++index)
        lines += "Ann" + std::to_string(index) + ",\"Lee\"," + std::to_string(index % 12 + 1) +
                 ',' + std::to_string(index % 31 + 1) + ',' + std::to_string(1900 + index % 100) +
                 '\n';
    return lines;
}

std::string WrongPeople(int count) {
    std::string lines;
    for (int index = 0; index < count; ++index)
        lines += R"({"first":"Ann)" + std::to_string(index) +
                 R"(","last":"Lee","month":13})"
                 "\n";
    return lines;
}

class BatchMemory : public FolderTest {
protected:
    struct Peak {
        long floor = 0;   ///< KiB that would be seen of a program that does nothing
        long program = 0; ///< KiB of orravane-report
    };

    /// The peak of a run over `count` people. Each of them has to be answered.
    Peak Measure(People people, int count, bool standardInput, int exitCode = 0) const {
        const std::string input = people(count);
        const std::string file = Make("people", input);
        Surroundings surroundings;
        surroundings.program = PEAK_MEMORY;
        surroundings.outputFile = Path("answers");
        // A build with the address sanitizer keeps freed memory aside to catch its use; not
        // so here, where memory is measured.
        const char *options = std::getenv("ASAN_OPTIONS");
        surroundings.environment["ASAN_OPTIONS"] =
            (options == nullptr ? std::string() : options + std::string(":")) +
            "quarantine_size_mb=0:thread_local_quarantine_size_kb=0:malloc_context_size=0";
        if (standardInput)
            surroundings.inputFile = file;
        const Finished run =
            RunProgram({Path("peak"), ORRAVANE_REPORT, "--batch", standardInput ? "-" : file,
                        "--topic", "Personal Day", "--today", "2026-11-16"},
                       {}, surroundings);
        EXPECT_EQ(run.exitCode, exitCode) << "signal " << run.signal;
        EXPECT_EQ(run.err.empty(), exitCode == 0);
        EXPECT_EQ(std::ranges::count(Read(Path("answers")), '\n'), count);
        std::remove(Path("answers").c_str());

        Peak peak;
        std::istringstream(Read(Path("peak"))) >> peak.floor >> peak.program;
        // Else it would be the floor that is seen, for 200 people and for 20,000.
        EXPECT_GT(peak.program, peak.floor);
        EXPECT_GT(peak.floor, 0);
        return peak;
    }

    void ExpectNoGrowth(People people, bool standardInput, int exitCode = 0) const {
        const Peak small = Measure(people, few, standardInput, exitCode);
        const Peak large = Measure(people, many, standardInput, exitCode);
        EXPECT_LE(large.program - small.program, mostMore)
            << large.program << " KiB for " << many << " people, " << small.program << " KiB for "
            << few;
    }
};

TEST_F(BatchMemory, DoesNotGrowWithTheLinesOfAFile) { ExpectNoGrowth(JsonPeople, false); }

TEST_F(BatchMemory, DoesNotGrowWithTheLinesOfStandardInput) { ExpectNoGrowth(JsonPeople, true); }

TEST_F(BatchMemory, DoesNotGrowWithRows) { ExpectNoGrowth(CsvPeople, false); }

TEST_F(BatchMemory, DoesNotGrowWithWrongLines) { ExpectNoGrowth(WrongPeople, false, 1); }

// The meter sees memory that is used: one person with a name of 15 MiB.
TEST_F(BatchMemory, IsSeenByTheMeter) {
    const auto longName = [](int count) {
        return R"({"first":")" + std::string(static_cast<std::size_t>(count) * 75'000, '-') +
               R"(","last":"Lee","month":3,"day":7,"year":1990})"
               "\n" +
               JsonPeople(count - 1);
    };
    const Peak usual = Measure(JsonPeople, few, false);
    const Peak large = Measure(longName, few, false, 1);
    EXPECT_GT(large.program - usual.program, 15 * 1024);
}

} // namespace
