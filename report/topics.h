#pragma once

// The one table of topics: the caption of the tree node, the heading in the report, the
// calculator, and the blocks that are written. It stands in the order of the tree and
// drives the dispatch of clicks, the rendering and the Comprehensive Reading.
//
// Captions and headings differ in wording and plural, and so they stay; a caption is the
// key of its topic, so none can be changed alone.

#include "core/proceed_pass.h"
#include "core/reading_store.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace modReadings {

/// A text slot of the store.
using TextSlot = std::u16string ReadingStore::*;
/// A number slot of the store.
using NumberSlot = int16 ReadingStore::*;

/// One write behind the heading: a literal and a slot, then line breaks.
struct Block {
    TextSlot slot = nullptr;
    int breaks = 0;
    std::u16string_view before;
    bool isAbout = false;   ///< explains the topic, whatever its number is
    bool hasTitles = false; ///< some of its lines are titles of those below them

    /// A line that stands directly above the next block, as its title.
    constexpr bool IsLabel() const { return breaks == 1; }
};

/// What stands behind the heading literal: nothing, BirthDay converted to a number and
/// back, a number slot, or a text slot as it is.
struct NoNumber {};
struct BirthDayAsNumber {};
using HeadingNumber = std::variant<NoNumber, BirthDayAsNumber, NumberSlot, TextSlot>;

struct Topic {
    std::u16string_view caption;
    std::u16string_view heading;
    HeadingNumber number;
    Calculator calculate;
    std::array<Block, 9> blockStorage; ///< as many as the longest topic has, the rest empty

    /// The blocks of this topic.
    constexpr std::span<const Block> Blocks() const {
        std::size_t count = 0;
        while (count < blockStorage.size() && blockStorage[count].slot != nullptr)
            ++count;
        return std::span(blockStorage).first(count);
    }
};

/// The 22 topics in the order of the tree.
std::span<const Topic> Topics();

/// The topic with exactly this caption, or nullptr.
const Topic *FindTopic(std::u16string_view caption);

/// The topic that `calculate` fills. Every calculator of the pass has one.
const Topic &TopicOf(Calculator calculate);

/// The text behind the heading literal, from the store as it stands. Throws
/// RuntimeFailure for the Birthday topic while BirthDay is no number.
std::u16string HeadingNumberText(const Topic &topic);

} // namespace modReadings
