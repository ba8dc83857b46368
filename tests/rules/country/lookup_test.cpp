// SPDX-License-Identifier: MIT
#include "country/lookup.h"
#include "frame/state.h"

#include <gtest/gtest.h>

#include <random>

#include "call/call_analysis.h"
#include "codepage.h"
#include "country/tables.h"
#include "errors.h"
#include "score/points.h"
#include "tables/unknown.h"

namespace vatro {
namespace {

using namespace literals;

class Lookup : public ::testing::Test {
protected:
    void SetUp() override {
        ResetTables();
        desk().gbVisLand = true;
        desk().giMult = 0;
        desk().giQSOPoint = 0;
        // Countries in ascending order, longer prefixes before the shorter ones they begin with.
        Country("DL", "Fed. Rep. of Germany", "EU");
        Country("G", "England", "EU");
        Country("GM", "Scotland", "EU");
        Country("K", "United States", "NA");
        Country("TA", "Turkey", "AS");
        Country("VP8", "Falkland Islands", "SA");
        Country("VP8/H", "South Shetland Islands", "SA");
        for (auto [pfx, land] : {std::pair{"2E", "G"},
                                 {"DL", "DL"},
                                 {"GM", "GM"},
                                 {"G", "G"},
                                 {"K", "K"},
                                 {"TA", "TA"},
                                 {"VP8ADE/H", "VP8/H"},
                                 {"VP8", "VP8"}})
            Prefix(pfx, land);
        IndexPrefixes();
    }
    void TearDown() override { ResetTables(); }

    static void Country(std::string_view pfx, std::string_view name, std::string_view continent) {
        LandRec& row = desk().tables.Lande[static_cast<std::size_t>(++desk().tables.giLande)];
        row.Pfx = pfx;
        row.Navn = name;
        row.Kontinent = continent;
    }
    static void Prefix(std::string_view pfx, std::string_view country) {
        PfxRec& row = desk().tables.RefPfx[static_cast<std::size_t>(++desk().tables.giRefPfx)];
        row.Pfx = pfx;
        row.Land = country;
        auto& start = desk().tables.gaPfxStart[static_cast<unsigned char>(pfx.front())];
        if (start == 0) start = desk().tables.giRefPfx;
    }
    static std::string Result(std::string_view call, MarkAction handling) {
        std::string result = "left from before";
        LandWkd(call, result, handling);
        return result;
    }
    static std::string Status(std::string_view call) {
        std::string text = "as the caller had it";
        LandStatusTekst(call, text);
        return text;
    }
};

TEST_F(Lookup, MarkingTellsTheCountryOnce) {
    EXPECT_EQ(Result("DL1ABC", MarkAction::Mark), "DL        ");
    EXPECT_EQ(desk().giMult, 1);
    EXPECT_EQ(Result("DL2ABC", MarkAction::Mark), "");
    EXPECT_EQ(desk().giMult, 1);
}

TEST_F(Lookup, TakingTheMarkAwayTellsTheCountryOnce) {
    Result("GM3ABC", MarkAction::Mark);
    EXPECT_EQ(Result("GM3ABC", MarkAction::Unmark), "GM        ");
    EXPECT_EQ(desk().giMult, 0);
    EXPECT_EQ(Result("GM3ABC", MarkAction::Unmark), "");
    EXPECT_EQ(desk().giMult, 0);
}

TEST_F(Lookup, AskingChangesNothing) {
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "DL        ");
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "DL        ");
    EXPECT_EQ(desk().giMult, 0);
    Result("DL1ABC", MarkAction::Mark);
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "");
}

TEST_F(Lookup, AnUnknownPrefixChangesNothing) {
    desk().giQSOPoint = 77;
    for (const MarkAction handling : {MarkAction::Mark, MarkAction::Unmark, MarkAction::Test}) EXPECT_EQ(Result("XZ9XYZ", handling), "");
    EXPECT_EQ(desk().giMult, 0);
    EXPECT_EQ(desk().giQSOPoint, 77);
}

TEST_F(Lookup, AMultiplierColumnIsFoundWithItsBlanks) {
    EXPECT_EQ(Result("GM        ", MarkAction::Mark), "GM        ");
    EXPECT_EQ(Result("-DUPE-    ", MarkAction::Mark), "");
    // The text before the slash decides: the country of the shorter prefix, not the one named.
    EXPECT_EQ(Result("VP8/H     ", MarkAction::Mark), "VP8       ");
    EXPECT_EQ(desk().giMult, 2);
}

