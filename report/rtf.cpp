#include "report/rtf.h"

#include <algorithm>
#include <vector>

namespace modReadings {

namespace {

/// TopicInk first, then every other colour of the runs. Entry 1 of the file's table is
/// index 0 here; entry 0 is the automatic colour.
std::vector<Ink> ColorsOf(std::span<const Run> runs) {
    std::vector<Ink> colors{TopicInk};
    for (const Run &run : runs)
        if (run.ink != Ink{} && std::ranges::find(colors, run.ink) == colors.end())
            colors.push_back(run.ink);
    return colors;
}

std::size_t ColorIndex(const std::vector<Ink> &colors, Ink ink) {
    if (ink == Ink{})
        return 0;
    return static_cast<std::size_t>(std::ranges::find(colors, ink) - colors.begin()) + 1;
}

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

void AppendText(std::string &rtf, std::u16string_view text) {
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t unit = text[index];
        if (unit == u'\r' && index + 1 < text.size() && text[index + 1] == u'\n')
            continue; // the line feed behind it ends the paragraph
        if (unit == u'\r' || unit == u'\n')
            rtf += "\\par\r\n";
        else if (unit == u' ' && index > 0 && text[index - 1] == u' ')
            rtf += "\\'20"; // readers make one of blanks that stand together
        else
            AppendCharacter(rtf, unit);
    }
}

void AppendFontName(std::string &rtf, const std::string &family) {
    for (const char character : family)
        if (character >= 0x20 && character < 0x7F && character != ';' && character != '\\' &&
            character != '{' && character != '}')
            rtf += character;
}

} // namespace

std::string ToRtf(std::span<const Run> runs, const RtfFont &font) {
    const std::vector<Ink> colors = ColorsOf(runs);

    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 ";
    AppendFontName(rtf, font.family);
    rtf += ";}}\r\n{\\colortbl ;";
    for (const Ink &ink : colors)
        rtf += "\\red" + std::to_string(ink.red) + "\\green" + std::to_string(ink.green) +
               "\\blue" + std::to_string(ink.blue) + ';';
    rtf += "}\r\n\\viewkind4\\uc1\\pard\\f0\\fs" + std::to_string(font.halfPoints);

    bool bold = false;
    std::size_t color = 0;
    bool afterControlWord = true;
    for (const Run &run : runs) {
        if (run.bold != bold) {
            rtf += run.bold ? "\\b" : "\\b0";
            bold = run.bold;
            afterControlWord = true;
        }
        if (const std::size_t index = ColorIndex(colors, run.ink); index != color) {
            rtf += "\\cf" + std::to_string(index);
            color = index;
            afterControlWord = true;
        }
        if (afterControlWord)
            rtf += ' '; // ends the control word; a blank anywhere else would be text
        AppendText(rtf, run.text);
        afterControlWord = false;
    }
    rtf += "\\par\r\n}\r\n";
    return rtf;
}

} // namespace modReadings
