// SPDX-License-Identifier: MIT
#include "keyer/frmCW.h"
#include "frame/state.h"

#include "desk/keyer/sending_program.h"
#include "exchange/equipment.h"

namespace vatro {
namespace {

using namespace literals;
using Texts = std::vector<std::string>;

class CWWindow : public SendingProgram {
protected:
    void Open() {
        if (!ProgramRuns()) Start();
        Dispatch([] { frmCW->Show(); });
    }
    static void PressOK() {
        Dispatch([] { frmCW->okButton.Press(); });
    }
    static Texts Fields() {
        Texts fields;
        for (const TextBox& field : frmCW->texts) fields.push_back(field.Text());
        return fields;
    }
    /// The key that a field makes of the key pressed.
    static KeyCode Press(KeyCode key) { return frmCW->texts[3].PressKey(key); }
};

TEST_F(CWWindow, ShowsWhatIsStored) {
    settings.texts.insert(
        {{"CW/WPM", "32"}, {"CW/TONE", "650"}, {"CW/VOLUME", "5000"}, {"CW/N", "--1"}, {"CW/T", "599"}, {"CW/TEKST8", "TU"}});
    Open();
    EXPECT_EQ(frmCW->Caption(), "CW indstillinger");
    EXPECT_EQ(frmCW->speed.Text(), "32");
    EXPECT_EQ(frmCW->pitch.Text(), "650");
    EXPECT_EQ(frmCW->volume.Value(), 5000);
    EXPECT_FALSE(frmCW->numberOptions[0].Value());
    EXPECT_TRUE(frmCW->numberOptions[1].Value());
    EXPECT_TRUE(frmCW->reportOptions[0].Value());
    EXPECT_FALSE(frmCW->reportOptions[1].Value());
    EXPECT_EQ(Fields(), (Texts{"CQ TEST DE #R #R TEST K", "CL?", "#R", "#C UR #T #N BK", "", "", "", "TU"}));
}

TEST_F(CWWindow, ShowsAVolumeBeyondTheBarAtItsEnd) {
    settings.texts["CW/VOLUME"] = "20000";
    Open();
    EXPECT_EQ(frmCW->volume.Value(), 10000);
    PressOK();
    EXPECT_EQ(desk().cw.glCWVolume, 10000);
    desk().cw.glCWVolume = -5;
    Open();
    EXPECT_EQ(frmCW->volume.Value(), 0);
}

TEST_F(CWWindow, TheBarHasItsSteps) {
    Open();
    const ScrollBar::Range& limits = frmCW->volume.Limits();
    EXPECT_EQ(limits.min, 0);
    EXPECT_EQ(limits.max, 10000);
    EXPECT_EQ(limits.smallChange, 1);
    EXPECT_EQ(limits.largeChange, 1023);
}

TEST_F(CWWindow, TheArrowsStayInTheirRange) {
    Open();
    const auto up = [](UpDown& arrows, bool which) { Dispatch([&] { arrows.Spin(which); }); };
    up(frmCW->speedArrows, true);
    EXPECT_EQ(frmCW->speed.Text(), "22");
    frmCW->speed.SetText("59");
    up(frmCW->speedArrows, true);
    EXPECT_EQ(frmCW->speed.Text(), "60");
    frmCW->speed.SetText("7");
    up(frmCW->speedArrows, false);
    EXPECT_EQ(frmCW->speed.Text(), "6");
    up(frmCW->pitchArrows, false);
    EXPECT_EQ(frmCW->pitch.Text(), "775");
    frmCW->pitch.SetText("310");
    up(frmCW->pitchArrows, false);
    EXPECT_EQ(frmCW->pitch.Text(), "300");
    frmCW->pitch.SetText("1790");
    up(frmCW->pitchArrows, true);
    EXPECT_EQ(frmCW->pitch.Text(), "1800");
}

TEST_F(CWWindow, ATextTakesOnlySomeCharactersAndInCapitals) {
    Open();
    std::string taken;
    for (KeyCode key = 32; key < 256; ++key) {
        const KeyCode made = Press(key);
        if (made == kNoKey) continue;
        EXPECT_EQ(made, static_cast<unsigned char>(Upper(static_cast<char>(key))));
        if (made == key) taken += static_cast<char>(key);
    }
    EXPECT_EQ(taken, " #(),-./0123456789:=?ABCDEFGHIJKLMNOPQRSTUVWXYZÅÆØ"_t);
    EXPECT_EQ(Press('q'), 'Q');
    EXPECT_EQ(Press(0xF8), 0xD8);    // ø
    EXPECT_EQ(Press(0xE9), kNoKey);  // é
    EXPECT_EQ(Press('+'), kNoKey);
    EXPECT_EQ(Press('<'), kNoKey);
    EXPECT_EQ(Press(kBackspace), kBackspace);
    EXPECT_EQ(frmCW->texts[0].MaxLength(), 0);
    EXPECT_FALSE(frmCW->speed.KeyPress);
}

TEST_F(CWWindow, TheDefaultTextsComeIntoTheFieldsAlone) {
    Open();
    for (TextBox& field : frmCW->texts) field.SetText("X");
    dialogs.Expect("Er du sikker på at du vil ændre teksterne?", Answer::Yes);
    Dispatch([] { frmCW->resetButton.Press(); });
    EXPECT_EQ(dialogs.boxes.back().title, "Default tekster");
    EXPECT_EQ(dialogs.boxes.back().buttons, Buttons::YesNo);
    EXPECT_EQ(dialogs.boxes.back().icon, Icon::Question);
    EXPECT_TRUE(dialogs.boxes.back().defaultNo);
    EXPECT_EQ(Fields(), (Texts{"CQ TEST DE #R #R TEST K", "CL?", "#R", "#C UR #T #N BK", "TU #R", "#C?", "", ""}));
    EXPECT_EQ(desk().cw.CWTekster[4], "");
    PressOK();
    EXPECT_EQ(desk().cw.CWTekster[4], "TU #R");
}

TEST_F(CWWindow, ANoKeepsTheFields) {
    Open();
    frmCW->texts[0].SetText("X");
    dialogs.Expect("Er du sikker på at du vil ændre teksterne?", Answer::No);
    Dispatch([] { frmCW->resetButton.Press(); });
    EXPECT_EQ(frmCW->texts[0].Text(), "X");
}

TEST_F(CWWindow, OKTakesEverythingOverAndStoresItWithTheEquipment) {
    desk().rigs[0] = "";
    Open();
    desk().rigs[2] = "Homebrew";
    frmCW->texts[0].SetText("TEST #R");
    frmCW->texts[6].SetText("AGN?");
    frmCW->speed.SetText("26");
    frmCW->pitch.SetText("700");
    frmCW->volume.SetValue(8000);
    frmCW->reportOptions[1].SetValue(true);
    frmCW->numberOptions[1].SetValue(true);
    settings.written.clear();
    PressOK();
    EXPECT_EQ(desk().cw.giCWWPM, 26);
    EXPECT_EQ(desk().cw.giCWTone, 700);
    EXPECT_EQ(desk().cw.glCWVolume, 8000);
    EXPECT_EQ(desk().cw.gsCWRSTFormat, "5nn");
    EXPECT_EQ(desk().cw.gsCWNummerFormat, "--1");
    EXPECT_EQ(desk().cw.CWTekster[0], "TEST #R");
    EXPECT_EQ(desk().cw.CWTekster[6], "AGN?");
    EXPECT_EQ(frmMain->mnuCWTXT[0].Caption(), "TEST #R");
    EXPECT_EQ(frmMain->mnuCWTXT[6].Caption(), "AGN?");
    // The settings of the keyer are written first, then those of the equipment.
    ASSERT_EQ(settings.written.size(), 24U);
    EXPECT_EQ(settings.written[0], "WPM");
    EXPECT_EQ(settings.written[13], "Tekst8");
    EXPECT_EQ(settings.written[14], "Rig80");
    EXPECT_EQ(settings.written[23], "Ant10");
    EXPECT_EQ(settings.texts["CW/WPM"], "26");
    EXPECT_EQ(settings.texts["CW/T"], "5nn");
    EXPECT_EQ(settings.texts["EQUIPMENT/RIG20"], "Homebrew");
    EXPECT_FALSE(frmCW.Loaded());
    EXPECT_EQ(sound.buffer, nullptr);
}

TEST_F(CWWindow, OKGivesTheLongFormsBack) {
    settings.texts.insert({{"CW/N", "--1"}, {"CW/T", "5nn"}});
    Open();
    frmCW->reportOptions[0].SetValue(true);
    frmCW->numberOptions[0].SetValue(true);
    PressOK();
    EXPECT_EQ(desk().cw.gsCWRSTFormat, "599");
    EXPECT_EQ(desk().cw.gsCWNummerFormat, "001");
}

TEST_F(CWWindow, CancelKeepsNothing) {
    Open();
    frmCW->texts[0].SetText("X");
    frmCW->speed.SetText("40");
    frmCW->reportOptions[1].SetValue(true);
    settings.written.clear();
    Dispatch([] { frmCW->UserDefaultKey(kEsc); });
    EXPECT_FALSE(frmCW.Loaded());
    EXPECT_EQ(desk().cw.giCWWPM, 20);
    EXPECT_EQ(desk().cw.gsCWRSTFormat, "599");
    EXPECT_EQ(desk().cw.CWTekster[0], "CQ TEST DE #R #R TEST K");
    EXPECT_EQ(settings.written, Texts{});
    Open();
    EXPECT_EQ(frmCW->texts[0].Text(), "CQ TEST DE #R #R TEST K");
}

TEST_F(CWWindow, EnterIsOK) {
    Open();
    frmCW->texts[0].SetText("X");
    Dispatch([] { frmCW->UserDefaultKey(kEnter); });
    EXPECT_EQ(desk().cw.CWTekster[0], "X");
}

TEST_F(CWWindow, TheNumberInFrontOfATextCounts) {
    Open();
    frmCW->speed.SetText(" 25 wpm");
    frmCW->pitch.SetText("612.5");
    PressOK();
    EXPECT_EQ(desk().cw.giCWWPM, 25);
    EXPECT_EQ(desk().cw.giCWTone, 612);
    // The text differs from the stored 612, so all three values are taken over again, and the pitch is rounded to an even
    // number.
    Open();
    frmCW->pitch.SetText("613.5");
    PressOK();
    EXPECT_EQ(desk().cw.giCWTone, 614);
}

TEST_F(CWWindow, NewSoundMakesNewPieces) {
    Start();
    SendText("E");
    PlayOut();
    Open();
    frmCW->speed.SetText("40");
    PressOK();
    EXPECT_EQ(CurrentPieces().Priklen, 1323);
    EXPECT_EQ(CurrentPieces().CWPrik.size(), 1324U);
    Open();
    frmCW->pitch.SetText("400");
    PressOK();
    // sin(2 pi 400 / 44100) is 0.05696.
    EXPECT_EQ(CurrentPieces().CWStreg[1], -570);
    Open();
    frmCW->volume.SetValue(1000);
    PressOK();
    EXPECT_EQ(CurrentPieces().CWStreg[1], -57);
    EXPECT_TRUE(frmCWTX->Ready());
}

TEST_F(CWWindow, AVolumeThatWasTooLoudCanBeTurnedDown) {
    settings.texts["CW/VOLUME"] = "40000";
    Start();
    dialogs.Expect("Lydkort findes ikke.");
    SendText("E");
    Open();
    PressOK();
    EXPECT_EQ(desk().cw.glCWVolume, 10000);
    SendText("E");
    EXPECT_TRUE(frmCWTX->Visible());
    EXPECT_EQ(sound.calls.back(), "play");
}

TEST_F(CWWindow, NewTextsLeaveTheBufferAlone) {
    Start();
    SendText("PARIS");
    sound.calls.clear();
    const FakeSound::Buffer* const buffer = sound.buffer;
    Open();
    frmCW->texts[1].SetText("QRZ?");
    frmCW->reportOptions[1].SetValue(true);
    PressOK();
    EXPECT_EQ(sound.buffer, buffer);
    EXPECT_TRUE(Playing() || sound.calls.empty());
    Pass(0);
    EXPECT_EQ(sound.calls, (Texts{"write 0 22050"}));
}

TEST_F(CWWindow, SpeedNoughtStopsAProgramThatHasSent) {
    Start();
    SendText("E");
    PlayOut();
    settings.written.clear();
    Open();
    frmCW->speed.SetText("");
    PressOK();
    EXPECT_EQ(dialogs.failures, std::vector<int>{11});
    EXPECT_FALSE(ProgramRuns());
    // Nothing of this is stored.
    EXPECT_EQ(settings.written, Texts{});
}

TEST_F(CWWindow, SpeedNoughtIsStoredByAProgramThatHasNotSent) {
    Open();
    frmCW->speed.SetText("0");
    PressOK();
    EXPECT_EQ(settings.texts["CW/WPM"], "0");
    dialogs.Expect("Lydkort findes ikke.");
    SendText("E");
    EXPECT_TRUE(ProgramRuns());
}

TEST_F(CWWindow, ASpeedOrPitchBeyondSixteenBitsStopsTheProgram) {
    Open();
    frmCW->pitch.SetText("32768");
    PressOK();
    EXPECT_EQ(dialogs.failures, std::vector<int>{6});
    EXPECT_FALSE(ProgramRuns());
}

TEST_F(CWWindow, ItsAccessKeysLeadToItsFields) {
    Open();
    const auto after = [](char letter) {
        Dispatch([&] { frmCW->UserAccessKey(letter); });
        return frmCW->ActiveControl();
    };
    EXPECT_EQ(after('8'), &frmCW->texts[3]);
    EXPECT_EQ(after('W'), &frmCW->speed);
    EXPECT_EQ(after('T'), &frmCW->pitch);
    EXPECT_EQ(after('C'), &frmCW->speed);
    EXPECT_EQ(after('R'), &frmCW->reportOptions[0]);
    EXPECT_EQ(after('N'), &frmCW->reportOptions[1]);
    EXPECT_TRUE(frmCW->reportOptions[1].Value());
    EXPECT_EQ(after('-'), &frmCW->numberOptions[1]);
    EXPECT_EQ(after('0'), &frmCW->numberOptions[0]);
}

}  // namespace
}  // namespace vatro
