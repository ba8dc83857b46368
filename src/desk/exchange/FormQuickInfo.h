// SPDX-License-Identifier: MIT
//
// A picture with an overview of the program's functions. A click or Esc hides it.
#pragma once

#include "forms.h"

namespace vatro {

class FormQuickInfo : public Form {
public:
    FormQuickInfo();
    Picture picture;

    void Form_Click() override { Hide(); }
    void Form_KeyPress(KeyCode& KeyAscii) override;
};

inline FormSlot<FormQuickInfo> formQuickInfo{"FormQuickInfo"};

}  // namespace vatro
