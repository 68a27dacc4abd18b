// For a name without a valued letter and a positive age the walk of the Essence has no end.
// Here each such person is read by a process of its own, which gets a little processor time.
// It has to use that up and be stopped for it: a walk that returned, crashed, or waited for
// something would end otherwise. The optimized build is the one that could go wrong.

#include "core/clock.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/essence.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace modReadings {
namespace {

/// Microseconds of processor time; the kernel measures its limit more coarsely than it
/// reports what was used.
constexpr suseconds_t limit = 200'000, muchTime = 100'000;

struct Person {
    const char16_t *first, *middle, *last;
    int age;
    std::optional<NamePart> endless; ///< as EndlessName should say
    int number = 0;                  ///< what comes out where the walk ends
};

struct Outcome {
    int status = 0;                ///< as wait4 gives it
    suseconds_t processorTime = 0; ///< microseconds
};

Outcome Read(const Person &person) {
    profile = {person.first, person.middle, person.last, {}, {}, u"1900"};
    const FixedClock clock{std::chrono::year(1900 + person.age) / 6 / 15};
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGPROF, SIG_DFL);
        std::signal(SIGALRM, SIG_DFL);
        const itimerval processor{{0, 0}, {0, limit}};
        if (setitimer(ITIMER_PROF, &processor, nullptr) != 0)
            _exit(99);
        alarm(90); // by the clock on the wall, should the walk not use the processor
        CalcEssence();
        _exit(store.EssenceNumber);
    }
    Outcome outcome;
    rusage usage{};
    EXPECT_EQ(wait4(child, &outcome.status, 0, &usage), child);
    const auto microseconds = [](const timeval &time) {
        return time.tv_sec * 1'000'000 + time.tv_usec;
    };
    outcome.processorTime = microseconds(usage.ru_utime) + microseconds(usage.ru_stime);
    return outcome;
}

TEST(EndlessWalk, IsStoppedWhileItIsAtWork) {
    for (const Person &person : {
             Person{u"   ", u"", u"SMITH", 41, NamePart::First},
             {u"", u"", u"SMITH", 1, NamePart::First},
             {u"ANNA", u"42", u"SMITH", 41, NamePart::Middle},
             {u"ANNA", u"", u"  ", 41, NamePart::Last},
             {u"ANNA", u"", u"", 41, NamePart::Last},
             {u"ANNA", u"", u"F-F", 41, NamePart::Last},
         }) {
        SCOPED_TRACE(::testing::PrintToString(std::u16string(person.first) + u'/' + person.middle +
                                              u'/' + person.last));
        const Outcome outcome = Read(person);
        EXPECT_EQ(EndlessName(profile, static_cast<int16>(person.age)), person.endless);
        ASSERT_FALSE(WIFEXITED(outcome.status)) << "gave " << WEXITSTATUS(outcome.status);
        EXPECT_EQ(WTERMSIG(outcome.status), SIGPROF) << "crashed, or did nothing";
        EXPECT_GT(outcome.processorTime, muchTime);
    }
}

TEST(EndlessWalk, IsNoneWhereALetterCountsOrNobodyIsBorn) {
    for (const Person &person : {
             Person{u"ANNA", u"", u"SMITH", 41, {}, 4}, // 5 and 8
             {u"ANNA", u"  ", u"SMITH", 41, {}, 4},     // blanks are no middle name
             {u"-A-", u"4 A", u"F-A", 41, {}, 3},       // 1, 1 and 1
             {u"F", u"", u"A", 41, {}, 7},              // 6 and 1
             {u"   ", u"", u"SMITH", 0, {}, 1},         // the S
             {u"ANNA", u"", u"F", 0, {}, 1},            // the A
             {u"007", u"", u"SMITH", -1, {}, 0},
         }) {
        const Outcome outcome = Read(person);
        EXPECT_EQ(EndlessName(profile, static_cast<int16>(person.age)), std::nullopt);
        ASSERT_TRUE(WIFEXITED(outcome.status)) << "signal " << WTERMSIG(outcome.status);
        EXPECT_EQ(WEXITSTATUS(outcome.status), person.number);
    }
}

TEST(EndlessName, AsksForALetterThatCounts) {
    for (unsigned unit = 1; unit < 0x3000; ++unit) {
        const auto character = static_cast<char16_t>(unit);
        const std::u16string name(1, character);
        const bool capital = character >= u'A' && character <= u'Z';
        const bool blank = character == u' ';
        EXPECT_EQ(EndlessName({name, u"", u"A", u"", u"", u""}, 1) == NamePart::First, !capital);
        EXPECT_EQ(EndlessName({u"A", name, u"A", u"", u"", u""}, 1) == NamePart::Middle,
                  !capital && !blank);
        // F does not count in a last name; a small l does.
        EXPECT_EQ(EndlessName({u"A", u"", name, u"", u"", u""}, 1) == NamePart::Last,
                  !(capital && character != u'F') && character != u'l')
            << unit;
    }
}

} // namespace
} // namespace modReadings
