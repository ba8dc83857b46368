// SPDX-License-Identifier: MIT
#include "frame/band_mode.h"

#include <array>

#include "codepage.h"
#include "entry/frmMain.h"
#include "entry/validation.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "platform.h"
#include "program.h"

namespace vatro {

using namespace literals;

std::string gsBand;
std::string gsMode;
std::string gsQsoMode;
std::string gsLogLib;

namespace {

struct Choice {
    int index;
    std::string_view name;
    /// The word of the call field; empty for the hidden band.
    std::string_view word;
};

constexpr std::array kBands{Choice{1, "10m", "10M"}, Choice{2, "15m", "15M"}, Choice{3, "20m", "20M"},
                            Choice{4, "40m", "40M"}, Choice{5, "80m", "80M"}, Choice{kHiddenBand, "XXm", ""}};
constexpr std::array kModes{Choice{8, "SSB", "SSB"}, Choice{9, "CW", "CW"}, Choice{10, "PSK31", "PSK31"}, Choice{11, "RTTY", "RTTY"},
                            Choice{12, "HELL", "HELL"}};

template <class Choices>
int Find(const Choices& list, std::string_view Choice::*field, std::string_view text) {
    if (text.empty()) return 0;
    for (const Choice& choice : list)
        if (choice.*field == text) return choice.index;
    return 0;
}

}  // namespace

int BandIndex(std::string_view band) {
    return Find(kBands, &Choice::name, band);
}

int ModeIndex(std::string_view qsoMode) {
    return Find(kModes, &Choice::name, qsoMode);
}

int ChoiceOfWord(std::string_view word) {
    const int band = Find(kBands, &Choice::word, word);
    return band != 0 ? band : Find(kModes, &Choice::word, word);
}

void SetIndstillinger(int index) {
    FrmMain& main = *frmMain;
    const bool mode = index > kHiddenBand;
    for (MenuItem* entry : main.BandEntries())
        if ((entry->Index() >= kFirstMode) == mode) entry->SetTicked(entry->Index() == index);

    for (const Choice& choice : kBands)
        if (choice.index == index) gsBand = choice.name;
    for (const Choice& choice : kModes) {
        if (choice.index != index) continue;
        gsQsoMode = choice.name;
        gsMode = gsQsoMode == "SSB" ? "SSB" : "CW";
        main.mnuCW.SetEnabled(gsQsoMode == "CW");
    }
}

void SetToolbar() {
    // The hidden band has no button: the buttons stay as they are.
    if (const int band = BandIndex(gsBand); band != kHiddenBand) frmMain->Toolbar1.Press(band);
    frmMain->Toolbar1.Press(ModeIndex(gsQsoMode));
}

void ChangeBandMode(int index) {
    SetIndstillinger(index);
    if (gsBand.empty()) {
        MsgBox("Vælg bånd"_t);
        return;
    }
    if (gsMode.empty()) {
        MsgBox("Vælg mode"_t);
        return;
    }
    SetToolbar();
    IndlæsLogfil();
    ResetQSO();

    MessageBox question;
    question.text = "Fortsætter samme operatør?"_t;
    question.title = "Bånd/modeskift"_t;
    question.buttons = Buttons::YesNo;
    if (MsgBox(question) == Answer::Yes) return;

    frmMain->Combo1.SetText({});
    frmMain->Combo1.SetFocus();
    MessageBox instruction;
    instruction.text = "Angiv/vælg ny operatør\r\n\r\nTryk derefter Alt+C for at hoppe til Call-felt"_t;
    instruction.title = "Operatør"_t;
    MsgBox(instruction);
}

void SetLogLib() {
    Files& files = platform().files;
    try {
        const std::string file = ChooseMarkerFile("setlog.txt", "Vælg eller opret logbibliotek"_t);
        files.Open(1, file, FileMode::Output);
        files.Close(1);
        gsLogLib = DirectoryOf(file);
        MsgBox("Logbibliotek sat til: " + gsLogLib + files.Separator());
        IndlæsLogfil();
    } catch (const RunTimeError&) {
        if (gsLogLib.empty()) {
            MsgBox("Logbibliotek er ikke angivet. Vatro standses."_t);
            EndProgram();
        }
        MsgBox("Logbibliotek er beholdt som: " + gsLogLib + files.Separator());
    }
}

void TjekLogLib() {
    MsgBox(
        "Jeg kan ikke finde Logbiblioteket.\r\n\r\n"
        "Det er enten ikke defineret endnu eller også er det blevet fjernet, døbt om eller flyttet. Vatro standses.\r\n\r\n"
        "Start Vatro igen og angiv logbibliotek ved at vælge 'Filer' | 'Sæt logbibliotek' og log så qso'en igen."_t);
}

void ResetBandMode() {
    gsBand.clear();
    gsMode.clear();
    gsQsoMode.clear();
    gsLogLib.clear();
}

}  // namespace vatro
