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
    Frame textsFrame;
    Label textLabels[kCwTextCount];
    TextBox texts[kCwTextCount];
    Frame codesFrame;
    /// What the #-codes stand for.
    Label codeLabels[4];
    Frame soundFrame;
    Label speedLabel;
    TextBox speed;
    UpDown speedArrows;
    Label pitchLabel;
    TextBox pitch;
    UpDown pitchArrows;
    Label volumeLabel;
    ScrollBar volume;
    Frame reportFrame;
    OptionButton reportOptions[2];
    Frame numberFrame;
    OptionButton numberOptions[2];
    Button resetButton;
    Button okButton;
    Button cancelButton;

    void Form_Load() override;

private:
    void cmdReset_Click();
    /// A speed or pitch beyond 16 bits fails with 6; what DanLydBuffer fails with is not caught either.
    void cmdOK_Click();
};

inline FormSlot<FrmCW> frmCW{"frmCW"};

}  // namespace vatro
