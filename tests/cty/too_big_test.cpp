// SPDX-License-Identifier: MIT
//
// A country file with more items than the table has rows, tested with vatro-cty, the import and the lookup.
#include <map>
#include <sstream>

#include "cty/command.h"
#include "tables/load_tables.h"

namespace vatro {
namespace {

using Texts = std::vector<std::string>;

std::string Figures(int number) {
    const std::string digits = std::to_string(number);
    return std::string(4 - digits.size(), '0') + digits;
}

/// The lines of a country with eight items per line.
void AddCountry(Texts& lines, const std::string& prefix, const Texts& items) {
    lines.push_back(CtyHeader(prefix));
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i % 8 == 0) lines.emplace_back("    ");
        lines.back() += items[i] + (i + 1 == items.size() ? ";" : ",");
    }
}

/// The items of a file with CR LF line ends, without their zones, each with its country; an exact call has "=" in front.
std::map<std::string, std::string> Items(const std::string& content) {
    std::map<std::string, std::string> items;
    std::istringstream file(content);
    std::string country;
    for (std::string line; std::getline(file, line);) {
        line.pop_back();
        if (country.empty()) {
            country = line.substr(69, line.size() - 70);
            continue;
        }
        std::istringstream rest(line.substr(4, line.size() - 5));
        for (std::string item; std::getline(rest, item, ',');) items[item.substr(0, item.find('('))] = country;
        if (line.back() == ';') country.clear();
    }
    return items;
}

/// The lines of the output that list no items.
Texts Told(const std::string& out) {
    Texts told;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with(' ')) told.push_back(line);
    return told;
}

/// Twenty countries, C0 to C9 and D0 to D9. The items of C0 follow; the others have the same with their own prefix. An item is
/// "given" if a shorter prefix of the same country also matches it:
///
///     C0                         1
///     =XC0AB                     1    matched by no prefix
///     C01AA to C01DV           100    given by C0, with the same zone
///     C02AA(15) to C02DV(15)   100    given by C0, except for the zone
///     =C03AAA to =C03DVA       100    given by C0, with the same zone
///     =YC0AAA and so on              matched by no prefix
class TooBig : public CtyCommand {
protected:
    /// Writes the file with this many items in all, a multiple of twenty.
    void PutBigFile(int items) {
        Texts lines;
        for (char group : {'C', 'D'})
            for (char figure = '0'; figure <= '9'; ++figure) {
                const std::string prefix{group, figure};
                Texts list{prefix, "=X" + prefix + "AB"};
                for (int i = 0; i < 100; ++i) list.push_back(prefix + "1" + Letters(i));
                for (int i = 0; i < 100; ++i) list.push_back(prefix + "2" + Letters(i) + "(15)");
                for (int i = 0; i < 100; ++i) list.push_back("=" + prefix + "3" + Letters(i) + "A");
                for (int i = 0; i < items / 20 - 302; ++i) list.push_back("=Y" + prefix + Letters(i) + "A");
                AddCountry(lines, prefix, list);
            }
        PutLines("big.dat", lines);
        before_ = Items(Content("big.dat"));
    }
    void Fit() {
        const Result result = Run({"big.dat", "fit.dat"});
        EXPECT_EQ(result.exit, 0);
        EXPECT_EQ(result.err, "");
        told_ = Told(result.out);
        EXPECT_EQ(Run({"fit.dat"}).out, "20 lande, filen kan importeres\n");
        after_ = Items(Content("fit.dat"));
        for (const auto& [item, country] : after_) ASSERT_EQ(before_.at(item), country) << item;
    }
    /// How many items of each kind the new file has: C0, X..., C01..., C02..., C03... and Y...
    std::map<std::string, int> Kept() const {
        std::map<std::string, int> kept;
        for (const auto& [item, country] : after_) {
            const std::string call = Call(item);
            if (call == country)
                ++kept["own"];
            else if (call.starts_with(country))
                ++kept[call.substr(2, 1)];
            else
                ++kept[call.substr(0, 1)];
        }
        return kept;
    }
    static std::string Call(const std::string& item) { return item.substr(item.starts_with('=') ? 1 : 0); }
    static std::string Letters(int n) { return {static_cast<char>('A' + n / 26), static_cast<char>('A' + n % 26)}; }
    /// The tables as the program has them at its next start.
    void ReadTables() const {
        ResetDesk();
        desk().gsFDLib = NativeText(root_);
        IndlæsLande();
        IndlæsRefPfx();
    }

    std::map<std::string, std::string> before_;
    std::map<std::string, std::string> after_;
    Texts told_;
};

TEST_F(TooBig, IsRefusedByTheCheckAndStopsTheImport) {
    PutBigFile(9000);
    const Result result = Run({"big.dat"});
    EXPECT_EQ(result.exit, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "9000 præfixer, der er plads til 5999\n");

    dialogs_.Expect(
        "Der er 6001 præfixer, men der er kun plads til 6000 i tabellen. \r\n"
        "Kontakt programleverandøren om fejlen. \r\n"
        "I kan køre videre, men der vil være fejl i jeres præfixberegning. \r\n"
        "Det kan rettes op senere med en korrekt fil.");
    EXPECT_EQ(Import("big.dat"), 9);
    EXPECT_TRUE(dialogs_.expected.empty());
    EXPECT_EQ(Names(), (Texts{"big.dat", "cty.dat"}));
}

