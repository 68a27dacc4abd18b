#pragma once

// Many people, one per line, read and written one by one: nothing is kept, so memory does
// not grow with their number, and any engine that pipes lines through a program can run it.

#include "tools/options.h"
#include "tools/refusal.h"

/// Reads options.batchFiles and writes what the options ask for about each person: one behind the
/// other into one output, or a file each into options.outputDir. Every person starts from a fresh
/// store. A wrong line is reported on standard error with its number and the others go on; the
/// result is then ExitCode::SomeLinesWrong, and ExitCode::Ok otherwise. Throws Refusal when the
/// input cannot be opened or read or is of a form that is not read, when there are
/// options.maxErrors wrong lines, or when the output cannot be written.
ExitCode RunBatch(const Options &options);
