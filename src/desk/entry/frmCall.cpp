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
      callBox(*this, "cboCall"),
      telephoneLabel(*this, "Label1", "Tlf. nr:"),
      telephone(*this, "Text1"),
      cancelButton(*this, "Command1", "&Annuller"),
      okButton(*this, "Command2", "&OK") {
    telephone.SetMaxLength(8);
    okButton.isDefault = true;
    cancelButton.isCancel = true;
    SetTabOrder({&callBox, &telephone, &okButton, &cancelButton});
    tabSelects = true;
    callBox.KeyFilter = [](KeyCode& key) {
        key = UpperKey(key);
        FilterKey(key, kCallCharacters);
    };
    telephone.KeyFilter = [](KeyCode& key) { FilterKey(key, kDigitCharacters); };
    okButton.Click = [this] {
        desk().gsTelefon = telephone.Text();
        desk().gsMyCall = callBox.Text();
        StoreSetting(setting::kMyCall, desk().gsMyCall);
        Hide();
    };
    cancelButton.Click = [this] {
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
        if (blank != std::string::npos) callBox.AddItem(line.substr(0, blank) + "/P");
    }
    ShowValues();
    files.Close(1);
}

void FrmCall::ShowValues() {
    callBox.SetText(desk().gsMyCall);
    telephone.SetText(desk().gsTelefon);
}

void ChangeContestCall() {
    frmCall->ShowModal();
    frmMain->SetCaption("Vatro " + desk().gsMyCall);
    frmContestCall->visContestCall();
}

}  // namespace vatro
