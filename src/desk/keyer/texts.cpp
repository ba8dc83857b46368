// SPDX-License-Identifier: MIT
#include "keyer/texts.h"

#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "frame/state.h"
#include "keyer/frmCWTX.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

/// One column more than the call has, which only a note can fill.
constexpr Field kCallAndNext{kCall.from, kCall.width + 1};

/// With an empty field and an empty log the values stay those of the last send.
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
