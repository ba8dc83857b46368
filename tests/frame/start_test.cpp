// SPDX-License-Identifier: MIT
#include "frame/start.h"

#include "entry/frmB4.h"
#include "entry/frmContestCall.h"
#include "entry/frmQSOnr.h"
#include "entry/operators.h"
#include "frame/band_mode.h"
#include "frame/frmSplash.h"
#include "frame/station.h"
#include "running_program.h"

namespace vatro {
namespace {

using Lines = std::vector<std::string>;

class ProgramStart : public RunningProgram {};

TEST_F(ProgramStart, TakesTheDefaultsFromAnEmptyStore) {
    settings.texts = {{"SETTINGS/GSLOGLIB", "log"}, {"SETTINGS/VISINFO2002", "False"}};
    Start();
    EXPECT_EQ(gsUTC, "-2");
    EXPECT_EQ(gsMyCall, "");
    EXPECT_EQ(gsFDLib, "data");
    EXPECT_EQ(gsKlasse, "A");
    EXPECT_EQ(gsTelefon, "12345678");
    EXPECT_EQ(gsOperatør.Padded(), "      ");
    EXPECT_EQ(gsBand, "80m");
    EXPECT_EQ(gsMode, "SSB");
    EXPECT_EQ(gsQsoMode, "SSB");
    EXPECT_EQ(gbAutoTid, 1);
    EXPECT_EQ(frmMain->Left(), 1000);
    EXPECT_EQ(frmMain->Top(), 1000);
}

TEST_F(ProgramStart, ReadsTheTablesTheLogAndTheOperatorsInThisOrder) {
    Start();
    Lines opened;
    for (const std::string& step : files.steps)
        if (step.starts_with("open ")) opened.push_back(step.substr(5));
    EXPECT_EQ(opened, (Lines{"DATA\\LANDE.TXT", "DATA\\REFPFX.TXT", "DATA\\EDR.TXT", "LOG\\FD80MSSB.TXT", "DATA\\OPERATOR.TXT"}));
}

TEST_F(ProgramStart, ShowsTheSideWindowsAndPutsTheCursorInTheCallField) {
    Start();
    EXPECT_TRUE(frmB4->Visible());
    EXPECT_TRUE(frmQSOnr->Visible());
    EXPECT_TRUE(frmContestCall->Visible());
    EXPECT_FALSE(frmSplash.Loaded());
    EXPECT_EQ(ActiveForm(), frmMain.Peek());
    EXPECT_TRUE(frmMain->Text1[1].HasFocus());
}

TEST_F(ProgramStart, JoinsTheVersionNumbersByPoints) {
    EXPECT_EQ(VersionTekst(), "1.2.3");
}

TEST_F(ProgramStart, ARegularEndStoresTheSettingsInTheirOrder) {
    Start();
    settings.written.clear();
    Dispatch([] { frmMain->Unload(); });
    EXPECT_TRUE(front.ended);
    Lines general;
    for (const std::string& key : settings.written)
        if (key.find("Left") == std::string::npos && key.find("Top") == std::string::npos && key.find("Width") == std::string::npos &&
            key.find("Height") == std::string::npos)
            general.push_back(key);
    EXPECT_EQ(general, (Lines{"gsKlasse", "gsFDlib", "gsLoglib", "gsBackupLib", "Band", "Mode", "QsoMode", "AutoTid", "VisLand", "MyCall",
                              "UTC", "gsTelefon", "LastOP", "VisInfo2002"}));
    EXPECT_EQ(settings.texts.at("SETTINGS/GSFDLIB"), "data");
    EXPECT_EQ(settings.texts.at("SETTINGS/MAINLEFT"), "1000");
}

TEST_F(ProgramStart, ARegularEndStoresTheSideWindowsBeforeTheMainForm) {
    Start();
    settings.written.clear();
    Dispatch([] { frmMain->Unload(); });
    const auto at = [&](std::string_view key) {
        return std::find(settings.written.begin(), settings.written.end(), key) - settings.written.begin();
    };
    EXPECT_LT(at("CallLeft"), at("QSOLeft"));
    EXPECT_LT(at("QSOLeft"), at("B4Left"));
    EXPECT_LT(at("B4Left"), at("MainLeft"));
    EXPECT_LT(at("MainLeft"), at("gsKlasse"));
}

TEST_F(ProgramStart, AFailureThatNothingCatchesEndsTheProgramWithItsNumber) {
    settings.texts["SETTINGS/AUTOTID"] = "ja";
    Start();
    EXPECT_EQ(dialogs.failures, std::vector<int>{13});
    EXPECT_TRUE(front.ended);
    EXPECT_FALSE(ProgramRuns());
}

}  // namespace
}  // namespace vatro
