#pragma once

// The report as a document to hand over: who was read and when, all numbers at a glance, what
// is in force today, five pictures as data, and the topics with their readings. It is a value.
// Every format of a document is made from it and works nothing out.

#include "core/int16.h"
#include "core/user_profile.h"
#include "numbers/ages.h"
#include "numbers/hidden_passion.h"
#include "numbers/name_sheet.h"
#include "report/topics.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace modReadings {

/// The three names as they were typed, with the blanks at their ends; the profile has them in
/// capitals.
struct GivenName {
    std::u16string first;
    std::u16string middle; ///< empty where there is none
    std::u16string last;
};

/// A piece of a topic: a text and the line above it, if there is one.
struct DocumentPart {
    std::u16string label; ///< such as "First Pinnacle from age 0-31 years is 5"; may be empty
    std::u16string text;  ///< paragraphs with line breaks between; empty where `sameAs` is set
    std::string id;       ///< of the place, unique in the document; empty without a label
    std::string sameAs;   ///< the id of the earlier part with the same text; otherwise empty
    std::u16string sameAsLabel; ///< the label of that part
    bool explains = false;      ///< explains the topic, whatever the number is
    bool inForce = false;       ///< in force on the day of the reading
};

struct DocumentTopic {
    std::u16string_view caption;     ///< of the tree
    std::u16string heading;          ///< of the report: "Your Life Path Number is: 1"
    std::u16string number;           ///< behind the heading's literal; may be empty
    std::string_view id;             ///< of the place, unique in the document
    std::u16string speaksOf;         ///< the day, month or year of a cycle; empty for all others
    std::vector<DocumentPart> parts; ///< in the order of the report
};

/// A row of the table at a glance.
struct NumberRow {
    std::u16string_view caption; ///< of the topic
    std::string_view id;         ///< of the topic
    std::u16string number;       ///< one or several, or a word; empty where there is none
    std::u16string remark;       ///< what it speaks of; may be empty
};

struct NumberGroup {
    std::u16string_view title; ///< what the numbers are made from
    std::vector<NumberRow> rows;
};

/// Something that is in force on the day of the reading.
struct InForce {
    std::u16string what; ///< such as "Personal Month"
    std::u16string number;
    std::u16string when; ///< "November 2026", "from age 30 to 38"
    std::string id;      ///< of the place where its reading stands
};

/// What every picture has beside its data.
struct PictureText {
    std::string_view id;
    std::u16string_view title;
    std::u16string_view legend; ///< how to read the picture
    std::u16string words;       ///< the same as the picture, in words
    std::u16string_view note{}; ///< behind the legend, where a rare rule holds; may be empty
};

/// The letters of the name with their values, and the sums that they make.
struct NamePicture {
    PictureText text;
    NameSheet sheet;
};

/// How often each of the values 1 to 9 occurs in the name.
struct ValuesPicture {
    PictureText text;
    std::array<std::u16string, 10> letters; ///< of the name, by value; 0: without a value
    FrequentCharacter leader;               ///< decides on the Hidden Passion
};

/// A stretch of ages with a number.
struct LifeSpan {
    int16 number = 0;
    Ages ages;
    bool inForce = false;
    std::string id; ///< of the place where its reading stands
};

/// Periods, pinnacles and challenges over the ages.
struct LifePicture {
    PictureText text;
    int16 age = 0; ///< on the day of the reading, in calendar years; negative before birth
    std::vector<LifeSpan> periods; ///< in their order; empty where there are none
    std::vector<LifeSpan> pinnacles;
    std::vector<int16> challenges; ///< these have no ages
};

/// The years from that of the reading on, and the months from that of the reading on.
struct TimePicture {
    struct Year {
        int year = 0;
        int16 personalYear = 0;
        std::optional<int16> essence; ///< none where no letter of a name counts
    };
    struct Month {
        int year = 0;
        std::u16string_view name; ///< English
        int16 personalMonth = 0;
    };
    PictureText text;
    std::vector<Year> years;   ///< nine
    std::vector<Month> months; ///< twelve
};

struct PlanesPicture {
    struct Plane {
        std::u16string_view name; ///< "Mental"
        int16 share = 0;          ///< in percent
        std::u16string rating;
        std::u16string letters; ///< those of the name that belong to it, in their order
        bool dominates = false;
    };
    PictureText text;
    std::vector<Plane> planes; ///< the four in their order
};

struct Document {
    std::u16string name;    ///< as it was given, its parts with a blank between
    std::u16string born;    ///< "March 29, 1985"
    std::u16string readFor; ///< "November 21, 2026"

    std::vector<NumberGroup> glance;
    int16 age = 0; ///< as the calculators count it
    std::vector<InForce> today;
    std::u16string todayNote; ///< the day, the age and how it counts, in sentences

    NamePicture letters;
    ValuesPicture values;
    LifePicture life;
    TimePicture time;
    PlanesPicture planes;

    std::vector<DocumentTopic> topics; ///< the 22, in the order of the pass
};

/// The titles that the formats share.
inline constexpr std::u16string_view glanceTitle = u"All numbers at a glance";
inline constexpr std::u16string_view todayTitle = u"In force today";

/// The texts of the five pictures in the order of the document. They are those of `document`, and
/// live no longer.
std::array<const PictureText *, 5> PicturesOf(const Document &document);

/// A date written out: "November 21, 2026".
std::u16string LongDate(std::u16string_view month, int day, int year);
/// The same; `date` is a day of the calendar: date.ok().
std::u16string LongDate(std::chrono::year_month_day date);

/// How a sum becomes its number: "65, 6 + 5 = 11". The sum alone where it is the number.
std::u16string InWords(const NameSum &sum);

/// The document of `person`, who gave the name `given`, for `day`, which is a day of the calendar:
/// day.ok(). It is made on an empty store; profile and store are afterwards as they were before.
/// EndlessName (numbers/essence.h) must have no answer for the person on that day: otherwise this
/// never returns. Throws RuntimeFailure where BirthDay or BirthYear is no number.
Document MakeDocument(const UserProfile &person, const GivenName &given,
                      std::chrono::year_month_day day);

} // namespace modReadings
