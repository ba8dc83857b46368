// SPDX-License-Identifier: MIT
#include "tables/worked.h"

#include "columns.h"
#include "frame/state.h"
#include "running_program.h"

namespace vatro {
namespace {

std::string Line(std::string_view call) {
    return "12:07 " + LeftAligned(call, 15) + " 59 -0001 59 -0345  3 DL         OZ1AB      SSB   05-09-26";
}

class Worked : public ::testing::Test {
protected:
    void SetUp() override {
        ResetDesk();
        desk().tables.BeginCountries();
        desk().tables.ReadCountry("DL        Fed. Rep. of Germany     EU -1 ");
        desk().tables.ReadCountry("K         United States            NA  5 ");
        desk().tables.BeginPrefixes();
        desk().tables.ReadPrefix("DL        DL        14 28");
        desk().tables.ReadPrefix("K         K         05 08");
        desk().tables.IndexPrefixes();
        desk().stations.Read("OZ1ABC Test, formand");
        desk().giQSOPoint = 77;
    }
    void TearDown() override { ResetDesk(); }
    static bool IsDuplicate(std::string_view call) {
        desk().gsCall = call;
        desk().gbDupe = !desk().gbDupe;
        RecordDuplicate();
        return desk().gbDupe;
    }
};

TEST_F(Worked, CountriesAreCountedUpAndDown) {
    EXPECT_EQ(RecordCountry("DL1ABC", MarkAction::Mark), "DL        ");
    EXPECT_EQ(desk().giMult, 1);
    EXPECT_EQ(RecordCountry("DL2ABC", MarkAction::Mark), "");
    EXPECT_EQ(desk().giMult, 1);
    EXPECT_EQ(RecordCountry("DL2ABC", MarkAction::Unmark), "DL        ");
    EXPECT_EQ(desk().giMult, 0);
    EXPECT_EQ(RecordCountry("DL2ABC", MarkAction::Unmark), "");
    EXPECT_EQ(desk().giMult, 0);
    EXPECT_EQ(RecordCountry("DL2ABC", MarkAction::Test), "DL        ");
    EXPECT_EQ(desk().giMult, 0);
}

TEST_F(Worked, OnlyALookupThatDecidesPointsLeavesThem) {
    RecordCountry("DL1ABC", MarkAction::Mark);
    RecordCountry("XZ9XYZ", MarkAction::Mark);
    RecordStation("DL1ABC", MarkAction::Mark);
    EXPECT_EQ(desk().giQSOPoint, 77);
    for (const MarkAction action : {MarkAction::Mark, MarkAction::Test, MarkAction::Unmark, MarkAction::Unmark}) {
        desk().giQSOPoint = 77;
        RecordCountry("K1ABC", action);
        EXPECT_EQ(desk().giQSOPoint, 6);
    }
    RecordStation("OZ1ABCDE", MarkAction::Test);
    EXPECT_EQ(desk().giQSOPoint, 10);
    RecordPoints("DL1ABC");
    EXPECT_EQ(desk().giQSOPoint, 3);
}

TEST_F(Worked, ACountryIsNeitherShownNorUnknownWhileTheDisplayIsOff) {
    EXPECT_EQ(ShownCountry("DL1ABC").text, "");
    EXPECT_FALSE(ShownCountry("XZ9XYZ").unknown);
    desk().gbVisLand = true;
    EXPECT_EQ(ShownCountry("DL1ABC").text, "DL: Fed. Rep. of Germany (EU), er nyt land.");
    EXPECT_TRUE(ShownCountry("XZ9XYZ").unknown);
}

TEST_F(Worked, TheMarkOfACountryFollowsItsText) {
    desk().gbVisLand = true;
    EXPECT_EQ(MarkOf(ShownCountry("DL1ABC")), PanelMark::NewCountry);
    RecordCountry("DL1ABC", MarkAction::Mark);
    EXPECT_EQ(MarkOf(ShownCountry("DL2ABC")), PanelMark::WorkedCountry);
    EXPECT_EQ(MarkOf(ShownCountry("XZ9XYZ")), PanelMark::Unknown);
    EXPECT_EQ(MarkOf(ShownCountry("X")), PanelMark::None);
    desk().gbVisLand = false;
    EXPECT_EQ(MarkOf(ShownCountry("DL1ABC")), PanelMark::None);
}

TEST_F(Worked, DuplicatesAreSoughtAgainInALogThatHasChanged) {
    Log& log = desk().log;
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
    log.Append(Line("DL1ABC"));
    log.Append(Line("DL2XYZ"));
    EXPECT_FALSE(IsDuplicate("DL3QQQ"));
    log.Append(Line("DL3QQQ"));
    EXPECT_TRUE(IsDuplicate("DL3QQQ"));
    log.Replace(2, Line("DL4QQQ"));
    EXPECT_FALSE(IsDuplicate("DL3QQQ"));
    EXPECT_TRUE(IsDuplicate("DL1ABC"));
    log.Clear();
    EXPECT_FALSE(IsDuplicate("DL1ABC"));
}

TEST_F(Worked, ClearedIsNothing) {
    RecordCountry("DL1ABC", MarkAction::Mark);
    RecordStation("OZ1ABC", MarkAction::Mark);
    ClearWorked();
    EXPECT_EQ(desk().giMult, 0);
    EXPECT_FALSE(desk().countries.Wkd(1));
    EXPECT_FALSE(desk().stations.EDRstn[1].Wkd);
}

}  // namespace
}  // namespace vatro
