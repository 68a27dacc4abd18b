#pragma once

// What becomes of one line of a batch.

#include "tools/batch_input.h"
#include "tools/batch_writer.h"

#include <optional>
#include <string>

/// A person or what is wrong; neither for the rest of a row that was refused before.
struct LineAnswer {
    bool person = false;               ///< whether a person was read
    std::optional<std::string> wrong;  ///< what is wrong with the line
    std::optional<std::string> remark; ///< what is to be told of a person who was read
};

/// Reads the person of `line` for the present day and has `writer` write the reading, or the
/// error in its place. Names are composed first if `normalize` says so.
LineAnswer AnswerLine(const BatchLine &line, PeopleLines &lines, bool normalize,
                      BatchWriter &writer);
