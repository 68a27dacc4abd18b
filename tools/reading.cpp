#include "tools/reading.h"

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

std::vector<TopicReading> ReadPerson(const Person &person,
                                     std::span<const std::u16string_view> captions) {
    store = {};
    CaptureProfile(person);
    RunAllCalculators();

    std::vector<TopicReading> readings;
    readings.reserve(captions.size());
    for (const std::u16string_view caption : captions) {
        RunList pane;
        TopicReading reading{caption, {}, {}};
        if (const Topic *topic = FindTopic(caption)) {
            RunAndRenderTopic(pane, *topic);
            Attempt([&] { reading.number = HeadingNumberText(*topic); });
        } else {
            RenderComprehensiveReading(pane);
        }
        reading.runs = pane.TakeRuns();
        readings.push_back(std::move(reading));
    }
    return readings;
}
