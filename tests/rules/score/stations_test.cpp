// SPDX-License-Identifier: MIT
#include "score/stations.h"
#include "frame/state.h"

#include "frame/station.h"
#include "running_program.h"
#include "score/points.h"

namespace vatro {
namespace {

class Stations : public RunningProgram {
protected:
    void SetUp() override {
        ClearStations();
        desk().gsFDLib = "data";
    }
    void TearDown() override { ClearStations(); }
    void Load(std::vector<std::string> lines) {
        files.files["DATA\\EDR.TXT"] = std::move(lines);
        IndlæsEDR();
    }
    static bool Worked(int row) { return desk().stations.EDRstn[static_cast<std::size_t>(row)].Wkd; }
    /// Points after the call was handled, 3 before.
    static int Handle(std::string call, MarkAction handling) {
        desk().giQSOPoint = 3;
        EDRstnWkd(call, handling);
        return desk().giQSOPoint;
    }
    static std::string Name(std::string_view call) {
        std::string text = "as it was";
        findEDRstn(call, text);
        return text;
    }
};

TEST_F(Stations, AreRecognisedByEveryAction) {
    Load({"OZ1ABC Test, formand"});
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Test), 10);
    EXPECT_FALSE(Worked(1));
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Mark), 10);
    EXPECT_TRUE(Worked(1));
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Test), 10);
    EXPECT_TRUE(Worked(1));
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Unmark), 10);
    EXPECT_FALSE(Worked(1));
}

TEST_F(Stations, NotOnTheListLeaveThePointsAlone) {
    Load({"OZ1ABC Test, formand"});
    EXPECT_EQ(Handle("OZ7XYZ", MarkAction::Mark), 3);
    EXPECT_FALSE(Worked(1));
}

TEST_F(Stations, OfAnEmptyListAreNobody) {
    Load({});
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Mark), 3);
    EXPECT_EQ(Handle("", MarkAction::Mark), 3);
    EXPECT_EQ(Name("OZ1ABC"), "as it was");
}

TEST_F(Stations, AreComparedBySixCharactersToWhichTheCallIsCutOrFilled) {
    Load({"OZ1ABC Test", "OZ1AB", "OZ2AB  Test"});
    std::string call = "OZ1ABCDE";
    EDRstnWkd(call, MarkAction::Mark);
    EXPECT_EQ(call, "OZ1ABC");
    EXPECT_TRUE(Worked(1));
    EXPECT_FALSE(Worked(2));
    call = "OZ1AB";
    EDRstnWkd(call, MarkAction::Mark);
    EXPECT_EQ(call, "OZ1AB ");
    EXPECT_TRUE(Worked(2));
    EXPECT_EQ(Handle("OZ2AB", MarkAction::Mark), 10);
}

TEST_F(Stations, ListedTwiceAreBothMarked) {
    Load({"OZ1ABC Test, formand", "OZ7XYZ Test", "OZ1ABC Aalborg, reserve"});
    Handle("OZ1ABC", MarkAction::Mark);
    EXPECT_TRUE(Worked(1));
    EXPECT_FALSE(Worked(2));
    EXPECT_TRUE(Worked(3));
    EXPECT_EQ(Name("OZ1ABC"), "OZ1ABC Test");
}

TEST_F(Stations, AreNamedUpToTheFirstComma) {
    const std::string longer = "OZ3AB  " + std::string(73, 'x') + "yz, formand";
    Load({"OZ1ABC Aarhus afdeling, formand, reserve", "OZ7XYZ Odense", longer, "OZ2AB, Test"});
    EXPECT_EQ(Name("OZ1ABC"), "OZ1ABC Aarhus afdeling");
    EXPECT_EQ(Name("OZ7XYZ"), "OZ7XYZ Odense" + std::string(67, ' '));
    EXPECT_EQ(Name("OZ3AB"), longer.substr(0, 80));
    EXPECT_EQ(Name("OZ1AB"), "as it was");
    // The comma stands in the call columns here, so the line is nobody's.
    EXPECT_EQ(Name("OZ2AB"), "as it was");
}

TEST_F(Stations, ClearedAreNotWorked) {
    Load({"OZ1ABC", "OZ7XYZ"});
    Handle("OZ1ABC", MarkAction::Mark);
    Handle("OZ7XYZ", MarkAction::Mark);
    ResetEDR();
    EXPECT_FALSE(Worked(1));
    EXPECT_FALSE(Worked(2));
}

TEST_F(Stations, MissingAreTold) {
    files.files.clear();
    dialogs.Expect("Kan ikke finde filen data\\edr.txt");
    IndlæsEDR();
}

TEST_F(Stations, TwoHundredFitAndOneMoreIsToldAndLeavesTheFileOpen) {
    std::vector<std::string> lines;
    for (int i = 0; i < 200; ++i) lines.push_back("OZ" + std::to_string(1000 + i) + " Test");
    Load(lines);
    EXPECT_FALSE(files.IsOpen());
    EXPECT_EQ(Handle("OZ1199", MarkAction::Mark), 10);

    lines.emplace_back("OZ1200 Test");
    dialogs.Expect("Kan ikke finde filen data\\edr.txt");
    Load(lines);
    EXPECT_TRUE(files.IsOpen());
    EXPECT_EQ(Handle("OZ1199", MarkAction::Mark), 10) << "the rows read so far count";
    EXPECT_EQ(Handle("OZ1200", MarkAction::Mark), 3);
}

}  // namespace
}  // namespace vatro
