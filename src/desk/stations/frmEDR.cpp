// SPDX-License-Identifier: MIT
#include "stations/frmEDR.h"

#include "codepage.h"
#include "frame/settings.h"
#include "front.h"
#include "platform.h"
#include "score/stations.h"

namespace vatro {

using namespace literals;

namespace {

constexpr Vinduesplads kPlads{"EDR", 2000, 2000, 6000, 6000};
/// Height of the button, in twips.
constexpr int kKnapHøjde = 495;
constexpr int kKolonner = 4;
constexpr int kTwipsPrPunkt = 20;
/// Only a measure of one column: seven characters of a wide call.
constexpr std::string_view kBredtCall = "QQ9MMM ";

const Font kVinduesskrift{"MS Sans Serif", 8.25};

}  // namespace

FrmEDR::FrmEDR() : Form("frmEDR", FormKind::Tool, ""), List1(*this, "List1", {}, kKolonner), cmdLuk(*this, "cmdLuk", "&Luk") {
    SetTabOrder({&List1, &cmdLuk});
    cmdLuk.Click = [this] { Unload(); };
}

void FrmEDR::Form_Load() {
    HentPlads(*this, kPlads);
    Form_Resize();
}

void FrmEDR::StoreState() {
    GemPlads(*this, kPlads);
}

void FrmEDR::Form_Resize() {
    if (kKnapHøjde * 3 >= Height()) SetHeight(kKnapHøjde * 3);
    const int mindst = static_cast<int>(kKolonner * InstalledFront().TextWidth(kBredtCall, kVinduesskrift) * kTwipsPrPunkt);
    if (mindst >= Width()) SetWidth(mindst);
}

void VisEDRstns(bool koert) {
    frmEDR->List1.Clear();
    frmEDR->SetCaption(koert ? "Kørte EDR stationer"_t : "Ikke kørte EDR stationer"_t);
    frmEDR->Show();
    for (int i = 1; i <= EDRIBrug(); ++i) {
        const EDRRec& station = EDRstn[static_cast<std::size_t>(i)];
        frmEDR->List1.AddItem(station.Wkd == koert ? std::string(station.Linje.Padded().substr(0, kEdrCall)) : "________");
    }
}

}  // namespace vatro
