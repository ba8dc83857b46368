// SPDX-License-Identifier: MIT
#include "correction/frmNote.h"

#include "entry/frmMain.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

std::string NoteLine() {
    return std::string(kNoteMark) + frmNote->note.Text();
}

}  // namespace

FrmNote::FrmNote()
    : Form("frmNote", FormKind::FixedDialog, "Note"),
      note(*this, "Text1"),
      okButton(*this, "Command1", "&OK"),
      cancelButton(*this, "Command2", "&Annuller") {
    constexpr int kLength = 80;
    note.SetMaxLength(kLength);
    okButton.isDefault = true;
    cancelButton.isCancel = true;
    SetTabOrder({&note, &okButton, &cancelButton});
    okButton.Click = [this] { Hide(); };
    cancelButton.Click = [this] {
        note.SetText({});
        Hide();
    };
}

void InsertNote() {
    frmNote->note.SelectAll();
    frmNote->ShowModal();
    if (frmNote->note.Text().empty()) return;
    LogLine(NoteLine());
}

void CorrectNote() {
    const ListBox& list = frmMain->log;
    frmNote->note.SetText(Columns(list.List(list.ListIndex()), kNoteMark.size() + 1));
    frmNote->ShowModal();
    if (!frmNote->note.Text().empty()) {
        desk().log.Replace(static_cast<std::size_t>(list.ListIndex()), NoteLine());
        SkrivLog();
    }
    frmMain->fields[kCallField].SetFocus();
}

}  // namespace vatro