TEST_F(TooBig, LosesWhatIsGivenAnywayAndNoMoreThanItMust) {
    // 3,001 items must go. 4,000 are given with the same zone: first go the 2,000 of five characters, then the first 1,001 of
    // the 2,000 calls of six characters, which are those of C0 to C9 and one of D0.
    PutBigFile(9000);
    Fit();
    EXPECT_EQ(told_, Texts{"3001 poster er udeladt uden tab:"});
    EXPECT_EQ(Kept(), (std::map<std::string, int>{{"own", 20}, {"X", 20}, {"2", 2000}, {"3", 999}, {"Y", 2960}}));
    EXPECT_FALSE(after_.contains("=D03AAA"));
    EXPECT_TRUE(after_.contains("=D03ABA"));

    EXPECT_EQ(Import("fit.dat"), 0);
    EXPECT_EQ(desk().tables.Rows().giRefPfx, 5999);
    EXPECT_EQ(desk().tables.Rows().giLande, 20);
    for (int start = 0; start < 2; ++start, ReadTables()) {
        for (const auto& [item, country] : before_) ASSERT_EQ(CountryOf(Call(item)), country) << item;
        EXPECT_EQ(CountryOf("XC0AC"), "");
    }
}

TEST_F(TooBig, ThenLosesZonesAndThenCallsTheShortestFirst) {
    // 8,001 items must go: 4,000 given with the same zone, 2,000 given except for the zone, and of the calls that no prefix
    // gives the 20 of five characters and 1,981 of six characters, 398 of each of C0 to C3 and 389 of C4.
    PutBigFile(14000);
    Fit();
    EXPECT_EQ(told_, (Texts{"4000 poster er udeladt uden tab:", "2000 poster er udeladt, kun deres zoner er tabt:",
                            "2001 kald er udeladt og hører nu til et andet land eller intet:"}));
    EXPECT_EQ(Kept(), (std::map<std::string, int>{{"own", 20}, {"Y", 5979}}));

    EXPECT_EQ(Import("fit.dat"), 0);
    EXPECT_EQ(desk().tables.Rows().giRefPfx, 5999);
    for (int start = 0; start < 2; ++start, ReadTables()) {
        for (const auto& [item, country] : after_) ASSERT_EQ(CountryOf(Call(item)), country) << item;
        EXPECT_EQ(CountryOf("C49AB"), "C4");
        // 389 of the 398 are gone: C4 keeps nine, from the 390th on.
        EXPECT_EQ(CountryOf("YC4" + Letters(388) + "A"), "");
        EXPECT_EQ(CountryOf("YC4" + Letters(389) + "A"), "C4");
    }
}

TEST_F(TooBig, ACallWithASlashIsFoundInItsCountryKeptOrLeftOut) {
    // Three must go: QA5AB/P, which is looked up as QA5AB, and the first two of the calls that no prefix gives. QA5AB/QB1 would
    // be looked up as QB1.
    Texts items{"QA", "=QA5AB/QB1", "=QA5AB/P"};
    for (int i = 0; i < 5998; ++i) items.push_back("=Y" + Figures(i));
    Texts lines;
    AddCountry(lines, "QA", items);
    AddCountry(lines, "QB", {"QB"});
    PutLines("big.dat", lines);
    const Result result = Run({"big.dat", "fit.dat"});
    EXPECT_EQ(result.out,
              "1 poster er udeladt uden tab:\n  =QA5AB/P\n"
              "2 kald er udeladt og hører nu til et andet land eller intet:\n  =Y0000 =Y0001\n");
    EXPECT_EQ(Import("fit.dat"), 0);
    EXPECT_EQ(CountryOf("QA5AB/QB1"), "QA");
    EXPECT_EQ(CountryOf("QA5AB/P"), "QA");
    EXPECT_EQ(CountryOf("Y0001"), "");
    EXPECT_EQ(CountryOf("Y0002"), "QA");
}

TEST_F(TooBig, WhatNothingGivesCannotGo) {
    Texts items;
    for (int i = 0; i < 6000; ++i) items.push_back("Q" + Figures(i));
    Texts lines;
    AddCountry(lines, "Q", items);
    PutLines("big.dat", lines);
    Put("fit.dat", "old");
    const Result result = Run({"big.dat", "fit.dat"});
    EXPECT_EQ(result.exit, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "vatro-cty: 6000 præfixer kan ikke undværes, der er plads til 5999\n");
    EXPECT_EQ(Content("fit.dat"), "old");
    EXPECT_EQ(Names(), (Texts{"big.dat", "fit.dat"}));
}

}  // namespace
}  // namespace vatro
