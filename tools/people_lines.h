#pragma once

// People as lines of text: JSON Lines, or CSV under a header row, with commas or tabs. Which of
// them it is shows in the first line that is not blank: a header has at least one of the known
// columns among its fields. Any other line that is no JSON object is a wrong line of JSON
// Lines, and the people behind it are read all the same.

#include "tools/people.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct PersonLine {
    PersonInput person;  ///< unchecked
    std::string further; ///< what else the line holds: a JSON object, or empty for nothing
};

class PeopleLines {
public:
    /// With a separator, the input is CSV with it and nothing else.
    explicit PeopleLines(std::optional<char> separator = {}) : given_(separator) {}

    /// Takes the first line that is not blank. Returns true when it was a header and holds
    /// no person. Throws Refusal for a header with a doubled or missing column, and for the
    /// beginning of an input that is recognised as something else: columns with another
    /// separator, UTF-16, an archive, a JSON array.
    bool Begin(const std::string &line);

    /// What `line` holds. Nothing for the rest of a row that was refused before because it
    /// goes on behind a line break. Throws Refusal for a line that is no person.
    std::optional<PersonLine> Parse(const std::string &line);

    /// The rows whose end is still open, for another PeopleLines that goes on with the next
    /// line; usually empty.
    const std::string &OpenRows() const { return open_; }

    /// Goes on behind lines that another has read, which left `rows` open.
    void ContinueBehind(std::string rows) { open_ = std::move(rows); }

private:
    struct Column {
        std::string name;
        QString PersonInput::*input; ///< nullptr for a further column
    };

    class CsvRow;

    std::optional<PersonLine> ParseCsv(const std::string &line);
    std::optional<PersonLine> PersonIn(const CsvRow &row) const;

    std::optional<char> given_;
    std::vector<Column> columns_; ///< empty for JSON Lines
    char separator_ = ',';
    std::string open_; ///< the rows since one whose quotation mark is open
};
