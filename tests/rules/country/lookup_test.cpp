// SPDX-License-Identifier: MIT
#include "country/lookup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "codepage.h"
#include "errors.h"

namespace vatro {
namespace {

using namespace literals;

class Lookup : public ::testing::Test {
protected:
    void SetUp() override {
        // Countries in ascending order; a longer prefix comes before a shorter one that it begins with.
        Country("DL", "Fed. Rep. of Germany", "EU");
        Country("G", "England", "EU");
        Country("GM", "Scotland", "EU");
        Country("K", "United States", "NA");
        Country("TA", "Turkey", "AS");
        Country("VP8", "Falkland Islands", "SA");
        Country("VP8/H", "South Shetland Islands", "SA");
        for (auto [prefix, country] : {std::pair{"2E", "G"},
                                       {"DL", "DL"},
                                       {"GM", "GM"},
                                       {"G", "G"},
                                       {"K", "K"},
                                       {"TA", "TA"},
                                       {"VP8ADE/H", "VP8/H"},
                                       {"VP8", "VP8"}})
            Prefix(prefix, country);
        tables.Take(rows);
    }

    void Country(std::string_view prefix, std::string_view name, std::string_view continent) {
        LandRec& row = rows.Lande[static_cast<std::size_t>(++rows.giLande)];
        row.Pfx = prefix;
        row.Navn = name;
        row.Kontinent = continent;
    }
    void Prefix(std::string_view prefix, std::string_view country) {
        PfxRec& row = rows.RefPfx[static_cast<std::size_t>(++rows.giRefPfx)];
        row.Pfx = prefix;
        row.Land = country;
        auto& start = rows.gaPfxStart[static_cast<unsigned char>(prefix.front())];
        if (start == 0) start = rows.giRefPfx;
    }
    std::string Result(std::string_view call, MarkAction action) { return std::string(countries.LandWkd(call, action).prefix); }
    std::optional<std::int32_t> PointsOf(std::string_view call, MarkAction action) { return countries.LandWkd(call, action).points; }
    std::string Status(std::string_view call) const { return countries.LandStatusTekst(call).text; }
    bool Unknown(std::string_view call) const { return countries.LandStatusTekst(call).unknown; }
    int Marked() const {
        int marked = 0;
        for (int row = 1; row <= rows.giLande; ++row) marked += countries.Wkd(row) ? 1 : 0;
        return marked;
    }

    CountryRows rows;
    /// Has the rows above as they were at the last Take.
    CountryTables tables;
    WorkedCountries countries{tables};
};

TEST_F(Lookup, MarkingTellsTheCountryOnce) {
    EXPECT_EQ(Result("DL1ABC", MarkAction::Mark), "DL        ");
    EXPECT_EQ(Marked(), 1);
    EXPECT_EQ(Result("DL2ABC", MarkAction::Mark), "");
    EXPECT_EQ(Marked(), 1);
}

TEST_F(Lookup, TakingTheMarkAwayTellsTheCountryOnce) {
    Result("GM3ABC", MarkAction::Mark);
    EXPECT_EQ(Result("GM3ABC", MarkAction::Unmark), "GM        ");
    EXPECT_EQ(Marked(), 0);
    EXPECT_EQ(Result("GM3ABC", MarkAction::Unmark), "");
    EXPECT_EQ(Marked(), 0);
}

TEST_F(Lookup, AskingChangesNothing) {
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "DL        ");
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "DL        ");
    EXPECT_EQ(Marked(), 0);
    Result("DL1ABC", MarkAction::Mark);
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "");
}

TEST_F(Lookup, AnUnknownPrefixChangesNothing) {
    for (const MarkAction action : {MarkAction::Mark, MarkAction::Unmark, MarkAction::Test}) {
        EXPECT_EQ(Result("XZ9XYZ", action), "");
        EXPECT_EQ(PointsOf("XZ9XYZ", action), std::nullopt);
    }
    EXPECT_EQ(Marked(), 0);
}

TEST_F(Lookup, AMultiplierColumnIsFoundWithItsBlanks) {
    EXPECT_EQ(Result("GM        ", MarkAction::Mark), "GM        ");
    EXPECT_EQ(Result("-DUPE-    ", MarkAction::Mark), "");
    // The text before the slash decides: the contact counts for the country of the shorter prefix, not for the one named.
    EXPECT_EQ(Result("VP8/H     ", MarkAction::Mark), "VP8       ");
    EXPECT_EQ(Marked(), 2);
}

