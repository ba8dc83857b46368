// SPDX-License-Identifier: MIT
//
// The program with empty country tables of its own, in the data directory "data".
#pragma once

#include "country/tables.h"
#include "frame/state.h"
#include "frame/station.h"
#include "program.h"
#include "running_program.h"

namespace vatro {

class CountryProgram : public RunningProgram {
protected:
    void SetUp() override {
        BeginProgram();
        ResetTables();
        desk().gsFDLib = "data";
    }
    void TearDown() override { ResetTables(); }

    static const LandRec& Country(int row) { return desk().tables.Lande[static_cast<std::size_t>(row)]; }
};

}  // namespace vatro
