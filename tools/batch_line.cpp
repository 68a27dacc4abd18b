#include "tools/batch_line.h"

#include "core/clock.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <utility>

using namespace Qt::StringLiterals;

LineAnswer AnswerLine(const BatchLine &line, PeopleLines &lines, bool normalize,
                      BatchWriter &writer) {
    const modReadings::FixedClock oneDay(
        modReadings::Clock::Date()); // the same for the check and the reading
    LineFacts facts{line.number, {}};
    modReadings::UserProfile person;
    QString remark;
    try {
        if (line.tooLong)
            throw Refusal(u"the line is longer than 1 MB, which no person needs"_s);
        std::optional<PersonLine> parsed = lines.Parse(line.text);
        if (!parsed)
            return {};
        facts.further = std::move(parsed->further);
        const PersonInput input = normalize ? Composed(parsed->person) : parsed->person;
        facts.given = GivenNameOf(input);
        person = CheckPerson(input);
        if (!normalize)
            remark = DecomposedRemark(input);
    } catch (const Refusal &refusal) {
        std::string message = OneLine(refusal.Line());
        writer.WriteError(facts, message);
        return {false, std::move(message), {}};
    }
    writer.WritePerson(person, facts);
    LineAnswer answer{true, {}, {}};
    if (!remark.isEmpty())
        answer.remark = OneLine(remark);
    return answer;
}
