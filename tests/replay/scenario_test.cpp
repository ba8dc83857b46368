// SPDX-License-Identifier: MIT
#include "scenario.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {

namespace {

using Lines = std::vector<std::string>;

std::vector<std::string> Arguments(std::string_view line) {
    return Scenario(line).Commands().at(0).arguments;
}

std::string Rest(std::string_view line) {
    return Scenario(line).Commands().at(0).rest;
}

std::size_t LineOfError(std::string_view text) {
    try {
        const Scenario scenario(text);
    } catch (const ScenarioError& error) {
        return error.Line();
    }
    return 0;
}

}  // namespace

TEST(Scenario, CommandHasWordArgumentsAndLineNumber) {
    const Scenario scenario("# a story\n\nsetting Settings  UTC -2\nstart\n");
    ASSERT_EQ(scenario.Commands().size(), 2U);
    EXPECT_EQ(scenario.Commands()[0].line, 3U);
    EXPECT_EQ(scenario.Commands()[0].name, "setting");
    EXPECT_EQ(scenario.Commands()[0].arguments, (Lines{"Settings", "UTC", "-2"}));
    EXPECT_EQ(scenario.Commands()[1].name, "start");
    EXPECT_EQ(scenario.Commands()[1].arguments, Lines{});
}

TEST(Scenario, QuotedArgumentMayHoldBlanksAndEscapes) {
    EXPECT_EQ(Arguments(R"(pick List1 "a \"b\" \\ c")"), (Lines{"List1", R"(a "b" \ c)"}));
    EXPECT_EQ(Arguments(R"(pick List1 "a\nb\tc\fd")"), (Lines{"List1", "a\r\nb\tc\fd"}));
    EXPECT_EQ(Arguments(R"(setting A B "")"), (Lines{"A", "B", ""}));
}

TEST(Scenario, BackslashOutsideQuotesStandsForItself) {
    EXPECT_EQ(Arguments(R"(cat log\new.txt)"), (Lines{R"(log\new.txt)"}));
}

TEST(Scenario, TextIsTurnedIntoTheCodePage) {
    EXPECT_EQ(Arguments("menu mnuIndstillingerBånd(3)"), (Lines{std::string("mnuIndstillingerBånd(3)"_t)}));
}

TEST(Scenario, TypeAndPasteTakeTheRestOfTheLineAsItStands) {
    EXPECT_EQ(Rest("type  a  \"b\" "), " a  \"b\" ");
    EXPECT_EQ(Rest(R"(paste a\nb)"), R"(a\nb)");
    EXPECT_EQ(Rest("type #2"), "#2");
}

TEST(Scenario, TypeAndPasteTakeAQuotedRestWithoutItsQuotes) {
    EXPECT_EQ(Rest(R"(type " a\nb ")"), " a\r\nb ");
    EXPECT_EQ(Rest(R"(type "a" b)"), R"("a" b)");
    EXPECT_EQ(Rest("type \""), "\"");
    EXPECT_TRUE(Scenario("type \"\"").Commands().at(0).hasRest);
    EXPECT_FALSE(Scenario("type").Commands().at(0).hasRest);
}

TEST(Scenario, FileHasContentAndEveryCommandExpectedLines) {
    const Scenario scenario("file data/a.txt\n| one \n|\n| \ncat data/a.txt\n> |one |\n> ||\n");
    EXPECT_EQ(scenario.Commands()[0].content, (Lines{"one ", "", ""}));
    EXPECT_EQ(scenario.Commands()[1].expected, (Lines{"|one |", "||"}));
}

TEST(Scenario, FaultyLinesAreToldByTheirNumber) {
    EXPECT_EQ(LineOfError("# nothing above\n> focus -\n"), 2U);
    EXPECT_EQ(LineOfError("start\n| a\n"), 2U);
    EXPECT_EQ(LineOfError("start\n\nsetting A \"B\n"), 3U);
    EXPECT_EQ(LineOfError("setting A \"B\"C\n"), 1U);
}

TEST(Scenario, OutputStandsBehindItsCommandAndItsContent) {
    const Scenario scenario("file data/a.txt\n| one\n\ncat data/a.txt\n# why\n> old\nshow focus");
    EXPECT_EQ(scenario.WithOutput({{}, {"|one|"}, {"focus -"}}),
              "file data/a.txt\n| one\n\ncat data/a.txt\n# why\n> |one|\nshow focus\n> focus -");
}

TEST(Scenario, LineEndsOfTheFileAreKept) {
    const Scenario scenario("show focus\r\n> old\r\n\r\n# end\r\n");
    EXPECT_EQ(scenario.Commands()[0].expected, (Lines{"old"}));
    EXPECT_EQ(scenario.WithOutput({{"focus -"}}), "show focus\r\n> focus -\r\n\r\n# end\r\n");
    // A scenario that was read is written so that it can be read again.
    const Scenario twice("show focus\n> old\r\r\n");
    EXPECT_TRUE(Scenario(twice.WithOutput({twice.Commands()[0].expected})).Matches({{"old"}}));
    EXPECT_TRUE(Scenario("\xEF\xBB\xBF\xEF\xBB\xBF# two marks\n").Commands().empty());
}

TEST(Scenario, MatchesWhatItExpectsAndNothingElse) {
    const Scenario scenario("show focus\n> focus -\nstart\n");
    EXPECT_TRUE(scenario.Matches({{"focus -"}, {}}));
    EXPECT_FALSE(scenario.Matches({{"focus -"}, {"ended"}}));
    EXPECT_FALSE(scenario.Matches({{}, {"focus -"}}));
    EXPECT_EQ(scenario.Diff("a.scn", {{"focus -"}, {}}), "");
}

TEST(Scenario, DiffShowsOutputLinesAmongTheCommands) {
    const Scenario scenario("# 1\n# 2\n# 3\n# 4\nshow focus\n> a\n> b\nstart\n");
    EXPECT_EQ(scenario.Diff("a.scn", {{"a", "c"}, {}}),
              "--- a.scn\n+++ a.scn (played)\n@@ -4,5 +4,5 @@\n # 4\n show focus\n > a\n-> b\n+> c\n start\n");
}

TEST(Scenario, QuotedTextHasEscapes) {
    EXPECT_EQ(Quoted("a \"b\" \\ c"), R"("a \"b\" \\ c")");
    EXPECT_EQ(Quoted("a\r\nb\tc\fd"), R"("a\nb\tc\fd")");
    EXPECT_EQ(Quoted("a\nb\rc"), R"("a\nb\nc")");
    EXPECT_EQ(Quoted("Vælg"_t), "\"Vælg\"");
}

}  // namespace vatro
