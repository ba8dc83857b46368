// SPDX-License-Identifier: MIT
#include "tables/load_tables.h"

#include "frame/state.h"
#include "program.h"
#include "running_program.h"

namespace vatro {
namespace {

constexpr const char* kNoCountries = "data\\Lande.txt kunne ikke findes. Importer cty.dat";
constexpr const char* kNoPrefixes = "data\\RefPfx.txt kunne ikke findes. Importer cty.dat";
constexpr const char* kNoStations = "Kan ikke finde filen data\\edr.txt";

class LoadingTables : public RunningProgram {
protected:
    void SetUp() override {
        BeginProgram();
        ResetDesk();
        desk().gsFDLib = "data";
    }
    void TearDown() override { ResetDesk(); }
};

TEST_F(LoadingTables, EmptyFilesAreReadInSilence) {
    for (const char* file : {"LANDE", "REFPFX", "EDR"}) files.files[std::string("DATA\\") + file + ".TXT"] = {};
    IndlæsLande();
    IndlæsRefPfx();
    IndlæsEDR();
    EXPECT_EQ(desk().tables.Rows().giLande, 0);
    EXPECT_EQ(desk().tables.Rows().giRefPfx, 0);
    EXPECT_EQ(desk().stations.giEDR, 0);
}

TEST_F(LoadingTables, MissingFilesAreTold) {
    files.files.clear();
    dialogs.Expect(kNoCountries);
    IndlæsLande();
    dialogs.Expect(kNoPrefixes);
    IndlæsRefPfx();
    for (const MessageBox& box : dialogs.boxes) EXPECT_EQ(box.icon, Icon::Information);
    dialogs.Expect(kNoStations);
    IndlæsEDR();
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(LoadingTables, ATableThatIsTooLongIsToldAndWhatFitsStays) {
    files.files["DATA\\LANDE.TXT"] = std::vector<std::string>(501, "QQ        Fantasia                 EU -1 ");
    files.files["DATA\\REFPFX.TXT"] = std::vector<std::string>(6001, "QQ        QQ        14 27");
    dialogs.Expect(kNoCountries);
    IndlæsLande();
    EXPECT_EQ(desk().tables.Rows().giLande, 501);
    EXPECT_FALSE(files.IsOpen());
    dialogs.Expect(kNoPrefixes);
    IndlæsRefPfx();
    EXPECT_EQ(desk().tables.Rows().giRefPfx, 6001);
    EXPECT_FALSE(files.IsOpen());
    EXPECT_EQ(desk().tables.FindWholeCall("QQ", 1), 1) << "the rows read so far are found";
}

TEST_F(LoadingTables, OneStationTooManyIsToldAndLeavesTheFileOpen) {
    std::vector<std::string>& lines = files.files["DATA\\EDR.TXT"] = {};
    for (int i = 0; i < 200; ++i) lines.push_back("OZ" + std::to_string(1000 + i) + " Test");
    IndlæsEDR();
    EXPECT_FALSE(files.IsOpen());
    lines.emplace_back("OZ1200 Test");
    dialogs.Expect(kNoStations);
    IndlæsEDR();
    EXPECT_TRUE(files.IsOpen());
    EXPECT_EQ(desk().stations.StationPoints("OZ1199"), 10);
}

}  // namespace
}  // namespace vatro
