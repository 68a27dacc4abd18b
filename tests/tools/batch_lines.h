#pragma once

// Input of --batch and the lines that come back.

#include "tests/tools/expected_report.h"
#include "tests/tools/program.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

/// The options of a batch from standard input for a day on which nothing depends on today.
inline Arguments BatchOptions(const Arguments &more = {}) {
    Arguments options{"--batch", "-", "--today", "2026-11-16"};
    options.insert(options.end(), more.begin(), more.end());
    return options;
}

/// `person` as a line of JSON.
inline std::string AsJson(const modReadings::Person &person) {
    QJsonObject object{{"first", person.firstName},
                       {"last", person.lastName},
                       {"month", person.birthMonth},
                       {"day", person.birthDay.toInt()},
                       {"year", person.birthYear.toInt()}};
    if (!person.middleName.isNull())
        object["middle"] = person.middleName;
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString() + '\n';
}

/// The lines of `out`, each of which has to end in a line break.
inline std::vector<std::string> Lines(std::string_view out) {
    std::vector<std::string> lines;
    while (!out.empty()) {
        const std::size_t end = out.find('\n');
        EXPECT_NE(end, std::string_view::npos) << "no line break at the end";
        lines.emplace_back(out.substr(0, end));
        out.remove_prefix(end == std::string_view::npos ? out.size() : end + 1);
    }
    return lines;
}

/// The names of the people read, in their order: "FIRST MIDDLE LAST", or "!" for an error.
inline std::vector<std::string> NamesIn(std::string_view out) {
    std::vector<std::string> names;
    for (const std::string &line : Lines(out)) {
        const QJsonObject object = ParseObject(line);
        if (object.contains("error")) {
            EXPECT_TRUE(object["error"].isString());
            EXPECT_NE(object["error"].toString(), "");
            EXPECT_FALSE(object.contains("topics"));
            names.emplace_back("!");
        } else {
            QString name = object["first"].toString();
            for (const char *part : {"middle", "last"})
                if (!object[part].toString().isEmpty())
                    name += ' ' + object[part].toString();
            names.push_back(name.toStdString());
        }
    }
    return names;
}

using Names = std::vector<std::string>;
