#include "tools/people_lines.h"

#include "tests/tools/complaint.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

/// A reader that has taken `first` as its first line.
class Reader {
public:
    explicit Reader(const std::string &first) { header_ = lines_.Begin(first); }

    bool TookAHeader() const { return header_; }

    /// The inputs of `line` in the order first to year with "|" between, behind them the
    /// birth date in one piece and the further members if there are any. "-" for a line that
    /// is the rest of another.
    std::string Parse(const std::string &line) {
        const std::optional<PersonLine> parsed = lines_.Parse(line);
        if (!parsed)
            return "-";
        const PersonInput &input = parsed->person;
        QStringList parts{input.first, input.middle, input.last,
                          input.month, input.day,    input.year};
        if (!input.date.isEmpty())
            parts << input.date;
        return parts.join('|').toStdString() + parsed->further;
    }

    std::string Refused(const std::string &line) {
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
    for (const std::string line : {"Ann,,Lee,3,7,1990", "name;first", "garbage", "[]", "[1,2]",
                                   "\"Ann\"", "7", "null", "\xFF", ",", "\r", "\x1B[31m"}) {
        Reader reader(line);
        EXPECT_FALSE(reader.TookAHeader()) << line;
        ExpectLine(reader.Refused(line),
                   {"not a JSON object", "no CSV header", "needed are first, last"});
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
             {"first,last,month,year,birthday", {"lacks", "\"day\"", "or birthdate"}},
             {"first,birthdate", {"lacks", "\"last\""}},
             {"first,middle,last,month,day,year,day", {"\"day\" twice"}},
             {"first,middle,last,month,day,year,DAY", {"\"DAY\" twice"}},
             {"first,last,birthdate,id,id", {"\"id\" twice"}},
             {"year", {"\"first\""}},
             {"first,middle,last,month,day,\"year", {"not CSV", "left open"}},
             {"first,last,month,day,year,\"middle\"x",
              {"not CSV", "out of place (at character 35)"}},
             {"first,last,month,day,year,a\x1B[31m,a\x1B[31m", {"\"a\\x1B[31m\" twice"}},
             {"first,last,month,day,year,\xFF", {"not UTF-8"}},
             {"first,last,month,day,year," + much + ',' + much,
              {'"' + std::string(37, 'x') + "..." + std::string(20, 'x') + '"'}}})
        ExpectLine(RefusalOf([line = line] { PeopleLines().Begin(line); }), parts);
}

TEST(PeopleLines, TakeAHeaderInAnyCaseWithBlanksOrTabs) {
    for (const std::string &header : {std::string("FIRST,Last,month,DAY,Year"),
                                      std::string(" first , last,month ,\"day\",year"),
                                      std::string("First\tLast\tMonth\tDay\tYear")}) {
        Reader reader(header);
        EXPECT_TRUE(reader.TookAHeader()) << header;
        const bool tabs = header.find('\t') != std::string::npos;
        EXPECT_EQ(reader.Parse(tabs ? "A, B\tLee\t3\t7\t1990" : "\"A, B\",Lee,3,7,1990"),
                  "A, B||Lee|3|7|1990");
    }
}

// A carriage return is a blank of JSON. In CSV it is a character of its field.
TEST(PeopleLines, TakeCarriageReturnsAroundAnObject) {
    const std::string line = std::string("\r\t\r ") + object + "\r \r";
    Reader first(line);
    EXPECT_FALSE(first.TookAHeader());
    EXPECT_EQ(first.Parse(line), "Ann|M|Lee|March|7|1990");
    EXPECT_EQ(Reader(object).Parse(line), "Ann|M|Lee|March|7|1990");

    EXPECT_FALSE(Reader("\rfirst").TookAHeader());
    EXPECT_EQ(Reader("last,first,month,day,year").Parse("\rLee,Ann\r,3,\r7,1990"),
              "Ann\r||\rLee|3|\r7|1990");
}

