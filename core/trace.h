#pragma once

// What a calculator did, step by step, so that a person can check it by hand.
//
// The calculators and the arithmetic below them tell what they do while they do it; see
// core/tracing.h for how. Nothing is worked out a second time for it. They tell it to the
// TraceRecorder that is alive, and usually none is:
//
//     TraceRecorder recorder;
//     Attempt(CalcLifePath);
//     const Trace trace = recorder.Take();
//
// A trace is a list of lines in the order of the work. A line is one value, what it is called,
// and the steps or letters from which it came. For 29 December 1985 CalcLifePath gives
//
//     day of birth        29: 2 + 9 = 11, 1 + 1 = 2
//     month of birth      December counts 3
//     year of birth       1985: 1 + 9 + 8 + 5 = 23, 2 + 3 = 5
//     Life Path Number    2 + 3 + 5 = 10, 1 + 0 = 1

#include "core/int16.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace modReadings {

struct Trace {
    enum class StepKind {
        DigitSum,     ///< `terms` are the digits of `from`
        Fold,         ///< `terms` are the first and the last digit of `from`
        MasterStays,  ///< `from` is 11 or 22 and is not reduced; no terms
        Sum,          ///< of two or more `terms`; `from` is empty
        Difference,   ///< the first of two `terms` less the second; may be below 0
        Gap,          ///< the same without its sign
        Month,        ///< `from` is a month's name, which counts `result`; 0 for an unknown one
        MonthByDigit, ///< the same, but the name walked last ends in a digit, the one of `terms`,
                      ///< and that decides
        Share         ///< the first of two `terms` in percent of the second, cut to a whole number
    };

    /// One step of arithmetic.
    struct Step {
        StepKind kind;
        std::u16string from; ///< what is reduced or looked up
        std::vector<int16> terms;
        int16 result;

        friend bool operator==(const Step &, const Step &) = default;
    };

    /// One character that a calculator looked at, in the order in which it did.
    struct Letter {
        char16_t character;
        int16 value;  ///< what it counts: its chart value, or 1 where letters are counted; or 0
        bool counted; ///< whether it entered: it has a value, and the topic asks for such letters
        /// What the letters make up to this one: a sum, or years. For the Hidden Passion, how often
        /// the character occurs in the whole name.
        int16 total;

        friend bool operator==(const Letter &, const Letter &) = default;
    };

    /// One value: a number or a text.
    struct Line {
        std::u16string_view label; ///< in English; lives as long as the program
        std::variant<int16, std::u16string> value;
        /// Whether no branch assigned the value: it is what the run before left in the slot.
        bool left;
        std::vector<Step> steps;
        std::vector<Letter> letters;
    };

    std::vector<Line> lines;

    /// Why the calculator was abandoned, as RuntimeFailure names it; empty where it came to its
    /// end. The lines are those from before the failure; what would have been written after it
    /// keeps its old value.
    std::string failure;
};

/// Keeps what the calculators tell for as long as it lives; then the recorder before it, if
/// there was one, goes on.
class TraceRecorder {
public:
    TraceRecorder();
    ~TraceRecorder();
    TraceRecorder(const TraceRecorder &) = delete;
    TraceRecorder &operator=(const TraceRecorder &) = delete;

    /// All that was told since the start or the last call of Take.
    Trace Take();

    // Called by the functions of core/tracing.h.
    void Add(Trace::Step step) { steps_.push_back(std::move(step)); }
    void Add(const Trace::Letter &letter) { letters_.push_back(letter); }
    /// Closes a line with the steps and letters since the line before.
    void Close(std::u16string_view label, std::variant<int16, std::u16string> value, bool left);
    void Abandon(const char *failure);

private:
    Trace trace_;
    std::vector<Trace::Step> steps_;     ///< of the line that is still open
    std::vector<Trace::Letter> letters_; ///< the same
    TraceRecorder *const before_;
};

} // namespace modReadings
