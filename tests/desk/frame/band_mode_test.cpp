// SPDX-License-Identifier: MIT
#include "frame/band_mode.h"

#include "entry/next_contact.h"
#include "frame/log_directory.h"
#include "frame/log_file.h"
#include "frame/state.h"

#include "frame/log_file.h"
#include "running_program.h"

namespace vatro {
namespace {

using namespace literals;
using Lines = std::vector<std::string>;

TEST(ChoiceOfWord, KnowsTheFiveBandsAndTheFiveModes) {
    EXPECT_EQ(ChoiceOfWord("10M"), 1);
    EXPECT_EQ(ChoiceOfWord("15M"), 2);
    EXPECT_EQ(ChoiceOfWord("20M"), 3);
    EXPECT_EQ(ChoiceOfWord("40M"), 4);
    EXPECT_EQ(ChoiceOfWord("80M"), 5);
    EXPECT_EQ(ChoiceOfWord("SSB"), 8);
    EXPECT_EQ(ChoiceOfWord("CW"), 9);
    EXPECT_EQ(ChoiceOfWord("PSK31"), 10);
    EXPECT_EQ(ChoiceOfWord("RTTY"), 11);
    EXPECT_EQ(ChoiceOfWord("HELL"), 12);
}

TEST(ChoiceOfWord, IsTheExactWordAndNothingElse) {
    for (const char* word : {"", "XXM", "80m", "80M ", "80", "160M", "FM", "CWX"}) EXPECT_EQ(ChoiceOfWord(word), std::nullopt) << word;
}

class BandMode : public RunningProgram {
protected:
    /// The indices of the ticked menu entries.
    static std::vector<int> Ticked() {
        std::vector<int> ticked;
        for (const MenuItem& item : frmMain->mnuIndstillingerBånd)
            if (item.Ticked()) ticked.push_back(item.Index());
        return ticked;
    }
    static std::vector<int> Pressed() {
        std::vector<int> pressed;
        for (const auto& button : frmMain->toolbar.ToolButtons())
            if (button.pressed) pressed.push_back(button.index);
        return pressed;
    }
};

TEST_F(BandMode, ABandReplacesTheBandAndKeepsTheMode) {
    Start();
    for (const auto& [index, band] : {std::pair{1, "10m"}, {2, "15m"}, {3, "20m"}, {4, "40m"}, {5, "80m"}, {6, "XXm"}}) {
        SetIndstillinger(index);
        EXPECT_EQ(desk().gsBand, band);
        EXPECT_EQ(desk().gsMode, "SSB");
        EXPECT_EQ(desk().gsQsoMode, "SSB");
        EXPECT_EQ(Ticked(), (std::vector<int>{index, 8}));
        EXPECT_FALSE(frmMain->mnuCW.Enabled());
    }
}

TEST_F(BandMode, AModeReplacesTheModeAndTheDigitalOnesCountAsCw) {
    Start();
    for (const auto& [index, mode] : {std::pair{8, "SSB"}, {9, "CW"}, {10, "PSK31"}, {11, "RTTY"}, {12, "HELL"}}) {
        SetIndstillinger(index);
        EXPECT_EQ(desk().gsBand, "80m");
        EXPECT_EQ(desk().gsQsoMode, mode);
        EXPECT_EQ(desk().gsMode, index == 8 ? "SSB" : "CW");
        EXPECT_EQ(Ticked(), (std::vector<int>{5, index}));
        EXPECT_EQ(frmMain->mnuCW.Enabled(), index == 9);
    }
}

TEST_F(BandMode, TheToolbarFollowsBandAndMode) {
    Start();
    desk().gsBand = "15m";
    desk().gsQsoMode = "RTTY";
    SetToolbar();
    EXPECT_EQ(Pressed(), (std::vector<int>{2, 11}));
}

TEST_F(BandMode, TheHiddenBandLeavesTheToolbarAsItIs) {
    Start();
    desk().gsBand = "XXm";
    SetToolbar();
    EXPECT_EQ(Pressed(), (std::vector<int>{5, 8}));
}

TEST_F(BandMode, AChangeLoadsTheLogBeforeItAsks) {
    files.files["LOG\\FD40MSSB.TXT"] = {"10:10 DL1AA           59 -0007 59 -0003  3 DL         OZ1DEF     SSB   05-09-26"};
    Start();
    dialogs.Expect("Fortsætter samme operatør?", Answer::Yes);
    ChangeBandMode(4);
    EXPECT_EQ(desk().log.giQSOnr, 8);
    EXPECT_EQ(dialogs.boxes.back().title, "Bånd/modeskift"_t);
    EXPECT_EQ(dialogs.boxes.back().buttons, Buttons::YesNo);
    EXPECT_EQ(frmMain->operatorBox.Text(), "OZ1DEF");
}

TEST_F(BandMode, NoEmptiesTheOperatorBoxBeforeItTellsWhatToDo) {
    Start();
    dialogs.Expect("Fortsætter samme operatør?", Answer::No);
    dialogs.Expect("Angiv/vælg ny operatør\r\n\r\nTryk derefter Alt+C for at hoppe til Call-felt");
    ChangeBandMode(4);
    EXPECT_EQ(dialogs.boxes.back().title, "Operatør"_t);
    EXPECT_EQ(frmMain->operatorBox.Text(), "");
    EXPECT_EQ(frmMain->operatorBox.ListCount(), 1);
    EXPECT_TRUE(frmMain->operatorBox.HasFocus());
}

TEST_F(BandMode, AnEmptyBandOrModeStopsTheChange) {
    Start();
    desk().gsBand.clear();
    dialogs.Expect("Vælg bånd");
    ChangeBandMode(9);
    EXPECT_EQ(desk().gsMode, "CW");
    desk().gsMode.clear();
    dialogs.Expect("Vælg mode");
    ChangeBandMode(1);
    EXPECT_EQ(desk().gsBand, "10m");
}

TEST_F(BandMode, TheLogDirectoryIsThatOfTheMarkerFile) {
    Start();
    dialogs.chosen = "c:\\felt\\dag\\setlog.txt";
    dialogs.Expect("Logbibliotek sat til: c:\\felt\\dag\\");
    SetLogLib();
    EXPECT_EQ(desk().gsLogLib, "c:\\felt\\dag");
    EXPECT_TRUE(files.files.contains("C:\\FELT\\DAG\\SETLOG.TXT"));
    EXPECT_EQ(dialogs.asked.back().title, "Vælg eller opret logbibliotek"_t);
    EXPECT_EQ(dialogs.asked.back().fileName, "setlog.txt");
    EXPECT_EQ(dialogs.asked.back().filter, "setlog.txt (*.txt)|*.txt");
    EXPECT_EQ(dialogs.asked.back().defaultExtension, "txt");
    EXPECT_TRUE(dialogs.asked.back().overwritePrompt);
    EXPECT_TRUE(dialogs.asked.back().markerFile);
}

TEST_F(BandMode, TheRootOfADriveIsALogDirectoryOfTwoCharacters) {
    Start();
    dialogs.chosen = "C:\\setlog.txt";
    dialogs.Expect("Logbibliotek sat til: C:\\");
    SetLogLib();
    EXPECT_EQ(desk().gsLogLib, "C:");
    EXPECT_EQ(CurrentLogPath(), "C:\\FD80mSSB.txt");
}

TEST_F(BandMode, CancelKeepsTheLogDirectory) {
    Start();
    dialogs.chosen.reset();
    dialogs.Expect("Logbibliotek er beholdt som: log\\");
    SetLogLib();
    EXPECT_EQ(desk().gsLogLib, "log");
}

TEST_F(BandMode, CancelWithoutALogDirectoryEndsTheProgram) {
    settings.texts.erase("SETTINGS/GSLOGLIB");
    dialogs.Expect("Logbibliotek er ikke angivet. Vatro standses.");
    Start();
    EXPECT_TRUE(front.ended);
    EXPECT_FALSE(ProgramRuns());
    EXPECT_EQ(settings.written, Lines{"FDLib"});
}

}  // namespace
}  // namespace vatro
