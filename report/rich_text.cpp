#include "report/rich_text.h"

#include <string>

namespace modReadings {

void AppendBlock(RichTextPane &pane, std::u16string_view text, int breaks) {
    std::u16string block(text);
    for (int written = 0; written < breaks; ++written)
        block += lineBreak;
    pane.SetSelectedText(block);
}

void BoldHeading(RichTextPane &pane, std::u16string_view text) {
    pane.SetBold(true);
    pane.SetColor(TopicInk);
    AppendBlock(pane, text, 2);
    pane.SetBold(false);
}

} // namespace modReadings
