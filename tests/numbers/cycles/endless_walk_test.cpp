// For a name without a valued letter and a positive age the walk of the Essence has no end.
// Here each such person is read by a program of its own, which gets a second of processor
// time. It has to use that up and be stopped for it: a program that returned, crashed, or
// waited for something would end otherwise.

#include <gtest/gtest.h>

#include <csignal>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Person {
    const char *title;
    std::vector<std::string> arguments; ///< names, year of birth, current year
    int number = 0;                     ///< what comes out, if anything does
    bool optimized = false;             ///< by which of the two programs it is read
};

void PrintTo(const Person &person, std::ostream *out) {
    *out << person.title << (person.optimized ? "Optimized" : "AsBuilt");
}

struct Outcome {
    std::string output;
    int status = 0;           ///< as wait4 gives it
    double processorTime = 0; ///< seconds
};

/// How long a walk may go on by the clock on the wall, should it not use the processor.
constexpr unsigned wallLimit = 90;

Outcome Read(const Person &person) {
    // The walk as this build compiles it, or the same at the highest optimization.
    const std::string program = person.optimized ? ESSENCE_WALK_O3 : ESSENCE_WALK;
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");

    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("no child");
    if (child == 0) {
        // A second of processor time, and no core file for running over it.
        const rlimit processor{1, 3};
        const rlimit core{0, 0};
        if (setrlimit(RLIMIT_CPU, &processor) != 0 || setrlimit(RLIMIT_CORE, &core) != 0 ||
            dup2(ends[1], STDOUT_FILENO) < 0)
            _exit(3);
        std::signal(SIGXCPU, SIG_DFL);
        std::signal(SIGALRM, SIG_DFL);
        alarm(wallLimit);
        close(ends[0]);
        close(ends[1]);
        std::vector<char *> arguments;
        arguments.push_back(const_cast<char *>(program.c_str()));
        for (const std::string &argument : person.arguments)
            arguments.push_back(const_cast<char *>(argument.c_str()));
        arguments.push_back(nullptr);
        execv(program.c_str(), arguments.data());
        _exit(4);
    }

    close(ends[1]);
    Outcome outcome;
    char buffer[256];
    for (ssize_t got = 0; (got = read(ends[0], buffer, sizeof buffer)) > 0;)
        outcome.output.append(buffer, static_cast<std::size_t>(got));
    close(ends[0]);
    rusage usage{};
    if (wait4(child, &outcome.status, 0, &usage) != child)
        throw std::runtime_error("lost the child");
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    outcome.processorTime = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    return outcome;
}

/// Each person for each of the two programs.
std::vector<Person> ByBothPrograms(const std::vector<Person> &persons) {
    std::vector<Person> both = persons;
    for (Person person : persons) {
        person.optimized = true;
        both.push_back(std::move(person));
    }
    return both;
}

/// Seconds of processor time. The kernel measures its limit more coarsely than it reports
/// what was used, so this is well below the limit, and far above what a walk needs that ends.
constexpr double muchTime = 0.5;

class EndlessWalk : public ::testing::TestWithParam<Person> {};

TEST_P(EndlessWalk, IsStoppedWhileItIsAtWork) {
    const Outcome outcome = Read(GetParam());
    EXPECT_TRUE(outcome.output.ends_with("begins\n")) << outcome.output;
    ASSERT_FALSE(WIFEXITED(outcome.status)) << "returned: " << outcome.output;
    ASSERT_TRUE(WIFSIGNALED(outcome.status));
    EXPECT_EQ(WTERMSIG(outcome.status), SIGXCPU) << "crashed, or did nothing";
    EXPECT_GT(outcome.processorTime, muchTime);
}

INSTANTIATE_TEST_SUITE_P(Names, EndlessWalk,
                         ::testing::ValuesIn(ByBothPrograms({
                             {"FirstNameOfBlanks", {"   ", "", "SMITH", "1985", "2026"}},
                             {"FirstNameEmpty", {"", "", "SMITH", "1985", "2026"}},
                             {"FirstNameOfDigits", {"007", "", "SMITH", "1985", "2026"}},
                             {"FirstNameOfSigns", {"-'", "", "SMITH", "2025", "2026"}},
                             {"MiddleNameOfDigits", {"ANNA", "42", "SMITH", "1985", "2026"}},
                             {"MiddleNameOfSigns", {"ANNA", "-", "SMITH", "1985", "2026"}},
                             {"LastNameOfBlanks", {"ANNA", "", "  ", "1985", "2026"}},
                             {"LastNameOfF", {"ANNA", "", "F", "1985", "2026"}},
                             {"LastNameOfFAndHyphens", {"ANNA", "", "F-F", "1985", "2026"}},
                         })));

class HarmlessWalk : public ::testing::TestWithParam<Person> {};

TEST_P(HarmlessWalk, ComesBackAtOnce) {
    const Outcome outcome = Read(GetParam());
    ASSERT_TRUE(WIFEXITED(outcome.status)) << "signal " << WTERMSIG(outcome.status);
    EXPECT_EQ(WEXITSTATUS(outcome.status), 0);
    EXPECT_TRUE(
        outcome.output.ends_with("begins\nends with " + std::to_string(GetParam().number) + "\n"))
        << outcome.output;
    EXPECT_LT(outcome.processorTime, muchTime);
}

INSTANTIATE_TEST_SUITE_P(
    Names, HarmlessWalk,
    ::testing::ValuesIn(ByBothPrograms({
        {"Letters", {"ANNA", "", "SMITH", "1985", "2026"}, 4},              // 5 and 8
        {"MiddleNameOfBlanks", {"ANNA", "  ", "SMITH", "1985", "2026"}, 4}, // counts as none
        {"LettersAmongSigns", {"-A-", "4 A", "F-A", "1985", "2026"}, 3},    // 1, 1 and 1
        {"FirstNameOfF", {"F", "", "A", "1985", "2026"}, 7},                // 6 and 1
        {"FirstNameOfBlanksAtAge0", {"   ", "", "SMITH", "2026", "2026"}, 1},
        {"LastNameOfFAtAge0", {"ANNA", "", "F", "2026", "2026"}, 1},
        {"FirstNameOfDigitsBeforeBirth", {"007", "", "SMITH", "2027", "2026"}, 0},
    })));

TEST(EndlessWalkPrograms, OneIsOptimizedWhateverTheBuild) {
    const Outcome outcome =
        Read({"Letters", {"ANNA", "", "SMITH", "1985", "2026"}, 4, /*optimized=*/true});
    EXPECT_TRUE(outcome.output.starts_with("optimized\n")) << outcome.output;
}

} // namespace
