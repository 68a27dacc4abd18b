#include "report/person.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace modReadings {
namespace {

using namespace std::string_view_literals;

QString Text(std::u16string_view text) { return QStringView(text).toString(); }

/// The first name as it is captured.
std::u16string NameOf(std::u16string_view typed) {
    return Captured({Text(typed), {}, {}, {}, {}, {}}).FirstName;
}

TEST(CaptureOfAPerson, PutsEachTextInItsSlotWithoutTheBlanksAtItsEnds) {
    const UserProfile person = Captured({Text(u"  ann "), Text(u" b  "), Text(u"   lee"),
                                         Text(u" mAy "), Text(u"  5 "), Text(u" 1999")});
    EXPECT_EQ(person.FirstName, u"ANN");
    EXPECT_EQ(person.MiddleName, u"B");
    EXPECT_EQ(person.LastName, u"LEE");
    EXPECT_EQ(person.BirthMonth, u"mAy"); // the case of the month stays
    EXPECT_EQ(person.BirthDay, u"5");
    EXPECT_EQ(person.BirthYear, u"1999");
}

TEST(CaptureOfAPerson, UpperCasesNamesByUnicodesRules) {
    const std::pair<std::u16string_view, std::u16string_view> names[] = {
        {u"", u""},
        {u"      ", u""}, // blanks alone are the empty text
        {u" mary  ann ", u"MARY  ANN"},
        {u"o'neill-3rd.", u"O'NEILL-3RD."},
        {u"\u00E9\u00F1\u00FC\u00F8\u00E5", u"\u00C9\u00D1\u00DC\u00D8\u00C5"},
        {u"\u0159\u017E\u0142", u"\u0158\u017D\u0141"}, // Czech, Polish
        {u"\u03C3\u03AF\u03C3\u03C5\u03C6\u03BF\u03C2",
         u"\u03A3\u038A\u03A3\u03A5\u03A6\u039F\u03A3"}, // both sigmas
        {u"\u0434\u0436", u"\u0414\u0416"},              // Cyrillic
        {u"\u00FF", u"\u0178"},                          // y with dots
        {u"\U00010428", u"\U00010400"},                  // Deseret
        {u"stra\u00DFe", u"STRASSE"},                    // sharp s
        {u"\uFB01n", u"FIN"},                            // the ligature fi
        {u"\u0131", u"I"},                               // dotless i
        {u"\u0130", u"\u0130"},
        {u"\U0001F600 \u4E2D\u6587 \u0905", u"\U0001F600 \u4E2D\u6587 \u0905"},
        {u"a\u0301", u"A\u0301"}, // a combining accent is not composed
        {u"\uFEFFann\uFEFF", u"\uFEFFANN\uFEFF"},
        {u"\uFFFEann", u"\uFFFEANN"},
        {u"a\0b"sv, u"A\0B"sv},
    };
    for (const auto &[typed, captured] : names)
        EXPECT_EQ(NameOf(typed), captured) << testing::PrintToString(std::u16string(typed));

    // Half a pair is no character of Unicode; upper-casing leaves the mark for that.
    for (const char16_t half : {char16_t{0xD83D}, char16_t{0xDE00}})
        EXPECT_EQ(NameOf(std::u16string{u'a', half, u'b'}), u"A\uFFFDB");

    EXPECT_EQ(NameOf(u" " + std::u16string(40'000, u'z') + u" "), std::u16string(40'000, u'Z'));
}

TEST(CaptureOfAPerson, TakesNoOtherWhiteSpaceForABlank) {
    for (const char16_t space :
         {u'\t', u'\n', u'\r', u'\v', u'\f', u'\u0085', u'\u00A0', u'\u1680', u'\u2003', u'\u2009',
          u'\u200B', u'\u2028', u'\u202F', u'\u3000'}) {
        const std::u16string text = space + std::u16string(u"7") + space;
        const QString typed = Text(u"  " + text + u"  ");
        const UserProfile person = Captured({typed, typed, typed, typed, typed, typed});
        for (const auto slot :
             {&UserProfile::FirstName, &UserProfile::MiddleName, &UserProfile::LastName,
              &UserProfile::BirthMonth, &UserProfile::BirthDay, &UserProfile::BirthYear})
            EXPECT_EQ(person.*slot, text) << unsigned{space};
        EXPECT_EQ(NameOf(std::u16string(1, space)), std::u16string(1, space));
    }
}

TEST(CaptureOfAPerson, OwesNothingToTheLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish, QLocale::Turkey));
#ifndef Q_OS_WIN // there the toolkit has no such rules
    // What a capture by the locale's rules would make of it:
    EXPECT_EQ(QLocale().toUpper(Text(u"i")).toStdU16String(), u"\u0130");
#endif
    EXPECT_EQ(NameOf(u"iris fidel"), u"IRIS FIDEL");
    QLocale::setDefault(QLocale(QLocale::Lithuanian));
    EXPECT_EQ(NameOf(u"i\u0307"), u"I\u0307"); // Lithuanian drops the dot
    QLocale::setDefault(before);
}

} // namespace
} // namespace modReadings
