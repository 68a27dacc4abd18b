#include "tools/explanation.h"

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/runtime_failure.h"
#include "report/topics.h"
#include "tools/text.h"

#include <QChar>

#include <cstdio>

using namespace modReadings;

namespace {

TopicExplanation ExplainTopic(const Topic &topic) {
    TopicExplanation explained{topic.caption, {}, {}};
    {
        TraceRecorder recorder;
        Attempt(topic.calculate);
        explained.trace = recorder.Take();
    }
    Attempt([&] { explained.number = HeadingNumberText(topic); });
    return explained;
}

} // namespace

Explanation Explain(const UserProfile &person, std::span<const std::u16string_view> captions) {
    const FixedClock oneDay(Clock::Date());
    store = {};
    profile = person;
    RunAllCalculators();

    Explanation explanation{person, Clock::Date(), {}, {}};
    for (const std::u16string_view caption : captions) {
        if (const Topic *topic = FindTopic(caption))
            explanation.topics.push_back(ExplainTopic(*topic));
        else
            for (const Calculator calculate : passOrder)
                explanation.topics.push_back(ExplainTopic(TopicOf(calculate)));
    }
    explanation.name = ReadNameSheet();
    return explanation;
}

std::string Shown(char16_t character) {
    if (character == u' ')
        return "blank";
    const QChar shown(character);
    const bool leftwards = shown.direction() == QChar::DirR || shown.direction() == QChar::DirAL;
    if (shown.isPrint() && !shown.isMark() && !shown.isSpace() && !shown.isSurrogate() &&
        !leftwards)
        return ToUtf8(std::u16string_view(&character, 1));
    char code[8];
    std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(character));
    return code;
}
