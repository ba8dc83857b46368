// SPDX-License-Identifier: MIT
//
// The earlier contacts whose call contains what has been typed so far.
#pragma once

#include <string>
#include <vector>

#include "forms.h"

namespace vatro {

class FrmB4 : public Form {
public:
    FrmB4();
    /// Fills the window.
    ListBox earlierContacts;

    /// Shows these contacts in place of those that were shown; see WkdB4.
    void ShowContacts(std::vector<std::string> contacts);

    void Form_Load() override;
    void StoreState() override;
};

inline FormSlot<FrmB4> frmB4{"frmB4"};

}  // namespace vatro
