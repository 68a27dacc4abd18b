#include "tools/people_lines.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

/// A reader that has taken `first` as its first line.
class Reader {
public:
    explicit Reader(const std::string &first) { header_ = lines_.Begin(first, complaint_); }

    bool TookAHeader() const { return header_; }
    std::string Complaint() const { return complaint_.toStdString(); }

    /// The inputs of `line` in the order first to year with "|" between, or "!" and the
    /// complaint.
    std::string Parse(const std::string &line) {
        complaint_.clear();
        const auto input = lines_.Parse(line, complaint_);
        EXPECT_EQ(complaint_.isEmpty(), input.has_value());
        if (!input)
            return "!" + complaint_.toStdString();
        return QStringList{input->first, input->middle, input->last,
                           input->month, input->day,    input->year}
            .join('|')
            .toStdString();
    }

private:
    PeopleLines lines_;
    QString complaint_;
    bool header_ = false;
};

constexpr char object[] =
    R"({"first":"Ann","middle":"M","last":"Lee","month":"March","day":7,"year":"1990"})";

TEST(PeopleLines, TellsJsonFromCsvByTheFirstLine) {
    EXPECT_FALSE(Reader(object).TookAHeader());
    EXPECT_TRUE(Reader("first,last,month,day,year").TookAHeader());
}

// One of the columns is enough to show what was meant; without any a line is a wrong one
// like those to follow.
TEST(PeopleLines, TakesALineWithAColumnForAHeader) {
    for (const char *header :
         {"first", "name,\"year\"", "day,day", "a,b,,middle", "first,\"last"}) {
        EXPECT_TRUE(Reader(header).TookAHeader()) << header;
        EXPECT_NE(Reader(header).Complaint(), "") << header;
    }
    for (const char *line :
         {"Ann,,Lee,3,7,1990", "First,Last", " first, last", "first;last;month;day;year",
          "\"first,last,month,day,year", "garbage", "[]", "\"Ann\"", "7", "\xFF", ",", "\r"}) {
        Reader reader(line);
        EXPECT_FALSE(reader.TookAHeader()) << line;
        EXPECT_EQ(reader.Complaint(), "") << line;
        EXPECT_TRUE(reader.Parse(line).starts_with("!not a JSON object")) << line;
        EXPECT_EQ(reader.Parse(object), "Ann|M|Lee|March|7|1990");
    }
}

TEST(PeopleLines, TakesBlanksInFrontOfAnObjectForPartOfIt) {
    Reader reader(std::string(" \t ") + object);
    EXPECT_FALSE(reader.TookAHeader());
    EXPECT_EQ(reader.Complaint(), "");
}

TEST(PeopleLines, ReadsTheMembersOfAnObject) {
    Reader reader(object);
    EXPECT_EQ(reader.Parse(object), "Ann|M|Lee|March|7|1990");
    // Whether a person may be so is not looked at here.
    EXPECT_EQ(reader.Parse(R"({"year":0,"day":-7,"first":"a\tb"})"), "a\tb||||-7|0");
    EXPECT_EQ(reader.Parse("{}"), "|||||");
}

TEST(PeopleLines, ReadsTheFieldsOfARow) {
    Reader reader("year,first,last,month,day");
    EXPECT_EQ(reader.Parse("1990,Ann,Lee,3,7"), "Ann||Lee|3|7|1990");
    EXPECT_EQ(reader.Parse(R"("1990"," A,n ","""L""",,)"), " A,n ||\"L\"|||1990");
    EXPECT_EQ(reader.Parse("1990,Zoë 😀,Lee,3,7"), "Zoë 😀||Lee|3|7|1990");
}

TEST(PeopleLines, ComplainsOfRowsThatDoNotFitTheHeader) {
    Reader reader("first,last,month,day,year");
    EXPECT_TRUE(reader.Parse("Ann,Lee,3,7").starts_with("!"));
    EXPECT_TRUE(reader.Parse("Ann,Lee,3,7,1990,").starts_with("!"));
    EXPECT_TRUE(reader.Parse("\"Ann,Lee,3,7,1990").starts_with("!"));
    EXPECT_TRUE(reader.Parse("A\xFF,Lee,3,7,1990").starts_with("!"));
    EXPECT_EQ(reader.Parse("Ann,Lee,3,7,1990"), "Ann||Lee|3|7|1990"); // and goes on
}

TEST(PeopleLines, ComplainsOfLinesThatAreNoObject) {
    Reader reader(object);
    for (const char *line : {"[]", "1", "null", "{", "x", R"({"first":1.5})", R"({"first":null})",
                             R"({"age":1})", "{\"first\":\"\xFF\"}"})
        EXPECT_TRUE(reader.Parse(line).starts_with("!")) << line;
    EXPECT_EQ(reader.Parse(object), "Ann|M|Lee|March|7|1990");
}

TEST(PeopleLines, ComplainsOfAHeaderThatCannotBeUsed) {
    EXPECT_EQ(Reader("first,middle,last,month,day,year").Complaint(), "");
    for (const char *header : {"first,last,month,day", "first,last,month,day,year,sex",
                               "first,first,last,month,day,year", "first,last,month,day,\"year"})
        EXPECT_NE(Reader(header).Complaint(), "") << header;
}

} // namespace
