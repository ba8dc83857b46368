// SPDX-License-Identifier: MIT
#include "country/import.h"

#include <gtest/gtest.h>

#include "country/lookup.h"
#include "rules/country/country_file.h"
#include "text/vector_lines.h"

namespace vatro {
namespace {

class Import : public ::testing::Test {
protected:
    void Run(std::vector<std::string> lines) {
        VectorSource source(std::move(lines));
        CountryImport countryImport(tables);
        countryImport.Read(source, [this](int count) { overflow = count; });
        const auto note = [this](int row) { rows.push_back(row); };
        countryImport.Sort(note);
        countryImport.CleanUp(note);
        tables.Take(countryImport.Rows());
    }
    /// The number of the failure that ends the import.
    int Failing(std::vector<std::string> lines) {
        try {
            Run(std::move(lines));
        } catch (const RunTimeError& failure) {
            return failure.Number();
        }
        return 0;
    }
    std::string Prefix(int row) const { return std::string(tables.Rows().RefPfx[static_cast<std::size_t>(row)].Pfx.Trimmed()); }
    int Start(char c) const { return tables.Rows().gaPfxStart[static_cast<unsigned char>(c)]; }

    CountryTables tables;
    std::vector<int> rows;
    int overflow = 0;
};

TEST_F(Import, IndexesTheFirstCharactersOfPrefixesThatAreNotOfFullLength) {
    CountryRows before;
    before.gaPfxStart[static_cast<unsigned char>('Z')] = 77;
    tables.Take(before);
    // Sorted order: A123456789, A1, B123456789, C, an empty prefix.
    Run({kSampleHeader, "    C,B123456789,A1,A123456789,,;"});
    ASSERT_EQ(tables.Rows().giRefPfx, 5);
    EXPECT_EQ(Prefix(1), "A123456789");
    EXPECT_EQ(Start('A'), 2) << "row 1 is passed over";
    EXPECT_EQ(Start('B'), 0);
    EXPECT_EQ(Start('C'), 4);
    EXPECT_EQ(Start(' '), 5);
    EXPECT_EQ(Start('Z'), 77) << "what no longer begins a row keeps its value";
}

TEST_F(Import, ThePrefixesAreFoundAtOnce) {
    Run({kSampleHeader, "    QQ,QQ1;"});
    EXPECT_EQ(tables.FindPrefix("QQ1AB", 1), 1);
    EXPECT_EQ(tables.FindWholeCall("QQ", 1), 2);
    EXPECT_EQ(tables.FindWholeCall("DL", 1), std::nullopt);
}

TEST_F(Import, ACharacterOfTheFillerEndsAPrefix) {
    // The longer prefix is not cut, because its last character is not the filler.
    Run({kSampleHeader, std::string("    Q\xE5X,QRSTUV\xE5XYZ;")});
    EXPECT_EQ(Prefix(1), "QRSTUV\xE5XYZ");
    EXPECT_EQ(Prefix(2), "Q");
}

TEST_F(Import, FiveThousandNineHundredAndNinetyNinePrefixesSurviveWhole) {
    std::vector<std::string> lines = EntryOf(5999);
    // The last prefix comes first, so that there is something to sort.
    std::swap(lines[1], lines[599]);
    Run(lines);
    ASSERT_EQ(tables.Rows().giRefPfx, 5999);
    for (int i = 1; i <= 5999; ++i) ASSERT_EQ(Prefix(i), "C" + FourDigits(i));
}

TEST_F(Import, TheSixThousandthPrefixIsLostInTheSort) {
    // The first swap uses the row of C6000 as its spare row and overwrites it with C0002. After that each step finds the
    // smallest remaining prefix in the last row, and overwrites that row with the one it was to be swapped with.
    std::vector<std::string> lines = EntryOf(6000);
    lines[1].replace(4, 11, "C0002,C0001");
    Run(lines);
    ASSERT_EQ(tables.Rows().giRefPfx, 6000);
    for (int i = 1; i <= 5999; ++i) ASSERT_EQ(Prefix(i), "C" + FourDigits(i));
    EXPECT_EQ(Prefix(6000), "C5999");
}

TEST_F(Import, SixThousandPrefixesInOrderNeedNoSwapAndStayWhole) {
    Run(EntryOf(6000));
    EXPECT_EQ(Prefix(6000), "C6000");
}

TEST_F(Import, LeavesTheWorkedMarksInTheirRows) {
    Run({kSampleHeader, "    QQ;", kSampleHeader, "    QR;"});
    WorkedCountries worked(tables);
    worked.LandWkd("QQ1ABC", MarkAction::Mark);
    EXPECT_TRUE(worked.Wkd(1));
    Run({kSampleHeader, "    QX;", kSampleHeader, "    QQ;"});
    EXPECT_TRUE(worked.Wkd(1));
    EXPECT_FALSE(worked.Wkd(2));
}

TEST_F(Import, TellsEveryRowOfEveryStep) {
    Run({kSampleHeader, "    QQ,QR,QS;"});
    EXPECT_EQ(rows, (std::vector<int>{1, 2, 3, 1, 2, 3}));
}

TEST_F(Import, OfADamagedFileFailsAndCountsNoRow) {
    EXPECT_EQ(Failing({""}), 5);
    EXPECT_EQ(Failing({kSampleHeader}), 62);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ,"}), 62);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ(15;"}), 5);
    EXPECT_EQ(Failing({kSampleHeader, "    QQ;", "no header"}), 5);
    EXPECT_EQ(tables.Rows().giLande, 0);
    EXPECT_EQ(tables.Rows().giRefPfx, 0);
}

TEST_F(Import, TellsOfOnePrefixTooManyBeforeItFails) {
    EXPECT_EQ(Failing(EntryOf(6001)), 9);
    EXPECT_EQ(overflow, 6001);
}

TEST_F(Import, WritesRowsInTheColumnsOfTheFiles) {
    Run({"A Country With A Long Name05:  06:  OC:  -56.25:   110.50:    +5.5:  QS:", "    QS,QS1;"});
    EXPECT_EQ(CountryLine(tables.Rows().Lande[1]), "QS        A Country With A Long NamOC  5.5 ");
    const auto prefixLine = PrefixLine(tables.Rows().RefPfx[1]);
    EXPECT_EQ(std::string_view(prefixLine.data(), prefixLine.size()), "QS1       QS        05 06");
}

}  // namespace
}  // namespace vatro
