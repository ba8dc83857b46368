// SPDX-License-Identifier: MIT
#include "country/tables.h"
#include "frame/state.h"

#include "codepage.h"
#include "rules/country/country_program.h"

namespace vatro {
namespace {

using namespace literals;

constexpr const char* kLandeMangler = "data\\Lande.txt kunne ikke findes. Importer cty.dat";
constexpr const char* kRefPfxMangler = "data\\RefPfx.txt kunne ikke findes. Importer cty.dat";

class Tables : public CountryProgram {
protected:
    void LoadLande(std::vector<std::string> lines) {
        files.files["DATA\\LANDE.TXT"] = std::move(lines);
        IndlæsLande();
    }
    void LoadRefPfx(std::vector<std::string> lines) {
        files.files["DATA\\REFPFX.TXT"] = std::move(lines);
        IndlæsRefPfx();
    }
    static const PfxRec& Prefix(int row) { return desk().tables.RefPfx[static_cast<std::size_t>(row)]; }
    static int Start(char c) { return desk().tables.gaPfxStart[static_cast<unsigned char>(c)]; }
};

TEST_F(Tables, ReadTheColumnsOfACountry) {
    LoadLande({"QQ        Fantasia                 EU -1 ", "QS        A Country With A LongnameOC  5.5 "});
    ASSERT_EQ(desk().tables.giLande, 2);
    EXPECT_EQ(Country(1).Pfx.Padded(), "QQ        ");
    EXPECT_EQ(Country(1).Navn.Trimmed(), "Fantasia");
    EXPECT_EQ(Country(1).Kontinent.Padded(), "EU");
    EXPECT_FLOAT_EQ(Country(1).TidsZone, -1.0F);
    EXPECT_FALSE(Country(1).Wkd);
    EXPECT_EQ(Country(2).Navn.Trimmed(), "A Country With A Longname");
    EXPECT_FLOAT_EQ(Country(2).TidsZone, 5.5F);
}

TEST_F(Tables, ReadTheColumnsOfAPrefix) {
    LoadRefPfx({"QQ1       QQ        14 27", "QQ2       QQ        15 27", "QQ8ABC    QQ        14 27", "QQ        QQ        14 27",
                "QR        QQ        14 28"});
    ASSERT_EQ(desk().tables.giRefPfx, 5);
    EXPECT_EQ(Prefix(2).Pfx.Padded(), "QQ2       ");
    EXPECT_EQ(Prefix(2).Land.Padded(), "QQ        ");
    EXPECT_EQ(Prefix(2).CQzone.Padded(), "15");
    EXPECT_EQ(Prefix(2).ITUzone.Padded(), "27");
    EXPECT_EQ(Prefix(5).ITUzone.Padded(), "28");
    EXPECT_EQ(Start('Q'), 1);
}

TEST_F(Tables, RowZeroIsNeverFilled) {
    LoadLande({"QQ        Fantasia                 EU -1 "});
    LoadRefPfx({"QQ        QQ        14 27"});
    EXPECT_EQ(Country(0).Pfx.Trimmed(), "");
    EXPECT_EQ(Prefix(0).Pfx.Trimmed(), "");
}

TEST_F(Tables, EmptyFilesLoadInSilence) {
    LoadLande({});
    LoadRefPfx({});
    EXPECT_EQ(desk().tables.giLande, 0);
    EXPECT_EQ(desk().tables.giRefPfx, 0);
}

TEST_F(Tables, MissingFilesAreTold) {
    files.files.clear();
    dialogs.Expect(kLandeMangler);
    IndlæsLande();
    dialogs.Expect(kRefPfxMangler);
    IndlæsRefPfx();
    for (const MessageBox& box : dialogs.boxes) EXPECT_EQ(box.icon, Icon::Information);
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(Tables, FiveHundredCountriesFitAndOneMoreIsTold) {
    std::vector<std::string> lines(500, "QQ        Fantasia                 EU -1 ");
    LoadLande(lines);
    EXPECT_EQ(desk().tables.giLande, 500);

    lines.emplace_back("QS        One Too Many             EU -1 ");
    dialogs.Expect(kLandeMangler);
    LoadLande(lines);
    EXPECT_EQ(desk().tables.giLande, 501) << "the row that failed is counted";
    EXPECT_EQ(CountriesInUse(), 500);
    EXPECT_EQ(Country(500).Pfx.Trimmed(), "QQ");
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(Tables, SixThousandPrefixesFitAndOneMoreIsTold) {
    std::vector<std::string> lines(6000, "QQ        QQ        14 27");
    LoadRefPfx(lines);
    EXPECT_EQ(desk().tables.giRefPfx, 6000);

    lines.emplace_back("QS        QQ        14 27");
    dialogs.Expect(kRefPfxMangler);
    LoadRefPfx(lines);
    EXPECT_EQ(desk().tables.giRefPfx, 6001);
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(Tables, ANumberThatCannotBeReadEndsTheLoadWithItsRow) {
    dialogs.Expect(kLandeMangler);
    LoadLande({"DL        Fed. Rep. of Germany     EU -1 ", "F         France                   EU x ",
               "G         England                  EU  0 "});
    EXPECT_EQ(desk().tables.giLande, 2);
    EXPECT_EQ(Country(2).Navn.Trimmed(), "France");
    EXPECT_EQ(Country(3).Pfx.Trimmed(), "");
}

TEST_F(Tables, ALetterThatComesAgainMovesItsIndexToTheLaterRow) {
    LoadRefPfx({"GM        GM        14 27", "DL        DL        14 28", "G4        G         14 27", "GW        GW        14 27"});
    EXPECT_EQ(Start('G'), 3);
    EXPECT_EQ(Start('D'), 2);
    EXPECT_EQ(Start('X'), 0);
}

TEST_F(Tables, TheIndexIsNotClearedByAnotherLoad) {
    LoadRefPfx({"DL        DL        14 28", "G         G         14 27"});
    LoadRefPfx({"G         G         14 27"});
    EXPECT_EQ(Start('D'), 1);
    EXPECT_EQ(Start('G'), 1);
}

}  // namespace
}  // namespace vatro