TEST_F(Lookup, OutsideEuropeSetsSixPointsWithEveryAction) {
    for (const MarkAction action : {MarkAction::Mark, MarkAction::Mark, MarkAction::Test, MarkAction::Unmark, MarkAction::Unmark})
        EXPECT_EQ(PointsOf("K1ABC", action), 6);
    EXPECT_EQ(PointsOf("DL1ABC", MarkAction::Mark), std::nullopt);
}

TEST_F(Lookup, TheEuropeanAreasOfAnAsianCountryKeepTheirPoints) {
    EXPECT_EQ(PointsOf("TA1ABC", MarkAction::Mark), std::nullopt);
    EXPECT_EQ(PointsOf("TA0ABC", MarkAction::Test), std::nullopt);
    EXPECT_EQ(PointsOf("TA2ABC", MarkAction::Test), 6);
}

TEST_F(Lookup, TheEuropeanAreaIsReadFromTheCallAsGiven) {
    // The text for the country search is TA1ABC, but the call begins with TA2.
    EXPECT_EQ(PointsOf("TA2ABC/1", MarkAction::Test), 6);
}

TEST_F(Lookup, ACallOfOneFigureCountsAsEuropean) {
    Prefix("1", "K");
    tables.Take(rows);
    EXPECT_EQ(Result("1", MarkAction::Test), "K         ");
    EXPECT_EQ(PointsOf("1", MarkAction::Test), std::nullopt);
}

TEST_F(Lookup, TheStatusTellsNewAndWorked) {
    EXPECT_EQ(Status("DL1ABC"), "DL: Fed. Rep. of Germany (EU), er nyt land.");
    EXPECT_TRUE(countries.LandStatusTekst("DL1ABC").isNew);
    Result("DL1ABC", MarkAction::Mark);
    EXPECT_EQ(Status("DL1ABC"), "DL: Fed. Rep. of Germany (EU), er kørt."_t);
    EXPECT_FALSE(countries.LandStatusTekst("DL1ABC").isNew);
    EXPECT_FALSE(countries.LandStatusTekst("XZ9XYZ").isNew);
}

TEST_F(Lookup, TheStatusOfAnUnknownPrefixNamesWhatWasLookedUp) {
    constexpr std::string_view told = ": er ukendt præfix. Call'et bliver gemt i filen 'ukendt.txt', hvis QSOen logges. Kør den!"_t;
    EXPECT_EQ(Status("XZ9XYZ"), "XZ9XYZ" + std::string(told));
    EXPECT_EQ(Status("K1ABC/AM"), "AM" + std::string(told));
    EXPECT_TRUE(Unknown("XZ9XYZ"));
    EXPECT_FALSE(Unknown("DL1ABC"));
}

TEST_F(Lookup, ASingleCharacterIsNotReported) {
    EXPECT_EQ(Status("X"), "");
    EXPECT_EQ(Status("DL1ABC/3/P"), "");
    EXPECT_EQ(Status("G"), "G: England (EU), er nyt land.");
}

TEST_F(Lookup, ACountryNamedUnknownCountsAsOne) {
    Country("ZZ", "ukendt land", "EU");
    Prefix("ZZ", "ZZ");
    tables.Take(rows);
    EXPECT_EQ(Status("ZZ1ABC"), "ZZ: ukendt land (EU), er nyt land.");
    EXPECT_TRUE(Unknown("ZZ1ABC"));
    EXPECT_TRUE(IsUnknown(tables, FindCountry(tables, "ZZ1ABC")));
    EXPECT_FALSE(IsUnknown(tables, FindCountry(tables, "DL1ABC")));
    EXPECT_TRUE(IsUnknown(tables, FindCountry(tables, "XZ9XYZ")));
    EXPECT_FALSE(IsUnknown(tables, FindCountry(tables, "X"))) << "a single character is no prefix yet";
}

TEST_F(Lookup, AnEmptyCallFails) {
    EXPECT_THROW(Result("", MarkAction::Test), RunTimeError);
    EXPECT_THROW(Status(""), RunTimeError);
}

