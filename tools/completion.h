#pragma once

// What makes a shell complete the options of orravane-report, made from the table of options.

#include "tools/names.h"

#include <string>

enum class Shell { Bash, Zsh, Fish };

inline constexpr auto shellNames = std::to_array<Named<Shell>>(
    {{"bash", Shell::Bash}, {"zsh", Shell::Zsh}, {"fish", Shell::Fish}});

/// The script that the shell reads.
std::string CompletionFor(Shell shell);
