#pragma once

// The table of contents of the window: its nodes, and what a click on one means. The
// caption is the only key of the dispatch; node keys serve to hang children on parents.

#include "core/proceed_pass.h"
#include "report/topics.h"

#include <array>
#include <string>
#include <string_view>

namespace modReadings {

namespace captions {
inline constexpr std::u16string_view userInformation = u"User Information";
inline constexpr std::u16string_view enterTheInformation = u"Enter The Information";
inline constexpr std::u16string_view reset = u"Reset";
inline constexpr std::u16string_view numerology = u"Numerology";
inline constexpr std::u16string_view comprehensiveReading = u"Comprehensive Reading";
inline constexpr std::u16string_view help = u"Help";
} // namespace captions

struct TreeNode {
    std::u16string key;
    std::u16string parentKey; ///< empty for a root
    std::u16string_view caption;
    bool bold = false;
};

/// Number of nodes of the tree: a leaf for each topic, one for the Comprehensive Reading,
/// the three roots and the two leaves of "User Information".
inline constexpr std::size_t treeNodeCount = calculatorCount + 6;

/// Positions that code addresses, counted from 1 in the order of creation.
enum class NodePosition : std::size_t { UserInfo = 1, U1 = 2, U2 = 3, Numerology = 4, N1 = 5 };

/// The nodes in the order of their creation, parents before children.
const std::array<TreeNode, treeNodeCount> &TreeNodes();

/// What a click on a node asks of the window.
enum class ClickAction {
    InputPage, ///< shows the input page
    Reset,     ///< shows the input page and empties it
    Help,      ///< shows the help page
    Topic,     ///< runs the topic's calculator, writes its reading, shows the report page
    ComprehensiveReading, ///< the same for the whole report
    Nothing               ///< nothing behind the validation
};

struct Click {
    ClickAction action = ClickAction::Nothing;
    bool validates = true;        ///< ends, with a message, while a required input is missing
    const Topic *topic = nullptr; ///< for ClickAction::Topic
};

/// What a click on the node with this caption means. A topic's calculator runs again on
/// every click, and has to (core/proceed_pass.h). A caption that no test of the chain
/// knows, such as that of the root "Numerology", validates and does nothing.
Click MeaningOfClick(std::u16string_view caption);

} // namespace modReadings
