#pragma once

// A strict reader of the Rich Text Format, as far as reports use it. It knows nothing of
// how the program writes: it follows the rules of the format and refuses what a lenient
// reader would let pass.

#include "report/report.h"

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace modReadings {

inline bool operator==(const Ink &a, const Ink &b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

/// One character as a reader shows it. A paragraph's end mark is a plain line feed, a page break
/// a plain form feed.
struct RtfCharacter {
    char16_t unit = 0;
    bool bold = false;
    Ink ink{}; ///< black where the file leaves the colour to the reader

    friend bool operator==(const RtfCharacter &, const RtfCharacter &) = default;
};

struct RtfDocument {
    std::vector<RtfCharacter> characters;
    std::vector<Ink> colors;        ///< the colour table without its automatic entry
    std::vector<std::string> fonts; ///< the font table
    int halfPoints = 24;            ///< the format's own default

    /// The text alone, with a line feed for each end of a paragraph.
    std::u16string Text() const {
        std::u16string text;
        for (const RtfCharacter &character : characters)
            text += character.unit;
        return text;
    }
};

class RtfReader {
public:
    /// Reads a whole file. Throws std::runtime_error where it is not what the format says.
    static RtfDocument Read(std::string_view file) {
        RtfReader reader(file);
        reader.ReadAll();
        return std::move(reader.document_);
    }

private:
    enum class Destination { Body, Fonts, Colors };
    struct State {
        bool bold = false;
        int color = 0;
        int unicodeFallback = 1;
        Destination destination = Destination::Body;
    };

    explicit RtfReader(std::string_view file) : file_(file) {}

    [[noreturn]] void Fail(const std::string &what) const {
        throw std::runtime_error("RTF: " + what + " at " + std::to_string(at_));
    }

    void ReadAll() {
        if (!file_.starts_with("{\\rtf1"))
            Fail("no signature");
        while (at_ < file_.size()) {
            const char character = file_[at_];
            if (static_cast<unsigned char>(character) >= 0x80)
                Fail("a byte outside ASCII");
            if (closed_ && character != '\r' && character != '\n')
                Fail("text behind the document");
            ++at_;
            if (character == '{') {
                states_.push_back(states_.back());
            } else if (character == '}') {
                states_.pop_back();
                if (states_.size() == 1)
                    closed_ = true;
            } else if (character == '\\') {
                ReadControl();
            } else if (character == '\r' || character == '\n') {
                continue; // means nothing in the format
            } else if (static_cast<unsigned char>(character) < 0x20) {
                Fail("a raw control character");
            } else {
                Put(static_cast<char16_t>(character));
            }
        }
        if (!closed_)
            Fail("a group that is not closed");
        if (toSkip_ != 0)
            Fail("a stand-in character is missing");
    }

    void ReadControl() {
        const char symbol = Next();
        if (symbol == '\\' || symbol == '{' || symbol == '}') {
            Put(static_cast<char16_t>(symbol));
        } else if (symbol == '\'') {
            const std::string_view digits = file_.substr(at_, 2);
            unsigned value = 0;
            const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value, 16);
            if (error != std::errc() || end != digits.end() || digits.size() != 2)
                Fail("a broken hexadecimal character");
            at_ += 2;
            if (value >= 0x80 && value < 0xA0)
                Fail("a character of another code page");
            Put(static_cast<char16_t>(value)); // Windows-1252 is Latin-1 from A0 on
        } else if (symbol >= 'a' && symbol <= 'z') {
            --at_;
            ReadWord();
        } else {
            Fail(std::string("the unknown control symbol ") + symbol);
        }
    }

    void ReadWord() {
        std::string word;
        while (at_ < file_.size() && file_[at_] >= 'a' && file_[at_] <= 'z')
            word += file_[at_++];
        bool hasNumber = false;
        int number = 0;
        if (at_ < file_.size() && (file_[at_] == '-' || IsDigit(file_[at_]))) {
            const auto [end, error] =
                std::from_chars(file_.data() + at_, file_.data() + file_.size(), number);
            if (error != std::errc())
                Fail("a broken number behind " + word);
            at_ = static_cast<std::size_t>(end - file_.data());
            hasNumber = true;
        }
        if (at_ < file_.size() && file_[at_] == ' ')
            ++at_; // one blank belongs to the word; a second one would be text
        Obey(word, hasNumber, number);
    }

    void Obey(const std::string &word, bool hasNumber, int number) {
        State &state = states_.back();
        if (toSkip_ > 0)
            Fail("a control word in place of a stand-in character");
        if (word == "rtf") {
            if (number != 1 || states_.size() != 2)
                Fail("a signature that is no signature");
        } else if (word == "ansi" || word == "ansicpg" || word == "deff" || word == "viewkind" ||
                   word == "fswiss" || word == "fcharset" || word == "f") {
            // Say nothing about the text.
        } else if (word == "fonttbl") {
            state.destination = Destination::Fonts;
        } else if (word == "colortbl") {
            state.destination = Destination::Colors;
        } else if (word == "red" || word == "green" || word == "blue") {
            if (state.destination != Destination::Colors || !hasNumber || number < 0 ||
                number > 255)
                Fail("a colour that is none");
            (word == "red"     ? color_.red
             : word == "green" ? color_.green
                               : color_.blue) = static_cast<std::uint8_t>(number);
            colorIsSet_ = true;
        } else if (word == "uc") {
            state.unicodeFallback = number;
        } else if (word == "u") {
            if (!hasNumber || number < -32768 || number > 32767)
                Fail("a character number outside 16 bits");
            Put(static_cast<char16_t>(number));
            toSkip_ = state.unicodeFallback;
        } else if (word == "pard" || word == "plain") {
            if (word == "plain")
                state.bold = false;
        } else if (word == "fs") {
            document_.halfPoints = number;
        } else if (word == "b") {
            state.bold = !hasNumber || number != 0;
        } else if (word == "cf") {
            if (!hasNumber || number < 0 || number > static_cast<int>(document_.colors.size()))
                Fail("a colour that the table does not have");
            state.color = number;
        } else if (word == "tab") {
            Put(u'\t');
        } else if (word == "par") {
            document_.characters.push_back({u'\n', false, {}});
        } else if (word == "page") {
            document_.characters.push_back({u'\f', false, {}});
        } else {
            Fail("the unknown control word " + word);
        }
    }

    void Put(char16_t unit) {
        if (toSkip_ > 0) {
            --toSkip_;
            return;
        }
        const State &state = states_.back();
        switch (state.destination) {
        case Destination::Fonts:
            if (unit == u';')
                document_.fonts.push_back(std::exchange(font_, {}));
            else
                font_ += static_cast<char>(unit);
            break;
        case Destination::Colors:
            if (unit != u';')
                Fail("text in the colour table");
            if (colorEntries_++ == 0) {
                if (colorIsSet_)
                    Fail("no automatic entry in the colour table");
            } else {
                document_.colors.push_back(std::exchange(color_, {}));
            }
            colorIsSet_ = false;
            break;
        case Destination::Body:
            document_.characters.push_back(
                {unit, state.bold,
                 state.color == 0
                     ? Ink{}
                     : document_.colors.at(static_cast<std::size_t>(state.color) - 1)});
            break;
        }
    }

    char Next() {
        if (at_ >= file_.size())
            Fail("an end too early");
        return file_[at_++];
    }

    static bool IsDigit(char character) { return character >= '0' && character <= '9'; }

    std::string_view file_;
    std::size_t at_ = 0;
    std::vector<State> states_{State{}};
    bool closed_ = false;
    int toSkip_ = 0;
    std::string font_;
    Ink color_{};
    bool colorIsSet_ = false;
    int colorEntries_ = 0;
    RtfDocument document_;
};

/// What a file of this report has to show: its characters in magenta, and an end mark for
/// each line break and for the last paragraph.
inline std::vector<RtfCharacter> ShownCharacters(const Report &report) {
    std::vector<RtfCharacter> characters;
    for (const Run &run : report) {
        for (std::size_t index = 0; index < run.text.size(); ++index) {
            const char16_t unit = run.text[index];
            const bool pair = unit == u'\r' && run.text.substr(index + 1, 1) == u"\n";
            if (pair)
                ++index;
            if (unit == u'\r' || unit == u'\n')
                characters.push_back({u'\n', false, {}});
            else
                characters.push_back({unit, run.bold, {128, 0, 128}});
        }
    }
    characters.push_back({u'\n', false, {}});
    return characters;
}

} // namespace modReadings
