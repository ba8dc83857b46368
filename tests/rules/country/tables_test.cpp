// SPDX-License-Identifier: MIT
#include "country/tables.h"

#include <gtest/gtest.h>

#include "errors.h"

namespace vatro {
namespace {

class Tables : public ::testing::Test {
protected:
    using Texts = std::vector<std::string>;
    void ReadCountries(const Texts& lines) {
        tables.BeginCountries();
        for (const std::string& line : lines) tables.ReadCountry(line);
    }
    void ReadPrefixes(const Texts& lines) {
        tables.BeginPrefixes();
        for (const std::string& line : lines) tables.ReadPrefix(line);
    }
    const LandRec& Country(int row) const { return tables.Rows().Lande[static_cast<std::size_t>(row)]; }
    const PfxRec& Prefix(int row) const { return tables.Rows().RefPfx[static_cast<std::size_t>(row)]; }
    int Start(char c) const { return tables.Rows().gaPfxStart[static_cast<unsigned char>(c)]; }

    CountryTables tables;
};

TEST_F(Tables, ReadTheColumnsOfACountry) {
    ReadCountries({"QQ        Fantasia                 EU -1 ", "QS        A Country With A LongnameOC  5.5 "});
    ASSERT_EQ(tables.Rows().giLande, 2);
    EXPECT_EQ(Country(1).Pfx.Padded(), "QQ        ");
    EXPECT_EQ(Country(1).Navn.Trimmed(), "Fantasia");
    EXPECT_EQ(Country(1).Kontinent.Padded(), "EU");
    EXPECT_FLOAT_EQ(Country(1).TidsZone, -1.0F);
    EXPECT_EQ(Country(2).Navn.Trimmed(), "A Country With A Longname");
    EXPECT_FLOAT_EQ(Country(2).TidsZone, 5.5F);
}

TEST_F(Tables, ReadTheColumnsOfAPrefix) {
    ReadPrefixes({"QQ1       QQ        14 27", "QQ2       QQ        15 27", "QQ8ABC    QQ        14 27", "QQ        QQ        14 27",
                  "QR        QQ        14 28"});
    ASSERT_EQ(tables.Rows().giRefPfx, 5);
    EXPECT_EQ(Prefix(2).Pfx.Padded(), "QQ2       ");
    EXPECT_EQ(Prefix(2).Land.Padded(), "QQ        ");
    EXPECT_EQ(Prefix(2).CQzone.Padded(), "15");
    EXPECT_EQ(Prefix(2).ITUzone.Padded(), "27");
    EXPECT_EQ(Prefix(5).ITUzone.Padded(), "28");
    EXPECT_EQ(Start('Q'), 1);
}

TEST_F(Tables, RowZeroIsNeverFilled) {
    ReadCountries({"QQ        Fantasia                 EU -1 "});
    ReadPrefixes({"QQ        QQ        14 27"});
    EXPECT_EQ(Country(0).Pfx.Trimmed(), "");
    EXPECT_EQ(Prefix(0).Pfx.Trimmed(), "");
}

TEST_F(Tables, FiveHundredCountriesFitAndOneMoreFails) {
    std::vector<std::string> lines(500, "QQ        Fantasia                 EU -1 ");
    ReadCountries(lines);
    EXPECT_EQ(tables.Rows().giLande, 500);

    lines.emplace_back("QS        One Too Many             EU -1 ");
    EXPECT_THROW(ReadCountries(lines), RunTimeError);
    EXPECT_EQ(tables.Rows().giLande, 501) << "the row that failed is counted";
    EXPECT_EQ(tables.CountriesInUse(), 500);
    EXPECT_EQ(Country(500).Pfx.Trimmed(), "QQ");
}

TEST_F(Tables, SixThousandPrefixesFitAndOneMoreFails) {
    std::vector<std::string> lines(6000, "QQ        QQ        14 27");
    ReadPrefixes(lines);
    EXPECT_EQ(tables.Rows().giRefPfx, 6000);

    lines.emplace_back("QS        QQ        14 27");
    EXPECT_THROW(ReadPrefixes(lines), RunTimeError);
    EXPECT_EQ(tables.Rows().giRefPfx, 6001);
}

TEST_F(Tables, ANumberThatCannotBeReadEndsTheLoadWithItsRow) {
    EXPECT_THROW(ReadCountries({"DL        Fed. Rep. of Germany     EU -1 ", "F         France                   EU x ",
                                "G         England                  EU  0 "}),
                 RunTimeError);
    EXPECT_EQ(tables.Rows().giLande, 2);
    EXPECT_EQ(Country(2).Navn.Trimmed(), "France");
    EXPECT_EQ(Country(3).Pfx.Trimmed(), "");
}

TEST_F(Tables, ALetterThatComesAgainMovesItsIndexToTheLaterRow) {
    ReadPrefixes({"GM        GM        14 27", "DL        DL        14 28", "G4        G         14 27", "GW        GW        14 27"});
    EXPECT_EQ(Start('G'), 3);
    EXPECT_EQ(Start('D'), 2);
    EXPECT_EQ(Start('X'), 0);
}

TEST_F(Tables, TheIndexIsNotClearedByAnotherLoad) {
    ReadPrefixes({"DL        DL        14 28", "G         G         14 27"});
    ReadPrefixes({"G         G         14 27"});
    EXPECT_EQ(Start('D'), 1);
    EXPECT_EQ(Start('G'), 1);
}

}  // namespace
}  // namespace vatro