// A header of almost 1 MB. Each name compared with all others would take longer than a test may.
TEST(PeopleLines, FindADoubledColumnAmongMany) {
    std::string header = "first,last,birthdate";
    for (int column = 0; column < 150'000; ++column)
        header += ',' + std::to_string(column);
    ExpectLine(RefusalOf([&] { Reader(header + ",149999"); }), {"\"149999\" twice"});
}

// One message stands for one a line.
TEST(PeopleLines, RefuseTheBeginningOfAnInputOfAnotherKind) {
    using namespace std::string_literals;
    for (const auto &[line, part] : std::vector<std::pair<std::string, std::string>>{
             {"first;last;month;day;year", "separated by \";\""},
             {"First; Last; Month; Day; Year; a,b", "separated by \";\""},
             {"\"first\"|\"last\"|\"birthdate\"", "separated by \"|\""},
             {"first last birthdate", "separated by \" \""},
             {"\xFF\xFE"s + "f\0i\0"s, "UTF-16"},
             {"\xFE\xFF\0f\0i"s, "UTF-16"},
             {"f\0i\0r\0"s, "UTF-16"},
             {"\0{\0\"\0f"s, "UTF-16"},
             {"PK\x03\x04\x14\0\x06"s, "ZIP"},
             {"BZh91AY", "bzip2"},
             {"\xFD"
              "7zXZ\0"s,
              "xz"},
             {"\x28\xB5\x2F\xFD$", "Zstandard"},
             {"[", "JSON array"},
             {" [ ", "JSON array"},
             {"\r[\r", "JSON array"},
             {"\r[\r{", "JSON array"},
             {R"([{"first":"Ann"},)", "JSON array"}})
        ExpectLine(RefusalOf([line = line] { PeopleLines().Begin(line); }), {part});
}

TEST(PeopleLines, ReadTheMembersOfAnObject) {
    Reader reader(object);
    for (const auto &[line, inputs] : std::vector<std::pair<std::string, std::string>>{
             {object, "Ann|M|Lee|March|7|1990"},
             {R"({"year":1990,"last":"Lee","day":"7","first":"Ann"})", "Ann||Lee||7|1990"},
             {R"(  { "first" : "\u0041nn" , "last":"Le\u0065" }  )", "Ann||Lee|||"},
             {R"({"first":"A\ud83d\ude00\t","last":"\"\\\/Lee 😀"})", "A😀\t||\"\\/Lee 😀|||"},
             // A mark of byte order is a character of a name like any other.
             {"{\"first\":\"\xEF\xBB\xBF"
              "A\",\"last\":\"\\ufeffB\"}",
              "\xEF\xBB\xBF"
              "A||\xEF\xBB\xBF"
              "B|||"},
             // Whether a person may be so is not looked at here.
             {R"({"year":0,"day":-7,"first":"a\tb"})", "a\tb||||-7|0"},
             {R"({"middle":null,"last":null,"day":null,"first":"A"})", "A|||||"},
             {R"({"year":1984.0,"day":70e-1,"month":0.5E1})", "|||5|7|1984"},
             {R"({"birthdate":"1984-02-31"})", "||||||1984-02-31"},
             {R"({"day":123456789012345678901234567890})", "||||123456789012345678901234567890|"},
             {"{}", "|||||"}})
        EXPECT_EQ(reader.Parse(line), inputs);
}

// As they stand, in their order: a number with all its digits, characters of control escaped.
TEST(PeopleLines, CarryTheFurtherMembersOfAnObject) {
    Reader reader(object);
    for (
        const auto &[line, further] : std::vector<std::pair<std::string, std::string>>{
            {R"({"id":12345678901234567890.50,"first":"A"})", R"({"id":12345678901234567890.50})"},
            {R"({ "b" : [1, {"c":null,"first":"x"}, [] ] , "first":"A", "a":{}, "t":true,"f":false })",
             R"({"b":[1,{"c":null,"first":"x"},[]],"a":{},"t":true,"f":false})"},
            {R"({"first":"A","n":null,"First":"é😀\ud83d\ude00"})", R"({"n":null,"First":"é😀😀"})"},
            {R"({"first":"A","e\u001b":"\u001b]0;xxxxxxxxxxxxxxxxxxxxxxxx"})",
             R"({"e\u001B":"\u001B]0;xxxxxxxxxxxxxxxxxxxxxxxx"})"},
            {R"({"first":"A","line":1,"error":"x"})", R"({"line":1,"error":"x"})"}})
        EXPECT_EQ(reader.Parse(line), "A|||||" + further);
}

