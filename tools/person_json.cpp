#include "tools/person_json.h"

#include "core/text.h"
#include "tools/text.h"

using modReadings::NumberFromText;

void WriteKey(OutsideJson &json, std::string_view name) {
    json.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
}

void WriteMember(OutsideJson &json, std::string_view name, std::string_view text) {
    WriteKey(json, name);
    WriteString(json, text);
}

void WritePerson(OutsideJson &json, const modReadings::UserProfile &person,
                 std::chrono::year_month_day day, const LineFacts &line) {
    WriteMember(json, "first", AsUtf8(person.FirstName));
    WriteMember(json, "middle", AsUtf8(person.MiddleName));
    WriteMember(json, "last", AsUtf8(person.LastName));
    WriteMember(json, "month", AsUtf8(person.BirthMonth));
    WriteKey(json, "day");
    json.Int(NumberFromText(person.BirthDay));
    WriteKey(json, "year");
    json.Int(NumberFromText(person.BirthYear));
    WriteMember(json, "today", IsoDate(day));
    if (line.number != 0) {
        WriteKey(json, "line");
        json.Int64(line.number);
    }
    if (!line.further.empty()) {
        WriteKey(json, "input");
        json.RawValue(line.further.data(), line.further.size(), rapidjson::kObjectType);
    }
}
