#pragma once

// Birth months as numbers. The names are English; a month box filled in another
// language matches none of them, and the month then counts 0.

#include "core/int16.h"
#include "core/tracing.h"

#include <array>
#include <string_view>

namespace modReadings {

/// The twelve month names that the calculators know, in calendar order.
inline constexpr std::array<std::u16string_view, 12> englishMonths{
    u"January", u"February", u"March",     u"April",   u"May",      u"June",
    u"July",    u"August",   u"September", u"October", u"November", u"December"};

/// The value of the month that stands at `index`, 0 to 11: its number reduced to one
/// digit, so that October counts 1, November 2 and never 11, December 3.
constexpr int16 MonthValue(std::size_t index) {
    return static_cast<int16>(index < 9 ? index + 1 : index - 8);
}

/// The value of a month name, compared exactly: 1 to 9, or 0 for any other text.
constexpr int16 EnglishMonthValue(std::u16string_view monthName) {
    int16 value = 0;
    for (std::size_t index = 0; index < englishMonths.size() && value == 0; ++index)
        if (monthName == englishMonths[index])
            value = MonthValue(index);
    TraceStep(Trace::StepKind::Month, monthName, value);
    return value;
}

/// The value of a month name, 0 to 9. Twelve tests are made in calendar order, and each
/// holds when the name is that month's or when ScratchLetter is the month's number as text.
/// Never fails.
///
/// ScratchLetter is the last character of the name that was walked last. It is a letter and
/// matches nothing, unless that name ended in a digit. After a name that ends in 3, January
/// and February are still found first, and every later month counts 3. This is how the
/// month has always been read and it stays.
int16 MonthNumber(std::u16string_view monthName);

} // namespace modReadings
