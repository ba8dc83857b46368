// SPDX-License-Identifier: MIT
//
// The import of a country file as the operator sees it: cty.dat in gsFDLib becomes the tables and their files lande.txt and refpfx.txt.
//
// Nothing is caught: a country file that is missing, damaged or too large stops the program, the old files intact.
#pragma once

namespace vatro {

/// Imports the file, with the progress shown in frmCtyDat, which is loaded. The worked marks stay with the rows they stood in. Fails with
/// 53 without cty.dat, and as CountryImport::Read does.
void ImporterCty();

/// The menu entry: asks, imports, and loads the log anew, so that the worked marks fit the tables; the latter after a No, too.
void ImportCtyFromMenu();

}  // namespace vatro
