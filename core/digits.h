#pragma once

// Reduction of numbers by their digits. The functions look alike, but they differ in which
// sums they reduce to one digit and which they keep as 11 or 22, and the readings depend
// on these differences.
//
// A digit sum adds all the digits of a text. A fold adds the first digit and the last
// and forgets what stands between them: 123 has the digit sum 6 and folds to 4.
//
// A trace shows each step that changes a number, and each master number that stays.

#include "core/int16.h"
#include "core/text.h"
#include "core/tracing.h"

#include <string_view>

namespace modReadings {

/// Whether `number` is one of the two master numbers, 11 and 22, and so stays as it is.
constexpr bool StaysMaster(int16 number) {
    if (number != 11 && number != 22)
        return false;
    TraceStep(Trace::StepKind::MasterStays, number, number);
    return true;
}

/// The sum of the digits of `text`; 0 for the empty text. Throws RuntimeFailure at the
/// first character that is no digit, or when the sum leaves the int16 range.
constexpr int16 DigitSum(std::u16string_view text) {
    int16 sum = 0;
    for (const char16_t character : text)
        sum = Add(sum, DigitValue(character));
    TraceDigitSum(text, sum);
    return sum;
}

/// The sum of the decimal digits of `value`. Throws RuntimeFailure for a negative
/// value, whose text begins with a minus sign.
constexpr int16 DigitSum(int16 value) {
    if (value < 0)
        throw RuntimeFailure("not a digit");
    if (value < 10)
        return value;
    int16 sum = 0;
    for (int rest = value; rest != 0; rest /= 10)
        sum = static_cast<int16>(sum + rest % 10);
    TraceDigitSum(value, sum);
    return sum;
}

/// One fold: a value of two or more digits becomes its first digit plus its last, a
/// single digit stays. Throws RuntimeFailure for a negative value.
constexpr int16 Fold(int16 value) {
    if (value < 0)
        throw RuntimeFailure("not a digit");
    if (value < 10)
        return value;
    const int last = value % 10;
    int first = value;
    while (first >= 10)
        first /= 10;
    const auto folded = static_cast<int16>(first + last);
    TraceStep(Trace::StepKind::Fold, value, folded, static_cast<int16>(first),
              static_cast<int16>(last));
    return folded;
}

/// The digit sum of `value`, which stays if it is 11 or 22 and is folded once otherwise. `value`
/// itself may be 11 or 22 and is summed all the same: 22 gives 4, 29 gives 11. Throws
/// RuntimeFailure for a negative value.
constexpr int16 FoldSumKeepMaster(int16 value) {
    const int16 sum = DigitSum(value);
    return StaysMaster(sum) ? sum : Fold(sum);
}

/// Digit sum and exactly two folds, 0 to 9. Knows no master number: a sum of 11 gives
/// 2, one of 22 gives 4. The empty text gives 0. Throws as DigitSum does.
constexpr int16 ReduceDigitString(std::u16string_view text) { return Fold(Fold(DigitSum(text))); }

/// ReduceDigitString of the decimal text of `value`. Throws RuntimeFailure for a negative
/// value, whose text begins with a minus sign.
constexpr int16 ReduceNumber(int16 value) { return Fold(Fold(DigitSum(value))); }

/// Reduces `number` in place and returns its new value: 0 to 9, 11 or 22.
///
/// 11 and 22 survive at two points only, as the number itself and as its digit sum.
/// After that nothing protects them: 38 gives 11, but 2999 has the digit sum 29, which
/// folds to 11 and on to 2. A loop that guards every stage would change readings.
/// Throws RuntimeFailure for a negative number, which then stays as it was.
constexpr int16 ReduceKeepMaster(int16 &number) {
    if (StaysMaster(number))
        return number;
    const int16 sum = DigitSum(number);
    number = StaysMaster(sum) ? sum : Fold(Fold(sum));
    return number;
}

} // namespace modReadings
