// SPDX-License-Identifier: MIT
//
// The import of a country file, with its questions and progress: turns cty.dat in gsFDLib into the tables and their files lande.txt
// and refpfx.txt.
//
// Failures are not caught: a missing, damaged or too large country file stops the program; the old table files are then unchanged.
#pragma once

namespace vatro {

/// Imports the file and shows the progress in frmCtyDat, which is loaded if it is not yet. The worked marks stay with their row
/// numbers. Fails with 53 if there is no cty.dat, and as CountryImport::Read does.
void ImporterCty();

/// The click of the menu entry: asks, imports, and loads the log again so that the worked marks fit the tables. The log is loaded
/// again even after the answer No.
void ImportCtyFromMenu();

}  // namespace vatro
