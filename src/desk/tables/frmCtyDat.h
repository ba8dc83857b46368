// SPDX-License-Identifier: MIT
//
// The progress window of the import of a country file, shown over the disabled entry form.
#pragma once

#include <string_view>

#include "forms.h"

namespace vatro {

class FrmCtyDat : public Form {
public:
    FrmCtyDat();
    ProgressBar progress;
    /// The first panel shows the current stage. The other two are meant for date and time but never show the present ones.
    StatusBar statusBar;
    Timer minuteTimer;

    void Form_Load() override;

    /// Shows the current stage at once.
    void ShowStage(std::string_view stage);
    /// Empties the bar; it is full at `rows` rows.
    void Begin(int rows);
    /// Moves the bar to a row. The bar is painted about a hundred times in a run, not for every row.
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
