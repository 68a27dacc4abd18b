#include "tools/reading.h"

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "report/rendering.h"
#include "report/topic_tree.h"
#include "report/topics.h"

#include <QStringView>

using namespace modReadings;

std::vector<std::u16string_view> AllCaptions() {
    std::vector<std::u16string_view> captions;
    captions.reserve(passOrder.size());
    for (const Calculator calculate : passOrder)
        captions.push_back(TopicOf(calculate).caption);
    return captions;
}

std::u16string_view KnownCaption(std::u16string_view caption) {
    std::vector<std::u16string_view> known = AllCaptions();
    known.push_back(captions::comprehensiveReading);
    for (const std::u16string_view each : known)
        if (QStringView(each).compare(caption, Qt::CaseInsensitive) == 0)
            return each;
    return {};
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
