// SPDX-License-Identifier: MIT
#include "keyer/texts.h"

#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "keyer/frmCWTX.h"
#include "keyer/keyer_state.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

/// One column more than the call has, which only a note can fill.
constexpr Felt kCallAndNext{kCall.fra, kCall.bredde + 1};

/// With an empty field and an empty log the values stay those of the last send.
void TakeValues(const FrmMain& main) {
    KeyerState& cw = keyerState();
    if (!main.Text1[kCallFelt].Text().empty()) {
        cw.gsCWCall = main.Text1[kCallFelt].Text();
        cw.gsCWRST = main.Text1[kRstSendtFelt].Text();
        cw.gsCWNummer = main.Text1[kNrSendtFelt].Text();
    } else if (main.List1.ListCount() > 0) {
        const std::string& last = main.List1.Items().back();
        cw.gsCWCall = kCallAndNext.TrimmetAf(last);
        cw.gsCWRST = kRstSendt.TrimmetAf(last);
        cw.gsCWNummer = kNrSendt.TrimmetAf(last);
    }
}

}  // namespace

void SendCW(std::string_view text) {
    FrmMain& main = *frmMain;
    main.SetEnabled(false);
    frmCWTX.Load();
    if (frmCWTX->Ready()) {
        keyerState().gsCWRaa = text;
        TakeValues(main);
        frmCWTX->Show();
        frmCWTX->cmdTX_Click();
    }
    main.SetEnabled(true);
}

void SetCwMenuTekster() {
    for (std::size_t i = 0; i < kCwTextCount; ++i) frmMain->mnuCWTXT[i].SetCaption(keyerState().CWTekster[i]);
}

}  // namespace vatro
