#include "report/html.h"

#include "report/html_writer.h"

#include <gtest/gtest.h>

using namespace modReadings;
using namespace std::chrono;

namespace {

std::string Written(std::u16string_view text) {
    HtmlWriter html;
    html << text;
    return std::string(html.Written());
}

std::string HtmlFor(std::u16string first, std::u16string last) {
    const UserProfile person{first, u"", last, u"March", u"7", u"1990"};
    return ToHtml(MakeDocument(person, {first, u"", last}, year(2026) / 11 / 16));
}

TEST(HtmlWriter, EscapesWhatHasAMeaning) {
    EXPECT_EQ(Written(u"<b>&\"'</b>"), "&lt;b&gt;&amp;&quot;'&lt;/b&gt;");
}

// Each at every place of a block that is narrowed at once.
TEST(HtmlWriter, EscapesWhereverItStands) {
    for (std::size_t before = 0; before < 40; ++before) {
        const std::u16string around(before, u'x');
        const std::string plain(before, 'x');
        EXPECT_EQ(Written(around + u'&' + around), plain + "&amp;" + plain);
        EXPECT_EQ(Written(around + u"\U0001F600" + around), plain + "\U0001F600" + plain);
    }
}

TEST(HtmlWriter, WritesEveryCharacterOfUnicodeInUtf8) {
    EXPECT_EQ(Written(u"\u007E\u00A0\u07FF\u0800\uFFFD\U00010000\U0010FFFD"),
              "\u007E\u00A0\u07FF\u0800\uFFFD\U00010000\U0010FFFD");
}

TEST(HtmlWriter, ReplacesWhatNoHtmlMayHold) {
    EXPECT_EQ(Written(u"a\tb\r\nc\nd\re\r"), "a b c d e ");
    for (const int character : {0x00, 0x01, 0x0C, 0x1F, 0x7F, 0x80, 0x9F, 0xD800, 0xDBFF, 0xDC00,
                                0xDFFF, 0xFDD0, 0xFDEF, 0xFFFE, 0xFFFF})
        EXPECT_EQ(Written(std::u16string(1, static_cast<char16_t>(character)) + u'x'), "\uFFFDx")
            << character;
    EXPECT_EQ(Written(u"\U0001FFFE\U0010FFFF"), "\uFFFD\uFFFD");
    EXPECT_EQ(Written(u"x\xD83D"), "x\uFFFD");
}

TEST(HtmlWriter, PutsMarkupBetweenLines) {
    HtmlWriter html;
    html.Lines(u"One & two.\r\nA second line that is longer than a block.\r\n", "|");
    EXPECT_EQ(html.Written(), "One &amp; two.|A second line that is longer than a block.|");
}

TEST(Html, IsolatesTheNameAndKeepsItsMarksOfDirectionOutOfPlainText) {
    const std::string html = HtmlFor(u"Ann\u202E\u2069", u"Lee");
    EXPECT_NE(html.find("<bdi>Ann\u202E\u2069 Lee</bdi></h1>"), std::string::npos);
    EXPECT_NE(html.find("<title>Ann Lee \u2013 Orravane Comprehensive Reading, November 16, "
                        "2026</title>"),
              std::string::npos);
}

// They become the properties of a PDF.
TEST(Html, SaysInItsHeadWhatItIs) {
    const std::string html = HtmlFor(u"\"Ann\"", u"Lee");
    EXPECT_NE(
        html.find("<meta name=\"description\" content=\"A numerology report for &quot;Ann&quot; "
                  "Lee, born March 7, 1990, read for November 16, 2026.\">"),
        std::string::npos);
    EXPECT_NE(html.find("<meta name=\"author\" content=\"Orravane\">"), std::string::npos);
}

// What could end the style, and what could end the text within it. A blank ends each number.
TEST(Html, WritesTheNameAtTheTopOfThePagesByNumbers) {
    const std::string html = HtmlFor(u"Ann</style>\"\\\xD83D", u"Lee\U0001F600");
    EXPECT_NE(html.find("@top-left { content: \"Ann\\3C \\2F style\\3E \\22 \\5C \\FFFD  Lee"
                        "\\1F600 \"; }"),
              std::string::npos);
}

TEST(Html, CutsALongNameWhereThereIsLittleRoom) {
    const std::string html = HtmlFor(std::u16string(59, u'A') + u"\U0001F600", u"Lee");
    EXPECT_NE(html.find("<title>" + std::string(59, 'A') + "\u2026 "), std::string::npos);
    EXPECT_NE(html.find("<h1 class=\"long\""), std::string::npos);
    EXPECT_NE(html.find("<bdi>" + std::string(59, 'A') + "\U0001F600 Lee</bdi></h1>"),
              std::string::npos);
}

TEST(Html, DrawsNoMoreLettersThanAPictureHolds) {
    const std::string html = HtmlFor(std::u16string(500, u'A'), u"Lee");
    EXPECT_NE(html.find(">and 83 more characters</text>"), std::string::npos); // 503 less 420
}

} // namespace