TEST_F(Lookup, OutsideEuropeSetsSixPointsWithEveryAction) {
    for (const MarkAction handling : {MarkAction::Mark, MarkAction::Mark, MarkAction::Test, MarkAction::Unmark, MarkAction::Unmark}) {
        desk().giQSOPoint = 3;
        Result("K1ABC", handling);
        EXPECT_EQ(desk().giQSOPoint, 6);
    }
    desk().giQSOPoint = 3;
    Result("DL1ABC", MarkAction::Mark);
    EXPECT_EQ(desk().giQSOPoint, 3);
}

TEST_F(Lookup, TheEuropeanAreasOfAnAsianCountryKeepTheirPoints) {
    desk().giQSOPoint = 3;
    Result("TA1ABC", MarkAction::Mark);
    EXPECT_EQ(desk().giQSOPoint, 3);
    Result("TA0ABC", MarkAction::Test);
    EXPECT_EQ(desk().giQSOPoint, 3);
    Result("TA2ABC", MarkAction::Test);
    EXPECT_EQ(desk().giQSOPoint, 6);
}

TEST_F(Lookup, TheEuropeanAreaIsReadFromTheCallAsGiven) {
    // The country text is TA1ABC, but the call begins TA2.
    desk().giQSOPoint = 3;
    Result("TA2ABC/1", MarkAction::Test);
    EXPECT_EQ(desk().giQSOPoint, 6);
}

TEST_F(Lookup, ACallOfOneFigureCountsAsEuropean) {
    Prefix("1", "K");
    IndexPrefixes();
    desk().giQSOPoint = 3;
    EXPECT_EQ(Result("1", MarkAction::Test), "K         ");
    EXPECT_EQ(desk().giQSOPoint, 3);
}

TEST_F(Lookup, TheStatusTellsNewAndWorked) {
    EXPECT_EQ(Status("DL1ABC"), "DL: Fed. Rep. of Germany (EU), er nyt land.");
    Result("DL1ABC", MarkAction::Mark);
    EXPECT_EQ(Status("DL1ABC"), "DL: Fed. Rep. of Germany (EU), er kørt."_t);
}

TEST_F(Lookup, TheStatusOfAnUnknownPrefixNamesWhatWasLookedUp) {
    constexpr std::string_view told = ": er ukendt præfix. Call'et bliver gemt i filen 'ukendt.txt', hvis QSOen logges. Kør den!"_t;
    EXPECT_EQ(Status("XZ9XYZ"), "XZ9XYZ" + std::string(told));
    EXPECT_EQ(Status("K1ABC/AM"), "AM" + std::string(told));
    EXPECT_TRUE(IsUnknown(Status("XZ9XYZ")));
    EXPECT_FALSE(IsUnknown(Status("DL1ABC")));
}

TEST_F(Lookup, ASingleCharacterIsNotReported) {
    EXPECT_EQ(Status("X"), "");
    EXPECT_EQ(Status("DL1ABC/3/P"), "");
    EXPECT_EQ(Status("G"), "G: England (EU), er nyt land.");
}

TEST_F(Lookup, SwitchedOffTheStatusIsLeftAsItWas) {
    desk().gbVisLand = false;
    EXPECT_EQ(Status("DL1ABC"), "as the caller had it");
    EXPECT_EQ(Status("XZ9XYZ"), "as the caller had it");
}

TEST_F(Lookup, AWholeCallOfTheTableComesBeforeItsPrefix) {
    EXPECT_EQ(Result("VP8ADE/H", MarkAction::Test), "VP8/H     ");
    EXPECT_EQ(Result("VP8ADE/P", MarkAction::Test), "VP8       ");
}

TEST_F(Lookup, EmptyTablesKnowNoCall) {
    ResetTables();
    EXPECT_EQ(Result("DL1ABC", MarkAction::Mark), "");
    EXPECT_TRUE(IsUnknown(Status("DL")));
    EXPECT_EQ(Status("D"), "");
}

TEST_F(Lookup, ACountryNotInTheTableGivesItsNeighbour) {
    Prefix("F", "F");
    Prefix("ZL", "ZL");
    IndexPrefixes();
    EXPECT_EQ(Result("F5ABC", MarkAction::Test), "G         ");
    EXPECT_EQ(Result("ZL1ABC", MarkAction::Test), "VP8/H     ");
}

TEST_F(Lookup, ClearingTheMarksLeavesTheCountToTheCaller) {
    Result("DL1ABC", MarkAction::Mark);
    Result("K1ABC", MarkAction::Mark);
    ResetLande();
    EXPECT_EQ(desk().giMult, 2);
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "DL        ");
    EXPECT_EQ(Result("K1ABC", MarkAction::Test), "K         ");
}

