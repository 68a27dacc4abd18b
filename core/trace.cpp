#include "core/trace.h"

#include "core/text.h"
#include "core/tracing.h"

#include <utility>

namespace modReadings {

TraceRecorder::TraceRecorder() : before_(std::exchange(detail::recorder, this)) {}

TraceRecorder::~TraceRecorder() { detail::recorder = before_; }

Trace TraceRecorder::Take() {
    steps_.clear();
    letters_.clear();
    return std::exchange(trace_, {});
}

void TraceRecorder::Close(std::u16string_view label, std::variant<int16, std::u16string> value,
                          bool left) {
    trace_.lines.push_back(
        {label, std::move(value), left, std::exchange(steps_, {}), std::exchange(letters_, {})});
}

void TraceRecorder::Abandon(const char *failure) { trace_.failure = failure; }

namespace detail {

void AddDigitSum(std::u16string_view digits, int16 sum) {
    Trace::Step step{Trace::StepKind::DigitSum, std::u16string(digits), {}, sum};
    for (const char16_t digit : digits)
        step.terms.push_back(DigitValue(digit));
    recorder->Add(std::move(step));
}

void AddStep(Trace::StepKind kind, std::u16string_view from, std::initializer_list<int16> terms,
             int16 result) {
    recorder->Add(Trace::Step{kind, std::u16string(from), terms, result});
}

void AddStep(Trace::StepKind kind, int16 from, std::initializer_list<int16> terms, int16 result) {
    AddStep(kind, DecimalText(from), terms, result);
}

void AddFailure(const RuntimeFailure &failure) {
    if (recorder != nullptr)
        recorder->Abandon(failure.what());
}

} // namespace detail

} // namespace modReadings
