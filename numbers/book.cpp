#include "numbers/book.h"

#include "numbers/readings.h"

namespace modReadings {

std::vector<BookEntry> Book() {
    std::vector<BookEntry> book;
    const auto table = [&](std::string_view slot, ReadingTable rows) {
        for (const Reading &row : rows)
            book.push_back({slot, row.number, std::u16string(row.text)});
    };
    const auto fixed = [&](std::string_view slot, std::u16string_view text) {
        book.push_back({slot, std::nullopt, std::u16string(text)});
    };

    table("LifePathText", readings::lifePath);
    fixed("LifePathAbout", readings::lifePathAbout);
    table("DestinyText", readings::destiny);
    fixed("DestinyAbout", readings::destinyAbout);
    table("SoulUrgeText", readings::soulUrge);
    fixed("SoulUrgeAbout", readings::soulUrgeAbout);
    table("InnerDreamsText", readings::innerDreams);
    fixed("InnerDreamsAbout", readings::innerDreamsAbout);
    table("BirthdayText", readings::birthday);
    fixed("BirthdayAbout", readings::birthdayAbout);
    table("KarmicLessonsText", readings::karmicLessons);
    fixed("KarmicLessonsAbout", readings::karmicLessonsAbout);
    table("HiddenPassionText", readings::hiddenPassion);
    fixed("HiddenPassionAbout", readings::hiddenPassionAbout);

    table("PersonalYearText", readings::personalYear);
    fixed("PersonalYearAbout", readings::personalYearAbout);
    table("PersonalMonthText", readings::personalMonth);
    fixed("PersonalMonthAbout", readings::personalMonthAbout);
    table("PersonalDayText", readings::personalDay);
    fixed("PersonalDayAbout", readings::personalDayAbout);
    table("LifePathPeriodsText", readings::lifePathPeriods);
    fixed("PeriodStage1", readings::periodStage1);
    fixed("PeriodStage2", readings::periodStage2);
    fixed("PeriodStage3", readings::periodStage3);
    fixed("LifePathPeriodsAbout", readings::lifePathPeriodsAbout);
    table("PinnacleText", readings::pinnacle);
    fixed("PinnacleAbout", readings::pinnacleAbout);
    table("ChallengeText", readings::challenge);
    fixed("ChallengeAbout", readings::challengeAbout);
    table("EssenceText", readings::essence);
    fixed("EssenceAbout", readings::essenceAbout);

    table("KarmicDebtText", readings::karmicDebt);
    fixed("KarmicDebtAbout", readings::karmicDebtAbout);
    table("BalanceText", readings::balance);
    fixed("BalanceAbout", readings::balanceAbout);
    table("SubconsciousSelfText", readings::subconsciousSelf);
    fixed("SubconsciousSelfAbout", readings::subconsciousSelfAbout);
    table("RationalThoughtText", readings::rationalThought);
    fixed("RationalThoughtAbout", readings::rationalThoughtAbout);
    table("HPBridgeText", readings::hpBridge);
    fixed("HPBridgeAbout", readings::hpBridgeAbout);
    table("LEBridgeText", readings::leBridge);
    fixed("LEBridgeAbout", readings::leBridgeAbout);
    table("RealizationText", readings::realization);
    fixed("RealizationText", readings::realizationRefusal);
    fixed("RealizationAbout", readings::realizationAbout);
    fixed("PlanesAbout", PlanesAboutText());
    return book;
}

} // namespace modReadings
