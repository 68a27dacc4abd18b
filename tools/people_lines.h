#pragma once

// People as lines of text: JSON Lines, or CSV under a header row. Which of the two it is
// shows in the first line that is not blank: a header has at least one of the six columns
// among its fields. Any other line that is no JSON object is a wrong line of JSON Lines,
// and the people behind it are read all the same.

#include "tools/people.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

class PeopleLines {
public:
    /// Takes the first line that is not blank. Returns true when it was a header and holds
    /// no person. For a header with a wrong, doubled or missing column `complaint` is set
    /// to one line.
    bool Begin(const std::string &line, QString &complaint);

    /// The inputs that `line` holds, unchecked; or nothing and a `complaint`.
    std::optional<PersonInput> Parse(const std::string &line, QString &complaint) const;

private:
    std::optional<PersonInput> ParseJson(const std::string &line, QString &complaint) const;
    std::optional<PersonInput> ParseCsv(const std::string &line, QString &complaint) const;

    std::vector<QString PersonInput::*> columns_; ///< empty for JSON Lines
};
