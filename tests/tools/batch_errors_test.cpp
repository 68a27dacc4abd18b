// Wrong lines of a batch: each is reported with its number and has an error in its place,
// and the others go on.

#include "tests/tools/batch_lines.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

namespace {

/// A line that holds no person, and what its complaint has to name.
struct WrongLine {
    const char *name;
    std::string line;
    std::vector<std::string> parts;
};

void PrintTo(const WrongLine &wrong, std::ostream *out) { *out << wrong.name; }

std::string NameOf(const testing::TestParamInfo<WrongLine> &info) { return info.param.name; }

/// A complaint about `line` and nothing else, and an error in the middle of three.
void ExpectErrorInPlace(const Finished &run, const std::string &line,
                        const std::vector<std::string> &parts) {
    EXPECT_EQ(run.exitCode, 1) << "signal " << run.signal;
    ASSERT_EQ(NamesIn(run.out), (Names{"ANN LEE", "!", "BOB RAY"}));
    ExpectOneLine(run.err, {line});
    ExpectOneLine(run.err, parts);
    const QString error = ParseObject(Lines(run.out)[1])["error"].toString();
    for (const std::string &part : parts)
        EXPECT_TRUE(error.contains(QString::fromStdString(part))) << error.toStdString();
}

class WrongJsonLine : public testing::TestWithParam<WrongLine> {};

constexpr char jsonBefore[] = R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                              "\n";
constexpr char jsonBehind[] = "\n"
                              R"({"first":"Bob","last":"Ray","month":4,"day":8,"year":1991})"
                              "\n";

TEST_P(WrongJsonLine, HasAnErrorInItsPlace) {
    const std::string input = jsonBefore + GetParam().line + jsonBehind;
    const Finished run = RunProgram(BatchOptions({"--topic", "Personal Day"}), input);
    ExpectErrorInPlace(run, "line 2:", GetParam().parts);
}

/// A line of JSON with `members` and a last name, month, day and year to go with them.
std::string Lee(const std::string &members) {
    return R"({"last":"Lee","month":3,"day":7,"year":1990,)" + members + '}';
}

/// A line of JSON with all but the member `value` is for.
std::string Ann(const std::string &name, const std::string &value) {
    std::string line = R"({"first":"Ann")";
    for (const auto &[member, usual] :
         {std::pair("last", "\"Lee\""), {"month", "3"}, {"day", "7"}, {"year", "1990"}})
        line += std::string(",\"") + member + "\":" + (member == name ? value : usual);
    return line + '}';
}

std::string Repeated(const std::string &text, int times) {
    std::string repeated;
    for (int count = 0; count < times; ++count)
        repeated += text;
    return repeated;
}

INSTANTIATE_TEST_SUITE_P(
    NoJson, WrongJsonLine,
    testing::Values(
        WrongLine{"Garbage", "garbage", {}}, WrongLine{"CutShort", R"({"first":"Ann")", {}},
        WrongLine{"CutInAString", R"({"first":"Ann)", {}},
        WrongLine{"NoBraceAtTheEnd", Lee(R"("first":"A")").substr(0, 50), {}},
        WrongLine{"TwoObjects", R"({"first":"Ann"}{"first":"Ann"})", {}},
        WrongLine{"TextBehindTheObject", Lee(R"("first":"A")") + " x", {}},
        WrongLine{"SingleQuotes", "{'first':'Ann'}", {}},
        WrongLine{"NoQuotes", "{first:\"Ann\"}", {}},
        WrongLine{"ACommaTooMany", R"({"first":"Ann",})", {}},
        WrongLine{"AComment", Lee(R"(/* x */"first":"A")"), {}},
        WrongLine{"ATabInAString", Lee("\"first\":\"A\tB\""), {}},
        WrongLine{"AnUnknownEscape", Lee(R"("first":"A\x41")"), {}},
        WrongLine{"HalfASurrogatePair", Lee(R"("first":"A\ud83d")"), {}},
        WrongLine{"TheOtherHalfOfASurrogatePair", Lee(R"("first":"A\ude00")"), {}},
        WrongLine{"InvalidUtf8", Lee("\"first\":\"A\xFF\""), {}},
        WrongLine{"Utf8CutShort", Lee("\"first\":\"A\xC3\""), {}},
        WrongLine{"OverlongUtf8", Lee("\"first\":\"A\xC0\xAF\""), {}},
        WrongLine{"Latin1", Lee("\"first\":\"Zo\xEB\""), {}},
        WrongLine{"NestedBeyondAllMeasure", "{\"first\":" + Repeated("[", 1'000'000), {}},
        WrongLine{"ObjectsNestedBeyondAllMeasure", Repeated("{\"first\":", 300'000), {}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    NoPerson, WrongJsonLine,
    testing::Values(
        WrongLine{"AnArray", R"(["Ann","Lee",3,7,1990])", {"object"}},
        WrongLine{"AString", "\"Ann\"", {"object"}}, WrongLine{"ANumber", "7", {"object"}},
        WrongLine{"Null", "null", {"object"}}, WrongLine{"AnEmptyObject", "{}", {"first"}},
        WrongLine{"NoFirst", Lee("\"middle\":\"A\""), {"first"}},
        WrongLine{"NoLast", R"({"first":"Ann","month":3,"day":7,"year":1990})", {"last"}},
        WrongLine{
            "NoMonth", R"({"first":"Ann","last":"Lee","day":7,"year":1990})", {"month", "1 to 12"}},
        WrongLine{
            "NoDay", R"({"first":"Ann","last":"Lee","month":3,"year":1990})", {"day", "1 to 31"}},
        WrongLine{"NoYear",
                  R"({"first":"Ann","last":"Lee","month":3,"day":7})",
                  {"year", "1900 to 2050"}},
        WrongLine{"AnUnknownMember", Lee(R"("first":"A","born":"here")"), {"\"born\"", "first"}},
        WrongLine{"AMemberInUpperCase", Lee(R"("First":"A")"), {"\"First\""}},
        WrongLine{"AnErrorAsAMember", Lee(R"("first":"A","error":"")"), {"\"error\""}},
        WrongLine{"AnEmptyFirst", Lee(R"("first":"")"), {"first"}},
        WrongLine{"AnEmptyLast", Ann("last", "\"\""), {"last"}},
        WrongLine{"FirstIsTrue", Lee(R"("first":true)"), {"first"}},
        WrongLine{"FirstIsNull", Lee(R"("first":null)"), {"first"}},
        WrongLine{"FirstIsAnArray", Lee(R"("first":["Ann"])"), {"first"}},
        WrongLine{"FirstIsAnObject", Lee(R"("first":{"name":"Ann"})"), {"first"}},
        WrongLine{"MiddleIsFalse", Lee(R"("first":"A","middle":false)"), {"middle"}},
        WrongLine{"LastIsAnArray", Ann("last", "[]"), {"last"}},
        WrongLine{"MonthIsTrue", Ann("month", "true"), {"month"}},
        WrongLine{"MonthIsThirteen", Ann("month", "13"), {"month", "\"13\"", "1 to 12"}},
        WrongLine{"MonthIsGerman", Ann("month", "\"März\""), {"month", "\"März\""}},
        WrongLine{"MonthHasAFraction", Ann("month", "3.5"), {"month"}},
        WrongLine{"DayIsZero", Ann("day", "0"), {"day", "\"0\"", "1 to 31"}},
        WrongLine{"DayIsNegative", Ann("day", "-1"), {"day", "\"-1\"", "1 to 31"}},
        WrongLine{"DayIsAWord", Ann("day", "\"seven\""), {"day", "\"seven\"", "1 to 31"}},
        WrongLine{"DayHasAFraction", Ann("day", "7.5"), {"day"}},
        WrongLine{"DayIsNull", Ann("day", "null"), {"day"}},
        WrongLine{"DayIsBeyondAnyNumber", Ann("day", "123456789012345678901234567890"), {"day"}},
        WrongLine{"YearIsTooEarly", Ann("year", "1899"), {"year", "\"1899\"", "1900 to 2050"}},
        WrongLine{"YearIsTooLate", Ann("year", "2051"), {"year", "\"2051\"", "1900 to 2050"}},
        WrongLine{"YearIsAnArray", Ann("year", "[1990]"), {"year"}},
        // Names that the Essence would never finish.
        WrongLine{"FirstWithoutALetter", Lee(R"("first":"123")"), {"first", "Essence"}},
        WrongLine{"FirstOfBlanks", Lee(R"("first":"  ")"), {"first", "Essence"}},
        WrongLine{
            "MiddleWithoutALetter", Lee(R"("first":"A","middle":"-")"), {"middle", "Essence"}},
        WrongLine{"LastOfF", Ann("last", "\"F\""), {"last", "Essence", "F"}}),
    NameOf);

// What is quoted in a complaint must not break it into two lines or steer a terminal.
INSTANTIATE_TEST_SUITE_P(
    ControlCharacters, WrongJsonLine,
    testing::Values(WrongLine{"InAMonth", Ann("month", R"("Ma\nrch")"), {"month"}},
                    WrongLine{"InADay", Ann("day", R"("7\r\n")"), {"day"}},
                    WrongLine{"InAYear", Ann("year", R"("\u001b[31m1990")"), {"year"}},
                    WrongLine{"InAnUnknownMember", Lee(R"("fir\nst":"A")"), {"first"}},
                    WrongLine{"ZeroInAnUnknownMember", Lee(R"("fir\u0000st":"A")"), {"first"}}),
    NameOf);

/// A first line that is neither an object nor a header costs the one person it might have
/// held.
class WrongFirstLine : public FolderTest, public testing::WithParamInterface<WrongLine> {
protected:
    std::string Input() const { return "\n" + GetParam().line + '\n' + jsonBefore + jsonBehind; }
};

TEST_P(WrongFirstLine, HasAnErrorInItsPlace) {
    const Finished run = RunProgram(BatchOptions({"--topic", "Personal Day"}), Input());
    EXPECT_EQ(run.exitCode, 1) << "signal " << run.signal;
    EXPECT_EQ(NamesIn(run.out), (Names{"!", "ANN LEE", "BOB RAY"}));
    ExpectOneLine(run.err, {"line 2:"});
    ExpectOneLine(run.err, GetParam().parts);
}

TEST_P(WrongFirstLine, HasNoFileInTheFolder) {
    const Finished run = RunProgram(BatchOptions({"--output-dir", Path("people")}), Input());
    EXPECT_EQ(run.exitCode, 1) << "signal " << run.signal;
    EXPECT_EQ(run.out, "");
    ExpectOneLine(run.err, {"line 2:"});
    const auto files = Files(Path("people"));
    EXPECT_EQ(files.size(), 2U);
    EXPECT_TRUE(files.contains("person-000003.txt")); // behind Ann's is an empty line
    EXPECT_TRUE(files.contains("person-000005.txt"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WrongFirstLine,
    testing::Values(
        WrongLine{"Garbage", "garbage", {"JSON object", "CSV header"}},
        WrongLine{"ARow", "Ann,,Lee,3,7,1990", {"JSON object", "CSV header", "first, middle"}},
        WrongLine{"ColumnsBetweenSemicolons", "first;middle;last;month;day;year", {"CSV header"}},
        WrongLine{"ColumnsInUpperCase", "FIRST,LAST,MONTH,DAY,YEAR", {"CSV header"}},
        WrongLine{"ColumnsInAQuoteThatIsNotClosed", "\"first,last,month,day,year", {"CSV header"}},
        WrongLine{"AnArray", R"(["Ann","Lee",3,7,1990])", {"object"}},
        WrongLine{"AString", "\"Ann\"", {"object"}}, WrongLine{"ANumber", "7", {"object"}},
        WrongLine{"AnObjectCutShort", R"({"first":"Ann")", {"not JSON"}},
        WrongLine{"AnEmptyObject", "{}", {"first"}}, WrongLine{"AnEscape", "\x1B[31m", {}},
        WrongLine{"InvalidUtf8", "\xFF", {}},
        WrongLine{"ManyCharacters", Repeated("abc", 30'000), {}}),
    NameOf);

class WrongCsvLine : public testing::TestWithParam<WrongLine> {};

TEST_P(WrongCsvLine, HasAnErrorInItsPlace) {
    const std::string input = "first,middle,last,month,day,year\nAnn,,Lee,3,7,1990\n" +
                              GetParam().line + "\nBob,,Ray,4,8,1991\n";
    const Finished run = RunProgram(BatchOptions({"--topic", "Personal Day"}), input);
    ExpectErrorInPlace(run, "line 3:", GetParam().parts);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrongCsvLine,
    testing::Values(
        WrongLine{"OneField", "Ann", {"1 field", "6"}},
        WrongLine{"TooFewFields", "Ann,,Lee,3,7", {"5 fields", "6"}},
        WrongLine{"TooManyFields", "Ann,,Lee,3,7,1990,x", {"7 fields", "6"}},
        WrongLine{"ACommaAtTheEnd", "Ann,,Lee,3,7,1990,", {"7 fields", "6"}},
        WrongLine{"EmptyFields", ",,,,,", {"first"}},
        WrongLine{"TheHeaderAgain", "first,middle,last,month,day,year", {"month", "\"month\""}},
        WrongLine{"Json", R"({"first":"Ann"})", {}},
        WrongLine{"AQuoteThatIsNotClosed", "\"Ann,,Lee,3,7,1990", {}},
        WrongLine{"AQuoteThatIsNotClosedAtTheEnd", "Ann,,Lee,3,7,\"1990", {}},
        WrongLine{"AQuoteInAField", "A\"nn,,Lee,3,7,1990", {}},
        WrongLine{"TextBehindAQuote", "\"Ann\"x,,Lee,3,7,1990", {}},
        WrongLine{"ACarriageReturnForAComma", "Ann,,Lee,3,7\r1990", {}},
        WrongLine{"InvalidUtf8", "A\xFF,,Lee,3,7,1990", {"UTF-8"}},
        WrongLine{"Utf8CutShort", "A\xF0\x9F\x98,,Lee,3,7,1990", {"UTF-8"}},
        WrongLine{"Latin1", "Zo\xEB,,Lee,3,7,1990", {"UTF-8"}},
        WrongLine{"AnEncodedSurrogate", "A\xED\xA0\xBD,,Lee,3,7,1990", {"UTF-8"}},
        WrongLine{"NoFirst", ",,Lee,3,7,1990", {"first"}},
        WrongLine{"NoLast", "Ann,,,3,7,1990", {"last"}},
        WrongLine{"NoMonth", "Ann,,Lee,,7,1990", {"month", "1 to 12"}},
        WrongLine{"NoDay", "Ann,,Lee,3,,1990", {"day", "1 to 31"}},
        WrongLine{"NoYear", "Ann,,Lee,3,7,", {"year", "1900 to 2050"}},
        WrongLine{"MonthThirteen", "Ann,,Lee,13,7,1990", {"month", "\"13\"", "1 to 12"}},
        WrongLine{"DayThirtyTwo", "Ann,,Lee,3,32,1990", {"day", "\"32\"", "1 to 31"}},
        WrongLine{"Year1899", "Ann,,Lee,3,7,1899", {"year", "\"1899\"", "1900 to 2050"}},
        WrongLine{"FirstWithoutALetter", "1,,Lee,3,7,1990", {"first", "Essence"}},
        WrongLine{"MiddleWithoutALetter", "Ann,2,Lee,3,7,1990", {"middle", "Essence"}},
        WrongLine{"LastOfF", "Ann,,F,3,7,1990", {"last", "Essence", "F"}},
        WrongLine{"AnEscapeInAMonth", "Ann,,Lee,\x1B[31m,7,1990", {"month"}}),
    NameOf);

// The lines are counted as an editor counts them: header, blank lines and wrong ones too.
TEST(BatchErrors, CarryTheNumberOfTheLine) {
    const Finished run =
        RunProgram(BatchOptions({"--topic", "Personal Day"}),
                   "\xEF\xBB\xBF\r\nfirst,last,month,day,year\r\n\r\nAnn,Lee,3,7,1990\r\n"
                   "Ann,Lee,3,7\r\n\r\nBob,Ray,4,8,1991\r\nAnn,Lee,3,32,1990");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(NamesIn(run.out), (Names{"ANN LEE", "!", "BOB RAY", "!"}));
    const std::vector<std::string> complaints = Lines(run.err);
    ASSERT_EQ(complaints.size(), 2U);
    ExpectOneLine(complaints[0] + '\n', {"line 5:", "4 fields"});
    ExpectOneLine(complaints[1] + '\n', {"line 8:", "\"32\""});
}

TEST(BatchErrors, DoNotEndTheRunHoweverMany) {
    std::string input = jsonBefore;
    for (int count = 0; count < 1000; ++count)
        input += "{}\n";
    input += jsonBefore;
    const Finished run = RunProgram(BatchOptions({"--topic", "Personal Day"}), input);
    EXPECT_EQ(run.exitCode, 1);
    const Names names = NamesIn(run.out);
    ASSERT_EQ(names.size(), 1002U);
    EXPECT_EQ(names.front(), "ANN LEE");
    EXPECT_EQ(names[500], "!");
    EXPECT_EQ(names.back(), "ANN LEE");
    EXPECT_EQ(Lines(run.err).size(), 1000U);
}

// However much a line holds, what is said of it is short.
TEST(BatchErrors, QuoteNoMoreThanAnExcerpt) {
    const std::string much = Repeated("0123456789", 10'000);
    const std::string shown = "\"0123456789012345678901234567890123456...01234567890123456789\"";
    const std::string row = "Ann,,Lee," + much + ",7,1990\n";
    for (const std::string &input :
         {Ann("month", '"' + much + '"') + '\n', Ann("day", '"' + much + '"') + '\n',
          Ann("year", '"' + much + '"') + '\n', Lee("\"" + much + R"(":"A")") + '\n'}) {
        const Finished run = RunProgram(BatchOptions({"--topic", "Personal Day"}), input);
        EXPECT_EQ(run.exitCode, 1);
        ExpectOneLine(run.err, {shown});
        EXPECT_LT(run.err.size(), 250U);
        EXPECT_EQ(NamesIn(run.out), Names{"!"});
        EXPECT_LT(run.out.size(), 250U);
    }
    const Finished rows = RunProgram(BatchOptions(), "first,middle,last,month,day,year\n" + row);
    EXPECT_EQ(rows.exitCode, 1);
    ExpectOneLine(rows.err, {shown});
    EXPECT_LT(rows.err.size(), 250U);
    const Finished header = RunProgram(BatchOptions(), "first," + much + '\n');
    ExpectRefused(header, {shown});
    EXPECT_LT(header.err.size(), 250U);
}

TEST(BatchErrors, OfTheLastLineAreReported) {
    const Finished run = RunProgram(BatchOptions({"--topic", "Personal Day"}),
                                    std::string(jsonBefore) + "{\"first\":\"Bob\"");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(NamesIn(run.out), (Names{"ANN LEE", "!"}));
    ExpectOneLine(run.err, {"line 2:"});
}

class BatchErrorsInAFile : public FolderTest {};

// A wrong line is no failure to write: the file holds the answers to all lines.
TEST_F(BatchErrorsInAFile, StandInTheirPlaceToo) {
    const Finished run =
        RunProgram(BatchOptions({"--topic", "Personal Day", "--output", Path("people")}),
                   std::string(jsonBefore) + "{}" + jsonBehind);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    ExpectOneLine(run.err, {"line 2:"});
    EXPECT_EQ(NamesIn(Read(Path("people"))), (Names{"ANN LEE", "!", "BOB RAY"}));
}

/// A header that cannot be used: nothing is read, so nothing is written.
class WrongHeader : public FolderTest, public testing::WithParamInterface<WrongLine> {};

TEST_P(WrongHeader, IsRefused) {
    const std::string rows = "\nAnn,,Lee,3,7,1990\nBob,,Ray,4,8,1991\n";
    ExpectRefused(RunProgram(BatchOptions(), GetParam().line + rows), {"--batch: line 1:"});
    ExpectRefused(RunProgram(BatchOptions(), "\n\n" + GetParam().line + rows),
                  {"--batch: line 3:"});
    ExpectRefused(RunProgram(BatchOptions(), GetParam().line + rows), GetParam().parts);
    const std::string file = Make("people", "before");
    ExpectRefused(RunProgram(BatchOptions({"--output", file}), GetParam().line + rows),
                  GetParam().parts);
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"people", "before"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Headers, WrongHeader,
    testing::Values(
        WrongLine{"NoFirst", "middle,last,month,day,year", {"\"first\""}},
        WrongLine{"NoLast", "first,middle,month,day,year", {"\"last\""}},
        WrongLine{"NoMonth", "first,middle,last,day,year", {"\"month\""}},
        WrongLine{"NoDay", "first,middle,last,month,year", {"\"day\""}},
        WrongLine{"NoYear", "first,middle,last,month,day", {"\"year\""}},
        WrongLine{"UnknownColumn", "first,middle,last,month,day,year,sex", {"\"sex\"", "first"}},
        WrongLine{"ColumnInUpperCase", "First,middle,last,month,day,year", {"\"First\""}},
        WrongLine{"ColumnWithABlank", "first, middle,last,month,day,year", {"\" middle\""}},
        WrongLine{"ColumnTwice", "first,middle,last,month,day,year,day", {"\"day\"", "twice"}},
        WrongLine{"EmptyColumn", "first,,last,month,day,year", {"\"\""}},
        WrongLine{"OneColumnOfAll", "year", {"\"first\""}},
        WrongLine{"OneColumnAmongOthers", "name,year", {"\"name\""}},
        WrongLine{"AQuoteThatIsNotClosed", "first,middle,last,month,day,\"year", {}},
        WrongLine{"AnEscapeInAColumn", "first,\x1B[31m,last,month,day,year", {}}),
    NameOf);

class UnreadableBatch : public FolderTest {};

TEST_F(UnreadableBatch, MayBeMissing) {
    const std::string file = Path("missing");
    ExpectRefused(RunProgram({"--batch", file}), {"--batch", Shown(file)});
    const std::string output = Make("people", "before");
    ExpectRefused(RunProgram({"--batch", file, "--output", output}), {"--batch", Shown(file)});
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"people", "before"}}));
}

TEST_F(UnreadableBatch, MayBeAFolder) {
    ExpectRefused(RunProgram({"--batch", Path("")}), {"--batch", Shown(Path(""))});
}

TEST_F(UnreadableBatch, MayStandBelowAFile) {
    const std::string file = Make("file", "");
    ExpectRefused(RunProgram({"--batch", file + "/people"}), {"--batch", Shown(file + "/people")});
}

// An input that breaks off is not the same as one that ends: a script must not take the
// answers for all of them.
TEST_F(UnreadableBatch, MayBeStandardInput) {
    Surroundings folder;
    folder.inputFile = Path("");
    const Finished run = RunProgram(BatchOptions(), {}, folder);
    EXPECT_NE(run.exitCode, 0);
    EXPECT_EQ(run.out, "");
    ExpectOneLine(run.err, {});
}

} // namespace
