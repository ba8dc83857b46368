// SPDX-License-Identifier: MIT
#include "frame/start.h"

#include "frame/state.h"
#include "frame/version.h"

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
    EXPECT_EQ(desk().gsUTC, "-2");
    EXPECT_EQ(desk().gsMyCall, "");
    EXPECT_EQ(desk().gsFDLib, "data");
    EXPECT_EQ(desk().gsKlasse, "A");
    EXPECT_EQ(desk().gsTelefon, "12345678");
    EXPECT_EQ(desk().gsOperatør.Padded(), "      ");
    EXPECT_EQ(desk().gsBand, "80m");
    EXPECT_EQ(desk().gsMode, "SSB");
    EXPECT_EQ(desk().gsQsoMode, "SSB");
    EXPECT_EQ(desk().gbAutoTid, 1);
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
    EXPECT_TRUE(frmMain->fields[kCallField].HasFocus());
}

TEST_F(ProgramStart, JoinsTheVersionNumbersByPoints) {
    EXPECT_EQ(VersionText(), "1.2.3");
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

TEST_F(ProgramStart, ARegularEndStoresInOneBatch) {
    Start();
    settings.written.clear();
    settings.writtenAlone = 0;
    Dispatch([] { frmMain->Unload(); });
    EXPECT_GT(settings.written.size(), 25U);
    EXPECT_EQ(settings.writtenAlone, 0);
}

TEST_F(ProgramStart, AnEndWithoutHandlersStoresWhatARegularOneStores) {
    Start();
    Dispatch([] { frmMain->mnuFunktionerStregP.Click(); });
    desk().gsBand = "20m";
    frmB4->MoveTo(3000, 4500);
    frmMain->operatorBox.AddItem("OZ7QQ");
    const auto before = settings.texts;
    settings.written.clear();
    settings.writtenAlone = 0;
    StoreRunningProgram();
    const Lines written = settings.written;
    const auto stored = std::exchange(settings.texts, before);
    const Lines operators = std::exchange(files.files["DATA\\OPERATOR.TXT"], {});
    EXPECT_EQ(settings.writtenAlone, 0);
    EXPECT_EQ(stored.at("SETTINGS/BAND"), "20m");
    EXPECT_EQ(stored.at("SETTINGS/B4LEFT"), "3000");
    EXPECT_TRUE(stored.contains("SETTINGS/STREGPLEFT"));

    settings.written.clear();
    Dispatch([] { frmMain->Unload(); });
    EXPECT_EQ(written, settings.written);
    EXPECT_EQ(stored, settings.texts);
    EXPECT_EQ(operators, files.files["DATA\\OPERATOR.TXT"]);
}

TEST_F(ProgramStart, AnEndWithoutHandlersStoresTheSettingsWhereTheOperatorsCannotBe) {
    Start();
    desk().gsBand = "20m";
    // A handler has opened the file and is waiting.
    files.Open(1, "data\\lande.txt", FileMode::Input);
    StoreRunningProgram();
    EXPECT_EQ(settings.texts.at("SETTINGS/BAND"), "20m");
    EXPECT_EQ(LinesOf("data\\operator.txt"), Lines{"OZ1DEF"});
    EXPECT_TRUE(files.IsOpen());
}

TEST_F(ProgramStart, NothingIsStoredBeforeTheMainFormIsUp) {
    StoreRunningProgram();
    EXPECT_EQ(settings.written, Lines{});
    settings.texts.erase("SETTINGS/GSLOGLIB");
    struct Asked : public FakeDialogs {
        std::string SaveFile(const FileDialog& dialog) override {
            StoreRunningProgram();
            return FakeDialogs::SaveFile(dialog);
        }
    } asked;
    asked.Expect("Logbibliotek er ikke angivet. Vatro standses.");
    InstallPlatform(front, {asked, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
    Start();
    EXPECT_EQ(settings.written, Lines{"FDLib"});
    InstallPlatform(front, {dialogs, settings, files, clock, help, instance, sound, printer, {1, 2, 3}});
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
