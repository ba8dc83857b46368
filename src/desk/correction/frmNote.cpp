// SPDX-License-Identifier: MIT
#include "correction/frmNote.h"

#include "entry/frmMain.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

std::string NoteLine() {
    return std::string(kNoteMark) + frmNote->Text1.Text();
}

}  // namespace

FrmNote::FrmNote()
    : Form("frmNote", FormKind::FixedDialog, "Note"),
      Text1(*this, "Text1"),
      Command1(*this, "Command1", "&OK"),
      Command2(*this, "Command2", "&Annuller") {
    constexpr int kLength = 80;
    Text1.SetMaxLength(kLength);
    Command1.isDefault = true;
    Command2.isCancel = true;
    SetTabOrder({&Text1, &Command1, &Command2});
    Command1.Click = [this] { Hide(); };
    Command2.Click = [this] {
        Text1.SetText({});
        Hide();
    };
}

void InsertNote() {
    frmNote->Text1.SelectAll();
    frmNote->ShowModal();
    if (frmNote->Text1.Text().empty()) return;
    LogLine(NoteLine());
}

void CorrectNote() {
    const ListBox& list = frmMain->log;
    frmNote->Text1.SetText(Columns(list.List(list.ListIndex()), kNoteMark.size() + 1));
    frmNote->ShowModal();
    if (!frmNote->Text1.Text().empty()) {
        desk().log.Replace(static_cast<std::size_t>(list.ListIndex()), NoteLine());
        SkrivLog();
    }
    frmMain->fields[1].SetFocus();
}

}  // namespace vatro
