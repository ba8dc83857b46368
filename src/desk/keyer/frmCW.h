// SPDX-License-Identifier: MIT
//
// The dialogue for the keyer's settings and the eight texts. OK applies and stores everything, and makes new pieces if the sound has
// changed; Annuller (Cancel) changes nothing. The names of two controls mislead: UpDown2 are the arrows of the first field (speed),
// UpDown1 those of the second (pitch).
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
    /// The labels that explain the #-codes.
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
    /// Fails with 6 if speed or pitch exceeds 16 bits; failures of DanLydBuffer are not caught either.
    void cmdOK_Click();
};

inline FormSlot<FrmCW> frmCW{"frmCW"};

/// What OK does with a changed speed, in words per minute from 6 to 60: makes new pieces and stores the settings. Sound that is playing
/// breaks off, so call this between texts. Failures of DanLydBuffer are not caught.
void ChangeCwSpeed(int wpm);

}  // namespace vatro
