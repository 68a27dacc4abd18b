#include "report/html.h"

#include "core/text.h"
#include "report/html_writer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>

using namespace modReadings;
using namespace std::chrono;

namespace {

std::string Written(std::u16string_view text) {
    HtmlWriter html;
    html << text;
    return std::string(html.Written());
}

std::string HtmlFor(std::u16string first, std::u16string last, std::u16string birthYear = u"1990") {
    const UserProfile person{first, u"", last, u"March", u"7", std::move(birthYear)};
    return ToHtml(MakeDocument(person, {first, u"", last}, year(2026) / 11 / 16));
}

/// The drawing of the picture with this id.
std::string DrawingOf(const std::string &html, const std::string &id) {
    const std::size_t begin = html.find("<svg role=\"img\" aria-labelledby=\"" + id);
    return html.substr(begin, html.find("</svg>", begin) - begin);
}

/// A text of a drawing.
struct Label {
    std::size_t at; ///< where it begins in the drawing
    int x;
    int y;
    int size;
    std::string attributes; ///< all others
    std::string content;
};

std::vector<Label> LabelsOf(const std::string &drawing) {
    static const std::regex pattern(
        "<text x=\"(\\d+)\" y=\"(\\d+)\" font-size=\"(\\d+)\"([^>]*)>([^<]*)<");
    std::vector<Label> labels;
    for (std::sregex_iterator found(drawing.begin(), drawing.end(), pattern), end; found != end;
         ++found)
        labels.push_back({static_cast<std::size_t>(found->position()), std::stoi((*found)[1]),
                          std::stoi((*found)[2]), std::stoi((*found)[3]), (*found)[4],
                          (*found)[5]});
    return labels;
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

// Nobody measures a text, and the widest font needs 0.7 of its size for a digit or a sign with the
// blank behind it. 2,199 times I, which is 9, and H, which is 8, make 19,799: the longest way of
// all, 1 + 9 + 7 + 9 + 9 = 35, 3 + 5 = 8.
TEST(Html, GivesEachSumOfTheNameALineOfItsOwn) {
    for (const auto &[first, last] :
         {std::pair<std::u16string, std::u16string>(u"ELIZABETH RICHARD", u"FREDERICK RICHTHOFEN"),
          {std::u16string(2199, u'I'), u"H"}}) {
        const std::vector<Label> labels = LabelsOf(DrawingOf(HtmlFor(first, last), "name-picture"));
        int sums = 0;
        for (const Label &sum : labels) {
            if (sum.content.find(" = ") == std::string::npos)
                continue;
            ++sums;
            EXPECT_LT(sum.x + static_cast<int>(sum.content.size()) * sum.size * 55 / 100, 420)
                << sum.content;
            for (const Label &other : labels)
                EXPECT_TRUE(&other == &sum || std::abs(other.y - sum.y) > sum.size)
                    << sum.content << " and " << other.content;
        }
        EXPECT_GE(sums, 2);
    }
}

// The line of today lies below the bars, whose numbers are bold and at most 10 units wide to each
// side. What stands beside a bar, muted, is not in its way.
TEST(Html, DrawsTheLineOfTodayThroughNoNumber) {
    const std::regex pattern("<path d=\"M(\\d+) 20L");
    int covered = 0;
    int beside = 0;
    for (int birthYear = 1920; birthYear <= 2026; ++birthYear) {
        const std::u16string written = DecimalText(static_cast<int16>(birthYear));
        const std::string drawing = DrawingOf(HtmlFor(u"ADA", u"MOREAU", written), "life-picture");
        std::smatch line;
        ASSERT_TRUE(std::regex_search(drawing, line, pattern)) << birthYear;
        const int today = std::stoi(line[1]);
        for (const Label &label : LabelsOf(drawing)) {
            const bool bold = label.attributes.find("bold") != std::string::npos;
            const bool ages = label.content.find("\u2013") != std::string::npos;
            if (bold && label.size == 17 && std::abs(label.x - today) <= 10 && label.y < 260) {
                const std::size_t bar =
                    std::max(drawing.rfind("<rect", label.at), drawing.rfind("<path", label.at));
                EXPECT_GT(bar, static_cast<std::size_t>(line.position())) << birthYear;
                ++covered;
            }
            if (ages && label.attributes.find("class=\"fm\"") != std::string::npos) {
                const bool toTheLeft = label.attributes.find("end") != std::string::npos;
                const int from = toTheLeft ? label.x - 50 : label.x;
                EXPECT_TRUE(today < from || today > from + 50) << birthYear << label.content;
                ++beside;
            }
        }
    }
    EXPECT_GT(covered, 5);
    EXPECT_GT(beside, 100);
}

// The widest font needs 0.65 of its size for a letter of a bold word, and all of it for an M.
TEST(Html, GivesTheNameTheLettersAndTheShareOfAPlaneTheirRoom) {
    const std::string drawing =
        DrawingOf(HtmlFor(std::u16string(40, u'M'), u"ELAND"), "planes-picture");
    const std::vector<Label> labels = LabelsOf(drawing);
    ASSERT_EQ(labels.size(), 12U); // three of each plane
    for (std::size_t index = 0; index < labels.size(); index += 3) {
        const Label &name = labels[index];
        const Label &share = labels[index + 1];
        const Label &letters = labels[index + 2];
        const auto width = [](const Label &label, int percent) {
            return static_cast<int>(label.content.size()) * label.size * percent / 100;
        };
        EXPECT_LT(name.x + width(name, 65), letters.x) << name.content;
        const int behind = letters.x + width(letters, 102);
        const int ellipsis = letters.content.ends_with("\u2026") ? 2 * letters.size : 0; // 3 bytes
        EXPECT_LT(behind - ellipsis, share.x - width(share, 60)) << name.content;
    }
}

TEST(Html, HasTheSameFontsOnThePageAndInTheDrawings) {
    const std::string html = HtmlFor(u"Ann", u"Lee");
    std::smatch page;
    ASSERT_TRUE(std::regex_search(html, page, std::regex("font: [^ ]*rem/[^ ]* (Charter[^;]*);")));
    int drawings = 0;
    const std::regex pattern("font-family=\"([^\"]*)\"|font: 9pt/1\\.2 ([^;]*);");
    for (std::sregex_iterator found(html.begin(), html.end(), pattern), end; found != end;
         ++found, ++drawings)
        EXPECT_EQ((*found)[1].str() + (*found)[2].str(), page[1].str());
    EXPECT_EQ(drawings, 6); // five, and the lines at the edge of the paper
}

} // namespace
