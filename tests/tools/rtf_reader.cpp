#include "tests/tools/rtf_reader.h"

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <charconv>
#include <optional>

namespace {

using Color = std::array<int, 3>;

struct State {
    bool bold = false;
    std::size_t color = 0;
    int standIns = 1;    ///< characters to leave out behind a Unicode escape
    bool shown = true;   ///< false in tables and other destinations that are no text
    bool colors = false; ///< in the table of colours
};

class Reader {
public:
    explicit Reader(std::string_view rtf) : rest_(rtf) {}

    std::vector<ShownCharacter> Read() {
        EXPECT_TRUE(rest_.starts_with("{\\rtf1"));
        while (!rest_.empty() && !failed_)
            Step();
        EXPECT_TRUE(failed_ || groups_.empty()) << "a group is not closed";
        return shown_;
    }

private:
    void Step() {
        const char c = rest_.front();
        rest_.remove_prefix(1);
        if (c == '{') {
            groups_.push_back(state_);
        } else if (c == '}') {
            if (groups_.empty())
                return Fail("a group is closed that was not opened");
            state_ = groups_.back();
            groups_.pop_back();
            if (groups_.empty() && rest_.find_first_not_of("\r\n") != std::string_view::npos)
                Fail("text behind the document");
        } else if (c == '\\') {
            Control();
        } else if (c != '\r' && c != '\n') {
            Show(static_cast<unsigned char>(c));
        }
    }

    void Control() {
        if (rest_.empty())
            return Fail("a backslash at the end");
        const char c = rest_.front();
        if (c == '\\' || c == '{' || c == '}') {
            rest_.remove_prefix(1);
            return Show(static_cast<char16_t>(c));
        }
        if (c == '\'') {
            unsigned value = 0;
            const auto end = std::from_chars(rest_.data() + 1, rest_.data() + 3, value, 16);
            if (end.ptr != rest_.data() + 3)
                return Fail("no two hexadecimal digits");
            rest_.remove_prefix(3);
            return Show(static_cast<char16_t>(value)); // Latin-1 is all that comes up here
        }
        if (!std::isalpha(static_cast<unsigned char>(c)))
            return Fail("an unknown control symbol");
        std::size_t length = 0;
        while (length < rest_.size() && std::isalpha(static_cast<unsigned char>(rest_[length])))
            ++length;
        const std::string word(rest_.substr(0, length));
        rest_.remove_prefix(length);
        std::optional<int> number;
        int value = 0;
        if (const auto end = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
            end.ec == std::errc()) {
            number = value;
            rest_.remove_prefix(static_cast<std::size_t>(end.ptr - rest_.data()));
        }
        if (rest_.starts_with(' '))
            rest_.remove_prefix(1);
        Word(word, number);
    }

    void Word(const std::string &word, std::optional<int> number) {
        if (word == "par") {
            Show(u'\n');
        } else if (word == "tab") {
            Show(u'\t');
        } else if (word == "b") {
            state_.bold = number.value_or(1) != 0;
        } else if (word == "cf") {
            state_.color = static_cast<std::size_t>(number.value_or(0));
        } else if (word == "u") {
            Show(static_cast<char16_t>(number.value_or(0)));
            leaveOut_ = state_.standIns;
        } else if (word == "uc") {
            state_.standIns = number.value_or(1);
        } else if (word == "fonttbl") {
            state_.shown = false;
        } else if (word == "colortbl") {
            state_.shown = false;
            state_.colors = true;
        } else if (word == "red" || word == "green" || word == "blue") {
            pending_.at(word == "red" ? 0 : word == "green" ? 1 : 2) = number.value_or(0);
        } else if (!Known(word)) {
            Fail(word.c_str());
        }
    }

    /// Words that change nothing of what is looked at here.
    static bool Known(const std::string &word) {
        for (const char *known : {"rtf", "ansi", "ansicpg", "deff", "f", "fswiss", "fnil",
                                  "fcharset", "viewkind", "pard", "plain", "fs", "lang"})
            if (word == known)
                return true;
        return false;
    }

    void Show(char16_t unit) {
        if (leaveOut_ > 0) {
            --leaveOut_;
            return;
        }
        if (state_.colors) {
            if (unit == u';') {
                colors_.push_back(pending_);
                pending_ = {-1, -1, -1};
            }
            return;
        }
        if (!state_.shown)
            return;
        if (state_.color >= colors_.size())
            return Fail("a colour that is not in the table");
        const Color &color = colors_[state_.color];
        shown_.push_back({unit, state_.bold, color[0], color[1], color[2]});
    }

    void Fail(const char *what) {
        ADD_FAILURE() << "RTF: " << what << " before: " << rest_.substr(0, 60);
        failed_ = true;
    }

    std::string_view rest_;
    State state_;
    std::vector<State> groups_;
    Color pending_{-1, -1, -1};
    std::vector<Color> colors_;
    int leaveOut_ = 0;
    bool failed_ = false;
    std::vector<ShownCharacter> shown_;
};

} // namespace

std::vector<ShownCharacter> ReadRtf(std::string_view rtf) { return Reader(rtf).Read(); }
