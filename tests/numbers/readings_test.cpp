// The prose of the program against the table of what is settled about it.

#include "numbers/book.h"
#include "tests/support/reading_facts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace modReadings {
namespace {

// The request that stands in place of a reading while there is nothing to read. It shares
// the slot of a table and is no row of it.
constexpr std::string_view refusal =
    "Your Maturity Number is dependent on your LifePath Number and Destiny Number. Please "
    "calculate these two figures first";

std::string Name(const std::string &slot, std::optional<int> number) {
    return number ? slot + ' ' + std::to_string(*number) : slot;
}

using Key = std::pair<std::string, std::optional<int>>;

/// All texts of the book by slot and number. Characters beyond ASCII become a question
/// mark here; a test of their own finds them.
const std::multimap<Key, std::string> &Texts() {
    static const std::multimap<Key, std::string> texts = [] {
        std::multimap<Key, std::string> all;
        for (const BookEntry &entry : Book()) {
            std::string text;
            for (const char16_t unit : entry.text)
                text += unit < 0x80 ? static_cast<char>(unit) : '?';
            all.emplace(Key{entry.slot, entry.number}, text);
        }
        return all;
    }();
    return texts;
}

/// The sentences of a paragraph, each behind the close of the one before and blanks.
std::vector<std::string> Sentences(const std::string &text) {
    std::vector<std::string> sentences(1);
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool blank = std::isspace(static_cast<unsigned char>(text[index])) != 0;
        if (blank && index > 0 &&
            std::string_view(".!?").find(text[index - 1]) != std::string::npos)
            sentences.emplace_back();
        else
            sentences.back() += text[index];
    }
    return sentences;
}

/// Calls `check(fact, text, paragraphs)` for every text of the table that the book holds.
template <typename Check> void ForEveryText(Check check) {
    std::size_t texts = 0;
    for (const Fact &fact : Facts()) {
        SCOPED_TRACE(Name(fact.slot, fact.number));
        const auto [first, last] = Texts().equal_range({fact.slot, fact.number});
        for (auto text = first; text != last; ++text) {
            if (text->second == refusal)
                continue;
            check(fact, text->second, Paragraphs(text->second));
            ++texts;
        }
    }
    EXPECT_EQ(texts, 251u);
}

// The table itself, lest a slip in it let a text pass.

TEST(ReadingsTable, HoldsEveryTextOnceAndAddsUp) {
    EXPECT_EQ(Facts().size(), 251u);
    std::set<Key> keys;
    for (const Fact &fact : Facts()) {
        SCOPED_TRACE(Name(fact.slot, fact.number));
        EXPECT_TRUE(keys.emplace(fact.slot, fact.number).second);
        EXPECT_FALSE(fact.opening.empty());
        EXPECT_GT(fact.paragraphs, 0u);
        EXPECT_GT(fact.characters, 0u);
        if (!fact.paragraphLengths.empty()) {
            EXPECT_EQ(fact.paragraphLengths.size(), fact.paragraphs);
            std::size_t characters = 2 * (fact.paragraphs - 1); // the line breaks
            for (const std::size_t length : fact.paragraphLengths)
                characters += length;
            EXPECT_EQ(characters, fact.characters);
        }
        if (!fact.openings.empty()) {
            EXPECT_EQ(fact.openings.size(), fact.paragraphs);
            EXPECT_EQ(fact.openings.front(), fact.opening);
        }
        if (fact.full) {
            EXPECT_EQ(fact.full->size(), fact.characters);
            EXPECT_TRUE(fact.full->starts_with(fact.opening));
        }
    }
}

// The book.

TEST(Readings, AreAllThereExactlyOnce) {
    std::multiset<Key> settled{{"RealizationText", std::nullopt}}; // the refusal
    for (const Fact &fact : Facts())
        settled.emplace(fact.slot, fact.number);
    std::multiset<Key> held;
    for (const auto &[key, text] : Texts()) {
        held.insert(key);
        EXPECT_EQ(text == refusal, key == (Key{"RealizationText", std::nullopt}));
    }
    EXPECT_EQ(held, settled);
}

