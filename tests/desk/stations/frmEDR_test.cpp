// SPDX-License-Identifier: MIT
#include "stations/frmEDR.h"

#include "frame/state.h"
#include "running_program.h"
#include "score/stations.h"

namespace vatro {
namespace {

class StationWindow : public RunningProgram {
protected:
    using Texts = std::vector<std::string>;
    void SetUp() override {
        files.files["DATA\\EDR.TXT"] = {"OZ1ABC Test, formand", "OZ7XY", "OZ9ABC Test"};
        Start();
        Mark("OZ7XY", MarkAction::Mark);
    }
    static void Mark(std::string call, MarkAction action) { desk().stations.EDRstnWkd(call, action); }
};

TEST_F(StationWindow, KeepsThePlaceOfEveryStation) {
    VisEDRstns(true);
    EXPECT_EQ(frmEDR->stations.Items(), (Texts{"________", "OZ7XY ", "________"}));
    VisEDRstns(false);
    EXPECT_EQ(frmEDR->stations.Items(), (Texts{"OZ1ABC", "________", "OZ9ABC"}));
}

TEST_F(StationWindow, SaysWhichStationsItShows) {
    VisEDRstns(true);
    EXPECT_EQ(ToUtf8(frmEDR->Caption()), "Kørte EDR stationer");
    VisEDRstns(false);
    EXPECT_EQ(ToUtf8(frmEDR->Caption()), "Ikke kørte EDR stationer");
    EXPECT_FALSE(frmEDR->Modal());
    EXPECT_EQ(frmEDR->stations.ColumnCount(), 4);
}

TEST_F(StationWindow, KeepsItsContentsWhenAMarkIsTakenAway) {
    VisEDRstns(false);
    Mark("OZ7XY", MarkAction::Unmark);
    EXPECT_EQ(frmEDR->stations.Items(), (Texts{"OZ1ABC", "________", "OZ9ABC"}));
    VisEDRstns(false);
    EXPECT_EQ(frmEDR->stations.Items(), (Texts{"OZ1ABC", "OZ7XY ", "OZ9ABC"}));
}

TEST_F(StationWindow, GrowsToASmallestSizeAndNoFurther) {
    VisEDRstns(true);
    frmEDR->UserPlaced(100, 100, 10, 10);
    const int width = frmEDR->Width();
    const int height = frmEDR->Height();
    EXPECT_GT(width, 10);
    EXPECT_GT(height, 10);
    frmEDR->UserPlaced(100, 100, width - 1, height - 1);
    EXPECT_EQ(frmEDR->Width(), width);
    EXPECT_EQ(frmEDR->Height(), height);
    frmEDR->UserPlaced(100, 100, width + 1, height + 1);
    EXPECT_EQ(frmEDR->Width(), width + 1);
    EXPECT_EQ(frmEDR->Height(), height + 1);
}

TEST_F(StationWindow, LeavesItsStoredPlaceAloneWhileMinimised) {
    VisEDRstns(true);
    frmEDR->UserPlaced(100, 200, 7000, 8000);
    frmEDR->closeButton.Press();
    EXPECT_FALSE(frmEDR.Loaded());
    EXPECT_EQ(settings.texts["SETTINGS/EDRLEFT"], "100");
    EXPECT_EQ(settings.texts["SETTINGS/EDRHEIGHT"], "8000");
    VisEDRstns(true);
    frmEDR->UserState(WindowState::Minimised);
    frmEDR->UserPlaced(300, 300, 9000, 9000);
    frmEDR->Unload();
    EXPECT_EQ(settings.texts["SETTINGS/EDRLEFT"], "100");
    EXPECT_EQ(settings.texts["SETTINGS/EDRHEIGHT"], "8000");
}

}  // namespace
}  // namespace vatro
