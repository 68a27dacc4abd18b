#include "core/text.h"
#include "numbers/calculators.h"
#include "tests/support/fresh_store.h"
#include "tests/support/longhand.h"
#include "tests/support/reading_facts.h"

namespace modReadings {
namespace {

using longhand::Decimal;

class Birthday : public FreshStore {
protected:
    static int On(std::u16string day) {
        profile.BirthDay = std::move(day);
        CalcBirthday();
        return store.BirthdayRaw;
    }
};

TEST_F(Birthday, HasAReadingOfItsOwnForEachDay) {
    for (int day = 1; day <= 31; ++day) {
        EXPECT_EQ(On(Decimal(day)), day); // the day itself and not its digits
        EXPECT_TRUE(IsReadingOf(store.BirthdayText, day, "BirthdayText"));
    }
    EXPECT_EQ(On(u"07"), 7); // the text is one number
    EXPECT_TRUE(IsReadingOf(store.BirthdayText, 7, "BirthdayText"));
}

TEST_F(Birthday, HasNoReadingOutsideTheMonth) {
    for (const int day : {0, 32, 33, 99, 32767, -1, -29, -32768}) {
        store = {};
        EXPECT_EQ(On(Decimal(day)), day);
        EXPECT_EQ(store.BirthdayText, u"") << day;
        EXPECT_TRUE(IsTextOf(store.BirthdayAbout, "BirthdayAbout")) << day;
        On(u"31");
        On(Decimal(day)); // keeps the text of the day before
        EXPECT_TRUE(IsReadingOf(store.BirthdayText, 31, "BirthdayText"));
    }
}

} // namespace
} // namespace modReadings
