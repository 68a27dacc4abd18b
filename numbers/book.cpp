#include "numbers/book.h"

#include "numbers/readings.h"

#include <utility>

namespace modReadings {

std::vector<BookEntry> Book() {
    std::vector<BookEntry> book;
    const auto fixed = [&](std::string slot, std::u16string_view text) {
        book.push_back({std::move(slot), std::nullopt, std::u16string(text)});
    };
    const auto rows = [&](const std::string &slot, ReadingTable table) {
        for (const Reading &row : table)
            book.push_back({slot, row.number, std::u16string(row.text)});
    };
    const auto topic = [&](const std::string &word, const Prose &prose) {
        rows(word + "Text", prose.rows);
        fixed(word + "About", prose.about);
    };

    topic("LifePath", readings::lifePath);
    topic("Destiny", readings::destiny);
    topic("SoulUrge", readings::soulUrge);
    topic("InnerDreams", readings::innerDreams);
    topic("Birthday", readings::birthday);
    topic("KarmicLessons", readings::karmicLessons);
    topic("HiddenPassion", readings::hiddenPassion);

    topic("PersonalYear", readings::personalYear);
    topic("PersonalMonth", readings::personalMonth);
    topic("PersonalDay", readings::personalDay);
    rows("LifePathPeriodsText", readings::lifePathPeriods.rows);
    fixed("PeriodStage1", readings::periodStage1);
    fixed("PeriodStage2", readings::periodStage2);
    fixed("PeriodStage3", readings::periodStage3);
    fixed("LifePathPeriodsAbout", readings::lifePathPeriods.about);
    topic("Pinnacle", readings::pinnacle);
    topic("Challenge", readings::challenge);
    topic("Essence", readings::essence);

    topic("KarmicDebt", readings::karmicDebt);
    topic("Balance", readings::balance);
    topic("SubconsciousSelf", readings::subconsciousSelf);
    topic("RationalThought", readings::rationalThought);
    topic("HPBridge", readings::hpBridge);
    topic("LEBridge", readings::leBridge);
    rows("RealizationText", readings::realization.rows);
    fixed("RealizationText", readings::realizationRefusal);
    fixed("RealizationAbout", readings::realization.about);
    fixed("PlanesAbout", readings::planesAbout);
    return book;
}

} // namespace modReadings
