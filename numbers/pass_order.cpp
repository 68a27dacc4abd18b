#include "core/proceed_pass.h"
#include "numbers/calculators.h"

namespace modReadings {

constinit const std::array<Calculator, calculatorCount> passOrder = std::to_array<Calculator>({
    CalcPersonalMonth, CalcBirthday,      CalcHiddenPassion,    CalcLifePathPeriods,
    CalcPersonalYear,  CalcPinnacles,     CalcSubconsciousSelf, CalcLifePath,
    CalcDestiny,       CalcKarmicLessons, CalcChallenges,       CalcKarmicDebt,
    CalcBalance,       CalcPersonalDay,   CalcRationalThought,  CalcHPBridge,
    CalcLEBridge,      CalcEssence,       CalcRealization,      CalcInnerDreams,
    CalcPlanes,        CalcSoulUrge,
});

} // namespace modReadings
