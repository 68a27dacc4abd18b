// Runs CalcEssence once for the person on the command line: first, middle and last name,
// year of birth, current year. Says on its standard output when it begins and, if that
// ever happens, which number came out.

#include "core/clock.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "numbers/calculators.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

std::u16string Wide(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

} // namespace

int main(int argc, char **argv) {
    if (argc != 6)
        return 2;
    using namespace modReadings;
    profile.FirstName = Wide(argv[1]);
    profile.MiddleName = Wide(argv[2]);
    profile.LastName = Wide(argv[3]);
    profile.BirthYear = Wide(argv[4]);
    const FixedClock clock{std::chrono::year(std::atoi(argv[5])) / 6 / 15};

#ifdef __OPTIMIZE__
    std::puts("optimized");
#else
    std::puts("not optimized");
#endif
    std::puts("begins");
    std::fflush(stdout);
    CalcEssence();
    std::printf("ends with %d\n", int{store.EssenceNumber});
    return 0;
}
