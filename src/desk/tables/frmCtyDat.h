// SPDX-License-Identifier: MIT
//
// The progress of the import of a country file, shown over the disabled entry form.
#pragma once

#include <string_view>

#include "forms.h"

namespace vatro {

class FrmCtyDat : public Form {
public:
    FrmCtyDat();
    ProgressBar ProgressBar1;
    /// What is being done; the two others are those of a clock that shows no time.
    StatusBar sbStatusBar;
    Timer Timer1;

    void Form_Load() override;

    /// Tells what is being done, at once.
    void Vis(std::string_view hvad);
    /// Empties the bar; it fills with so many rows.
    void Begynd(int rækker);
    /// Moves the bar to a row. It is painted some hundred times in a run and not for every row.
    void Trin(int række) {
        ProgressBar1.SetValue(række);
        if (række >= næsteBillede_) MalBjælke(række);
    }

private:
    void Timer1_Timer();
    void MalBjælke(int række);

    /// The row at which the bar is painted next.
    int næsteBillede_ = 0;
};

inline FormSlot<FrmCtyDat> frmCtyDat{"frmCtyDat"};

}  // namespace vatro
