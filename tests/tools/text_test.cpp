#include "tools/text.h"

#include <gtest/gtest.h>

namespace {

/// "0123456789" again and again, `size` characters.
QString Digits(qsizetype size) { return QString("0123456789").repeated(size / 10 + 1).first(size); }

TEST(ToUtf8, EncodesEveryPlane) {
    EXPECT_EQ(ToUtf8(u""), "");
    EXPECT_EQ(ToUtf8(u"\x7F\x80é€😀"), "\x7F\xC2\x80\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf8(std::u16string_view(u"A\0B", 3)), std::string("A\0B", 3));
    EXPECT_EQ(AsUtf8(u"é"), "\xC3\xA9");
}

TEST(ToUtf8, ReplacesASurrogateWithoutItsPartner) {
    const std::string replacement = "\xEF\xBF\xBD"; // U+FFFD
    EXPECT_EQ(ToUtf8(std::u16string{u'A', 0xD83D, u'B'}), "A" + replacement + "B");
    EXPECT_EQ(ToUtf8(std::u16string{u'A', 0xDE00}), "A" + replacement);
    EXPECT_EQ(ToUtf8(std::u16string{0xDE00, 0xD83D}), replacement + replacement);
}

TEST(FromUtf8, TakesUtf8Alone) {
    EXPECT_EQ(FromUtf8("Zoë 😀"), QString("Zoë 😀"));
    EXPECT_EQ(FromUtf8("\xEF\xBF\xBD"), QString(QChar(0xFFFD))); // is a character like others
    EXPECT_EQ(FromUtf8("\xEF\xBB\xBF"), QString(QChar(0xFEFF))); // and so is this
    // Latin 1, a stray byte, sequences cut short, an overlong one and a surrogate.
    for (const char *bytes :
         {"Zo\xEB", "A\xFF", "A\xC3", "A\xF0\x9F\x98", "A\xC0\xAF", "A\xED\xA0\xBD"})
        EXPECT_FALSE(FromUtf8(bytes)) << bytes;
}

TEST(OneLine, WritesControlCharactersOut) {
    EXPECT_EQ(OneLine("März 😀 \"a\\b\""), "März 😀 \"a\\b\"");
    EXPECT_EQ(OneLine("a\nb\r\nc\t"), "a\\nb\\r\\nc\\t");
    EXPECT_EQ(OneLine(QString::fromUtf8("\x1B[31m\x7F\xC2\x9B", 8) + QChar(0)),
              "\\x1B[31m\\x7F\\x9B\\x00");
    EXPECT_EQ(OneLine(QString(QChar::LineSeparator) + QChar(QChar::ParagraphSeparator)),
              "\\x2028\\x2029");
}

// Arabic letter mark, the marks of both directions, embeddings, overrides and isolates, which
// turn what a terminal shows behind them. Beside each stands a character that stays.
TEST(OneLine, WritesMarksOfDirectionOut) {
    for (const auto &[mark, written] :
         std::vector<std::pair<char16_t, std::string>>{{0x061C, "\\x61C"},
                                                       {0x200E, "\\x200E"},
                                                       {0x200F, "\\x200F"},
                                                       {0x202A, "\\x202A"},
                                                       {0x202E, "\\x202E"},
                                                       {0x2066, "\\x2066"},
                                                       {0x2069, "\\x2069"}})
        EXPECT_EQ(OneLine(QString("a") + QChar(mark) + "b"), "a" + written + "b");
    for (const char16_t other : {u'\u061D', u'\u200D', u'\u2010', u'\u2030', u'\u206A'})
        EXPECT_EQ(OneLine(QString(QChar(other))), ToUtf8(std::u16string(1, other)));
}

TEST(Excerpt, LeavesSixtyCharactersAsTheyAre) {
    for (const QString &text : {QString(), QString("a"), QString("März\n😀"), Digits(60)})
        EXPECT_EQ(Excerpt(text), text);
}

// 37 in front, the three dots and the last 20 are sixty.
TEST(Excerpt, KeepsBothEndsOfALongerText) {
    EXPECT_EQ(Excerpt(Digits(61)), Digits(37) + "..." + "12345678901234567890");
    EXPECT_EQ(Excerpt("/home/" + Digits(200) + "/people/report.txt"),
              "/home/" + Digits(31) + "..." + "89/people/report.txt");
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
