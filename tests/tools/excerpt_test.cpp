#include "tools/excerpt.h"

#include <gtest/gtest.h>

namespace {

/// "0123456789" again and again, `size` characters.
QString Digits(qsizetype size) { return QString("0123456789").repeated(size / 10 + 1).first(size); }

TEST(Excerpt, LeavesSixtyCharactersAsTheyAre) {
    for (const QString &text : {QString(), QString("a"), QString("März\n😀"), Digits(60)})
        EXPECT_EQ(Excerpt(text), text);
}

// 37 in front, the three dots and the last 20 are sixty.
TEST(Excerpt, KeepsBothEndsOfALongerText) {
    EXPECT_EQ(Excerpt(Digits(61)), Digits(37) + "..." + "12345678901234567890");
    EXPECT_EQ(Excerpt(Digits(100)), Digits(37) + "..." + "01234567890123456789");
    EXPECT_EQ(Excerpt("/home/" + Digits(200) + "/people/report.txt"),
              "/home/" + Digits(31) + "..." + "89/people/report.txt");
}

TEST(Excerpt, IsAsShortForTextBeyondAllMeasure) {
    EXPECT_EQ(Excerpt(QString(10'000'000, 'x')), QString(37, 'x') + "..." + QString(20, 'x'));
}

// A pair that a cut would halve is left out: of 😀, two units wide, 18 fit into the 37 in
// front, and behind an odd number of units the last 20 begin in the middle of one.
TEST(Excerpt, HalvesNoSurrogatePair) {
    const QString smile("😀");
    EXPECT_EQ(Excerpt(smile.repeated(100)), smile.repeated(18) + "..." + smile.repeated(10));
    EXPECT_EQ(Excerpt(smile.repeated(100) + 'x'),
              smile.repeated(18) + "..." + smile.repeated(9) + 'x');
    EXPECT_EQ(Excerpt('x' + smile.repeated(100)),
              'x' + smile.repeated(18) + "..." + smile.repeated(10));
}

} // namespace
