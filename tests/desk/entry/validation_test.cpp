// SPDX-License-Identifier: MIT
#include "entry/validation.h"

#include "entry/next_contact.h"
#include "frame/state.h"
#include "log/ten_logs.h"

#include "country/lookup.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "log/duplicates.h"
#include "running_program.h"
#include "score/points.h"

namespace vatro {
namespace {

using namespace literals;
using Lines = std::vector<std::string>;

class Validation : public RunningProgram {
protected:
    void Enter(std::string_view call, std::string_view number) {
        frmMain->fields[kCallField].SetText(call);
        frmMain->fields[kNumberReceivedField].SetText(number);
        ValiderQSO();
    }
};

TEST_F(Validation, TheDefaultReportFollowsTheQsoMode) {
    for (const char* mode : {"CW", "RTTY", "HELL", "PSK31"}) {
        desk().gsQsoMode = mode;
        EXPECT_EQ(StandardRST(desk().gsQsoMode), "599");
    }
    desk().gsQsoMode = "SSB";
    EXPECT_EQ(StandardRST(desk().gsQsoMode), "59");
    desk().gsQsoMode = "FM";
    EXPECT_EQ(StandardRST(desk().gsQsoMode), "");
}

TEST_F(Validation, AnAcceptedContactGoesToFileListAndCounters) {
    Start();
    Enter("DL9XYZ", "345");
    const std::string line = "13:00 DL9XYZ          59 -0001 59 -0345  3 DL         OZ1DEF     SSB   05-09-26";
    EXPECT_EQ(LinesOf("log\\FD80mSSB.txt"), Lines{line});
    EXPECT_EQ(frmMain->log.Items(), Lines{line});
    EXPECT_EQ(frmMain->log.ListIndex(), 0);
    EXPECT_EQ(desk().log.glPoint, 3);
    EXPECT_EQ(desk().giMult, 1);
    EXPECT_EQ(desk().log.giQSOnr, 2);
    EXPECT_EQ(frmMain->statusBar.Panel(2), "3");
    EXPECT_EQ(frmMain->statusBar.Panel(4), "1");
    EXPECT_EQ(frmMain->statusBar.Panel(6), "3");
}

TEST_F(Validation, ASentNumberThatIsNoNumberIsRefused) {
    Start();
    frmMain->fields[kNumberSentField].SetText("12A");
    dialogs.Expect("Sendt rapport skal være numerisk");
    Enter("DL9XYZ", "345");
    EXPECT_TRUE(frmMain->fields[kNumberSentField].HasFocus());
    EXPECT_EQ(frmMain->log.ListCount(), 0);
}

TEST_F(Validation, TheSentReportIsJudgedBeforeTheNumbers) {
    Start();
    frmMain->fields[kReportSentField].SetText("5");
    frmMain->fields[kNumberSentField].SetText("x");
    dialogs.Expect("Modtaget RST skal være på 2 cifre.");
    Enter("DL9XYZ", "");
    EXPECT_TRUE(frmMain->fields[kReportSentField].HasFocus());
}

TEST_F(Validation, TheStationOfTheSocietyLeavesItsCallInSixColumns) {
    Start();
    Enter("OZ1AB/P", "1");
    EXPECT_EQ(desk().gsCall, "OZ1AB ");
}

TEST_F(Validation, ADuplicateGetsNoPointsButItsCountryStaysMarked) {
    files.files["LOG\\FD80MSSB.TXT"] = {"10:10 DL9XYZ          59 -0007 59 -0003  3            OZ1DEF     SSB   05-09-26"};
    Start();
    EXPECT_EQ(desk().giMult, 0);
    Enter("DL9XYZ/P", "1");
    EXPECT_EQ(LinesOf("log\\FD80mSSB.txt").back(), "13:00 DL9XYZ/P        59 -0008 59 -0001  0 -DUPE-     OZ1DEF     SSB   05-09-26");
    EXPECT_TRUE(desk().gbDupe);
    EXPECT_EQ(desk().giQSOPoint, 0);
    EXPECT_EQ(desk().giMult, 1);
    EXPECT_EQ(desk().log.glPoint, 3);
}

TEST_F(Validation, TheUnknownCallIsNotedBeforeTheLogIsWritten) {
    Start();
    files.steps.clear();
    Enter("XZ9XYZ", "1");
    Lines opened;
    for (const std::string& step : files.steps)
        if (step.starts_with("open ")) opened.push_back(step.substr(5));
    EXPECT_EQ(opened, (Lines{"LOG\\UKENDT.TXT", "LOG\\FD80MSSB.TXT"}));
}

TEST_F(Validation, ResetKeepsTimeAndOperatorWithTheClockOff) {
    settings.texts["SETTINGS/AUTOTID"] = "0";
    Start();
    frmMain->fields[kUtcField].SetText("10:15");
    ResetQSO();
    EXPECT_EQ(frmMain->fields[kUtcField].Text(), "10:15");
    EXPECT_TRUE(frmMain->fields[kUtcField].HasFocus());
    EXPECT_EQ(frmMain->fields[kUtcField].SelLength(), 5);
    EXPECT_FALSE(frmMain->minuteTimer.Running());
    EXPECT_EQ(frmMain->operatorBox.Text(), "OZ1DEF");
}

TEST_F(Validation, ResetMovesTheNumberOnAndClearsTheEntry) {
    Start();
    frmMain->fields[kCallField].SetText("DL");
    frmMain->fields[kReportSentField].SetText("11");
    frmMain->fields[kNumberReceivedField].SetText("7");
    frmMain->qsl.SetValue(true);
    desk().log.giQSOnr = 998;
    ResetQSO();
    EXPECT_EQ(desk().log.giQSOnr, 999);
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "");
    EXPECT_EQ(frmMain->fields[kReportSentField].Text(), "59");
    EXPECT_EQ(frmMain->fields[kReportSentField].MaxLength(), 2);
    EXPECT_EQ(frmMain->fields[kNumberSentField].Text(), "0999");
    EXPECT_EQ(frmMain->fields[kReportReceivedField].Text(), "59");
    EXPECT_EQ(frmMain->fields[kNumberReceivedField].Text(), "");
    EXPECT_FALSE(frmMain->qsl.Value());
}

TEST_F(Validation, TheSerialNumberOverflowsAsAFailure) {
    Start();
    desk().log.giQSOnr = 32767;
    EXPECT_THROW(ResetQSO(), RunTimeError);
}

}  // namespace
}  // namespace vatro
