#include "tools/reading.h"

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "report/rendering.h"
#include "report/topic_tree.h"
#include "report/topics.h"

using namespace modReadings;

std::vector<std::u16string_view> AllCaptions() {
    std::vector<std::u16string_view> captions;
    captions.reserve(passOrder.size());
    for (const Calculator calculate : passOrder)
        captions.push_back(TopicOf(calculate).caption);
    return captions;
}

std::u16string_view KnownCaption(std::u16string_view caption) {
    if (const Topic *topic = FindTopic(caption))
        return topic->caption;
    return caption == captions::comprehensiveReading ? captions::comprehensiveReading
                                                     : std::u16string_view();
}

PersonReading ReadPerson(const UserProfile &person, std::span<const std::u16string_view> captions) {
    const FixedClock oneDay(Clock::Date());
    store = {};
    profile = person;
    RunAllCalculators();

    PersonReading reading{person, Clock::Date(), {}};
    reading.topics.reserve(captions.size());
    for (const std::u16string_view caption : captions) {
        TopicReading &topicReading = reading.topics.emplace_back();
        topicReading.caption = caption;
        if (const Topic *topic = FindTopic(caption)) {
            topicReading.report = RunAndRenderTopic(*topic);
            Attempt([&] { topicReading.number = HeadingNumberText(*topic); });
        } else {
            topicReading.report = RenderComprehensiveReading();
        }
    }
    return reading;
}
