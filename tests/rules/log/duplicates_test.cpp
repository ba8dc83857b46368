// SPDX-License-Identifier: MIT
#include "log/duplicates.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

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

using Texts = std::vector<std::string>;

class Duplicates : public ::testing::Test {
protected:
    void Holds(const Texts& lines) {
        log_.Clear();
        for (const std::string& line : lines) log_.Append(line);
    }
    bool IsDuplicate(std::string_view call) const { return CheckDupe(log_, StripCall(call)); }

    Log log_;
};

TEST_F(Duplicates, AreNoneInAnEmptyLog) {
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
    EXPECT_FALSE(IsDuplicate(""));
}

TEST_F(Duplicates, GoByTheBaseCallOnBothSides) {
    Holds({Line("DL1ABC/P")});
    for (const char* call : {"DL1ABC", "DL1ABC/P", "DL1ABC/M", "DL1ABC/QRP", "DL1ABC/3", "OZ/DL1ABC", "SV9/DL1ABC"})
        EXPECT_TRUE(IsDuplicate(call)) << call;
    for (const char* call : {"DL1AB", "DL1ABCD", "DL3ABC", "DL1ABC/DL2XYZ"}) EXPECT_FALSE(IsDuplicate(call)) << call;
}

TEST_F(Duplicates, AreExactAboutCase) {
    Holds({Line("dl1abc")});
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, AreFoundBehindANote) {
    Holds({"NOTE: pause", Line("DL1ABC")});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, CanBeANoteThatIsJustACall) {
    Holds({"NOTE: DL1ABC/P"});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
    Holds({"NOTE: DL1ABC kl. 14"});
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, AreNotFoundBehindANoteAboutANote) {
    Holds({Line("DL1ABC"), "NOTE: NOTE: pause", Line("DL2ABC")});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
    EXPECT_FALSE(IsDuplicate("DL2ABC"));
    Holds({"NOTE: note: pause", Line("DL2ABC")});
    EXPECT_TRUE(IsDuplicate("DL2ABC"));
}

TEST_F(Duplicates, CountTheLinesOfDuplicates) {
    Holds({"12:07 DL1ABC          59 -0001 59 -0345  0 -DUPE-     OZ1AB      SSB   05-09-26"});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
}

TEST_F(Duplicates, OfTheEmptyCallNeedALineWithoutACall) {
    Holds({Line("")});
    EXPECT_TRUE(IsDuplicate(""));
    Holds({"NOTE: "});
    EXPECT_TRUE(IsDuplicate(""));
    Holds({Line("DL1ABC")});
    EXPECT_FALSE(IsDuplicate(""));
}

TEST_F(Duplicates, OfACallThatNoLineHasRoomForAreNone) {
    Holds({Line("VP8ADE/H/P/QRPP"), "NOTE: 123456789012345 and more"});
    EXPECT_FALSE(IsDuplicate("1234567890123456"));
    EXPECT_TRUE(IsDuplicate("123456789012345"));
}

TEST_F(Duplicates, AreThoseOfTheLinesAsTheyStandNow) {
    Holds({Line("DL1ABC"), Line("DL2ABC")});
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
    log_.Append(Line("DL3ABC"));
    EXPECT_TRUE(IsDuplicate("DL3ABC"));
    log_.Replace(0, Line("DL4ABC"));
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
    EXPECT_TRUE(IsDuplicate("DL4ABC"));
    EXPECT_TRUE(IsDuplicate("DL3ABC"));
    log_.Clear();
    EXPECT_FALSE(IsDuplicate("DL4ABC"));
}

TEST_F(Duplicates, AppearWhenTheNoteAboveThemIsReworded) {
    Holds({"NOTE: NOTE: pause", Line("DL1ABC")});
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
    log_.Replace(0, "NOTE: pause");
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
    log_.Replace(0, "NOTE: NOTE: pause");
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
}

/// A log of these lines.
class LogOf : public Log {
public:
    explicit LogOf(const Texts& lines) {
        for (const std::string& line : lines) Append(line);
    }
};

Texts Found(std::string_view sought, const Texts& lines) {
    return WkdB4(sought, LogOf(lines));
}

bool IsDuplicateAbove(std::size_t row, const Texts& lines, std::string_view baseCall) {
    return CheckDupQSO(LogOf(lines), row, baseCall);
}

TEST(DuplicatesUnderCorrection, GoByTheBaseCallOfTheLinesAbove) {
    const Texts lines{Line("DL1ABC/P"), Line("DL2ABC"), Line("DL1ABC")};
    EXPECT_TRUE(IsDuplicateAbove(1, lines, "DL1ABC"));
    EXPECT_FALSE(IsDuplicateAbove(1, lines, "DL2ABC"));
    EXPECT_TRUE(IsDuplicateAbove(2, lines, "DL2ABC"));
    EXPECT_FALSE(IsDuplicateAbove(0, lines, "DL1ABC"));
    EXPECT_FALSE(IsDuplicateAbove(3, lines, "DL1ABD"));
    EXPECT_FALSE(IsDuplicateAbove(0, {}, "DL1ABC"));
}

