// SPDX-License-Identifier: MIT
//
// The window of the society's stations worked, or not worked, in the current log. It does not follow the log: it shows the state when
// it was opened.
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
    bool EscCloses() const override { return true; }
};

inline FormSlot<FrmEDR> frmEDR{"frmEDR"};

/// Fills and shows the window with the worked or the not worked stations. Every station has the same position in both lists, so that
/// they can be compared; a station that does not belong to the list is shown as a row of underscores.
void VisEDRstns(bool worked);

}  // namespace vatro
