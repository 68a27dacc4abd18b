#include "numbers/name_sheet.h"

#include "core/proceed_pass.h"
#include "core/runtime_failure.h"
#include "numbers/calculators.h"
#include "numbers/name_total.h"

#include <utility>

namespace modReadings {

namespace {

/// One run of CalcDestiny, CalcSoulUrge or CalcInnerDreams.
struct NameWalk {
    std::vector<Trace::Letter> letters; ///< of all walks over the name, one behind the other
    NameSum sum;
};

NameWalk Walk(Calculator calculate) {
    TraceRecorder recorder;
    Attempt(calculate);
    Trace trace = recorder.Take();

    NameWalk walk{};
    for (Trace::Line &line : trace.lines) {
        walk.letters.insert(walk.letters.end(), line.letters.begin(), line.letters.end());
        if (line.label == nameTotalLabel) {
            walk.sum.raw = std::get<int16>(line.value);
        } else if (line.label == nameNumberLabel) {
            walk.sum.number = std::get<int16>(line.value);
            walk.sum.steps = std::move(line.steps);
        }
    }
    return walk;
}

/// Whether the character at `position` of a name of `length` characters counted in one of the
/// walks over it.
bool Counted(const NameWalk &walk, std::size_t position, std::size_t length) {
    for (; position < walk.letters.size(); position += length)
        if (walk.letters[position].counted)
            return true;
    return false;
}

LetterKind KindOf(bool vowel, bool consonant) {
    if (vowel)
        return consonant ? LetterKind::YAsVowel : LetterKind::Vowel;
    return consonant ? LetterKind::Consonant : LetterKind::NotCounted;
}

NamePart PartAt(std::size_t position) {
    if (position < profile.FirstName.size())
        return NamePart::First;
    return position < profile.FirstName.size() + profile.MiddleName.size() ? NamePart::Middle
                                                                           : NamePart::Last;
}

} // namespace

NameSheet ReadNameSheet() {
    // In the order of the pass, so that the scratch slots end as they end there.
    NameWalk destiny = Walk(CalcDestiny);
    NameWalk innerDreams = Walk(CalcInnerDreams);
    NameWalk soulUrge = Walk(CalcSoulUrge);

    NameSheet sheet;
    const std::size_t length = destiny.letters.size();
    for (std::size_t position = 0; position < length; ++position) {
        const Trace::Letter &letter = destiny.letters[position];
        sheet.letters.push_back(
            {PartAt(position), letter.character, letter.value,
             KindOf(Counted(soulUrge, position, length), Counted(innerDreams, position, length))});
    }
    sheet.destiny = std::move(destiny.sum);
    sheet.soulUrge = std::move(soulUrge.sum);
    sheet.innerDreams = std::move(innerDreams.sum);
    return sheet;
}

} // namespace modReadings
