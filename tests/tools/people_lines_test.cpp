#include "tools/people_lines.h"

#include "tests/tools/complaint.h"

#include <gtest/gtest.h>

namespace {

/// A reader that has taken `first` as its first line.
class Reader {
public:
    explicit Reader(const std::string &first) { header_ = lines_.Begin(first); }

    bool TookAHeader() const { return header_; }

    /// The inputs of `line` in the order first to year with "|" between.
    std::string Parse(const std::string &line) const {
        const PersonInput input = lines_.Parse(line);
        return QStringList{input.first, input.middle, input.last,
                           input.month, input.day,    input.year}
            .join('|')
            .toStdString();
    }

    std::string Refused(const std::string &line) const {
        return RefusalOf([&] { lines_.Parse(line); });
    }

private:
    PeopleLines lines_;
    bool header_ = false;
};

constexpr char object[] =
    R"({"first":"Ann","middle":"M","last":"Lee","month":"March","day":7,"year":"1990"})";

// One of the columns is enough to show what was meant; without any a line is a wrong one
// like those to follow.
TEST(PeopleLines, TakesAFirstLineWithAColumnForAHeader) {
    EXPECT_FALSE(Reader(object).TookAHeader());
    EXPECT_FALSE(Reader(std::string(" \t ") + object).TookAHeader());
    EXPECT_TRUE(Reader("first,last,month,day,year").TookAHeader());
    EXPECT_TRUE(Reader(R"("first","last","month","day","year")").TookAHeader());
    for (const std::string line :
         {"Ann,,Lee,3,7,1990", "FIRST,LAST,MONTH,DAY,YEAR", " first, last",
          "first;last;month;day;year", "\"first,last,month,day,year", "garbage", "[]", "\"Ann\"",
          "7", "null", "\xFF", ",", "\r", "\x1B[31m"}) {
        const Reader reader(line);
        EXPECT_FALSE(reader.TookAHeader()) << line;
        ExpectLine(reader.Refused(line), {"not a JSON object", "no CSV header", "first, middle"});
        EXPECT_EQ(reader.Parse(object), "Ann|M|Lee|March|7|1990");
    }
}

TEST(PeopleLines, RefuseAHeaderThatCannotBeUsed) {
    struct Header {
        std::string line;
        std::vector<std::string> parts;
    };
    const std::string much(100'000, 'x');
    for (const auto &[line, parts] : std::vector<Header>{
             {"middle,last,month,day,year", {"lacks", "\"first\""}},
             {"first,middle,month,day,year", {"lacks", "\"last\""}},
             {"first,middle,last,day,year", {"lacks", "\"month\""}},
             {"first,middle,last,month,year", {"lacks", "\"day\""}},
             {"first,middle,last,month,day", {"lacks", "\"year\""}},
             {"first,middle,last,month,day,year,sex", {"\"sex\" that is not allowed", "first, m"}},
             {"First,middle,last,month,day,year", {"\"First\" that is not allowed"}},
             {"first, middle,last,month,day,year", {"\" middle\" that is not allowed"}},
             {"first,middle,last,month,day,year,day", {"\"day\" twice"}},
             {"first,,last,month,day,year", {"\"\" that is not allowed"}},
             {"year", {"\"first\""}},
             {"name,\"year\"", {"\"name\""}},
             {"first,middle,last,month,day,\"year", {}},
             {"first,last,month,day,year,\"middle\"x", {}},
             {"first,\x1B[31m,last,month,day,year", {"\\x1B[31m"}},
             {"first," + much, {'"' + std::string(37, 'x') + "..." + std::string(20, 'x') + '"'}}})
        ExpectLine(RefusalOf([&] { PeopleLines().Begin(line); }), parts);
}

TEST(PeopleLines, ReadTheMembersOfAnObject) {
    const Reader reader(object);
    for (const auto &[line, inputs] : std::vector<std::pair<std::string, std::string>>{
             {object, "Ann|M|Lee|March|7|1990"},
             {R"({"year":1990,"last":"Lee","day":"7","first":"Ann"})", "Ann||Lee||7|1990"},
             {R"(  { "first" : "\u0041nn" , "last":"Le\u0065" }  )", "Ann||Lee|||"},
             {R"({"first":"A\ud83d\ude00\t","last":"\"\\\/Lee 😀"})", "A😀\t||\"\\/Lee 😀|||"},
             // Whether a person may be so is not looked at here.
             {R"({"year":0,"day":-7,"first":"a\tb"})", "a\tb||||-7|0"},
             {"{}", "|||||"}})
        EXPECT_EQ(reader.Parse(line), inputs);
}

