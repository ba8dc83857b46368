// SPDX-License-Identifier: MIT
#include "entry/frmB4.h"

#include "frame/settings.h"

namespace vatro {

namespace {

constexpr WindowPlace kPlace{"B4", 2000, 2000, 6000, 6000};

}  // namespace

// The caption is the column head of the list, blanks and all.
FrmB4::FrmB4()
    : Form("frmB4", FormKind::Tool, "Call check                         QSOnr/modt.     UTC"), List1(*this, "List1", {"Fixedsys", 9}) {
    SetTabOrder({&List1});
}

void FrmB4::ShowContacts(std::vector<std::string> contacts) {
    const ListBox::Filling filling(List1);
    List1.Clear();
    for (std::string& contact : contacts) List1.AddItem(std::move(contact));
}

void FrmB4::Form_Load() {
    RestorePlace(*this, kPlace);
}

void FrmB4::StoreState() {
    StorePlace(*this, kPlace);
}

}  // namespace vatro
