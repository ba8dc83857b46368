// SPDX-License-Identifier: MIT
//
// The settings of the keyer and the eight texts, shown modally. OK takes everything over, makes new pieces if the sound has
// changed, and stores it; Annuller keeps nothing.
#pragma once

#include "forms.h"
#include "keyer/keyer_state.h"

namespace vatro {

class FrmCW : public Form {
public:
    FrmCW();
    Frame Frame2;
    Label Label2[kCwTextCount];
    TextBox Text1[kCwTextCount];
    Frame Frame1;
    /// What the #-codes stand for.
    Label Label1[4];
    Frame Frame3;
    Label Label6;
    TextBox txtWPM;
    UpDown UpDown2;
    Label Label7;
    TextBox txtTone;
    UpDown UpDown1;
    Label Label11;
    ScrollBar HScroll1;
    Frame Frame4;
    OptionButton optRST[2];
    Frame Frame5;
    OptionButton optLobenr[2];
    Button cmdReset;
    Button cmdOK;
    Button cmdAnnuller;

    void Form_Load() override;

private:
    void cmdReset_Click();
    /// A speed or pitch beyond 16 bits fails with 6; what DanLydBuffer fails with is not caught either.
    void cmdOK_Click();
};

inline FormSlot<FrmCW> frmCW{"frmCW"};

}  // namespace vatro
