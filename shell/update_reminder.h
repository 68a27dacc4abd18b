#pragma once

// The one value that outlives a run: when the update question was last settled.

class UpdateReminder {
public:
    /// Whole days without an update question.
    static constexpr int quietDays = 15;

    /// Whether the question is due today: the stored day lies 15 or more days from it,
    /// before or after (a clock set back counts). Never on the first run, which only
    /// stores the present day; a stored text that is no date counts as a first run.
    static bool IsDue();

    /// Stores the present date and time. A store that cannot be written goes unnoticed.
    static void Settle();
};
