// SPDX-License-Identifier: MIT
#include "keyer/texts.h"

#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "frame/state.h"
#include "keyer/frmCWTX.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

/// The call field and one more column, which only a note can fill.
constexpr Field kCallAndNext{kCall.from, kCall.width + 1};

/// Sets the values of the contact for a send. If the call field and the log are both empty, the values of the last send are kept.
void TakeValues(const FrmMain& main) {
    KeyerState& cw = desk().cw;
    if (!main.fields[kCallField].Text().empty()) {
        cw.gsCWCall = main.fields[kCallField].Text();
        cw.gsCWRST = main.fields[kReportSentField].Text();
        cw.gsCWNummer = main.fields[kNumberSentField].Text();
    } else if (main.log.ListCount() > 0) {
        const std::string& last = main.log.Items().back();
        cw.gsCWCall = kCallAndNext.TrimmedOf(last);
        cw.gsCWRST = kReportSent.TrimmedOf(last);
        cw.gsCWNummer = kNumberSent.TrimmedOf(last);
    }
}

}  // namespace

void SendCW(std::string_view text) {
    FrmMain& main = *frmMain;
    main.SetEnabled(false);
    frmCWTX.Load();
    if (frmCWTX->Ready()) {
        desk().cw.gsCWRaa = text;
        TakeValues(main);
        frmCWTX->Show();
        frmCWTX->cmdTX_Click();
    }
    main.SetEnabled(true);
}

void SetCwMenuTekster() {
    for (std::size_t i = 0; i < kCwTextCount; ++i) frmMain->mnuCWTXT[i].SetCaption(desk().cw.CWTekster[i]);
}

}  // namespace vatro
