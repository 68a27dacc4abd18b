#include "report/person.h"

#include "core/user_profile.h"

#include <QLocale>
#include <gtest/gtest.h>

#include <clocale>

namespace modReadings {
namespace {

/// The first name as it is captured.
std::u16string Captured(std::u16string_view typed) {
    CaptureProfile({QStringView(typed).toString(), {}, {}, {}, {}, {}});
    return profile.FirstName;
}

class CaptureOfAPerson : public testing::Test {
protected:
    CaptureOfAPerson() { profile = {}; }
};

TEST_F(CaptureOfAPerson, EachTextGoesIntoItsSlot) {
    CaptureProfile({u"one"_qs, u"two"_qs, u"three"_qs, u"May"_qs, u"5"_qs, u"1999"_qs});
    EXPECT_EQ(profile.FirstName, u"ONE");
    EXPECT_EQ(profile.MiddleName, u"TWO");
    EXPECT_EQ(profile.LastName, u"THREE");
    EXPECT_EQ(profile.BirthMonth, u"May");
    EXPECT_EQ(profile.BirthDay, u"5");
    EXPECT_EQ(profile.BirthYear, u"1999");
}

TEST_F(CaptureOfAPerson, ReplacesThePersonBefore) {
    CaptureProfile({u"one"_qs, u"two"_qs, u"three"_qs, u"May"_qs, u"5"_qs, u"1999"_qs});
    CaptureProfile({});
    EXPECT_EQ(profile.FirstName, u"");
    EXPECT_EQ(profile.MiddleName, u"");
    EXPECT_EQ(profile.LastName, u"");
    EXPECT_EQ(profile.BirthMonth, u"");
    EXPECT_EQ(profile.BirthDay, u"");
    EXPECT_EQ(profile.BirthYear, u"");
}

TEST_F(CaptureOfAPerson, BlanksGoAtBothEndsOfAllSix) {
    CaptureProfile({u"  ann "_qs, u" b  "_qs, u"   lee"_qs, u" May "_qs, u"  5 "_qs, u" 1999"_qs});
    EXPECT_EQ(profile.FirstName, u"ANN");
    EXPECT_EQ(profile.MiddleName, u"B");
    EXPECT_EQ(profile.LastName, u"LEE");
    EXPECT_EQ(profile.BirthMonth, u"May");
    EXPECT_EQ(profile.BirthDay, u"5");
    EXPECT_EQ(profile.BirthYear, u"1999");
}

TEST_F(CaptureOfAPerson, BlanksWithinANameStay) {
    EXPECT_EQ(Captured(u" mary  ann "), u"MARY  ANN");
}

TEST_F(CaptureOfAPerson, BlanksAloneAreTheEmptyText) {
    EXPECT_EQ(Captured(u" "), u"");
    EXPECT_EQ(Captured(u"      "), u"");
}

TEST_F(CaptureOfAPerson, NoOtherWhiteSpaceIsABlank) {
    for (const char16_t space :
         {u'\t', u'\n', u'\r', u'\v', u'\f', u'\u0085', u'\u00A0', u'\u1680', u'\u2003', u'\u2009',
          u'\u200B', u'\u2028', u'\u202F', u'\u3000'}) {
        const std::u16string typed = std::u16string(1, space) + u"ann" + space;
        EXPECT_EQ(Captured(typed), std::u16string(1, space) + u"ANN" + space) << unsigned{space};
        EXPECT_EQ(Captured(u"  " + typed + u"  "), std::u16string(1, space) + u"ANN" + space);
        EXPECT_EQ(Captured(std::u16string(1, space)), std::u16string(1, space));
    }
    profile = {};
    CaptureProfile({{}, {}, {}, u"\tMay"_qs, u"\u00A05"_qs, u"1999\t"_qs});
    EXPECT_EQ(profile.BirthMonth, u"\tMay");
    EXPECT_EQ(profile.BirthDay, u"\u00A05");
    EXPECT_EQ(profile.BirthYear, u"1999\t");
}

TEST_F(CaptureOfAPerson, TheCaseOfTheMonthStays) {
    CaptureProfile({{}, {}, {}, u"january"_qs, {}, {}});
    EXPECT_EQ(profile.BirthMonth, u"january");
    CaptureProfile({{}, {}, {}, u"M\u00E4rz"_qs, {}, {}});
    EXPECT_EQ(profile.BirthMonth, u"M\u00E4rz");
}

TEST_F(CaptureOfAPerson, DigitsAndSignsPass) {
    EXPECT_EQ(Captured(u"o'neill-3rd."), u"O'NEILL-3RD.");
}

TEST_F(CaptureOfAPerson, LettersOfAllAlphabetsAreUpperCased) {
    EXPECT_EQ(Captured(u"\u00E9\u00F1\u00FC\u00F8\u00E5"), u"\u00C9\u00D1\u00DC\u00D8\u00C5");
    EXPECT_EQ(Captured(u"\u0159\u017E\u0142"), u"\u0158\u017D\u0141"); // Czech, Polish
    EXPECT_EQ(Captured(u"\u03C3\u03AF\u03C3\u03C5\u03C6\u03BF\u03C2"), // both sigmas
              u"\u03A3\u038A\u03A3\u03A5\u03A6\u039F\u03A3");
    EXPECT_EQ(Captured(u"\u0434\u0436"), u"\u0414\u0416"); // Cyrillic
    EXPECT_EQ(Captured(u"\u00FF"), u"\u0178");             // y with dots
    EXPECT_EQ(Captured(u"\U00010428"), u"\U00010400");     // Deseret
}

TEST_F(CaptureOfAPerson, SomeLettersBecomeTwo) {
    EXPECT_EQ(Captured(u"stra\u00DFe"), u"STRASSE"); // sharp s
    EXPECT_EQ(Captured(u"\uFB01n"), u"FIN");         // the ligature fi
}

TEST_F(CaptureOfAPerson, SmallLettersWithoutADotAreTheSameCapital) {
    EXPECT_EQ(Captured(u"\u0131"), u"I"); // dotless i
    EXPECT_EQ(Captured(u"\u0130"), u"\u0130");
}

TEST_F(CaptureOfAPerson, CharactersWithoutCaseStay) {
    EXPECT_EQ(Captured(u"\U0001F600 \u4E2D\u6587 \u0905"), u"\U0001F600 \u4E2D\u6587 \u0905");
    EXPECT_EQ(Captured(u"a\u0301"), u"A\u0301"); // a combining accent is not composed
}

TEST_F(CaptureOfAPerson, HalfOfASurrogatePairIsOneCharacterAndSparesItsNeighbours) {
    for (const char16_t half : {char16_t{0xD83D}, char16_t{0xDE00}}) {
        const std::u16string captured = Captured(std::u16string{u'a', half, u'b'});
        ASSERT_EQ(captured.size(), 3U);
        EXPECT_EQ(captured[0], u'A');
        // Half a pair is no character of Unicode; upper-casing leaves the mark for that.
        EXPECT_EQ(captured[1], u'\uFFFD');
        EXPECT_EQ(captured[2], u'B');
    }
}

TEST_F(CaptureOfAPerson, MarksOfByteOrderAreOrdinaryCharacters) {
    EXPECT_EQ(Captured(u"\uFEFFann\uFEFF"), u"\uFEFFANN\uFEFF");
    EXPECT_EQ(Captured(u"\uFFFEann"), u"\uFFFEANN");
}

TEST_F(CaptureOfAPerson, ANameMayHoldTheCharacterZero) {
    EXPECT_EQ(Captured(std::u16string_view(u"a\0b", 3)), std::u16string(u"A\0B", 3));
}

TEST_F(CaptureOfAPerson, HasNoLimitOfLength) {
    const std::u16string typed = u" " + std::u16string(40'000, u'z') + u" ";
    EXPECT_EQ(Captured(typed), std::u16string(40'000, u'Z'));
}

TEST_F(CaptureOfAPerson, TheTurkishLocaleChangesNothing) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish, QLocale::Turkey));
    // What a capture by the locale's rules would make of it:
    EXPECT_EQ(QLocale().toUpper(u"i"_qs).toStdU16String(), u"\u0130");
    EXPECT_EQ(Captured(u"iris fidel"), u"IRIS FIDEL");
    QLocale::setDefault(QLocale(QLocale::Lithuanian));
    EXPECT_EQ(Captured(u"i\u0307"), u"I\u0307"); // Lithuanian drops the dot
    QLocale::setDefault(before);
}

} // namespace
} // namespace modReadings
