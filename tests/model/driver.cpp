// The program's side of the comparison with the model (compare.py): reads commands, one a
// line with its words parted by tabs, and answers each with a line of JSON.
//
//   new                     the state of a started process
//   profile F M L MO D Y    puts these six texts into the profile
//   clock DATE...           each reading of the clock takes the next date; the last stays
//   pass                    the pass, and the Personal Month as it stands after it
//   run CAPTION             the calculator of a topic
//   click CAPTION           what a click on a topic shows
//   render CAPTION          the topic as the store holds it
//   comprehensive           the Comprehensive Reading
//   endless AGE             the name whose Essence walk would never end at this age
//   answer                  writes the answers to all commands since the last one
//
// \uXXXX stands for one UTF-16 unit. An answer holds the slots that changed since the answer
// before, and the runs of the report or the name that was asked for.

#include "core/clock.h"
#include "core/proceed_pass.h"
#include "core/reading_store.h"
#include "core/runtime_failure.h"
#include "core/user_profile.h"
#include "numbers/essence.h"
#include "report/rendering.h"
#include "report/topics.h"
#include "tests/support/stepping_clock.h"
#include "tests/support/store_slots.h"

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace modReadings;

namespace {

/// What the clock shows until a command sets it.
constexpr auto firstDay = std::chrono::year(2026) / 11 / 16;

std::u16string Text(std::string_view word) {
    std::u16string text;
    for (std::size_t at = 0; at < word.size(); ++at) {
        if (word[at] == '\\') {
            text +=
                static_cast<char16_t>(std::stoi(std::string(word.substr(at + 2, 4)), nullptr, 16));
            at += 5;
        } else {
            text += static_cast<char16_t>(word[at]);
        }
    }
    return text;
}

std::chrono::year_month_day Date(const std::string &word) {
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    if (std::sscanf(word.c_str(), "%d-%u-%u", &year, &month, &day) != 3)
        throw std::invalid_argument("no date: " + word);
    return std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day);
}

void AppendJson(std::string &out, std::u16string_view text) {
    out += '"';
    for (const char16_t unit : text) {
        if (unit >= u' ' && unit <= u'~' && unit != u'"' && unit != u'\\') {
            out += static_cast<char>(unit);
        } else {
            char escape[7];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(unit));
            out += escape;
        }
    }
    out += '"';
}

void AppendJson(std::string &out, int16 number) { out += std::to_string(number); }

/// The slots in which the store differs from `told`, which becomes like the store.
void AppendChanges(std::string &out, ReadingStore &told) {
    const char *separator = "";
    const auto tell = [&](const auto &slots) {
        for (const auto &[name, member] : slots) {
            if (told.*member == store.*member)
                continue;
            out += separator;
            out += '"';
            out += name;
            out += "\":";
            AppendJson(out, store.*member);
            separator = ",";
        }
    };
    out += "\"slots\":{";
    tell(numberSlots);
    tell(textSlots);
    out += '}';
    told = store;
}

void AppendReport(std::string &out, const Report &report) {
    const char *separator = "";
    out += ",\"report\":[";
    for (const Run &run : report) {
        out += separator;
        out += '[';
        AppendJson(out, run.text);
        out += run.bold ? ",true]" : ",false]";
        separator = ",";
    }
    out += ']';
}

const Topic &TopicOfCaption(const std::string &caption) {
    if (const Topic *topic = FindTopic(Text(caption)))
        return *topic;
    throw std::invalid_argument("no topic: " + caption);
}

std::string_view Name(std::optional<NamePart> part) {
    if (!part)
        return "";
    switch (*part) {
    case NamePart::First:
        return "First";
    case NamePart::Middle:
        return "Middle";
    case NamePart::Last:
        return "Last";
    }
    return "?";
}

std::vector<std::string> Words(const std::string &line) {
    std::vector<std::string> words;
    std::size_t begin = 0;
    for (std::size_t tab; (tab = line.find('\t', begin)) != std::string::npos; begin = tab + 1)
        words.push_back(line.substr(begin, tab - begin));
    words.push_back(line.substr(begin));
    return words;
}

class Driver {
public:
    void Do(const std::vector<std::string> &words) {
        const std::string &command = words.at(0);
        if (command == "answer") {
            std::cout << answers_ << std::flush;
            answers_.clear();
            return;
        }
        std::string extra;
        if (command == "new") {
            store = {};
            profile = {};
            told_ = {};
            clock_.Show({firstDay});
        } else if (command == "profile") {
            profile = {Text(words.at(1)), Text(words.at(2)), Text(words.at(3)),
                       Text(words.at(4)), Text(words.at(5)), Text(words.at(6))};
        } else if (command == "clock") {
            std::vector<std::chrono::year_month_day> dates;
            for (std::size_t at = 1; at < words.size(); ++at)
                dates.push_back(Date(words[at]));
            clock_.Show(std::move(dates));
        } else if (command == "pass") {
            RunAllCalculators();
            AppendReport(extra, RenderTopic(TopicOfCaption("Personal Month")));
        } else if (command == "run") {
            Attempt(TopicOfCaption(words.at(1)).calculate);
        } else if (command == "click") {
            AppendReport(extra, RunAndRenderTopic(TopicOfCaption(words.at(1))));
        } else if (command == "render") {
            AppendReport(extra, RenderTopic(TopicOfCaption(words.at(1))));
        } else if (command == "comprehensive") {
            AppendReport(extra, RenderComprehensiveReading());
        } else if (command == "endless") {
            const auto age = static_cast<int16>(std::stoi(words.at(1)));
            extra = ",\"endless\":\"";
            extra += Name(EndlessName(profile, age));
            extra += '"';
        } else {
            throw std::invalid_argument("no command: " + command);
        }
        answers_ += '{';
        AppendChanges(answers_, told_);
        answers_ += extra;
        answers_ += "}\n";
    }

private:
    SteppingClock clock_{{firstDay}};
    ReadingStore told_;
    std::string answers_;
};

} // namespace

int main() {
    std::ios::sync_with_stdio(false);
    Driver driver;
    for (std::string line; std::getline(std::cin, line);)
        driver.Do(Words(line));
    return 0;
}
