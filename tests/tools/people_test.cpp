#include "tools/people.h"

#include "core/clock.h"
#include "tests/tools/complaint.h"

#include <QStringList>

#include <gtest/gtest.h>

using modReadings::UserProfile;

namespace {

class CheckPersonTest : public testing::Test {
protected:
    /// Ann with another value for one input.
    static PersonInput With(QString PersonInput::*input, const QString &value) {
        PersonInput person{"Ann", "", "Lee", "March", "7", "1990"};
        person.*input = value;
        return person;
    }

    static std::string Refused(const PersonInput &input) {
        return RefusalOf([&] { CheckPerson(input, InputNames(QStringLiteral("--"))); });
    }

    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
};

TEST_F(CheckPersonTest, CapturesThePersonAsTheWindowDoes) {
    const UserProfile person =
        CheckPerson({"  Mary ann ", " o'neil", "Strauß", "2", "031", "1900"});
    EXPECT_EQ(person.FirstName, u"MARY ANN");
    EXPECT_EQ(person.MiddleName, u"O'NEIL");
    EXPECT_EQ(person.LastName, u"STRAUSS");
    EXPECT_EQ(person.BirthMonth, u"February");
    EXPECT_EQ(person.BirthDay, u"31"); // a day that the month lacks is one like others
    EXPECT_EQ(person.BirthYear, u"1900");
    EXPECT_EQ(CheckPerson({"A", "   ", "B", "may", "1", "2050"}).MiddleName, u"");
    EXPECT_EQ(CheckPerson({"\tA\n", "", "B", "MAY", "1", "2050"}).FirstName, u"\tA\n");
}

TEST_F(CheckPersonTest, TakesTheWholeRangeOfDatesAndMonthsByNameAndNumber) {
    const QStringList months{"January", "February", "March",     "April",   "May",      "June",
                             "July",    "August",   "September", "October", "November", "December"};
    for (int month = 1; month <= 12; ++month)
        for (const QString &text : {QString::number(month), months[month - 1],
                                    months[month - 1].toUpper(), months[month - 1].toLower()})
            EXPECT_EQ(CheckPerson(With(&PersonInput::month, text)).BirthMonth,
                      months[month - 1].toStdU16String());
    for (int day = 1; day <= 31; ++day)
        EXPECT_EQ(CheckPerson(With(&PersonInput::day, QString::number(day))).BirthDay,
                  QString::number(day).toStdU16String());
    for (int year = 1900; year <= 2050; ++year)
        EXPECT_EQ(CheckPerson(With(&PersonInput::year, QString::number(year))).BirthYear,
                  QString::number(year).toStdU16String());
}

TEST_F(CheckPersonTest, TakesAMonthByItsAbbreviation) {
    for (const auto &[text, month] :
         std::vector<std::pair<QString, std::u16string>>{{"Jan", u"January"},
                                                         {"feb.", u"February"},
                                                         {"MAR", u"March"},
                                                         {"may", u"May"},
                                                         {"jun", u"June"},
                                                         {"Jul.", u"July"},
                                                         {"sep", u"September"},
                                                         {"Sept", u"September"},
                                                         {"SEPT.", u"September"},
                                                         {"dec", u"December"}})
        EXPECT_EQ(CheckPerson(With(&PersonInput::month, text)).BirthMonth, month);
}

TEST_F(CheckPersonTest, TakesADateInOnePieceWithTheRangesOfTheLists) {
    const auto born = [](const QString &date) {
        return PersonInput{"Ann", "", "Lee", "", "", "", date};
    };
    const UserProfile person = CheckPerson(born("1984-02-31")); // there is no such day
    EXPECT_EQ(person.BirthMonth, u"February");
    EXPECT_EQ(person.BirthDay, u"31");
    EXPECT_EQ(person.BirthYear, u"1984");
    EXPECT_EQ(CheckPerson(born("2050-12-01")).BirthDay, u"1");
    EXPECT_EQ(CheckPerson(born("1900-01-09")).BirthYear, u"1900");
    for (const char *wrong : {"1899-12-31", "2051-01-01", "1984-00-07", "1984-13-07", "1984-05-00",
                              "1984-05-32", "1984-5-7", "84-05-07", "1984/05/07", "07.05.1984",
                              "1984-05-07 ", "1984-05-07T00:00", "1984-05-07\n", "١٩٨٤-٠٥-٠٧"})
        ExpectLine(Refused(born(wrong)), {"--date: \"" + OneLine(wrong), "YYYY-MM-DD",
                                          "1900 to 2050", "01 to 12", "01 to 31"});
    ExpectLine(RefusalOf([&] { CheckPerson(born("x")); }), {"birthdate: \"x\""});
    for (QString PersonInput::*part :
         {&PersonInput::month, &PersonInput::day, &PersonInput::year}) {
        PersonInput both = born("1984-05-07");
        both.*part = "7";
        ExpectLine(Refused(both), {"--date does not go with --month, --day and --year"});
    }
}

// I counts 9: 3640 of them are 32760, and int16 ends at 32767.
TEST_F(CheckPersonTest, RefusesANameWhoseSumLeavesInt16) {
    const QString most(3640, 'i');
    EXPECT_EQ(CheckPerson({most, "", "G", "3", "7", "1990"}).LastName, u"G"); // 32767
    for (const PersonInput &input :
         {PersonInput{most, "", "H", "3", "7", "1990"},
          {most, "A", "G", "3", "7", "1990"},
          {"A", "", QString(3641, 'I'), "3", "7", "1990"},
          // The Rational Thought adds the day to the first name.
          {most, "", "G", "3", "8", "1990"},
          // Letters without a value count among the characters.
          {"A", "", "A" + QString(32'766, QChar(0xE9)), "3", "7", "1990"}})
        ExpectLine(Refused(input), {"the name is too long", "32767"});
    EXPECT_NO_THROW(CheckPerson({"A", "", "A" + QString(32'765, QChar(0xE9)), "3", "7", "1990"}));
}

TEST_F(CheckPersonTest, NamesTheInputItsValueAndWhatIsAllowed) {
    struct Input {
        QString PersonInput::*input;
        std::string name;
        std::string allowed;
        std::vector<const char *> wrong;
    };
    for (const Input &row : std::vector<Input>{
             {&PersonInput::first, "--first", "first name", {""}},
             {&PersonInput::last, "--last", "last name", {""}},
             {&PersonInput::month,
              "--month",
              "English month name, its abbreviation or a number from 1 to 12",
              {"", "0", "13", "-1", "3.0", "Ma", "Mars", "Marc", "März", "March ", "March.",
               "Mar..", "...", "Sep t", "1st", "٣", "Ma\nrch", "3\r", "\x1B[31mMay"}},
             {&PersonInput::day,
              "--day",
              "a number from 1 to 31",
              {"", "0", "32", "-1", "+1", "1.0", "1 ", "seven", "0x7", "٧", "99999", "7\n",
               "4294967297", "99999999999999999999"}},
             {&PersonInput::year,
              "--year",
              "a number from 1900 to 2050",
              {"", "0", "1899", "2051", "90", "19900", "1990.0", "1990 1991", "MCMXC", "19\n90"}}})
        for (const std::string value : row.wrong) {
            const QString text = QString::fromStdString(value);
            ExpectLine(Refused(With(row.input, text)),
                       {row.name + (value.empty() ? " is missing"
                                                  : ": \"" + OneLine(text) + "\" is not allowed"),
                        row.allowed});
        }
}

TEST_F(CheckPersonTest, QuotesNoMoreThanAnExcerpt) {
    EXPECT_EQ(
        Refused(With(&PersonInput::month, QString(1'000'000, 'x'))),
        "--month: \"" + std::string(37, 'x') + "..." + std::string(20, 'x') +
            "\" is not allowed; give an English month name, its abbreviation or a number from "
            "1 to 12");
}

TEST_F(CheckPersonTest, RefusesTheFirstThatIsWrongUnderTheNameOfItsSource) {
    EXPECT_TRUE(Refused({}).starts_with("--first "));
    EXPECT_TRUE(Refused({"Ann", "", "", "", "", ""}).starts_with("--last "));
    EXPECT_TRUE(RefusalOf([] { CheckPerson({}); }).starts_with("first "));
}

/// Names of which one would keep the walk of the Essence from ever coming to its end, and
/// that one. At age 0 or below the walk is over after one pass and any name will do.
TEST_F(CheckPersonTest, RefusesNamesThatTheEssenceWouldNeverFinish) {
    struct Endless {
        QString first, middle, last;
        std::string blamed;
    };
    for (const auto &[first, middle, last, blamed] :
         std::vector<Endless>{{"123", "", "Lee", "--first"},
                              {"-'.", "", "Lee", "--first"},
                              {"   ", "", "Lee", "--first"},
                              {"Éé", "", "Lee", "--first"},
                              {"Анна", "", "Lee", "--first"},
                              {"😀", "", "Lee", "--first"},
                              {QString(4'000, '-'), "", "Lee", "--first"},
                              {"1", "2", "3", "--first"},
                              {"Ann", "2", "Lee", "--middle"},
                              {"Ann", "- -", "3", "--middle"},
                              {"Ann", "", "7", "--last"},
                              {"Ann", "", "  ", "--last"},
                              {"Ann", "", "f", "--last"},
                              {"Ann", "", "F-f F2", "--last"}}) {
        SCOPED_TRACE(first.left(20).toStdString() + '|' + middle.toStdString() + '|' +
                     last.toStdString());
        for (const char *year : {"1900", "1990", "2025"}) // 2025 is age 1
            ExpectLine(Refused({first, middle, last, "3", "7", year}),
                       {blamed, "Essence", "at least one of the letters A to Z",
                        blamed == "--last" ? "other than F" : ""});
        for (const char *year : {"2026", "2027", "2050"})
            EXPECT_NO_THROW(CheckPerson({first, middle, last, "3", "7", year}));
    }
    clock_.Set(std::chrono::year(2027) / 1 / 1);
    EXPECT_TRUE(Refused({"1", "", "F", "3", "7", "2026"}).starts_with("--first"));
}

TEST_F(CheckPersonTest, SparesNamesWithOneLetterThatCounts) {
    for (const auto &[first, middle, last] :
         std::vector<std::array<QString, 3>>{{"1A", "", "Lee"},
                                             {"F", "", "Lee"},
                                             {"Ann", "F", "Lee"},
                                             {"Ann", "", "FA"},
                                             {"Ann", "", "Éj"},
                                             {"ß", "", "Lee"},
                                             {"Ann", "   ", "Lee"}})
        EXPECT_NO_THROW(CheckPerson({first, middle, last, "3", "7", "1900"}));
}

// "é" in one letter has no value; in two it is an E and an accent.
TEST_F(CheckPersonTest, ReadsANameComposedWhenItIsToldTo) {
    const PersonInput typed{"Zoe\u0301", "Ae\u0301", "Le\u0301e", "March", "7", "1990"};
    EXPECT_EQ(CheckPerson(typed).FirstName, u"ZOE\u0301");
    const UserProfile composed = CheckPerson(Composed(typed));
    EXPECT_EQ(composed.FirstName, u"ZO\u00C9");
    EXPECT_EQ(composed.MiddleName, u"A\u00C9");
    EXPECT_EQ(composed.LastName, u"L\u00C9E");
    EXPECT_EQ(composed.BirthMonth, u"March");
}

TEST(DecomposedRemark, IsThereOnlyWhereComposingChangesTheCapturedName) {
    const auto remark = [](const QString &first, const QString &middle, const QString &last) {
        return DecomposedRemark({first, middle, last, "March", "7", "1990"},
                                InputNames(QString("--")))
            .toStdString();
    };
    for (const char *composed : {"Anna", "Zo\u00E9", "O'Neil-2", "\u0416\u0425", "Q\u0301"})
        EXPECT_EQ(remark(composed, "", composed), "");
    ExpectLine(remark("Zoe\u0301", "", "Lee"), {"--first: not in composed letters", "--normalize"});
    ExpectLine(remark("Ann", "N\u0303", "Lee\u0308"), {"--middle, --last: "});
    // The Kelvin sign looks like a K and has no value; composed it is one.
    ExpectLine(remark("Ann", "", "\u212Aent"), {"--last: "});
}

} // namespace
