// SPDX-License-Identifier: MIT
//
// The society's stations worked, or not worked, in the current log: a snapshot beside the entry.
#pragma once

#include "forms.h"

namespace vatro {

class FrmEDR : public Form {
public:
    FrmEDR();
    ListBox stations;
    Button closeButton;

    void Form_Load() override;
    void StoreState() override;
    void Form_Resize() override;
};

inline FormSlot<FrmEDR> frmEDR{"frmEDR"};

/// Fills and shows the window. Every station keeps its place, so that the lists of worked and of not worked stations can be
/// laid over each other: one that does not belong is a row of underscores.
void VisEDRstns(bool worked);

}  // namespace vatro