TEST(PeopleLines, RefuseWhatIsNoObjectOfTheMembers) {
    std::string arrays = "{\"first\":" + std::string(1'000'000, '[');
    std::string objects;
    for (int depth = 0; depth < 300'000; ++depth)
        objects += "{\"first\":";
    Reader reader(object);
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
             {"{\"first\":\"a line cut within a character \xE3", "not JSON"},
             {"{\"first\":\"a line cut within a character \xF0", "not JSON"},
             {arrays, "not JSON"},
             {objects, "not JSON"},
             {R"({"first":"é😀",})", "at character 15"},
             {std::string(R"({"first":"A)") + '\0' + R"("})",
              "a NUL character stands in the line (at character 12)"},
             {std::string(object) + '\0' + "x", "NUL character"},
             {R"({"fir\nst":1,"fir\nst":1})", "\"fir\\nst\" stands there twice"},
             {R"({"fir\u0000st":1,"fir\u0000st":2})", "\"fir\\x00st\" stands"},
             {R"({")" + std::string(100'000, 'x') + R"(":"A",")" + std::string(100'000, 'x') +
                  R"(":"A"})",
              '"' + std::string(37, 'x') + "..." + std::string(20, 'x') + '"'},
             {R"({"id":"\ude00"})", "id is neither"},
             {R"({"id":[{"x":"\ude00"}]})", "id is neither"},
             {R"({"\ude00":1})", "is neither"},
             {R"({"id":[{"\ude00":1}]})", "id is neither"},
             {R"({"first":"A","first":"A"})", "\"first\" stands there twice"},
             {R"({"middle":"","middle":""})", "\"middle\" stands there twice"},
             {R"({"first":true})", "first is neither"},
             {R"({"first":["Ann"]})", "first is neither"},
             {R"({"first":{"name":"Ann"}})", "first is neither"},
             {R"({"middle":false})", "middle is neither"},
             {R"({"last":[null,1,"x",{"y":2}]})", "last is neither"},
             {R"({"month":3.5})", "month is neither"},
             {R"({"day":7.01})", "day is neither"},
             {R"({"day":1e300})", "day is neither"},
             {R"({"note":1e400})", "a number beyond 10^308 cannot be read (at character 9)"},
             {R"({"year":[1990]})", "year is neither"}})
        ExpectLine(reader.Refused(line), {part});
    EXPECT_EQ(reader.Parse(object), "Ann|M|Lee|March|7|1990"); // and goes on
}

