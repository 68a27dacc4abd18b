#include "report/rtf.h"

#include <cstdint>

namespace modReadings {

namespace {

void AppendHex(std::string &rtf, unsigned value) {
    constexpr char digits[] = "0123456789abcdef";
    rtf += digits[value >> 4 & 0xF];
    rtf += digits[value & 0xF];
}

/// One UTF-16 unit. Outside ASCII the escape is the signed number of the unit with one
/// stand-in character behind it, which readers that do not know the escape show: the
/// Windows-1252 character where there is one, else a question mark.
void AppendCharacter(std::string &rtf, char16_t unit) {
    if (unit == u'\\' || unit == u'{' || unit == u'}') {
        rtf += '\\';
        rtf += static_cast<char>(unit);
    } else if (unit == u'\t') {
        rtf += "\\tab ";
    } else if (unit >= 0x20 && unit < 0x7F) {
        rtf += static_cast<char>(unit);
    } else {
        rtf += "\\u" + std::to_string(static_cast<std::int16_t>(unit));
        if (unit >= 0xA0 && unit <= 0xFF) {
            rtf += "\\'";
            AppendHex(rtf, unit);
        } else {
            rtf += '?';
        }
    }
}

/// One run. `before` is the last character of the run before it.
void AppendText(std::string &rtf, std::u16string_view text, char16_t before) {
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t unit = text[index];
        if (unit == u'\r' && text.substr(index + 1).starts_with(u'\n'))
            continue; // the line feed behind it ends the paragraph
        if (unit == u'\r' || unit == u'\n')
            rtf += "\\par\r\n";
        else if (unit == u' ' && before == u' ')
            rtf += "\\'20"; // readers make one of blanks that stand together
        else
            AppendCharacter(rtf, unit);
        before = unit;
    }
}

void AppendFontName(std::string &rtf, const std::string &family) {
    for (const char character : family)
        if (character >= 0x20 && character < 0x7F && character != ';' && character != '\\' &&
            character != '{' && character != '}')
            rtf += character;
}

} // namespace

std::string RtfBeginning(const RtfFont &font) {
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 ";
    AppendFontName(rtf, font.family);
    rtf += ";}}\r\n{\\colortbl ;\\red" + std::to_string(TopicInk.red) + "\\green" +
           std::to_string(TopicInk.green) + "\\blue" + std::to_string(TopicInk.blue) +
           ";}\r\n\\viewkind4\\uc1\\pard\\cf1\\f0\\fs" + std::to_string(font.halfPoints) + ' ';
    return rtf;
}

std::string RtfBody(const Report &report) {
    std::string rtf;
    bool bold = false;
    char16_t before = 0;
    for (const Run &run : report) {
        if (run.bold != bold) {
            rtf += run.bold ? "\\b " : "\\b0 "; // the blank ends the control word
            bold = run.bold;
        }
        AppendText(rtf, run.text, before);
        if (!run.text.empty())
            before = run.text.back();
    }
    rtf += "\\par\r\n";
    return rtf;
}

std::string ToRtf(const Report &report, const RtfFont &font) {
    return RtfBeginning(font).append(RtfBody(report)).append(rtfEnd);
}

} // namespace modReadings
