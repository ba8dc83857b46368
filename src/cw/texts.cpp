// SPDX-License-Identifier: MIT
#include "cw/texts.h"

#include <optional>

#include "cw/frmCWTX.h"
#include "cw/settings.h"
#include "cw/synthesis.h"
#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "frame/station.h"
#include "logbook/qso_line.h"
#include "text/codepage.h"
#include "text/columns.h"
#include "text/numbers.h"

namespace vatro {

std::string gsCWRaa;
std::string gsCWCall;
std::string gsCWRST;
std::string gsCWNummer;

namespace {

/// One column more than the call has, which only a note can fill.
constexpr Felt kCallOgEfter{kCall.fra, kCall.bredde + 1};
/// Serial numbers below 1000 are sent with three characters.
constexpr int kFireCifre = 1000;
constexpr std::size_t kTreTegn = 3;

/// What a code stands for; nothing if the letter is none.
std::optional<std::string_view> Værdi(char kode) {
    switch (kode) {
        case 'C':
            return gsCWCall;
        case 'T':
            return gsCWRST;
        case 'N':
            return NumericValue(gsCWNummer) < kFireCifre ? Right(gsCWNummer, kTreTegn) : gsCWNummer;
        case 'R':
            return gsMyCall;
        default:
            return std::nullopt;
    }
}

/// The text with its codes replaced, also those inside a value. A code that stands inside its own value would never come to an
/// end: `åbne` are those whose value this is.
std::string Udvidet(std::string_view tekst, const std::string& åbne = {}) {
    std::string udvidet;
    for (std::size_t i = 0; i < tekst.size(); ++i) {
        if (tekst[i] != '#') {
            udvidet += tekst[i];
            continue;
        }
        if (i + 1 == tekst.size()) break;
        const char kode = tekst[i + 1];
        const auto værdi = Værdi(kode);
        if (!værdi || åbne.find(kode) != std::string::npos) continue;
        udvidet += Udvidet(*værdi, åbne + kode);
        ++i;
    }
    return udvidet;
}

void HentVærdier(const FrmMain& main) {
    if (!main.Text1[kCallFelt].Text().empty()) {
        gsCWCall = main.Text1[kCallFelt].Text();
        gsCWRST = main.Text1[kRstSendtFelt].Text();
        gsCWNummer = main.Text1[kNrSendtFelt].Text();
    } else if (main.List1.ListCount() > 0) {
        const std::string& sidste = main.List1.Items().back();
        gsCWCall = kCallOgEfter.TrimmetAf(sidste);
        gsCWRST = kRstSendt.TrimmetAf(sidste);
        gsCWNummer = kNrSendt.TrimmetAf(sidste);
    }
}

}  // namespace

void DanCWTekst() {
    if (gsCWNummerFormat == kNummerMedT)
        for (std::size_t i = 0; i < gsCWNummer.size() && gsCWNummer[i] == '0'; ++i) gsCWNummer[i] = 'T';
    if (gsCWRSTFormat == kRSTMedN && gsCWRST == "599") gsCWRST = "5NN";
    gsCWTekst = Udvidet(UpperText(gsCWRaa)) + ' ';
}

void SendCW(std::string_view tekst) {
    FrmMain& main = *frmMain;
    main.SetEnabled(false);
    frmCWTX.Load();
    if (frmCWTX->Klar()) {
        gsCWRaa = tekst;
        HentVærdier(main);
        frmCWTX->Show();
        frmCWTX->cmdTX_Click();
    }
    main.SetEnabled(true);
}

void SetCwMenuTekster() {
    for (std::size_t i = 0; i < kAntalCWTekster; ++i) frmMain->mnuCWTXT[i].SetCaption(CWTekster[i]);
}

void NulstilCWTekster() {
    for (std::string* tekst : {&gsCWRaa, &gsCWCall, &gsCWRST, &gsCWNummer}) tekst->clear();
}

}  // namespace vatro
