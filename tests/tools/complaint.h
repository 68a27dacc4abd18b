#pragma once

// How orravane-report says no: a Refusal within its library, one line on standard error that begins
// with the program's name from outside.

#include "tools/refusal.h"
#include "tools/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

/// The name of a file as a complaint shows it, wherever the test's folder stands.
inline std::string Shown(const std::string &path) {
    return Excerpt(QString::fromStdString(path)).toStdString();
}

/// Expects a line without control characters that holds all of `parts`.
inline void ExpectLine(const std::string &line, const std::vector<std::string> &parts) {
    EXPECT_TRUE(std::ranges::none_of(line, [](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
    })) << line;
    for (const std::string &part : parts)
        EXPECT_NE(line.find(part), std::string::npos) << "\"" << part << "\" in: " << line;
}

/// The line with which `call` refuses, as the program would print it. Fails the test when it
/// does not.
template <typename Call> std::string RefusalOf(Call call, ExitCode code = ExitCode::WrongUse) {
    try {
        call();
    } catch (const Refusal &refusal) {
        EXPECT_EQ(refusal.Code(), code);
        EXPECT_FALSE(refusal.Line().isEmpty());
        return OneLine(refusal.Line());
    }
    ADD_FAILURE() << "not refused";
    return {};
}

/// Expects exactly one line on standard error that holds all of `parts`.
inline void ExpectOneLine(const std::string &err, const std::vector<std::string> &parts) {
    EXPECT_TRUE(err.starts_with("orravane-report: ")) << err;
    ASSERT_TRUE(err.ends_with('\n')) << err;
    ExpectLine(err.substr(0, err.size() - 1), parts);
}