TEST(DuplicatesUnderCorrection, AreNotFoundBehindANoteAboutANote) {
    EXPECT_TRUE(IsDuplicateAbove(2, {"NOTE: pause", Line("DL1ABC")}, "DL1ABC"));
    EXPECT_FALSE(IsDuplicateAbove(2, {"NOTE: NOTE: pause", Line("DL1ABC")}, "DL1ABC"));
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

TEST(EarlierContacts, HaveTheWholeTextInOneCall) {
    // Twenty calls that fill their columns, so that each call's end stands close to the next call's beginning.
    const Texts log(20, Line("DL9XYZ/12345678"));
    EXPECT_EQ(Found("8DL", log), Texts{});
    EXPECT_EQ(Found("78D", log), Texts{});
    EXPECT_EQ(Found("DL9XYZ/12345678", log).size(), 20U);
    EXPECT_EQ(Found("DL9XYZ/12345678D", log), Texts{});
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

/// The searches as the rules tell them, line by line, each with the text of the line before.
class Scan {
public:
    explicit Scan(const Texts& lines) : lines_(lines) {}

    bool HasBaseCall(std::size_t above, const std::string& call) const {
        std::string s;
        for (std::size_t i = 0; i < std::min(above, lines_.size()); ++i) {
            if (s.substr(0, 6) == "NOTE: ") continue;
            s = StripCall(Trim(CallOf(lines_[i])));
            if (s == call) return true;
        }
        return false;
    }

    Texts WithPart(const std::string& sought) const {
        Texts found;
        std::string c;
        for (const std::string& line : lines_) {
            if (UpperText(c.substr(0, 6)) == "NOTE: ") continue;
            c = CallOf(line);
            if (UpperText(c).find(UpperText(sought)) == std::string::npos) continue;
            const auto columns = [&line](std::size_t from, std::size_t width) {
                std::string field = line.size() > from ? line.substr(from, width) : "";
                field.resize(width, ' ');
                return field;
            };
            found.push_back(columns(6, 15) + columns(26, 4) + "/" + columns(35, 4) + " " + line.substr(0, 5));
            if (found.size() == 50) break;
        }
        return found;
    }

private:
    static std::string CallOf(const std::string& line) { return line.size() > 6 ? line.substr(6, 15) : ""; }
    const Texts& lines_;
};

/// Makes lines of all sorts: contacts, notes, notes about notes, lines that end early, characters above 127, zeros.
class AnyLine {
public:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    std::string Call(int longest) {
        const std::string_view characters("AABbZ1//\xE6\xC6\0", 11);
        std::string call;
        for (int n = 1 + Below(longest); n > 0; --n)
            call += characters[static_cast<std::size_t>(Below(static_cast<int>(characters.size())))];
        static const Texts endings{"", "", "", "/P", "/3", "/QRP", "/AM"};
        return call + endings[static_cast<std::size_t>(Below(static_cast<int>(endings.size())))];
    }

    std::string operator()() {
        const int kind = Below(200);
        static const Texts marks{"NOTE: NOTE: ", "NOTE: Note: ", "NOTE: A/NOTE: ", "NOTE: NOTE:", "note: NOTE: ", "NOTE:  NOTE: "};
        if (kind < 3) return marks[static_cast<std::size_t>(Below(static_cast<int>(marks.size())))] + Call(6);
        if (kind < 20) return "NOTE: " + Call(20) + " and so on until behind the numbers";
        const std::string line = Line(Call(15), std::to_string(1000 + Below(9000)));
        return kind < 40 ? line.substr(0, static_cast<std::size_t>(Below(40))) : line;
    }

private:
    std::mt19937 random_{3};
};

TEST(Searches, FindWhatAScanOfEveryLineFinds) {
    AnyLine any;
    Log log;
    const Scan scan(log.Lines());
    int hits = 0;
    int duplicates = 0;
    for (int round = 0; round < 20'000; ++round) {
        const auto rows = [&log] { return static_cast<int>(log.Lines().size()); };
        const int what = any.Below(100);
        if (what == 0 && any.Below(3) == 0)
            log.Clear();
        else if (what < 5 && rows() > 0)
            log.Replace(static_cast<std::size_t>(any.Below(rows())), any());
        else
            for (int n = any.Below(4); n > 0; --n) log.Append(any());

        std::string sought = any.Call(3);
        if (any.Below(50) == 0) sought.clear();
        const Texts found = WkdB4(sought, log);
        ASSERT_EQ(found, scan.WithPart(sought)) << sought;
        hits += static_cast<int>(found.size());

        // A call of the log as often as any other.
        std::string call = any.Call(4);
        if (any.Below(2) == 0 && rows() > 0) call = Trim(Columns(log.Lines()[static_cast<std::size_t>(any.Below(rows()))], 7, 15));
        call = StripCall(call);
        const bool isDuplicate = CheckDupe(log, call);
        ASSERT_EQ(isDuplicate, scan.HasBaseCall(log.Lines().size(), call)) << call;
        const auto above = static_cast<std::size_t>(any.Below(rows() + 2));
        ASSERT_EQ(CheckDupQSO(log, above, call), scan.HasBaseCall(above, call)) << call << " above " << above;
        duplicates += isDuplicate ? 1 : 0;
    }
    EXPECT_GT(hits, 10'000);
    EXPECT_GT(duplicates, 4'000);
    EXPECT_LT(duplicates, 16'000);
}

}  // namespace
}  // namespace vatro
