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

struct Valg {
    int index;
    std::string_view navn;
    /// The word of the call field; empty for the hidden band.
    std::string_view ord;
};

constexpr std::array kBånd{Valg{1, "10m", "10M"}, Valg{2, "15m", "15M"}, Valg{3, "20m", "20M"},
                           Valg{4, "40m", "40M"}, Valg{5, "80m", "80M"}, Valg{kBåndXX, "XXm", ""}};
constexpr std::array kModes{Valg{8, "SSB", "SSB"}, Valg{9, "CW", "CW"}, Valg{10, "PSK31", "PSK31"}, Valg{11, "RTTY", "RTTY"},
                            Valg{12, "HELL", "HELL"}};

template <class Liste>
int Find(const Liste& liste, std::string_view Valg::*felt, std::string_view tekst) {
    if (tekst.empty()) return 0;
    for (const Valg& valg : liste)
        if (valg.*felt == tekst) return valg.index;
    return 0;
}

}  // namespace

int BåndIndeks(std::string_view bånd) {
    return Find(kBånd, &Valg::navn, bånd);
}

int ModeIndeks(std::string_view qsoMode) {
    return Find(kModes, &Valg::navn, qsoMode);
}

int Kommando(std::string_view ord) {
    const int bånd = Find(kBånd, &Valg::ord, ord);
    return bånd != 0 ? bånd : Find(kModes, &Valg::ord, ord);
}

void SetIndstillinger(int index) {
    FrmMain& main = *frmMain;
    const bool mode = index > kBåndXX;
    for (MenuItem* punkt : main.BåndPunkter())
        if ((punkt->Index() >= kFørsteMode) == mode) punkt->SetTicked(punkt->Index() == index);

    for (const Valg& valg : kBånd)
        if (valg.index == index) gsBand = valg.navn;
    for (const Valg& valg : kModes) {
        if (valg.index != index) continue;
        gsQsoMode = valg.navn;
        gsMode = gsQsoMode == "SSB" ? "SSB" : "CW";
        main.mnuCW.SetEnabled(gsQsoMode == "CW");
    }
}

void SetToolbar() {
    // The hidden band has no button: the buttons stay as they are.
    if (const int bånd = BåndIndeks(gsBand); bånd != kBåndXX) frmMain->Toolbar1.Press(bånd);
    frmMain->Toolbar1.Press(ModeIndeks(gsQsoMode));
}

void SkiftBåndMode(int index) {
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

    MessageBox spørgsmål;
    spørgsmål.text = "Fortsætter samme operatør?"_t;
    spørgsmål.title = "Bånd/modeskift"_t;
    spørgsmål.buttons = Buttons::YesNo;
    if (MsgBox(spørgsmål) == Answer::Yes) return;

    frmMain->Combo1.SetText({});
    frmMain->Combo1.SetFocus();
    MessageBox vejledning;
    vejledning.text = "Angiv/vælg ny operatør\r\n\r\nTryk derefter Alt+C for at hoppe til Call-felt"_t;
    vejledning.title = "Operatør"_t;
    MsgBox(vejledning);
}

void SetLogLib() {
    Files& filer = platform().files;
    try {
        const std::string fil = VælgMærkefil("setlog.txt", "Vælg eller opret logbibliotek"_t);
        filer.Open(1, fil, FileMode::Output);
        filer.Close(1);
        gsLogLib = BibliotekAf(fil);
        MsgBox("Logbibliotek sat til: " + gsLogLib + filer.Separator());
        IndlæsLogfil();
    } catch (const RunTimeError&) {
        if (gsLogLib.empty()) {
            MsgBox("Logbibliotek er ikke angivet. Vatro standses."_t);
            EndProgram();
        }
        MsgBox("Logbibliotek er beholdt som: " + gsLogLib + filer.Separator());
    }
}

void TjekLogLib() {
    MsgBox(
        "Jeg kan ikke finde Logbiblioteket.\r\n\r\n"
        "Det er enten ikke defineret endnu eller også er det blevet fjernet, døbt om eller flyttet. Vatro standses.\r\n\r\n"
        "Start Vatro igen og angiv logbibliotek ved at vælge 'Filer' | 'Sæt logbibliotek' og log så qso'en igen."_t);
}

void NulstilBåndMode() {
    gsBand.clear();
    gsMode.clear();
    gsQsoMode.clear();
    gsLogLib.clear();
}

}  // namespace vatro