TEST_F(Lookup, AWholeCallOfTheTableComesBeforeItsPrefix) {
    EXPECT_EQ(Result("VP8ADE/H", MarkAction::Test), "VP8/H     ");
    EXPECT_EQ(Result("VP8ADE/P", MarkAction::Test), "VP8       ");
}

TEST_F(Lookup, EmptyTablesKnowNoCall) {
    tables = {};
    EXPECT_EQ(Result("DL1ABC", MarkAction::Mark), "");
    EXPECT_TRUE(Unknown("DL"));
    EXPECT_EQ(Status("D"), "");
}

TEST_F(Lookup, ACountryNotInTheTableGivesItsNeighbour) {
    Prefix("F", "F");
    Prefix("ZL", "ZL");
    tables.Take(rows);
    EXPECT_EQ(Result("F5ABC", MarkAction::Test), "G         ");
    EXPECT_EQ(Result("ZL1ABC", MarkAction::Test), "VP8/H     ");
}

TEST_F(Lookup, ClearingTheMarksForgetsEveryCountry) {
    Result("DL1ABC", MarkAction::Mark);
    Result("K1ABC", MarkAction::Mark);
    countries.ResetLande();
    EXPECT_EQ(Marked(), 0);
    EXPECT_EQ(Result("DL1ABC", MarkAction::Test), "DL        ");
    EXPECT_EQ(Result("K1ABC", MarkAction::Test), "K         ");
}

TEST_F(Lookup, InAFullTableOnlyAWholeRowIsFound) {
    while (rows.giRefPfx < kPrefixRows) Prefix("YY", "K");
    tables.Take(rows);
    EXPECT_EQ(Result("YY", MarkAction::Test), "K         ");
    // The whole call is searched for first, and that search runs beyond the table before the prefix is tried.
    EXPECT_THROW(Result("YY1ABC", MarkAction::Test), RunTimeError);
    EXPECT_THROW(Status("YY1ABC"), RunTimeError);
}

TEST_F(Lookup, AnActionTakesEffectWhenItChangesAMark) {
    std::mt19937 random(7);
    const std::vector<std::string> calls{"DL1ABC", "G3ABC",    "GM3ABC", "K1ABC",     "TA1ABC",
                                         "VP8LP",  "VP8ADE/H", "XZ9XYZ", "OZ/DL1ABC", "2E0ABC/3"};
    std::uniform_int_distribution<std::size_t> call(0, calls.size() - 1);
    std::uniform_int_distribution<int> which(0, 2);
    for (int round = 0; round < 5000; ++round) {
        const auto action = static_cast<MarkAction>(which(random));
        const int before = Marked();
        const bool changed = countries.LandWkd(calls[call(random)], action).changed;
        const int moved = action == MarkAction::Mark ? 1 : action == MarkAction::Unmark ? -1 : 0;
        ASSERT_EQ(Marked() - before, changed ? moved : 0);
    }
}

/// The same search as a plain scan, row by row.
std::optional<int> Scanned(const CountryTables& tables, std::string_view s, int start, bool whole) {
    for (int i = std::max(start, 1); i <= tables.Rows().giRefPfx; ++i) {
        const std::string_view prefix = tables.Rows().RefPfx[static_cast<std::size_t>(i)].Pfx.Trimmed();
        if (whole ? prefix == s : s.substr(0, prefix.size()) == prefix) return i;
    }
    return std::nullopt;
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
        CountryRows rows;
        const int count = std::uniform_int_distribution<int>(0, 80)(random);
        while (rows.giRefPfx < count) rows.RefPfx[static_cast<std::size_t>(++rows.giRefPfx)].Pfx = text(5);
        CountryTables tables;
        tables.Take(rows);
        for (int round = 0; round < 200; ++round) {
            const std::string call = text(8);
            const int start = std::uniform_int_distribution<int>(0, count)(random);
            ASSERT_EQ(tables.FindWholeCall(call, start), Scanned(tables, call, start, true)) << call << " from " << start;
            ASSERT_EQ(tables.FindPrefix(call, start), Scanned(tables, call, start, false)) << call << " from " << start;
        }
    }
}

