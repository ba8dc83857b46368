// SPDX-License-Identifier: MIT
#include "entry/frmCall.h"

#include "entry/frmContestCall.h"
#include "entry/frmMain.h"
#include "entry/keys.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "platform.h"

namespace vatro {

FrmCall::FrmCall()
    : Form("frmCall", FormKind::FixedDialog, "Contest Call"),
      cboCall(*this, "cboCall"),
      Label1(*this, "Label1", "Tlf. nr:"),
      Text1(*this, "Text1"),
      Command1(*this, "Command1", "&Annuller"),
      Command2(*this, "Command2", "&OK") {
    Text1.SetMaxLength(8);
    Command2.isDefault = true;
    Command1.isCancel = true;
    SetTabOrder({&cboCall, &Text1, &Command2, &Command1});
    cboCall.KeyFilter = [](KeyCode& key) {
        key = StorTast(key);
        FiltrerTast(key, kCallTegn);
    };
    Text1.KeyFilter = [](KeyCode& key) { FiltrerTast(key, kCifferTegn); };
    Command2.Click = [this] {
        gsTelefon = Text1.Text();
        gsMyCall = cboCall.Text();
        GemTekst(kSettings, "MyCall", gsMyCall);
        Hide();
    };
    Command1.Click = [this] {
        VisVærdier();
        Hide();
    };
}

void FrmCall::Form_Load() {
    Files& filer = platform().files;
    filer.Open(1, Sti(gsFDLib, "edr.txt"), FileMode::Input);
    while (!filer.EndOfFile(1)) {
        const std::string linje = filer.LineInput(1);
        const std::size_t blank = linje.find(' ');
        if (blank != std::string::npos) cboCall.AddItem(linje.substr(0, blank) + "/P");
    }
    VisVærdier();
    filer.Close(1);
}

void FrmCall::VisVærdier() {
    cboCall.SetText(gsMyCall);
    Text1.SetText(gsTelefon);
}

void RetContestCall() {
    frmCall->ShowModal();
    frmMain->SetCaption("Vatro " + gsMyCall);
    frmContestCall->visContestCall();
}

}  // namespace vatro
