#pragma once

// Many people, one a line, read and written one by one: nothing is kept, so memory does
// not grow with their number, and any engine that pipes lines through a program can run it.

#include "tools/options.h"

enum class BatchResult {
    AllRead,   ///< every person was read
    SomeWrong, ///< some lines were reported and have an error in their place
    Unusable,  ///< the input cannot be opened or its header is wrong; nothing was read
    Broken     ///< the output cannot be written; the run ended there
};

/// Reads options.batchFile and writes one JSON object a line, or one file a person into
/// options.outputDir. Every person starts from a fresh store. A wrong line is reported on
/// standard error with its number, and the others go on. For Unusable and Broken
/// `complaint` is set to one line.
BatchResult RunBatch(const Options &options, QString &complaint);
