#include "tools/file_names.h"

#include "tests/tools/complaint.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

modReadings::UserProfile Named(const QString &first, const QString &middle, const QString &last) {
    modReadings::UserProfile person;
    person.FirstName = first.toStdU16String();
    person.MiddleName = middle.toStdU16String();
    person.LastName = last.toStdU16String();
    return person;
}

std::string Name(const QString &pattern, const QString &first, const QString &last,
                 long long line = 7) {
    return FileNames(pattern).Of(Named(first, {}, last), line, ".txt").toStdString();
}

TEST(FileNames, AreMadeOfTheNamesAndTheLine) {
    EXPECT_EQ(FileNames().Of(Named("ANN", {}, "LEE"), 7, ".rtf"), "person-000007.rtf");
    EXPECT_EQ(Name("{line}", "ANN", "LEE", 1'234'567), "1234567.txt");
    EXPECT_EQ(FileNames("{last}, {first} {middle} {line}").Of(Named("ANN", "M", "DER WAL"), 7, ""),
              "DER WAL, ANN M 000007");
    EXPECT_EQ(Name("{line}-{last}{first}{last}", "ÄNN", "LEE"), "000007-LEEÄNNLEE.txt");
    // What stands for a part is taken once.
    EXPECT_EQ(Name("{first}-{last}-{line}", "{LAST}{last}", "{line}"),
              "{LAST}{last}-{line}-000007.txt");
}

TEST(FileNames, HoldNothingThatAFileSystemOrATerminalTakesAmiss) {
    for (const auto &[first, name] : std::vector<std::pair<QString, std::string>>{
             {"../../etc/passwd", "_.._.._etc_passwd"},
             {"..", "_.."},
             {".hidden", "_.hidden"},
             {"-rf", "_-rf"},
             {" x", "_ x"},
             {"a\\b:c*d?e\"f<g>h|i", "a_b_c_d_e_f_g_h_i"},
             {QString::fromUtf8("a\0b\nc\x1B[2Jd\x7F", 11), "a_b_c_[2Jd_"},
             {u"a\u202Eb\u200Fc\u2066d\u2028e\u200Bf\u0085g\uFEFFh"_s, "a_b_c_d_e_f_g_h"},
             {QString(QChar(0xD800)) + "x" + QChar(0xDC00), "_x_"},
             {"😀é", "😀é"}})
        EXPECT_EQ(Name("{first}-{line}", first, "LEE"), name + "-000007.txt");
    // Devices of some systems, with whatever behind a dot.
    for (const char *device : {"CON", "aux", "NUL", "LPT1", "COM9", "PRN "})
        EXPECT_EQ(Name("{first}.{line}", device, "LEE"), '_' + std::string(device) + ".000007.txt");
    EXPECT_EQ(Name("{first}.{line}", "CONNY", "LEE"), "CONNY.000007.txt");
}

// Cut between characters, and never the line.
TEST(FileNames, AreNoLongerThan255Bytes) {
    for (const QString &letter : {u"A"_s, u"Ä"_s, u"€"_s, u"😀"_s})
        for (const QString &pattern : {u"{first}-{line}"_s, u"{line}_{first}{last}{first}"_s,
                                       u"{line}-"_s + u"{line}"_s.repeated(13) + u"{first}"_s,
                                       QString(80, 'x') + "{last}-{line}"}) {
            const QString name =
                FileNames(pattern).Of(Named(letter.repeated(400), {}, letter.repeated(300)),
                                      1'000'000'000'000'000, ".rtf");
            EXPECT_LE(name.toUtf8().size(), 255);
            EXPECT_GT(name.toUtf8().size(), 200);
            EXPECT_TRUE(name.contains("1000000000000000"));
            EXPECT_EQ(QString::fromUtf8(name.toUtf8()), name); // no half of a pair
            EXPECT_TRUE(name.endsWith(".rtf"));
        }
}

TEST(FileNames, RefuseATemplateThatCouldGiveOneNameToTwoPeopleOrLeaveTheFolder) {
    for (const auto &[pattern, part] : std::vector<std::pair<QString, std::string>>{
             {"", "{line}"},
             {"{last}-{first}", "begins or ends with {line}"},
             {"{last}-{line}-{first}", "begins or ends with {line}"},
             {"{last}{line}", "begins or ends with {line}"}, // A1 and 2, A and 12
             {"{line}{last}", "begins or ends with {line}"},
             {"{last}1{line}", "begins or ends with {line}"},
             {"{line}0{last}", "begins or ends with {line}"},
             {"../{line}", "cannot stand in the name"},
             {"a\\{line}", "cannot stand in the name"},
             {"a\n-{line}", "cannot stand in the name"},
             {QString(QChar(0xDC00)) + "-{line}", "cannot stand in the name"},
             {QString(QChar(0xD83D)) + "{first}" + QChar(0xDE00) + "-{line}",
              "cannot stand in the name"},
             {"{day}-{line}", "in braces stand first, middle, last or line"},
             {"{-{line}", "in braces"},
             {"{line}-{li{first}ne}", "in braces"},
             {QString(100, 'x') + "-{line}", "longer than 100 bytes"},
             // 16 times a number of up to 16 digits
             {"{line}-" + QString("{line}").repeated(15), "longer than 255 bytes"}})
        ExpectLine(RefusalOf([&, text = pattern] { FileNames names(text); }),
                   {"--name-template: \"", part});
}

TEST(SafeFileName, KeepsTheRulesOfAllNames) {
    EXPECT_EQ(SafeFileName("Zo\u00EB van der Wal", ".pdf"), u"Zo\u00EB van der Wal.pdf");
    EXPECT_EQ(SafeFileName("../a: b?", ".pdf"), u"_.._a_ b_.pdf");
    EXPECT_EQ(SafeFileName("nul", ".md"), u"_nul.md");
    EXPECT_EQ(SafeFileName("", ".md"), u"_.md");
    // One of 255 bytes is kept free for a "_" in front, and a letter of two is not cut.
    EXPECT_EQ(SafeFileName(QString(300, u'\u00EB'), ".html").toUtf8().size(), 253);
}

} // namespace