TEST_F(Lookup, InAFullTableOnlyAWholeRowIsFound) {
    while (desk().tables.giRefPfx < kPrefixRows) Prefix("YY", "K");
    IndexPrefixes();
    EXPECT_EQ(Result("YY", MarkAction::Test), "K         ");
    // Looking for the whole call comes first and has run beyond the table before the prefix is tried.
    EXPECT_THROW(Result("YY1ABC", MarkAction::Test), RunTimeError);
    EXPECT_THROW(Status("YY1ABC"), RunTimeError);
}

TEST_F(Lookup, CountNeverLeavesTheMarks) {
    std::mt19937 random(7);
    const std::vector<std::string> calls{"DL1ABC", "G3ABC",    "GM3ABC", "K1ABC",     "TA1ABC",
                                         "VP8LP",  "VP8ADE/H", "XZ9XYZ", "OZ/DL1ABC", "2E0ABC/3"};
    std::uniform_int_distribution<std::size_t> call(0, calls.size() - 1);
    std::uniform_int_distribution<int> action(0, 2);
    for (int round = 0; round < 5000; ++round) {
        const auto handling = static_cast<MarkAction>(action(random));
        const int before = desk().giMult;
        const std::string result = Result(calls[call(random)], handling);
        int marked = 0;
        for (int row = 1; row <= desk().tables.giLande; ++row) marked += desk().tables.Lande[static_cast<std::size_t>(row)].Wkd ? 1 : 0;
        ASSERT_EQ(desk().giMult, marked);
        const int moved = handling == MarkAction::Mark ? 1 : handling == MarkAction::Unmark ? -1 : 0;
        ASSERT_EQ(desk().giMult - before, result.empty() ? 0 : moved);
    }
}

/// The search as a scan, row by row.
int Scanned(std::string_view s, int start, bool whole) {
    for (int i = std::max(start, 1); i <= desk().tables.giRefPfx; ++i) {
        const std::string_view pfx = desk().tables.RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed();
        if (whole ? pfx == s : s.substr(0, pfx.size()) == pfx) return i;
    }
    return 0;
}

TEST(PrefixSearch, FindsTheRowThatAScanFinds) {
    std::mt19937 random(11);
    const std::string characters = "ABD12/";
    std::uniform_int_distribution<std::size_t> which(0, characters.size() - 1);
    const auto text = [&](std::size_t longest) {
        std::string t;
        for (std::size_t n = std::uniform_int_distribution<std::size_t>(0, longest)(random); n > 0; --n) t += characters[which(random)];
        return t;
    };
    for (int table = 0; table < 60; ++table) {
        ResetTables();
        const int rows = std::uniform_int_distribution<int>(0, 80)(random);
        for (desk().tables.giRefPfx = 0; desk().tables.giRefPfx < rows;)
            desk().tables.RefPfx[static_cast<std::size_t>(++desk().tables.giRefPfx)].Pfx = text(5);
        IndexPrefixes();
        for (int round = 0; round < 200; ++round) {
            const std::string call = text(8);
            const int start = std::uniform_int_distribution<int>(0, rows)(random);
            ASSERT_EQ(FindWholeCall(call, start), Scanned(call, start, true)) << call << " from " << start;
            ASSERT_EQ(FindPrefix(call, start), Scanned(call, start, false)) << call << " from " << start;
        }
    }
    ResetTables();
}

TEST(PrefixSearch, RunsOneRowBeyondAFullTable) {
    ResetTables();
    for (desk().tables.giRefPfx = 0; desk().tables.giRefPfx < kPrefixRows;)
        desk().tables.RefPfx[static_cast<std::size_t>(++desk().tables.giRefPfx)].Pfx = "DL";
    IndexPrefixes();
    EXPECT_EQ(FindPrefix("DL1ABC", 1), 1);
    EXPECT_EQ(FindPrefix("DL1ABC", 6000), 6000);
    for (const auto search : {FindWholeCall, FindPrefix}) {
        try {
            search("XZ9XYZ", 1);
            ADD_FAILURE() << "the search came to an end";
        } catch (const RunTimeError& failure) {
            EXPECT_EQ(failure.Number(), 9);
        }
    }
    ResetTables();
}

TEST(PrefixSearch, OneRowLessThanFullFindsNothingAndIsNoFailure) {
    ResetTables();
    for (desk().tables.giRefPfx = 0; desk().tables.giRefPfx < kPrefixRows - 1;)
        desk().tables.RefPfx[static_cast<std::size_t>(++desk().tables.giRefPfx)].Pfx = "DL";
    IndexPrefixes();
    EXPECT_EQ(FindWholeCall("XZ9XYZ", 0), 0);
    EXPECT_EQ(FindPrefix("XZ9XYZ", 0), 0);
    ResetTables();
}

}  // namespace
}  // namespace vatro