TEST(PeopleLines, RefuseWhatIsNoObjectOfTheMembers) {
    std::string arrays = "{\"first\":" + std::string(1'000'000, '[');
    std::string objects;
    for (int depth = 0; depth < 300'000; ++depth)
        objects += "{\"first\":";
    const Reader reader(object);
    for (const auto &[line, part] : std::vector<std::pair<std::string, std::string>>{
             {"garbage", "JSON object"},
             {R"(["Ann","Lee",3,7,1990])", "JSON object"},
             {"\"Ann\"", "JSON object"},
             {"7", "JSON object"},
             {"null", "JSON object"},
             {R"({"first":"Ann")", "not JSON"},
             {R"({"first":"Ann)", "not JSON"},
             {R"({"first":"Ann"}{"first":"Ann"})", "not JSON"},
             {R"({"first":"Ann"} x)", "not JSON"},
             {"{'first':'Ann'}", "not JSON"},
             {"{first:\"Ann\"}", "not JSON"},
             {R"({"first":"Ann",})", "not JSON"},
             {R"({/* x */"first":"A"})", "not JSON"},
             {"{\"first\":\"A\tB\"}", "not JSON"},
             {R"({"first":"A\x41"})", "not JSON"},
             {R"({"first":"A\ud83d"})", "not JSON"},
             {R"({"first":"A\ude00"})", "first is neither"},
             {"{\"first\":\"A\xFF\"}", "not JSON"},
             {"{\"first\":\"A\xC3\"}", "not JSON"},
             {"{\"first\":\"A\xC0\xAF\"}", "not JSON"},
             {arrays, "not JSON"},
             {objects, "not JSON"},
             {R"({"first":"é",})", "at byte 15"},
             {R"({"first":"A","born":"here"})",
              "\"born\" is not allowed; allowed are first, middle"},
             {R"({"First":"A"})", "\"First\""},
             {R"({"first":"A","error":""})", "\"error\""},
             {R"({"fir\nst":"A"})", "\"fir\\nst\""},
             {R"({"fir\u0000st":"A"})", "\"fir\\x00st\""},
             {R"({")" + std::string(100'000, 'x') + R"(":"A"})",
              '"' + std::string(37, 'x') + "..." + std::string(20, 'x') + '"'},
             {R"({"first":"A","first":"A"})", "\"first\" stands there twice"},
             {R"({"middle":"","middle":""})", "\"middle\" stands there twice"},
             {R"({"first":true})", "first is neither"},
             {R"({"first":["Ann"]})", "first is neither"},
             {R"({"first":{"name":"Ann"}})", "first is neither"},
             {R"({"middle":false})", "middle is neither"},
             {R"({"last":null})", "last is neither"},
             {R"({"month":3.5})", "month is neither"},
             {R"({"day":7.0})", "day is neither"},
             {R"({"day":123456789012345678901234567890})", "day is neither"},
             {R"({"year":[1990]})", "year is neither"}})
        ExpectLine(reader.Refused(line), {part});
    EXPECT_EQ(reader.Parse(object), "Ann|M|Lee|March|7|1990"); // and goes on
}

TEST(PeopleLines, ReadTheFieldsOfARow) {
    const Reader reader("year,first,last,month,day");
    for (const auto &[line, inputs] : std::vector<std::pair<std::string, std::string>>{
             {"1990,Ann,Lee,3,7", "Ann||Lee|3|7|1990"},
             {R"("1990"," A,n ","""L""",,)", " A,n ||\"L\"|||1990"},
             {"1990,Zoë 😀,O'Neil,3,7", "Zoë 😀||O'Neil|3|7|1990"},
             {"1990,{Ann}, Lee  Ray ,3,7", "{Ann}|| Lee  Ray |3|7|1990"}})
        EXPECT_EQ(reader.Parse(line), inputs);
    EXPECT_EQ(Reader("middle,year,day,month,last,first").Parse("M,1990,7,3,Lee,Ann"),
              "Ann|M|Lee|3|7|1990");
}

TEST(PeopleLines, RefuseARowThatDoesNotFitTheHeader) {
    const Reader reader("first,last,month,day,year");
    for (const auto &[line, part] : std::vector<std::pair<std::string, std::string>>{
             {"Ann", "1 fields where the header has 5"},
             {"Ann,Lee,3,7", "4 fields where the header has 5"},
             {"Ann,Lee,3,7,1990,", "6 fields where the header has 5"},
             {R"({"first":"Ann"})", "not CSV"},
             {"\"Ann,Lee,3,7,1990", "not CSV"},
             {"Ann,Lee,3,7,\"1990", "not CSV"},
             {"A\"nn,Lee,3,7,1990", "not CSV"},
             {"\"Ann\"x,Lee,3,7,1990", "not CSV"},
             {"Ann,Lee,3,7\r1990", "4 fields"},
             {"A\xFF,Lee,3,7,1990", "UTF-8"},
             {"A\xF0\x9F\x98,Lee,3,7,1990", "UTF-8"},
             {"Zo\xEB,Lee,3,7,1990", "UTF-8"},
             {"A\xED\xA0\xBD,Lee,3,7,1990", "UTF-8"}})
        ExpectLine(reader.Refused(line), {part});
    EXPECT_EQ(reader.Parse("Ann,Lee,3,7,1990"), "Ann||Lee|3|7|1990"); // and goes on
}

} // namespace
