#include "report/rich_text.h"
#include "tests/report/report_text.h"

#include <gtest/gtest.h>

namespace modReadings {
namespace {

static_assert(TopicInk == Ink{128, 0, 128});
static_assert(lineBreak == u"\r\n");

/// Writes down each operation with its argument.
class OperationLog final : public RichTextPane {
public:
    std::vector<std::string> operations;

    void SetText(std::u16string_view text) override {
        operations.push_back("text " + Readable(text));
    }
    void SetBold(bool bold) override { operations.push_back(bold ? "bold on" : "bold off"); }
    void SetColor(Ink ink) override {
        operations.push_back("colour " + std::to_string(ink.red) + ' ' + std::to_string(ink.green) +
                             ' ' + std::to_string(ink.blue));
    }
    void SetSelectedText(std::u16string text) override {
        operations.push_back("write " + Readable(text));
    }
};

TEST(AppendBlock, WritesTextAndBreaksInOneWriteAndSetsNoFormat) {
    OperationLog pane;
    AppendBlock(pane, u"one");
    AppendBlock(pane, u"two", 1);
    AppendBlock(pane, u"three", 2);
    EXPECT_EQ(pane.operations, (std::vector<std::string>{"write one", "write two\\r\\n",
                                                         "write three\\r\\n\\r\\n"}));
}

TEST(BoldHeading, IsBoldOnThenInkThenTheTextThenBoldOff) {
    OperationLog pane;
    BoldHeading(pane, u"Your Number is: 7");
    EXPECT_EQ(pane.operations,
              (std::vector<std::string>{"bold on", "colour 128 0 128",
                                        "write Your Number is: 7\\r\\n\\r\\n", "bold off"}));
}

TEST(RunList, GivesEachWriteTheFormatOfItsMoment) {
    RunList pane;
    pane.SetSelectedText(u"black");
    pane.SetColor({1, 2, 3});
    pane.SetBold(true);
    pane.SetSelectedText(u"bold");
    pane.SetBold(false);
    pane.SetSelectedText(u"plain");
    EXPECT_EQ(pane.Runs(), (ReportRuns{{u"black", false, {}},
                                       {u"bold", true, {1, 2, 3}},
                                       {u"plain", false, {1, 2, 3}}}));
    EXPECT_EQ(pane.Text(), u"blackboldplain");
}

TEST(RunList, PuttingTheWholeTextReplacesWhatWasThere) {
    RunList pane;
    pane.SetSelectedText(u"old");
    pane.SetText(u"");
    EXPECT_TRUE(pane.Runs().empty());
    pane.SetSelectedText(u"old");
    pane.SetText(u"new");
    EXPECT_EQ(pane.Text(), u"new");
}

TEST(RunList, HandsItsRunsOverOnce) {
    RunList pane;
    pane.SetSelectedText(u"text");
    EXPECT_EQ(pane.TakeRuns(), (ReportRuns{{u"text", false, {}}}));
    EXPECT_TRUE(pane.Runs().empty());
    EXPECT_EQ(pane.Text(), u"");
}

} // namespace
} // namespace modReadings
