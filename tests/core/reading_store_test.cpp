#include "core/reading_store.h"

#include "core/user_profile.h"
#include "tests/support/fresh_store.h"
#include "tests/support/store_slots.h"

#include <string>
#include <type_traits>

namespace modReadings {
namespace {

// Taken while the process starts, before any test has run.
const ReadingStore storeAtStart = store;
const UserProfile profileAtStart = profile;

// Two numbers that are texts, between siblings that are none.
static_assert(std::is_same_v<decltype(store.PersonalYearNumber), std::u16string>);
static_assert(std::is_same_v<decltype(store.PersonalMonthNumber), int16>);
static_assert(std::is_same_v<decltype(store.KarmicLessonsNumber), std::u16string>);
static_assert(std::is_same_v<decltype(store.ChallengeNumber), std::u16string>);

TEST(StoreAndProfile, AreEmptyAtProcessStart) {
    for (const auto &slot : numberSlots)
        EXPECT_EQ(storeAtStart.*slot.member, 0) << slot.name;
    for (const auto &slot : textSlots)
        EXPECT_EQ(storeAtStart.*slot.member, u"") << slot.name;
    for (const auto slot :
         {&UserProfile::FirstName, &UserProfile::MiddleName, &UserProfile::LastName,
          &UserProfile::BirthMonth, &UserProfile::BirthDay, &UserProfile::BirthYear})
        EXPECT_EQ(profileAtStart.*slot, u"");
}

using WholeNameTest = FreshStore;

TEST_F(WholeNameTest, JoinsTheThreeNamesWithNothingBetween) {
    Named(u"MARY ANN", u"X", u"LEE");
    EXPECT_EQ(WholeName(), u"MARY ANNXLEE");
    Named(u"OAK", u"", u"RIVER");
    EXPECT_EQ(WholeName(), u"OAKRIVER");
}

} // namespace
} // namespace modReadings
