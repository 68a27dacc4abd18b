#pragma once

// What a batch answers: an object a line, a person's reading or an error in its place.

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

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

/// The object that `line` is. Fails the test for anything else.
inline QJsonObject ParseObject(const std::string &line) {
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(line));
    EXPECT_TRUE(document.isObject()) << line.substr(0, 200);
    return document.object();
}

using Names = std::vector<std::string>;

/// Of each answer the person's name, "FIRST MIDDLE LAST", or "!" for an error.
inline Names NamesIn(std::string_view out) {
    Names names;
    for (const std::string &line : Lines(out)) {
        const QJsonObject object = ParseObject(line);
        if (object.contains("error")) {
            EXPECT_EQ(object.keys(), (QStringList{"error", "line"}));
            EXPECT_NE(object["error"].toString(), "");
            names.emplace_back("!");
            continue;
        }
        QString name = object["first"].toString();
        for (const char *part : {"middle", "last"})
            if (!object[part].toString().isEmpty())
                name += ' ' + object[part].toString();
        names.push_back(name.toStdString());
    }
    return names;
}
