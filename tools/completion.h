#pragma once

// What makes a shell complete the options of orravane-report, made from the table of options.

#include <optional>
#include <string>
#include <string_view>

enum class Shell { Bash, Zsh, Fish };

/// The shell of this name in lower case, or nothing.
std::optional<Shell> ShellFrom(std::string_view name);

/// The script that the shell reads.
std::string CompletionFor(Shell shell);
