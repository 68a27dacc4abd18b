#include "report/report.h"

namespace modReadings {

void AppendBlock(Report &report, std::u16string_view before, std::u16string_view text, int breaks) {
    std::u16string &block = report.emplace_back().text;
    block.reserve(before.size() + text.size() +
                  static_cast<std::size_t>(breaks) * lineBreak.size());
    block.append(before).append(text);
    for (int written = 0; written < breaks; ++written)
        block.append(lineBreak);
}

void BoldHeading(Report &report, std::u16string_view before, std::u16string_view text) {
    AppendBlock(report, before, text, 2);
    report.back().bold = true;
}

std::u16string TextOf(const Report &report) {
    std::u16string text;
    for (const Run &run : report)
        text += run.text;
    return text;
}

} // namespace modReadings
