#pragma once

// A strict reader of one row of CSV as RFC 4180 has it. It knows nothing of the library that
// the program reads with.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The fields of `row`. Nothing where a quotation mark stands out of place or is left open.
inline std::optional<std::vector<std::string>> CsvFields(std::string_view row, char separator) {
    std::vector<std::string> fields;
    std::size_t at = 0;
    for (;;) {
        std::string &field = fields.emplace_back();
        if (at < row.size() && row[at] == '"') {
            for (++at;; ++at) {
                if (at == row.size())
                    return std::nullopt; // left open
                if (row[at] != '"') {
                    field += row[at];
                } else if (row.substr(at).starts_with("\"\"")) {
                    field += '"';
                    ++at;
                } else {
                    ++at;
                    break;
                }
            }
            if (at < row.size() && row[at] != separator)
                return std::nullopt;
        } else {
            for (; at < row.size() && row[at] != separator; ++at) {
                if (row[at] == '"')
                    return std::nullopt;
                field += row[at];
            }
        }
        if (at == row.size())
            return fields;
        ++at; // the separator
    }
}