TEST(PeopleLines, ReadTheFieldsOfARow) {
    Reader reader("year,first,last,month,day");
    for (const auto &[line, inputs] : std::vector<std::pair<std::string, std::string>>{
             {"1990,Ann,Lee,3,7", "Ann||Lee|3|7|1990"},
             {R"("1990"," A,n ","""L""",,)", " A,n ||\"L\"|||1990"},
             {R"( 1990 ,Ann,Lee,	 3," 7 ")", "Ann||Lee|3|7|1990"},
             {"1990,Zoë 😀,O'Neil,3,7", "Zoë 😀||O'Neil|3|7|1990"},
             {"1990,\xEF\xBB\xBF"
              "Ann,Lee,3,7",
              "\xEF\xBB\xBF"
              "Ann||Lee|3|7|1990"},
             {"1990,{Ann}, Lee  Ray ,3,7", "{Ann}|| Lee  Ray |3|7|1990"}})
        EXPECT_EQ(reader.Parse(line), inputs);
    EXPECT_EQ(Reader("middle,year,day,month,last,first").Parse("M,1990,7,3,Lee,Ann"),
              "Ann|M|Lee|3|7|1990");
}

TEST(PeopleLines, RefuseARowThatDoesNotFitTheHeader) {
    Reader reader("first,last,month,day,year");
    for (const auto &[line, part] : std::vector<std::pair<std::string, std::string>>{
             {"Ann", "1 fields where the header has 5"},
             {"Ann,Lee,3,7", "4 fields where the header has 5"},
             {"Ann,Lee,3,7,1990,", "6 fields where the header has 5"},
             {R"({"first":"Ann"})", "not CSV"},
             {"\"Ann,Lee,3,7,1990", "not CSV: a quotation mark is left open"},
             {"Ann,Lee,3,7,\"1990", "not CSV: a quotation mark is left open"},
             {"É\"nn,Lee,3,7,1990",
              "not CSV: a quotation mark stands out of place (at character 2)"},
             {"\"Ann\"x,Lee,3,7,1990",
              "not CSV: a quotation mark stands out of place (at character"},
             {std::string("A\0nn,Lee,3,7,1990", 16),
              "NUL character stands in the line (at character 2)"},
             {"Ann,Lee,3,7\r1990", "4 fields"},
             {"A\xFF,Lee,3,7,1990", "UTF-8"},
             {"A\xF0\x9F\x98,Lee,3,7,1990", "UTF-8"},
             {"Zo\xEB,Lee,3,7,1990", "UTF-8"},
             {"A\xED\xA0\xBD,Lee,3,7,1990", "UTF-8"}})
        ExpectLine(reader.Refused(line), {part});
    EXPECT_EQ(reader.Parse("Ann,Lee,3,7,1990"), "Ann||Lee|3|7|1990"); // and goes on
}

TEST(PeopleLines, CarryTheFurtherColumnsOfARow) {
    Reader reader("id,first,Last,\"say \"\"so\"\"\",birthdate,,");
    EXPECT_EQ(reader.Parse("007,Ann,Lee,\"a, \x1B\"\"b\"\"xxxxxxxxxxxxxxxxxxxxx\", 1984-02-31,,x"),
              "Ann||Lee||||1984-02-31"
              R"({"id":"007","say \"so\"":"a, \u001B\"b\"xxxxxxxxxxxxxxxxxxxxx"})");
    EXPECT_TRUE(reader.Parse("1\u202E\u009B,Ann,Lee,,1984-02-31,,")
                    .ends_with(R"({"id":"1\u202E\u009B","say \"so\"":""})"));
    EXPECT_EQ(reader.Parse(",,,,,,"), R"(|||||{"id":"","say \"so\"":""})");
    ExpectLine(reader.Refused("\xFF,Ann,Lee,,1984-02-31,,"), {"not UTF-8"});
}

// The rest of a field that goes on behind a line break belongs to the row that was refused. A
// row that is one by itself is never taken for such a rest.
TEST(PeopleLines, LoseOneRowToALineBreakInAField) {
    Reader reader("first,last,birthdate,note");
    const std::string good = "Ann||Lee||||1984-05-07{\"note\":\"\"}";
    ExpectLine(reader.Refused("Bob,Ray,1990-01-01,\"one"), {"left open", "line break"});
    EXPECT_EQ(reader.Parse("two\""), "-");
    EXPECT_EQ(reader.Parse("Ann,Lee,1984-05-07,"), good);
    ExpectLine(reader.Refused("Bob,Ray,1990-01-01,\"one"), {"left open"});
    EXPECT_EQ(reader.Parse("Ann,Lee,1984-05-07,"), good); // the mark was left open by mistake
    EXPECT_EQ(reader.Parse("Ann,Lee,1984-05-07,"), good);
    ExpectLine(reader.Refused("\"Bob,Ray,1990-01-01,"), {"left open"});
    ExpectLine(reader.Refused("\"Cat,Ray,1990-01-01,"), {"left open"});
    ExpectLine(reader.Refused("Dan,Ray"), {"2 fields"}); // never silently
    EXPECT_EQ(reader.Parse("Ann,Lee,1984-05-07,"), good);
    ExpectLine(reader.Refused("two\""), {"out of place"});
    // Of a field over more than two lines each but the last is refused, as it might be a row.
    ExpectLine(reader.Refused("Bob,Ray,1990-01-01,\"one"), {"left open"});
    ExpectLine(reader.Refused("two"), {"1 fields"});
    EXPECT_EQ(reader.Parse("three\""), "-");
    ExpectLine(reader.Refused("four\""), {"out of place"});
    // Nor is the end looked for without end.
    ExpectLine(reader.Refused("Bob,Ray,1990-01-01,\"one"), {"left open"});
    ExpectLine(reader.Refused(std::string(20'000, 'x')), {"1 fields"});
    ExpectLine(reader.Refused("three\""), {"out of place"});
}

} // namespace
