#include "core/proceed_pass.h"

#include "core/runtime_failure.h"

namespace modReadings {

void RunAllCalculators() {
    for (const Calculator calculate : passOrder)
        Attempt(calculate);
}

} // namespace modReadings
