#include "tools/people.h"

#include "core/clock.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

class CheckPersonTest : public testing::Test {
protected:
    std::optional<modReadings::Person> Check(const PersonInput &input) {
        complaint_.clear();
        const auto person = CheckPerson(input, {QStringLiteral("--")}, complaint_);
        EXPECT_EQ(complaint_.isEmpty(), person.has_value()) << complaint_.toStdString();
        return person;
    }

    /// The complaint about `input`.
    std::string Complaint(const PersonInput &input) {
        EXPECT_FALSE(Check(input).has_value());
        return complaint_.toStdString();
    }

    void ExpectComplaint(const PersonInput &input, const std::string &option,
                         const std::string &allowed) {
        const std::string line = Complaint(input);
        EXPECT_TRUE(line.starts_with(option)) << line;
        EXPECT_NE(line.find(allowed), std::string::npos) << line;
    }

    const PersonInput ann_{"Ann", "", "Lee", "March", "7", "1990"};
    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};

private:
    QString complaint_;
};

TEST_F(CheckPersonTest, GivesThePersonAsTheWindowWouldHaveIt) {
    const auto person = Check({" Ann ", " m ", "Lee", "3", "07", "1990"});
    ASSERT_TRUE(person);
    EXPECT_EQ(person->firstName, " Ann "); // the capture trims
    EXPECT_EQ(person->middleName, " m ");
    EXPECT_EQ(person->lastName, "Lee");
    EXPECT_EQ(person->birthMonth, "March");
    EXPECT_EQ(person->birthDay, "7");
    EXPECT_EQ(person->birthYear, "1990");
}

TEST_F(CheckPersonTest, TakesEveryMonthByNumberAndName) {
    const QStringList months{"January", "February", "March",     "April",   "May",      "June",
                             "July",    "August",   "September", "October", "November", "December"};
    for (int month = 1; month <= 12; ++month) {
        PersonInput input = ann_;
        input.month = QString::number(month);
        EXPECT_EQ(Check(input)->birthMonth, months[month - 1]);
        input.month = months[month - 1];
        EXPECT_EQ(Check(input)->birthMonth, months[month - 1]);
    }
}

TEST_F(CheckPersonTest, TakesTheWholeRangeOfDaysAndYears) {
    PersonInput input = ann_;
    for (int day = 1; day <= 31; ++day) {
        input.day = QString::number(day);
        EXPECT_EQ(Check(input)->birthDay, input.day);
    }
    for (int year = 1900; year <= 2050; ++year) {
        input.year = QString::number(year);
        EXPECT_EQ(Check(input)->birthYear, input.year);
    }
}

TEST_F(CheckPersonTest, NamesTheInputAndWhatIsAllowed) {
    const auto with = [&](QString PersonInput::*input, const char *value) {
        PersonInput changed = ann_;
        changed.*input = QString::fromUtf8(value);
        return changed;
    };
    ExpectComplaint(with(&PersonInput::first, ""), "--first", "first name");
    ExpectComplaint(with(&PersonInput::last, ""), "--last", "last name");
    for (const char *month : {"", "0", "13", "Mars", "March ", "1st", "٣"})
        ExpectComplaint(with(&PersonInput::month, month), "--month", "1 to 12");
    for (const char *day : {"", "0", "32", "-1", "+1", "1.0", "1 ", "٣", "99999"})
        ExpectComplaint(with(&PersonInput::day, day), "--day", "1 to 31");
    for (const char *year : {"", "0", "1899", "2051", "90", "19900", "1990.0", "MCMXC"})
        ExpectComplaint(with(&PersonInput::year, year), "--year", "1900 to 2050");
}

TEST_F(CheckPersonTest, QuotesNoMoreThanAnExcerpt) {
    PersonInput input = ann_;
    input.month = QString(1'000'000, 'x');
    EXPECT_EQ(Complaint(input), "--month: \"" + std::string(37, 'x') + "..." +
                                    std::string(20, 'x') +
                                    "\" is not allowed; give an English month name or a number "
                                    "from 1 to 12");
}

TEST_F(CheckPersonTest, ComplainsInTheOrderOfTheWindow) {
    ExpectComplaint({}, "--first", "");
    ExpectComplaint({"Ann", "", "", "", "", ""}, "--last", "");
}

TEST_F(CheckPersonTest, UsesTheNamesOfWhereTheInputComesFrom) {
    QString complaint;
    EXPECT_FALSE(CheckPerson({}, {}, complaint).has_value());
    EXPECT_TRUE(complaint.startsWith("first "));
}

TEST_F(CheckPersonTest, RefusesNamesThatTheEssenceWouldNeverFinish) {
    ExpectComplaint({"1", "", "Lee", "3", "7", "2025"}, "--first", "letter");
    ExpectComplaint({"Ann", "1", "Lee", "3", "7", "2025"}, "--middle", "letter");
    ExpectComplaint({"Ann", "", "Ff", "3", "7", "2025"}, "--last", "other than F");
    EXPECT_TRUE(Check({"1", "1", "F", "3", "7", "2026"}));
    EXPECT_TRUE(Check({"1", "1", "F", "3", "7", "2050"}));
    clock_.Set(std::chrono::year(2051) / 1 / 1);
    ExpectComplaint({"1", "1", "F", "3", "7", "2050"}, "--first", "letter");
}

} // namespace
