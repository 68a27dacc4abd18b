#pragma once

// The names that the values of an enumeration have on the command line. A table of them is what an
// option takes, what a shell completes and what a message lists.

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

template <typename Value> struct Named {
    std::string_view name;
    Value value;
};

template <typename Value, std::size_t size> using NameTable = std::array<Named<Value>, size>;

/// The value of exactly this name, or nothing.
template <typename Value, std::size_t size>
std::optional<Value> ValueNamed(const NameTable<Value, size> &table, std::string_view name) {
    const auto found = std::ranges::find(table, name, &Named<Value>::name);
    return found == table.end() ? std::nullopt : std::optional(found->value);
}
