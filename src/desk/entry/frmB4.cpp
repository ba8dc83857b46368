// SPDX-License-Identifier: MIT
#include "entry/frmB4.h"

#include "frame/settings.h"

namespace vatro {

// The caption is also the column heading of the list, so its blanks align it with the columns.
FrmB4::FrmB4()
    : Form("frmB4", FormKind::Tool, "Call check                         QSOnr/modt.     UTC"),
      earlierContacts(*this, "List1", {"Fixedsys", 9}) {
    SetTabOrder({&earlierContacts});
    onlyShows = true;
}

void FrmB4::ShowContacts(std::vector<std::string> contacts) {
    const ListBox::Filling filling(earlierContacts);
    earlierContacts.Clear();
    for (std::string& contact : contacts) earlierContacts.AddItem(std::move(contact));
}

void FrmB4::Form_Load() {
    RestorePlace(*this, setting::kB4Place);
}

void FrmB4::StoreState() {
    StorePlace(*this, setting::kB4Place);
}

}  // namespace vatro
