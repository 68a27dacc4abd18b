#pragma once

// What --help and --list-topics print.

#include <string>

/// The text of --help, within 80 columns, with a line break at its end.
std::string HelpText();

/// The captions that --topic takes, in the order in which they are read, one per line.
std::string TopicList();