TEST(Readings, OpenWordForWord) {
    ForEveryText([](const Fact &fact, const std::string &text, const auto &paragraphs) {
        EXPECT_TRUE(text.starts_with(fact.opening)) << text.substr(0, 150);
        ASSERT_GE(paragraphs.size(), fact.openings.size());
        for (std::size_t index = 0; index < fact.openings.size(); ++index) {
            // A paragraph without an opening is an empty line.
            if (fact.openings[index].empty())
                EXPECT_EQ(paragraphs[index], "") << "paragraph " << index + 1;
            else
                EXPECT_TRUE(paragraphs[index].starts_with(fact.openings[index]))
                    << "paragraph " << index + 1 << ": " << paragraphs[index].substr(0, 150);
        }
    });
}

TEST(Readings, HoldWhatIsFixedInThem) {
    int fixed = 0;
    ForEveryText([&](const Fact &fact, const std::string &text, const auto &paragraphs) {
        const auto expect = [&](const std::optional<std::string> &words, auto found) {
            if (!words)
                return;
            EXPECT_TRUE(found(*words)) << *words << "\n  in: " << text;
            ++fixed;
        };
        expect(fact.full, [&](const std::string &words) { return text == words; });
        expect(fact.firstParagraph,
               [&](const std::string &words) { return paragraphs.front() == words; });
        expect(fact.lastParagraph,
               [&](const std::string &words) { return paragraphs.back() == words; });
        expect(fact.ends, [&](const std::string &words) { return text.ends_with(words); });
        expect(fact.contains,
               [&](const std::string &words) { return text.find(words) != std::string::npos; });
        expect(fact.thirdSentenceContains, [&](const std::string &words) {
            const auto sentences = Sentences(text);
            return sentences.size() >= 3 && sentences[2].find(words) != std::string::npos;
        });
    });
    // 17 whole texts, a first, a last and a third, one close and two inner sentences.
    EXPECT_EQ(fixed, 23);
}

TEST(Readings, ArePlainAscii) {
    std::size_t texts = 0;
    for (const BookEntry &entry : Book()) {
        const auto outside = std::ranges::find_if(entry.text, [](char16_t unit) {
            return !(unit >= 0x20 && unit < 0x7F) && unit != u'\r' && unit != u'\n';
        });
        EXPECT_EQ(outside, entry.text.end())
            << entry.slot << " holds character " << (outside == entry.text.end() ? 0 : +*outside);
        ++texts;
    }
    EXPECT_EQ(texts, 252u);
}

TEST(Readings, AreSetAsTheyAreSettled) {
    ForEveryText([](const Fact &fact, const std::string &text, const auto &paragraphs) {
        EXPECT_EQ(paragraphs.size(), fact.paragraphs);
        EXPECT_TRUE(Near(text.size(), fact.characters, 2))
            << text.size() << " characters, " << fact.characters << " settled";
        if (!fact.full && fact.slot != "PlanesAbout") {
            EXPECT_NE(std::string_view(".!?").find(text.back()), std::string::npos)
                << "does not close with a sentence: " << text.substr(text.size() - 40);
        }
        for (std::size_t index = 0; index < paragraphs.size(); ++index) {
            SCOPED_TRACE("paragraph " + std::to_string(index + 1));
            const std::string &paragraph = paragraphs[index]; // cut at each "\r\n"
            EXPECT_EQ(paragraph.find_first_of("\r\n"), std::string::npos) << paragraph;
            EXPECT_EQ(paragraph.find("  "), std::string::npos) << paragraph;
            EXPECT_FALSE(paragraph.starts_with(' ')) << paragraph;
            // Two headings end in a blank of their own.
            EXPECT_EQ(paragraph.ends_with(' '),
                      index < fact.openings.size() && fact.openings[index].ends_with(' '));
            const bool lengthIsSettled = index < fact.paragraphLengths.size();
            EXPECT_EQ(paragraph.empty(), lengthIsSettled && fact.paragraphLengths[index] == 0);
            if (lengthIsSettled) {
                EXPECT_TRUE(Near(paragraph.size(), fact.paragraphLengths[index], 3))
                    << paragraph.size() << " characters, " << fact.paragraphLengths[index]
                    << " settled";
            }
        }
    });
}

} // namespace
} // namespace modReadings
