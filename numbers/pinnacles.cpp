#include "numbers/pinnacles.h"

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

/// A line, and the ages that are named in it: the text is the only place where they stand.
struct Line {
    std::u16string_view text;
    Ages ages;

    template <std::size_t size>
    consteval Line(const char16_t (&line)[size])
        : text(line, size - 1), ages(AgesNamedIn({line, size - 1})) {}
};

struct PinnacleLines {
    int16 value;
    std::array<Line, 4> lines; ///< first to fourth pinnacle
};

// The ages follow from the value of each pinnacle by itself, so the four lines of one
// report need not join. The wording differs by column, and the third line of 4 ends in
// two blanks where that of 22 ends in one: all of this stands as it is.
constexpr PinnacleLines lineTable[] = {
    {1,
     {u"First Pinnacle from age 0-35 years is ", u"Second Pinnacle from age 36-44 is ",
      u"Third Pinnacle from age 45-53 is ", u"Fourth Pinnacle from age 54 & beyond is "}},
    {2,
     {u"First Pinnacle from age 0-34 years is ", u"Second Pinnacle from age 35-43 is ",
      u"Third Pinnacle from age 44-52 is ", u"Fourth Pinnacle from age 53 & beyond is "}},
    {3,
     {u"First Pinnacle from age 0-33 years is ", u"Second Pinnacle from age 34-42 is ",
      u"Third Pinnacle from age 43-51 is ", u"Fourth Pinnacle from age 52 & beyond is "}},
    {4,
     {u"First Pinnacle from age 0-32 years is ", u"Second Pinnacle from age 33-41 is ",
      u"Third Pinnacle from age 42-50 is  ", u"Fourth Pinnacle from age 51 & beyond is "}},
    {5,
     {u"First Pinnacle from age 0-31 years is ", u"Second Pinnacle from age 32-40 is ",
      u"Third Pinnacle from age 41-49 is ", u"Fourth Pinnacle from age 50 & beyond is "}},
    {6,
     {u"First Pinnacle from age 0-30 years is ", u"Second Pinnacle from age 31-39 is ",
      u"Third Pinnacle from age 40-48 is ", u"Fourth Pinnacle from age 49 & beyond is "}},
    {7,
     {u"First Pinnacle from age 0-29 years is ", u"Second Pinnacle from age 30-38 is ",
      u"Third Pinnacle from age 39-47 is ", u"Fourth Pinnacle from age 48 & beyond is "}},
    {8,
     {u"First Pinnacle from age 0-28 years is ", u"Second Pinnacle from age 29-37 is ",
      u"Third Pinnacle from age 38-46 is ", u"Fourth Pinnacle from age 47 & beyond is "}},
    {9,
     {u"First Pinnacle from age 0-27 years is ", u"Second Pinnacle from age 28-36 is ",
      u"Third Pinnacle from age 37-45 is ", u"Fourth Pinnacle from age 46 & beyond is "}},
    {11,
     {u"First Pinnacle from age 0-34 years is ", u"Second Pinnacle from age 35-43 is ",
      u"Third Pinnacle from age 44-52 is ", u"Fourth Pinnacle from age 53 & beyond is "}},
    {22,
     {u"First Pinnacle from age 0-32 years is ", u"Second Pinnacle from age 33-41 is ",
      u"Third Pinnacle from age 42-50 is ", u"Fourth Pinnacle from age 51 & beyond is "}},
};

/// ReduceKeepMaster writes its argument, so it gets a copy.
int16 Reduced(int16 value) { return ReduceKeepMaster(value); }

const PinnacleLines *LinesOf(int16 value) {
    const auto row = std::ranges::find(lineTable, value, &PinnacleLines::value);
    return row == std::end(lineTable) ? nullptr : row;
}

void AssignPinnacle(std::size_t position, int16 value, std::u16string &label,
                    std::u16string &text) {
    if (const PinnacleLines *row = LinesOf(value))
        label = std::u16string(row->lines[position].text) + DecimalText(value);
    else
        TraceLeft(u"its line", label);
    SelectReading(text, value, readings::pinnacle.rows);
}

} // namespace

std::optional<Ages> AgesOfPinnacle(std::size_t position, int16 value) {
    const PinnacleLines *row = LinesOf(value);
    return row == nullptr ? std::nullopt : std::optional(row->lines[position].ages);
}

// Day and year enter as they stand and only the month in reduced form, on purpose: so a
// master number can come out of a whole sum.
void CalcPinnacles() {
    const int16 day = Traced(u"day of birth", NumberFromText(TrimBlanks(profile.BirthDay)));
    const int16 month = Traced(u"month of birth", MonthNumber(TrimBlanks(profile.BirthMonth)));
    const int16 year = Traced(u"year of birth", NumberFromText(TrimBlanks(profile.BirthYear)));

    store.PinnacleNumber1 = Traced(u"first pinnacle", Reduced(Total(month, day)));
    store.PinnacleNumber2 = Traced(u"second pinnacle", Reduced(Total(day, year)));
    store.PinnacleNumber3 =
        Traced(u"third pinnacle", Reduced(Total(store.PinnacleNumber1, store.PinnacleNumber2)));
    store.PinnacleNumber4 = Traced(u"fourth pinnacle", Reduced(Total(month, year)));

    AssignPinnacle(0, store.PinnacleNumber1, store.PinnacleLabel1, store.PinnacleText1);
    AssignPinnacle(1, store.PinnacleNumber2, store.PinnacleLabel2, store.PinnacleText2);
    AssignPinnacle(2, store.PinnacleNumber3, store.PinnacleLabel3, store.PinnacleText3);
    AssignPinnacle(3, store.PinnacleNumber4, store.PinnacleLabel4, store.PinnacleText4);
    store.PinnacleAbout = readings::pinnacle.about;
}

} // namespace modReadings
