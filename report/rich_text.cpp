#include "report/rich_text.h"

#include <utility>

namespace modReadings {

void AppendBlock(RichTextPane &pane, std::u16string_view before, std::u16string_view text,
                 int breaks) {
    std::u16string block;
    block.reserve(before.size() + text.size() +
                  static_cast<std::size_t>(breaks) * lineBreak.size());
    block.append(before).append(text);
    for (int written = 0; written < breaks; ++written)
        block.append(lineBreak);
    pane.SetSelectedText(std::move(block));
}

void BoldHeading(RichTextPane &pane, std::u16string_view text) {
    pane.SetBold(true);
    pane.SetColor(TopicInk);
    AppendBlock(pane, text, 2);
    pane.SetBold(false);
}

} // namespace modReadings
