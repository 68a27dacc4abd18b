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

void TraceRecorder::Abandon(const char *failure) {
    steps_.clear();
    letters_.clear();
    trace_.failure = failure;
}

namespace detail {

void AddLine(const char16_t *label, int16 value, bool left) { recorder->Close(label, value, left); }

void AddLine(const char16_t *label, std::u16string_view value, bool left) {
    recorder->Close(label, std::u16string(value), left);
}

void AddLetter(char16_t character, int16 value, bool admitted, int16 total) {
    recorder->Add(Trace::Letter{character, value, admitted && value != 0, total});
}

void AddStep(Trace::StepKind kind, std::u16string_view from, int16 result,
             std::initializer_list<int16> terms) {
    recorder->Add(Trace::Step{kind, std::u16string(from), terms, result});
}

void AddStep(Trace::StepKind kind, int16 from, int16 result, std::initializer_list<int16> terms) {
    AddStep(kind, std::u16string_view(DecimalText(from)), result, terms);
}

void AddDigitSum(std::u16string_view digits, int16 sum) {
    Trace::Step step{Trace::StepKind::DigitSum, std::u16string(digits), {}, sum};
    for (const char16_t digit : digits)
        step.terms.push_back(DigitValue(digit));
    recorder->Add(std::move(step));
}

void AddDigitSum(int16 value, int16 sum) {
    AddDigitSum(std::u16string_view(DecimalText(value)), sum);
}

void AddFailure(const RuntimeFailure &failure) {
    if (recorder != nullptr)
        recorder->Abandon(failure.what());
}

} // namespace detail

} // namespace modReadings
