// SPDX-License-Identifier: MIT
#include "stations/frmEDR.h"
#include "frame/state.h"

#include "codepage.h"
#include "frame/settings.h"
#include "front.h"
#include "platform.h"
#include "score/stations.h"

namespace vatro {

using namespace literals;

namespace {

/// Height of the button, in twips.
constexpr int kButtonHeight = 495;
constexpr int kColumns = 4;
/// Used only to measure the width of a column: seven characters of a wide call.
constexpr std::string_view kWideCall = "QQ9MMM ";

const Font kWindowFont{"MS Sans Serif", 8.25};

}  // namespace

FrmEDR::FrmEDR() : Form("frmEDR", FormKind::Tool, ""), stations(*this, "List1", {}, kColumns), closeButton(*this, "cmdLuk", "&Luk") {
    SetTabOrder({&stations, &closeButton});
    closeButton.Click = [this] { Unload(); };
}

void FrmEDR::Form_Load() {
    RestorePlace(*this, setting::kEdrPlace);
    Form_Resize();
}

void FrmEDR::StoreState() {
    StorePlace(*this, setting::kEdrPlace);
}

void FrmEDR::Form_Resize() {
    if (kButtonHeight * 3 >= Height()) SetHeight(kButtonHeight * 3);
    const int minimum = static_cast<int>(kColumns * InstalledFront().TextWidth(kWideCall, kWindowFont) * kTwipsPerPoint);
    if (minimum >= Width()) SetWidth(minimum);
}

void VisEDRstns(bool worked) {
    frmEDR->stations.Clear();
    frmEDR->SetCaption(worked ? "Kørte EDR stationer"_t : "Ikke kørte EDR stationer"_t);
    frmEDR->Show();
    for (int i = 1; i <= desk().stations.StationsInUse(); ++i) {
        const EDRRec& station = desk().stations.EDRstn[static_cast<std::size_t>(i)];
        frmEDR->stations.AddItem(station.Wkd == worked ? std::string(station.Linje.Padded().substr(0, kEdrCall)) : "________");
    }
}

}  // namespace vatro
