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
    ProgressBar progress;
    /// What is being done; the two others are those of a clock that shows no time.
    StatusBar statusBar;
    Timer minuteTimer;

    void Form_Load() override;

    /// Tells what is being done, at once.
    void ShowStage(std::string_view stage);
    /// Empties the bar; it fills with so many rows.
    void Begin(int rows);
    /// Moves the bar to a row. It is painted some hundred times in a run and not for every row.
    void Advance(int row) {
        progress.SetValue(row);
        if (row >= nextPaint_) PaintBar(row);
    }

private:
    void ShowClock();
    void PaintBar(int row);

    /// The row at which the bar is painted next.
    int nextPaint_ = 0;
};

inline FormSlot<FrmCtyDat> frmCtyDat{"frmCtyDat"};

}  // namespace vatro