TEST(PrefixSearch, RunsOneRowBeyondAFullTable) {
    CountryRows rows;
    while (rows.giRefPfx < kPrefixRows) rows.RefPfx[static_cast<std::size_t>(++rows.giRefPfx)].Pfx = "DL";
    CountryTables tables;
    tables.Take(rows);
    EXPECT_EQ(tables.FindPrefix("DL1ABC", 1), 1);
    EXPECT_EQ(tables.FindPrefix("DL1ABC", 6000), 6000);
    for (const auto search : {&CountryTables::FindWholeCall, &CountryTables::FindPrefix}) {
        try {
            (tables.*search)("XZ9XYZ", 1);
            ADD_FAILURE() << "the search came to an end";
        } catch (const RunTimeError& failure) {
            EXPECT_EQ(failure.Number(), 9);
        }
    }
}

TEST(PrefixSearch, OneRowLessThanFullFindsNothingAndIsNoFailure) {
    CountryRows rows;
    while (rows.giRefPfx < kPrefixRows - 1) rows.RefPfx[static_cast<std::size_t>(++rows.giRefPfx)].Pfx = "DL";
    CountryTables tables;
    tables.Take(rows);
    EXPECT_EQ(tables.FindWholeCall("XZ9XYZ", 0), std::nullopt);
    EXPECT_EQ(tables.FindPrefix("XZ9XYZ", 0), std::nullopt);
}

/// The rule of CountryOf, row by row.
int FirstNotBelow(const CountryRows& rows, std::string_view wanted) {
    int row = 1;
    while (row < rows.giLande && wanted > rows.Lande[static_cast<std::size_t>(row)].Pfx.Padded()) ++row;
    return row;
}

TEST(CountryOfAPrefix, IsThatOfAScanInTablesOfAnyOrder) {
    std::mt19937 random(13);
    const auto below = [&random](int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); };
    const std::string_view characters = " ABZ09/\xE5\x01";
    const auto text = [&] {
        std::string t;
        for (int n = below(13); n > 0; --n) t += characters[static_cast<std::size_t>(below(static_cast<int>(characters.size())))];
        return t;
    };
    for (int table = 0; table < 300; ++table) {
        CountryRows rows;
        for (const int count = below(40); rows.giLande < count;) rows.Lande[static_cast<std::size_t>(++rows.giLande)].Pfx = text();
        if (table % 2 == 0)
            std::sort(rows.Lande.begin() + 1, rows.Lande.begin() + 1 + rows.giLande,
                      [](const LandRec& a, const LandRec& b) { return a.Pfx.Padded() < b.Pfx.Padded(); });
        for (int n = 0; n < 60; ++n) {
            const bool known = rows.giLande > 0 && below(2) == 0;
            PfxRec& row = rows.RefPfx[static_cast<std::size_t>(++rows.giRefPfx)];
            if (known)
                row.Land = rows.Lande[static_cast<std::size_t>(1 + below(rows.giLande))].Pfx;
            else
                row.Land = text();
        }
        CountryTables tables;
        tables.Take(rows);
        for (int prefix = 1; prefix <= rows.giRefPfx; ++prefix)
            ASSERT_EQ(tables.CountryOf(prefix), FirstNotBelow(rows, rows.RefPfx[static_cast<std::size_t>(prefix)].Land.Padded()));
    }
}

TEST(CountryOfAPrefix, FollowsEveryChangeOfTheCountries) {
    CountryTables tables;
    tables.BeginPrefixes();
    tables.ReadPrefix("GM        GM        14 27");
    EXPECT_EQ(tables.CountryOf(1), 1) << "there is no country at all";
    tables.BeginCountries();
    tables.ReadCountry("DL        Fed. Rep. of Germany     EU -1 ");
    tables.ReadCountry("G         England                  EU  0 ");
    EXPECT_EQ(tables.CountryOf(1), 2) << "the last row, as none has the prefix";
    tables.ReadCountry("GM        Scotland                 EU  0 ");
    tables.ReadCountry("K         United States            NA  5 ");
    EXPECT_EQ(tables.CountryOf(1), 3);
    tables.BeginCountries();
    tables.ReadCountry("GM        Scotland                 EU  0 ");
    tables.ReadCountry("K         United States            NA  5 ");
    EXPECT_EQ(tables.CountryOf(1), 1);
    tables.BeginPrefixes();
    tables.ReadPrefix("K         K         05 08");
    EXPECT_EQ(tables.CountryOf(1), 2);
}

}  // namespace
}  // namespace vatro
