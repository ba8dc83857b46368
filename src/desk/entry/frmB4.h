// SPDX-License-Identifier: MIT
//
// The window of the earlier contacts whose call contains what has been typed so far.
#pragma once

#include <string>
#include <vector>

#include "forms.h"

namespace vatro {

class FrmB4 : public Form {
public:
    FrmB4();
    /// The list; it fills the window.
    ListBox earlierContacts;

    /// Replaces the contacts shown; see WkdB4.
    void ShowContacts(std::vector<std::string> contacts);

    void Form_Load() override;
    void StoreState() override;
};

inline FormSlot<FrmB4> frmB4{"frmB4"};

}  // namespace vatro
