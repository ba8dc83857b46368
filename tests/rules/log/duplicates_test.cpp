// SPDX-License-Identifier: MIT
#include "log/duplicates.h"

#include <gtest/gtest.h>

#include <random>

#include "call/call_analysis.h"
#include "codepage.h"
#include "columns.h"
#include "log/contact_line.h"

namespace vatro {
namespace {

std::string Line(std::string_view call, std::string_view sent = "0001", std::string_view received = "0345") {
    return "12:07 " + LeftAligned(call, 15) + " 59 -" + std::string(sent) + " 59 -" + std::string(received) +
           "  3 DL         OZ1AB      SSB   05-09-26";
}

class Duplicates : public ::testing::Test {
protected:
    void Log(const std::vector<std::string>& lines) { log_ = lines; }
    bool IsDuplicate(std::string_view call) const { return CheckDupe(log_, StripCall(call)); }

private:
    std::vector<std::string> log_;
};

TEST_F(Duplicates, AreNoneInAnEmptyLog) {
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
    EXPECT_FALSE(IsDuplicate(""));
}

TEST_F(Duplicates, GoByTheBaseCallOnBothSides) {
    Log({Line("DL1ABC/P")});
    for (const char* call : {"DL1ABC", "DL1ABC/P", "DL1ABC/M", "DL1ABC/QRP", "DL1ABC/3", "OZ/DL1ABC", "SV9/DL1ABC"})
        EXPECT_TRUE(IsDuplicate(call)) << call;
    for (const char* call : {"DL1AB", "DL1ABCD", "DL3ABC", "DL1ABC/DL2XYZ"}) EXPECT_FALSE(IsDuplicate(call)) << call;
}

TEST_F(Duplicates, AreExactAboutCase) {
    Log({Line("dl1abc")});
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, AreFoundBehindANote) {
    Log({"NOTE: pause", Line("DL1ABC")});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, CanBeANoteThatIsJustACall) {
    Log({"NOTE: DL1ABC/P"});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
    Log({"NOTE: DL1ABC kl. 14"});
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, AreNotFoundBehindANoteAboutANote) {
    Log({Line("DL1ABC"), "NOTE: NOTE: pause", Line("DL2ABC")});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
    EXPECT_FALSE(IsDuplicate("DL2ABC"));
    Log({"NOTE: note: pause", Line("DL2ABC")});
    EXPECT_TRUE(IsDuplicate("DL2ABC"));
}

TEST_F(Duplicates, CountTheLinesOfDuplicates) {
    Log({"12:07 DL1ABC          59 -0001 59 -0345  0 -DUPE-     OZ1AB      SSB   05-09-26"});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, OfTheEmptyCallNeedALineWithoutACall) {
    Log({Line("")});
    EXPECT_TRUE(IsDuplicate(""));
    Log({"NOTE: "});
    EXPECT_TRUE(IsDuplicate(""));
    Log({Line("DL1ABC")});
    EXPECT_FALSE(IsDuplicate(""));
}

using Texts = std::vector<std::string>;

Texts Found(std::string_view sought, const Texts& lines) {
    return WkdB4(sought, lines);
}

TEST(DuplicatesUnderCorrection, GoByTheBaseCallOfTheLinesAbove) {
    EXPECT_TRUE(CheckDupQSO(Texts{Line("DL1ABC/P")}, "DL1ABC"));
    EXPECT_FALSE(CheckDupQSO(Texts{Line("DL1ABC/P")}, "DL1ABD"));
    EXPECT_FALSE(CheckDupQSO(Texts{}, "DL1ABC"));
}

TEST(DuplicatesUnderCorrection, AreNotFoundBehindANoteAboutANote) {
    EXPECT_TRUE(CheckDupQSO(Texts{"NOTE: pause", Line("DL1ABC")}, "DL1ABC"));
    EXPECT_FALSE(CheckDupQSO(Texts{"NOTE: NOTE: pause", Line("DL1ABC")}, "DL1ABC"));
}

TEST(EarlierContacts, AreShownWithNumbersAndTime) {
    EXPECT_EQ(Found("9X", {Line("DL9XYZ", "0012", "0345")}), Texts{"DL9XYZ         0012/0345 12:07"});
    EXPECT_EQ(Found("/P", {Line("VP8ADE/H/P/QRPP", "9999", "1000")}), Texts{"VP8ADE/H/P/QRPP9999/1000 12:07"});
}

TEST(EarlierContacts, AreFoundByAnyPartOfTheCallInAnyCase) {
    const Texts log{Line("OZ1ABC"), Line("F5XYZ"), Line("DL2ABC/P"), Line("oz3abc")};
    EXPECT_EQ(Found("ABC", log).size(), 3U);
    EXPECT_EQ(Found("abc", log).size(), 3U);
    EXPECT_EQ(Found("abc/", log).size(), 1U);
    EXPECT_EQ(Found("OZ", log).size(), 2U);
    EXPECT_EQ(Found("ABCD", log), Texts{});
}

TEST(EarlierContacts, AreSoughtInTheCallColumnsOnly) {
    EXPECT_EQ(Found("0345", {Line("DL9XYZ", "0012", "0345")}), Texts{});
    EXPECT_EQ(Found("12:07", {Line("DL9XYZ")}), Texts{});
}

TEST(EarlierContacts, AreTheFiftyOldest) {
    Texts log;
    for (int i = 1; i <= 60; ++i) log.push_back(Line("DL9XYZ", std::to_string(1000 + i)));
    const Texts found = Found("DL", log);
    ASSERT_EQ(found.size(), 50U);
    EXPECT_EQ(found.front().substr(15, 4), "1001");
    EXPECT_EQ(found.back().substr(15, 4), "1050");
}

TEST(EarlierContacts, CanBeANote) {
    EXPECT_EQ(Found("ABC", {"NOTE: DL1ABC kl. 14 igen paa 3675 kHz, ellers 7075 kHz"}), Texts{"DL1ABC kl. 14 iaa 3/Hz,  NOTE:"});
}

TEST(EarlierContacts, EndAtANoteAboutANoteInAnyCase) {
    for (const char* note : {"NOTE: NOTE: pause", "NOTE: note: pause"})
        EXPECT_EQ(Found("DL", {Line("DL1ABC"), note, Line("DL2ABC")}).size(), 1U) << note;
    EXPECT_EQ(Found("DL", {Line("DL1ABC"), "NOTE: NOTE", Line("DL2ABC")}).size(), 2U);
}

TEST(EarlierContacts, OfShortLinesAreShownToo) {
    EXPECT_EQ(Found("DL9", {Line("DL9XYZ", "0012", "0345").substr(0, 60)}), Texts{"DL9XYZ         0012/0345 12:07"});
    EXPECT_EQ(Found("DL9", {"12:07 DL9XYZ"}).size(), 1U);
}

/// The search as the rules define it, line by line.
std::vector<std::string> Scanned(const std::string& sought, const std::vector<std::string>& log) {
    std::vector<std::string> found;
    std::string c;
    for (const std::string& line : log) {
        if (UpperText(c.substr(0, 6)) == "NOTE: ") continue;
        c = line.size() > 6 ? line.substr(6, 15) : "";
        if (UpperText(c).find(UpperText(sought)) == std::string::npos) continue;
        const auto columns = [&line](std::size_t from, std::size_t width) {
            std::string field = line.size() > from ? line.substr(from, width) : "";
            field.resize(width, ' ');
            return field;
        };
        found.push_back(columns(6, 15) + columns(26, 4) + "/" + columns(35, 4) + " " + columns(0, 5));
        if (found.size() == 50) break;
    }
    return found;
}

TEST(EarlierContacts, AreThoseOfAScanOfEveryLine) {
    std::mt19937 random(3);
    const std::string characters = "ABab1/\xE6\xC6";
    const auto call = [&](std::size_t longest) {
        std::string t;
        for (std::size_t n = std::uniform_int_distribution<std::size_t>(1, longest)(random); n > 0; --n)
            t += characters[std::uniform_int_distribution<std::size_t>(0, characters.size() - 1)(random)];
        return t;
    };
    for (int round = 0; round < 400; ++round) {
        Texts log;
        for (int n = std::uniform_int_distribution<int>(0, 90)(random); n > 0; --n) {
            const int kind = std::uniform_int_distribution<int>(0, 99)(random);
            if (kind == 0)
                log.push_back("NOTE: Note: " + call(6));
            else if (kind < 10)
                log.push_back("NOTE: " + call(20) + " and so on until behind the numbers");
            else
                log.push_back(Line(call(15), std::to_string(1000 + n)));
        }
        const std::string sought = call(3);
        ASSERT_EQ(Found(sought, log), Scanned(sought, log)) << sought;
    }
}

}  // namespace
}  // namespace vatro
