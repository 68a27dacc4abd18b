#pragma once

// A batch in several processes, with the bytes of one.
//
// The parent cuts the lines into chunks and hands them round. A worker makes the bytes of a
// chunk and keeps them; when all before it is written, the parent tells it to write. So the
// bytes never pass through the parent, and the order is that of the lines. Messages about wrong
// lines come with the answer, and the parent prints them in order. Each process has two chunks
// at most, so memory does not grow with the input.

#include "tools/batch_input.h"
#include "tools/output.h"
#include "tools/progress.h"
#include "tools/wrong_lines.h"

#include <functional>

/// Answers all lines of `input` in options.jobs processes, to `output` or into the folder.
/// Calls `begin` before the first person. Refuses as one process would, having written what
/// that would have written; and when one of the processes dies. Returns how many people were read.
long long AnswerInProcesses(const Options &options, BatchInput &input, Output *output,
                            const std::function<void()> &begin, Progress &progress,
                            WrongLines &wrong);

/// In a process that such a batch was started in anew, does what its parent says, and does not
/// return. Does nothing in any other.
void WorkIfStartedFor(const Options &options);
