#include "core/text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace modReadings {
namespace {

using ::testing::PrintToString;

static_assert(TrimBlanks(u"") == u"");
static_assert(TrimBlanks(u"   ") == u"");
static_assert(TrimBlanks(u"OAK") == u"OAK");
static_assert(TrimBlanks(u"  MARY ANN ") == u"MARY ANN");
static_assert(TrimBlanks(u" \u00A0A\u3000 ") == u"\u00A0A\u3000"); // only U+0020 is a blank
static_assert(TrimBlanks(u" \tA\r\n ") == u"\tA\r\n");

static_assert(DigitValue(u'0') == 0);
static_assert(DigitValue(u'9') == 9);

static_assert(NumberFromText(u"0") == 0);
static_assert(NumberFromText(u"31") == 31);
static_assert(NumberFromText(u"007") == 7);
static_assert(NumberFromText(u"+5") == 5);
static_assert(NumberFromText(u"-5") == -5);
static_assert(NumberFromText(u"32767") == 32767);
static_assert(NumberFromText(u"-32768") == -32768);
static_assert(NumberFromText(u"00000000000000000000000032767") == 32767);

TEST(DigitValue, KnowsTenCharactersAndNoOther) {
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        const auto character = static_cast<char16_t>(unit);
        if (unit >= U'0' && unit <= U'9')
            EXPECT_EQ(DigitValue(character), static_cast<int>(unit - U'0'));
        else
            EXPECT_THROW(DigitValue(character), RuntimeFailure) << static_cast<unsigned>(unit);
    }
}

TEST(NumberFromText, FailsOnTextThatIsNoNumberAndOutsideTheInt16Range) {
    using namespace std::string_view_literals;
    for (const std::u16string_view text :
         {u""sv,       u" "sv,      u"x"sv,       u"1x"sv,
          u"x1"sv,     u"1 2"sv,    u"-"sv,       u"+"sv,
          u"--1"sv,    u"+-1"sv,    u"1-"sv,      u"1.0"sv,
          u"1e3"sv,    u"0x10"sv,   u"January"sv, u"\u0661"sv,
          u"\uFF11"sv, u"\u00B2"sv, u"1\0"sv,     u"\U0001F600"sv,
          u"32768"sv,  u"-32769"sv, u"65536"sv,   u"18446744073709551617"sv})
        EXPECT_THROW(NumberFromText(text), RuntimeFailure) << PrintToString(std::u16string(text));
    EXPECT_THROW(NumberFromText(std::u16string(40000, u'9')), RuntimeFailure);
    EXPECT_EQ(NumberFromText(std::u16string(40000, u'0')), 0);
}

TEST(DecimalText, IsPlainAndComesBackAsTheSameNumber) {
    EXPECT_EQ(DecimalText(0), u"0");
    EXPECT_EQ(DecimalText(2026), u"2026");
    EXPECT_EQ(DecimalText(-32768), u"-32768");
    for (int value = -32768; value <= 32767; ++value)
        ASSERT_EQ(NumberFromText(DecimalText(static_cast<int16>(value))), value);
}

TEST(Length, CountsUpTo32767) {
    EXPECT_EQ(Length(std::u16string(32767, u'A')), 32767);
    EXPECT_THROW(Length(std::u16string(32768, u'A')), RuntimeFailure);
}

} // namespace
} // namespace modReadings
