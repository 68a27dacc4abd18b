// One person as HTML to hand over, against the same person as JSON: from the profile to the
// bytes, without writing them.

#include "core/clock.h"
#include "tools/formats.h"

#include <benchmark/benchmark.h>

namespace {

const modReadings::UserProfile person{u"CLARA", u"JANE", u"WINTER", u"March", u"29", u"1985"};
const modReadings::GivenName given{u"Clara", u"Jane", u"Winter"};

void Html(benchmark::State &state) {
    const modReadings::FixedClock clock(std::chrono::year(2026) / 11 / 16);
    for (auto _ : state)
        benchmark::DoNotOptimize(DocumentAs(Format::Html, person, given));
}
BENCHMARK(Html);

void FloorJson(benchmark::State &state) {
    const modReadings::FixedClock clock(std::chrono::year(2026) / 11 / 16);
    const auto captions = AllCaptions();
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadingAsJson(ReadPerson(person, captions)));
}
BENCHMARK(FloorJson);

} // namespace
