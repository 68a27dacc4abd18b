#pragma once

// People as lines of text: JSON Lines, or CSV under a header row. Which of the two it is
// shows in the first line that is not blank: a header has at least one of the six columns
// among its fields. Any other line that is no JSON object is a wrong line of JSON Lines,
// and the people behind it are read all the same.

#include "tools/people.h"

#include <string>
#include <vector>

class PeopleLines {
public:
    /// Takes the first line that is not blank. Returns true when it was a header and holds
    /// no person. Throws Refusal for a header with a wrong, doubled or missing column.
    bool Begin(const std::string &line);

    /// The inputs that `line` holds, unchecked. Throws Refusal for a line that holds none.
    PersonInput Parse(const std::string &line) const;

private:
    PersonInput ParseCsv(const std::string &line) const;

    std::vector<QString PersonInput::*> columns_; ///< empty for JSON Lines
};
