#include "core/trace.h"

#include "core/digits.h"
#include "core/letters.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/runtime_failure.h"
#include "core/sums.h"

#include <gtest/gtest.h>

namespace modReadings {
namespace {

using Kind = Trace::StepKind;

// The arithmetic is the same with its trace, at compile time too.
constexpr int16 one = 1, two = 2, three = 3;
static_assert(Total(one, two, three) == 6);
static_assert(Difference(2026, 2030) == -4);
static_assert(Gap(2, 11) == 9 && Gap(11, 2) == 9);
static_assert(!StaysMaster(33) && StaysMaster(22) && StaysMaster(11));

/// The steps of what `work` does.
template <typename Work> std::vector<Trace::Step> StepsOf(Work work) {
    TraceRecorder recorder;
    Traced(u"value", static_cast<int16>(work()));
    return recorder.Take().lines.at(0).steps;
}

TEST(Trace, HasNothingWithoutARecorder) {
    EXPECT_FALSE(Tracing());
    EXPECT_EQ(Traced(u"value", ReduceNumber(1985)), 5);
    TraceRecorder recorder;
    EXPECT_TRUE(Tracing());
    EXPECT_TRUE(recorder.Take().lines.empty());
}

TEST(Trace, HasTheStepsThatChangeANumber) {
    using Steps = std::vector<Trace::Step>;
    EXPECT_EQ(StepsOf([] { return ReduceDigitString(u"1999"); }),
              (Steps{{Kind::DigitSum, u"1999", {1, 9, 9, 9}, 28},
                     {Kind::Fold, u"28", {2, 8}, 10},
                     {Kind::Fold, u"10", {1, 0}, 1}}));
    EXPECT_EQ(StepsOf([] { return Fold(123); }), (Steps{{Kind::Fold, u"123", {1, 3}, 4}}));
    EXPECT_EQ(StepsOf([] { return ReduceNumber(8); }), Steps{});
    EXPECT_EQ(StepsOf([] { return DigitSum(u"7"); }), (Steps{{Kind::DigitSum, u"7", {7}, 7}}));
    // The digit sum 29 folds to 11, and nothing protects that.
    EXPECT_EQ(StepsOf([] {
                  int16 number = 2999;
                  return ReduceKeepMaster(number);
              }),
              (Steps{{Kind::DigitSum, u"2999", {2, 9, 9, 9}, 29},
                     {Kind::Fold, u"29", {2, 9}, 11},
                     {Kind::Fold, u"11", {1, 1}, 2}}));
    EXPECT_EQ(StepsOf([] {
                  int16 number = 38;
                  return ReduceKeepMaster(number);
              }),
              (Steps{{Kind::DigitSum, u"38", {3, 8}, 11}, {Kind::MasterStays, u"11", {}, 11}}));
    EXPECT_EQ(StepsOf([] { return Total(one, two, three); }),
              (Steps{{Kind::Sum, u"", {1, 2, 3}, 6}}));
    EXPECT_EQ(StepsOf([] { return Gap(2, 5); }), (Steps{{Kind::Gap, u"", {2, 5}, 3}}));
    EXPECT_EQ(StepsOf([] { return Difference(2, 5); }),
              (Steps{{Kind::Difference, u"", {2, 5}, -3}}));
    EXPECT_EQ(StepsOf([] { return EnglishMonthValue(u"November"); }),
              (Steps{{Kind::Month, u"November", {}, 2}}));
    EXPECT_EQ(StepsOf([] { return EnglishMonthValue(u"Mai"); }),
              (Steps{{Kind::Month, u"Mai", {}, 0}}));
}

TEST(Trace, SaysWhetherTheMonthOrTheEndOfTheNameDecided) {
    const auto month = [](std::u16string letter, std::u16string_view name) {
        store.ScratchLetter = std::move(letter);
        return StepsOf([&] { return MonthNumber(name); });
    };
    using Steps = std::vector<Trace::Step>;
    EXPECT_EQ(month(u"E", u"October"), (Steps{{Kind::Month, u"October", {}, 1}}));
    EXPECT_EQ(month(u"3", u"October"), (Steps{{Kind::MonthByDigit, u"October", {3}, 3}}));
    EXPECT_EQ(month(u"3", u"January"), (Steps{{Kind::Month, u"January", {}, 1}}));
    EXPECT_EQ(month(u"0", u"Mai"), (Steps{{Kind::Month, u"Mai", {}, 0}}));
    store = {};
}

TEST(Trace, HasEachLetterOfASum) {
    TraceRecorder recorder;
    Traced(u"name", NameLetterSum(u"OA-\u00C9"));
    const Trace trace = recorder.Take();
    ASSERT_EQ(trace.lines.size(), 1U);
    EXPECT_EQ(trace.lines[0].label, u"name");
    EXPECT_EQ(std::get<int16>(trace.lines[0].value), 7);
    EXPECT_FALSE(trace.lines[0].left);
    EXPECT_EQ(trace.lines[0].letters, (std::vector<Trace::Letter>{{u'O', 6, true, 6},
                                                                  {u'A', 1, true, 7},
                                                                  {u'-', 0, false, 7},
                                                                  {u'\u00C9', 0, false, 7}}));
}

TEST(Trace, SaysWhatWasLeftAndWhyWorkWasGivenUp) {
    TraceRecorder recorder;
    EXPECT_FALSE(Attempt([] {
        TraceLeft(u"slot", std::u16string(u"old"));
        Traced(u"sum", Total(32767, one));
    }));
    const Trace trace = recorder.Take();
    ASSERT_EQ(trace.lines.size(), 1U);
    EXPECT_TRUE(trace.lines[0].left);
    EXPECT_EQ(std::get<std::u16string>(trace.lines[0].value), u"old");
    EXPECT_EQ(trace.failure, "overflow");
    EXPECT_TRUE(recorder.Take().failure.empty());
}

// What a failure has cut off is not taken for the beginning of the next line.
TEST(Trace, GoesToTheLatestRecorderAndThenToTheOneBefore) {
    TraceRecorder outer;
    Traced(u"first", int16{1});
    {
        TraceRecorder inner;
        Traced(u"second", int16{2});
        EXPECT_EQ(inner.Take().lines.size(), 1U);
        Attempt([] { DigitSum(u"12x"); });
        Attempt([] {
            Total(one, two);
            Total(32767, one);
        });
        Traced(u"third", Fold(12));
        EXPECT_EQ(inner.Take().lines.at(0).steps.size(), 1U);
    }
    Traced(u"fourth", int16{4});
    const Trace trace = outer.Take();
    ASSERT_EQ(trace.lines.size(), 2U);
    EXPECT_EQ(trace.lines[1].label, u"fourth");
}

} // namespace
} // namespace modReadings
