// One pass of the 22 calculators, against copying the texts that it leaves in the store.

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/user_profile.h"

#include <benchmark/benchmark.h>

using namespace modReadings;

namespace {

void SetUpPerson() {
    profile = {u"CLARA", u"JANE", u"WINTER", u"March", u"29", u"1985"};
    store = {};
    RunAllCalculators();
}

void Pass(benchmark::State &state) {
    const FixedClock clock(std::chrono::year(2026) / 11 / 16);
    SetUpPerson();
    for (auto _ : state) {
        RunAllCalculators();
        benchmark::DoNotOptimize(store);
    }
}
BENCHMARK(Pass);

void FloorCopyOfTheStore(benchmark::State &state) {
    const FixedClock clock(std::chrono::year(2026) / 11 / 16);
    SetUpPerson();
    ReadingStore copy;
    for (auto _ : state) {
        copy = store;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(FloorCopyOfTheStore);

} // namespace
