// SPDX-License-Identifier: MIT
#include "entry/frmCall.h"
#include "frame/state.h"

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
        key = UpperKey(key);
        FilterKey(key, kCallCharacters);
    };
    Text1.KeyFilter = [](KeyCode& key) { FilterKey(key, kDigitCharacters); };
    Command2.Click = [this] {
        desk().gsTelefon = Text1.Text();
        desk().gsMyCall = cboCall.Text();
        StoreText(kSettings, "MyCall", desk().gsMyCall);
        Hide();
    };
    Command1.Click = [this] {
        ShowValues();
        Hide();
    };
}

void FrmCall::Form_Load() {
    Files& files = platform().files;
    files.Open(1, PathIn(desk().gsFDLib, "edr.txt"), FileMode::Input);
    while (!files.EndOfFile(1)) {
        const std::string line = files.LineInput(1);
        const std::size_t blank = line.find(' ');
        if (blank != std::string::npos) cboCall.AddItem(line.substr(0, blank) + "/P");
    }
    ShowValues();
    files.Close(1);
}

void FrmCall::ShowValues() {
    cboCall.SetText(desk().gsMyCall);
    Text1.SetText(desk().gsTelefon);
}

void ChangeContestCall() {
    frmCall->ShowModal();
    frmMain->SetCaption("Vatro " + desk().gsMyCall);
    frmContestCall->visContestCall();
}

}  // namespace vatro
