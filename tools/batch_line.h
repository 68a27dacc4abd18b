#pragma once

// What becomes of one line of a batch.

#include "tools/batch_input.h"
#include "tools/batch_writer.h"

#include <optional>
#include <string>

/// Reads the person of `line` for the present day and has `writer` write the reading, or the
/// error in its place. Returns what is wrong with the line, if anything.
std::optional<std::string> AnswerLine(const BatchLine &line, PeopleLines &lines,
                                      BatchWriter &writer);
