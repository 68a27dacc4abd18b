#pragma once

// A pane that keeps what is written to it as a list of runs: the exact writes, each with
// the bold flag and the colour of its moment. This is how a report exists without a
// window.

#include "report/rich_text.h"

#include <string>
#include <utility>
#include <vector>

namespace modReadings {

/// One write, line breaks included.
struct Run {
    std::u16string text;
    bool bold = false;
    Ink ink;

    friend bool operator==(const Run &, const Run &) = default;
};

class RunList final : public RichTextPane {
public:
    RunList() { runs_.reserve(10); } // a topic has no more

    void SetText(std::u16string_view text) override {
        runs_.clear();
        if (!text.empty())
            SetSelectedText(std::u16string(text));
    }
    void SetBold(bool bold) override { bold_ = bold; }
    void SetColor(Ink ink) override { ink_ = ink; }
    void SetSelectedText(std::u16string text) override {
        runs_.push_back({std::move(text), bold_, ink_});
    }

    const std::vector<Run> &Runs() const { return runs_; }

    /// The runs, which the pane no longer has afterwards.
    std::vector<Run> TakeRuns() { return std::exchange(runs_, {}); }

    /// All runs joined.
    std::u16string Text() const {
        std::u16string text;
        for (const Run &run : runs_)
            text += run.text;
        return text;
    }

private:
    std::vector<Run> runs_;
    bool bold_ = false;
    Ink ink_;
};

} // namespace modReadings
