// SPDX-License-Identifier: MIT
//
// The import of a country file: cty.dat in gsFDLib, put there by the operator, becomes the tables of countries and prefixes
// and their files lande.txt and refpfx.txt.
//
// Nothing is caught: a country file that is missing, damaged or too large stops the program, the old files intact. After a
// box has told that there are too many prefixes the program stops all the same; that is meant so.
#pragma once

namespace vatro {

/// Reads cty.dat into the tables, sorts the prefixes, builds gaPfxStart and writes both files, with the progress shown in
/// frmCtyDat, which is loaded. The worked marks stay with the rows they stood in. Fails with 53 without cty.dat, with 62
/// if the file ends in the middle of a country, with 5 on a line that cannot be taken apart, with 6 on a number that is
/// too large, with 9 if there are too many countries or prefixes.
void ImporterCty();

/// The menu entry: asks, imports, and loads the log anew, so that the worked marks fit the tables; the latter after a No, too.
void ImportCtyFromMenu();

}  // namespace vatro
