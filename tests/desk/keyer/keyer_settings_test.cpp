// SPDX-License-Identifier: MIT
#include "keyer/keyer_settings.h"

#include "frame/state.h"
#include "running_program.h"

namespace vatro {
namespace {

using Texts = std::vector<std::string>;

class CWSettings : public RunningProgram {
protected:
    std::vector<std::string> AllTexts() { return {desk().cw.CWTekster.begin(), desk().cw.CWTekster.end()}; }
};

TEST_F(CWSettings, AnEmptyStoreGivesTheDefaults) {
    Start();
    EXPECT_EQ(desk().cw.giCWWPM, 20);
    EXPECT_EQ(desk().cw.giCWTone, 800);
    EXPECT_EQ(desk().cw.glCWVolume, 10000);
    EXPECT_EQ(desk().cw.giCWFarnsworth, 0);
    EXPECT_EQ(desk().cw.gsCWNummerFormat, "001");
    EXPECT_EQ(desk().cw.gsCWRSTFormat, "599");
    EXPECT_EQ(AllTexts(), (Texts{"CQ TEST DE #R #R TEST K", "CL?", "#R", "#C UR #T #N BK", "", "", "", ""}));
}

TEST_F(CWSettings, AreReadAtTheStartAndNothingIsWritten) {
    settings.texts.insert({{"CW/WPM", "32"},
                           {"CW/TONE", "650"},
                           {"CW/VOLUME", "40000"},
                           {"CW/FARNSWORTH", "3"},
                           {"CW/N", "--1"},
                           {"CW/T", "5nn"},
                           {"CW/TEKST1", ""},
                           {"CW/TEKST8", "TU #R"}});
    HentCWIndstillinger();
    EXPECT_EQ(desk().cw.giCWWPM, 32);
    EXPECT_EQ(desk().cw.giCWTone, 650);
    EXPECT_EQ(desk().cw.glCWVolume, 40000);
    EXPECT_EQ(desk().cw.giCWFarnsworth, 3);
    EXPECT_EQ(desk().cw.gsCWNummerFormat, "--1");
    EXPECT_EQ(desk().cw.gsCWRSTFormat, "5nn");
    EXPECT_EQ(desk().cw.CWTekster[0], "");
    EXPECT_EQ(desk().cw.CWTekster[1], "CL?");
    EXPECT_EQ(desk().cw.CWTekster[7], "TU #R");
    EXPECT_EQ(settings.written, Texts{});
}

TEST_F(CWSettings, ExtraSilenceIsCutAtTwentyAndHasNoLowerEnd) {
    const auto read = [this](const char* stored) {
        settings.texts["CW/FARNSWORTH"] = stored;
        HentCWIndstillinger();
        return desk().cw.giCWFarnsworth;
    };
    EXPECT_EQ(read("20"), 20);
    EXPECT_EQ(read("21"), 20);
    EXPECT_EQ(read("-5"), -5);
}

TEST_F(CWSettings, AreWrittenWithAllTheirKeys) {
    HentCWIndstillinger();
    desk().cw.giCWWPM = 26;
    desk().cw.glCWVolume = 70000;
    desk().cw.giCWFarnsworth = -2;
    desk().cw.CWTekster[4] = "QRZ?";
    GemCWIndstillinger();
    EXPECT_EQ(settings.written, (Texts{"WPM", "Tone", "Volume", "Farnsworth", "N", "T", "Tekst1", "Tekst2", "Tekst3", "Tekst4", "Tekst5",
                                       "Tekst6", "Tekst7", "Tekst8"}));
    EXPECT_EQ(settings.texts["CW/WPM"], "26");
    EXPECT_EQ(settings.texts["CW/TONE"], "800");
    EXPECT_EQ(settings.texts["CW/VOLUME"], "70000");
    EXPECT_EQ(settings.texts["CW/FARNSWORTH"], "-2");
    EXPECT_EQ(settings.texts["CW/N"], "001");
    EXPECT_EQ(settings.texts["CW/T"], "599");
    EXPECT_EQ(settings.texts["CW/TEKST4"], "#C UR #T #N BK");
    EXPECT_EQ(settings.texts["CW/TEKST5"], "QRZ?");
    EXPECT_EQ(settings.texts["CW/TEKST8"], "");
}

TEST_F(CWSettings, ATextThatIsNoNumberStopsTheStart) {
    settings.texts["CW/WPM"] = "hurtigt";
    Start();
    EXPECT_EQ(dialogs.failures, std::vector<int>{13});
    EXPECT_FALSE(ProgramRuns());
}

TEST_F(CWSettings, ATooLargeToneStopsTheStart) {
    settings.texts["CW/TONE"] = "32768";
    Start();
    EXPECT_EQ(dialogs.failures, std::vector<int>{6});
}

TEST_F(CWSettings, TheMenuShowsTheTextsAsTheyAre) {
    settings.texts["CW/TEKST5"] = "#C DE #R";
    Start();
    EXPECT_EQ(frmMain->mnuCWTXT[0].Caption(), "CQ TEST DE #R #R TEST K");
    EXPECT_EQ(frmMain->mnuCWTXT[4].Caption(), "#C DE #R");
    EXPECT_EQ(frmMain->mnuCWTXT[7].Caption(), "");
}

}  // namespace
}  // namespace vatro
