#pragma once

// The table of contents of the window: its nodes, and what a click on one does. The
// caption is the only key of the dispatch; node keys serve to hang children on parents.

#include "core/proceed_pass.h"
#include "report/rich_text.h"

#include <array>
#include <functional>
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

/// What the dispatch needs of the window.
class ReportWindow {
public:
    virtual ~ReportWindow() = default;

    virtual void ShowInputPage() = 0;
    virtual void ShowReportPage() = 0;
    virtual void ShowHelpPage() = 0;
    /// Empties the names, sets the lists to their first entries, focus into the first box.
    virtual void ResetInputs() = 0;
    /// False when a required input is missing; the message has then been shown.
    virtual bool ValidateInputs() = 0;
    /// Runs `write` on the report pane as one step for the eye.
    virtual void WriteReport(const std::function<void(RichTextPane &)> &write) = 0;
};

/// Does what a click on the node with this caption does: turns a page, resets the input
/// page, or validates, runs a topic's calculator again, writes its reading and shows the
/// report page. The run on every click is load-bearing (core/proceed_pass.h). A caption
/// that is no branch of the chain validates and does nothing.
void DispatchClick(std::u16string_view caption, ReportWindow &window);

} // namespace modReadings
