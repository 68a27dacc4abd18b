#include "numbers/life_path_periods.h"

#include "core/clock.h"
#include "core/digits.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "core/sums.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"
#include "numbers/readings.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace modReadings {

namespace {

/// The ages of one root. The lines of the periods are literals beside the compared
/// ages and not computed from them.
struct PeriodAges {
    int16 root;
    int16 firstEnds;  ///< last age of period 1
    int16 secondEnds; ///< last age of period 2
    std::array<std::u16string_view, 3> lines;

    constexpr std::array<Ages, 3> Periods() const {
        return {{{0, firstEnds},
                 {static_cast<int16>(firstEnds + 1), secondEnds},
                 {static_cast<int16>(secondEnds + 1), Ages::open}}};
    }
};

// Root 4 breaks the run: its second period lasts 36 years where all others last 27.
// That is intended. Roots 11 and 22 have ages but no lines; no sum reduces to them.
constexpr PeriodAges ageTable[] = {
    {1,
     26,
     53,
     {u"Life Path Period 1 from age 0 - 26 is ", u"Life Path Period 2 from age 27 - 53 is ",
      u"Life Path Period 3 from age 54 on is "}},
    {2,
     25,
     52,
     {u"Life Path Period 1 from age 0 - 25 is ", u"Life Path Period 2 from age 26 - 52 is ",
      u"Life Path Period 3 from age 53 on is "}},
    {3,
     24,
     51,
     {u"Life Path Period 1 from age 0 - 24 is ", u"Life Path Period 2 from age 25 - 51 is ",
      u"Life Path Period 3 from age 52 on is "}},
    {4,
     23,
     59,
     {u"Life Path Period 1 from age 0 - 23 is ", u"Life Path Period 2 from age 24 - 59 is ",
      u"Life Path Period 3 from age 60 on is "}},
    {5,
     31,
     58,
     {u"Life Path Period 1 from age 0 - 31 is ", u"Life Path Period 2 from age 32 - 58 is ",
      u"Life Path Period 3 from age 59 on is "}},
    {6,
     30,
     57,
     {u"Life Path Period 1 from age 0 - 30 is ", u"Life Path Period 2 from age 31 - 57 is ",
      u"Life Path Period 3 from age 58 on is "}},
    {7,
     29,
     56,
     {u"Life Path Period 1 from age 0 - 29 is ", u"Life Path Period 2 from age 30 - 56 is ",
      u"Life Path Period 3 from age 57 on is "}},
    {8,
     28,
     55,
     {u"Life Path Period 1 from age 0 - 28 is ", u"Life Path Period 2 from age 29 - 55 is ",
      u"Life Path Period 3 from age 56 on is "}},
    {9,
     27,
     54,
     {u"Life Path Period 1 from age 0 - 27 is ", u"Life Path Period 2 from age 28 - 54 is ",
      u"Life Path Period 3 from age 55 on is "}},
    {11, 26, 53, {}},
    {22, 26, 53, {}},
};

// No run reaches these two rows, and so none can tell whether they still stand.
constexpr bool HasAgesWithoutLines(int16 root) {
    const auto row = std::ranges::find(ageTable, root, &PeriodAges::root);
    return row != std::end(ageTable) && row->firstEnds == 26 && row->secondEnds == 53 &&
           std::ranges::all_of(row->lines, &std::u16string_view::empty);
}
static_assert(HasAgesWithoutLines(11));
static_assert(HasAgesWithoutLines(22));

constexpr bool NamesTheComparedAges(const PeriodAges &row) {
    for (std::size_t index = 0; index < row.lines.size(); ++index)
        if (!row.lines[index].empty() && AgesNamedIn(row.lines[index]) != row.Periods()[index])
            return false;
    return true;
}
static_assert(std::ranges::all_of(ageTable, NamesTheComparedAges));

const PeriodAges *AgesOf(int16 root) {
    const auto row = std::ranges::find(ageTable, root, &PeriodAges::root);
    return row == std::end(ageTable) ? nullptr : row;
}

void AssignLine(std::u16string &slot, std::u16string_view line, int16 number) {
    if (!line.empty())
        slot = std::u16string(line) + DecimalText(number);
}

} // namespace

std::optional<std::array<Ages, 3>> AgesOfPeriods(int16 root) {
    const PeriodAges *row = AgesOf(root);
    return row == nullptr ? std::nullopt : std::optional(row->Periods());
}

void CalcLifePathPeriods() {
    store.PeriodNumber1 = Traced(u"period 1, month", MonthNumber(profile.BirthMonth));
    store.PeriodNumber2 = Traced(u"period 2, day", ReduceDigitString(profile.BirthDay));
    store.PeriodNumber3 = Traced(u"period 3, year", ReduceDigitString(profile.BirthYear));

    store.PeriodStage1 = readings::periodStage1;
    store.PeriodStage2 = readings::periodStage2;
    store.PeriodStage3 = readings::periodStage3;

    // Whole calendar years: a person born in December is a year older on 1 January.
    const int16 birthYear = NumberFromText(TrimBlanks(profile.BirthYear));
    const int16 age = Traced(u"age", Difference(Clock::Year(), birthYear));

    store.PeriodRoot =
        Traced(u"root",
               ReduceNumber(Total(store.PeriodNumber2, store.PeriodNumber1, store.PeriodNumber3)));

    if (const PeriodAges *row = AgesOf(store.PeriodRoot)) {
        // The index of the period, though its heading announces a number. A negative
        // age is in no period and leaves the index of the run before.
        const std::array<Ages, 3> periods = row->Periods();
        for (std::size_t index = 0; index < periods.size(); ++index)
            if (periods[index].Hold(age))
                store.LifePathPeriodsNumber = static_cast<int16>(index + 1);

        Traced(u"period 1 ends at age", row->firstEnds);
        Traced(u"period 2 ends at age", row->secondEnds);
        if (age >= 0)
            Traced(u"period now running", store.LifePathPeriodsNumber);
        else
            TraceLeft(u"period now running", store.LifePathPeriodsNumber);

        AssignLine(store.PeriodLine1, row->lines[0], store.PeriodNumber1);
        AssignLine(store.PeriodLine2, row->lines[1], store.PeriodNumber2);
        AssignLine(store.PeriodLine3, row->lines[2], store.PeriodNumber3);
        SelectReading(store.LifePathPeriodsText, store.PeriodRoot, readings::lifePathPeriods.rows);
    }
    store.LifePathPeriodsAbout = readings::lifePathPeriods.about;
}

} // namespace modReadings
