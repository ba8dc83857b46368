// SPDX-License-Identifier: MIT
#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "entry/validation.h"
#include "frame/state.h"
#include "running_program.h"

namespace vatro {
namespace {

class EntryOfACall : public RunningProgram {
protected:
    EntryOfACall() {
        Start();
        desk().stations.Read("OZ1QAB Aarhus afdeling");
    }
    static void Leave(std::string_view call) {
        frmMain->fields[kCallField].SetFocus();
        frmMain->fields[kCallField].SetText(call);
        frmMain->fields[kReportSentField].SetFocus();
    }
    static PanelMark Mark() { return frmMain->statusBar.Mark(1); }
};

TEST_F(EntryOfACall, MarksANewCountryWhileTheCallIsTyped) {
    frmMain->fields[kCallField].SetFocus();
    frmMain->fields[kCallField].SetText("DL");
    EXPECT_EQ(Mark(), PanelMark::NewCountry);
    frmMain->fields[kCallField].SetText("QQ1A");
    EXPECT_EQ(Mark(), PanelMark::Unknown);
}

TEST_F(EntryOfACall, MarksAStationOfTheSocietyWhenTheCallIsLeft) {
    Leave("OZ1QAB/P");
    EXPECT_TRUE(frmMain->statusBar.Panel(1).starts_with("OZ1QAB Aarhus afdeling"));
    EXPECT_EQ(Mark(), PanelMark::Station);
}

TEST_F(EntryOfACall, MarksADuplicateUntilTheCallIsChanged) {
    desk().log.Append("12:07 DL1ABC          59 -0001 59 -0345  3 DL         OZ1AB      SSB   05-09-26");
    Leave("DL1ABC");
    EXPECT_EQ(frmMain->statusBar.Panel(1), kDupeWarning);
    EXPECT_EQ(Mark(), PanelMark::Duplicate);
    frmMain->fields[kCallField].SetText("DL1AB");
    EXPECT_NE(Mark(), PanelMark::Duplicate);
}

TEST_F(EntryOfACall, LeavesTheTextAndItsMarkWhenTheFieldIsEmptied) {
    Leave("OZ1QAB");
    frmMain->fields[kCallField].SetText("");
    EXPECT_TRUE(frmMain->statusBar.Panel(1).starts_with("OZ1QAB Aarhus afdeling"));
    EXPECT_EQ(Mark(), PanelMark::Station);
}

}  // namespace
}  // namespace vatro
