// Reports of any text as RTF, read back by a strict reader. In an input the byte FE stands
// between two reports of one document, FF between two runs, of which every other is bold.

#include "report/rtf.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/rtf_reader.h"

namespace {

using namespace modReadings;

/// Shows where two documents part.
void RequireSame(const std::vector<RtfCharacter> &shown, const std::vector<RtfCharacter> &expected,
                 const std::string &file) {
    Require(shown == expected, "a reader shows the characters of the report", file);
}

void Run(std::string_view bytes) {
    std::vector<Report> reports;
    std::string family;
    for (const std::string_view part : Pieces(bytes, '\xFE')) {
        Report &report = reports.emplace_back();
        bool bold = false;
        for (const std::string_view text : Pieces(part, '\xFF')) {
            report.push_back({AnyUnits(text), bold});
            bold = !bold;
        }
        family = part.substr(0, 40);
    }

    for (const Report &report : reports) {
        const std::string file = ToRtf(report);
        try {
            RequireSame(RtfReader::Read(file).characters, ShownCharacters(report), file);
        } catch (const std::runtime_error &trouble) {
            Require(false, trouble.what(), file);
        }
    }

    // All of them in one document, in a font of any name.
    const RtfFont font{family, static_cast<int>(2 + bytes.size() % 200)};
    std::string file = RtfBeginning(font);
    std::vector<RtfCharacter> expected;
    for (std::size_t index = 0; index < reports.size(); ++index) {
        if (index > 0) {
            file += rtfPageBreak;
            expected.push_back({u'\f', false, {}});
        }
        file += RtfBody(reports[index]);
        for (const RtfCharacter &character : ShownCharacters(reports[index]))
            expected.push_back(character);
    }
    file += rtfEnd;
    try {
        const RtfDocument document = RtfReader::Read(file);
        RequireSame(document.characters, expected, file);
        Require(document.halfPoints == font.halfPoints && document.fonts.size() == 1,
                "the document has its font", file);
        std::string plain;
        for (const char character : font.family)
            if (character >= ' ' && character <= '~' &&
                std::string_view(";\\{}").find(character) == std::string_view::npos)
                plain += character;
        // A blank in front of the name ends the control word before it.
        Require(document.fonts.front() == plain, "the font has its name", file);
    } catch (const std::runtime_error &trouble) {
        Require(false, trouble.what(), file);
    }
}

const FuzzTarget target("rtf", Run);

} // namespace
