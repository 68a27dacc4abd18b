#pragma once

// A window for the dispatch that only writes down what is asked of it, over a pane that
// is a list of runs.

#include "report/run_list.h"
#include "report/topic_tree.h"

#include <string>
#include <vector>

namespace modReadings {

class FakeReportWindow final : public ReportWindow {
public:
    std::vector<std::string> calls; ///< in their order
    bool inputsAreValid = true;
    RunList pane;

    void ShowInputPage() override { calls.push_back("ShowInputPage"); }
    void ShowReportPage() override { calls.push_back("ShowReportPage"); }
    void ShowHelpPage() override { calls.push_back("ShowHelpPage"); }
    void ResetInputs() override { calls.push_back("ResetInputs"); }
    bool ValidateInputs() override {
        calls.push_back("ValidateInputs");
        return inputsAreValid;
    }
    void WriteReport(const std::function<void(RichTextPane &)> &write) override {
        calls.push_back("WriteReport");
        write(pane);
    }

    /// Clicks, and returns what was asked of the window for it.
    std::vector<std::string> Click(std::u16string_view caption) {
        calls.clear();
        DispatchClick(caption, *this);
        return calls;
    }
};

} // namespace modReadings
