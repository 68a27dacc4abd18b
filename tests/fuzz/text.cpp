// The helpers that every text passes through: UTF-8 in and out, what is shown of a text in a
// message, and the arithmetic on digits and letters, each held against longhand.

#include "core/text.h"
#include "core/digits.h"
#include "core/letters.h"
#include "core/months.h"
#include "core/reading_store.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/longhand.h"
#include "tools/text.h"

#include <algorithm>
#include <optional>

namespace {

template <typename Work> auto ResultOf(Work work) -> std::optional<decltype(work())> {
    try {
        return work();
    } catch (const modReadings::RuntimeFailure &) {
        return std::nullopt;
    }
}

void CheckUtf8(std::string_view bytes, const std::u16string &units) {
    const auto text = FromUtf8(bytes);
    Require(text.has_value() == IsUtf8(bytes), "UTF-8 is taken and all else is not", bytes);
    if (text)
        Require(text->toStdU16String() == units && ToUtf8(units) == bytes,
                "UTF-8 comes back as it was", bytes);
    Require(ToUtf8(units) == Utf8(units) && AsUtf8(units) == Utf8(units),
            "half of a pair becomes U+FFFD and all else stays", bytes);
}

void CheckShown(std::string_view bytes, const std::u16string &units) {
    const QString text = QStringView(units).toString();
    const std::string line = OneLine(text);
    Require(IsQuiet(line) && IsUtf8(line), "a line does nothing to a terminal", bytes);
    Require(!IsQuiet(Utf8(units)) || line == Utf8(units), "what does nothing stays", bytes);
    Require(OneLine(FromUtf8(line).value()) == line, "a line that is written out stays as it is",
            line);

    const std::u16string excerpt = Excerpt(text).toStdU16String();
    Require(excerpt.size() <= 60, "an excerpt is short", bytes);
    if (units.size() <= 60) {
        Require(excerpt == units, "an excerpt of a short text is all of it", bytes);
        return;
    }
    const std::size_t gap = excerpt.find(u"...");
    const auto lone = [](std::u16string_view in) {
        std::size_t count = 0;
        for (std::size_t index = 0; index < in.size(); ++index)
            count += IsLoneSurrogate(in, index) ? 1 : 0;
        return count;
    };
    Require(gap != std::u16string::npos && excerpt.size() >= 58 &&
                units.starts_with(excerpt.substr(0, 36)) &&
                units.ends_with(excerpt.substr(excerpt.size() - 19)),
            "an excerpt is beginning and end", bytes);
    Require(lone(excerpt) <= lone(units), "no pair is halved", bytes);
}

void CheckNumbers(const std::u16string &units) {
    using namespace modReadings;
    const std::u16string_view trimmed = TrimBlanks(units);
    Require(trimmed.empty() || (trimmed.front() != u' ' && trimmed.back() != u' '),
            "blanks are trimmed at both ends");
    Require(units.find(trimmed) != std::u16string::npos &&
                std::ranges::count(units, u' ') - std::ranges::count(trimmed, u' ') ==
                    static_cast<std::ptrdiff_t>(units.size() - trimmed.size()),
            "nothing but blanks is trimmed");

    // A number in longhand: a sign or none, then digits.
    std::optional<long long> number;
    {
        std::u16string_view digits = units;
        const bool negative = digits.starts_with(u'-');
        if (negative || digits.starts_with(u'+'))
            digits.remove_prefix(1);
        if (!digits.empty() &&
            std::ranges::all_of(digits, [](char16_t c) { return c >= u'0' && c <= u'9'; })) {
            long long value = 0;
            for (const char16_t digit : digits)
                value = std::min(value * 10 + (digit - u'0'), 1'000'000LL);
            value = negative ? -value : value;
            if (value >= -32768 && value <= 32767)
                number = value;
        }
    }
    const auto read = ResultOf([&] { return NumberFromText(units); });
    Require(read.has_value() == number.has_value() && (!read || *read == *number),
            "a number is what its digits say");
    if (read)
        Require(NumberFromText(DecimalText(*read)) == *read, "a number can be written");
    if (read && *read >= 0) {
        int16 kept = *read;
        Require(ReduceKeepMaster(kept) == longhand::KeepMaster(*read), "11 and 22 are kept");
        Require(Fold(*read) == longhand::Fold(*read) &&
                    DigitSum(*read) == longhand::DigitSum(*read),
                "a number folds by its digits");
    }

    long long digitSum = 0;
    const bool digits =
        std::ranges::all_of(units, [](char16_t c) { return c >= u'0' && c <= u'9'; });
    for (const char16_t unit : units)
        digitSum += unit - u'0';
    const auto sum = ResultOf([&] { return DigitSum(std::u16string_view(units)); });
    Require(sum.has_value() == (digits && digitSum <= 32767) && (!sum || *sum == digitSum),
            "a digit sum adds digits alone");
    if (sum)
        Require(ReduceDigitString(units) ==
                    longhand::Fold(longhand::Fold(static_cast<int>(digitSum))),
                "a text of digits folds twice");

    long long letters = 0;
    for (const char16_t unit : units)
        letters += longhand::ValueOf(unit);
    const auto letterSum = ResultOf([&] { return NameLetterSum(units); });
    Require(letterSum.has_value() == (letters <= 32767) && (!letterSum || *letterSum == letters),
            "a name adds the values of its letters");
    Require(LetterValue(units) == (units.size() == 1 ? longhand::ValueOf(units.front()) : 0),
            "a letter is one character");
    const auto present = PresentValues(units);
    for (int value = 0; value <= 9; ++value)
        Require(present[static_cast<std::size_t>(value)] ==
                    std::ranges::any_of(units,
                                        [&](char16_t c) { return longhand::ValueOf(c) == value; }),
                "the values of a name are those of its letters");

    const auto month = std::ranges::find(longhand::months, std::u16string_view(units));
    store.ScratchLetter.clear();
    Require(MonthNumber(units) == (month == longhand::months.end()
                                       ? 0
                                       : longhand::DigitalRoot(static_cast<int>(
                                             month - longhand::months.begin() + 1))),
            "a month counts by its English name");
}

void Run(std::string_view bytes) {
    const std::u16string units = AnyUnits(bytes);
    CheckUtf8(bytes, units);
    CheckShown(bytes, units);
    CheckNumbers(units);
}

const FuzzTarget target("text", Run);

} // namespace
