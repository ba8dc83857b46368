// SPDX-License-Identifier: MIT
//
// The small window in which every paper shows its progress. It stays open after a run until the user closes it.
#pragma once

#include "forms.h"

namespace vatro {

class FrmInfo : public Form {
public:
    FrmInfo();
    ListBox steps;
    Button closeButton;
};

inline FormSlot<FrmInfo> frmInfo{"frmInfo"};

}  // namespace vatro
