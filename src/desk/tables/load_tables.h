// SPDX-License-Identifier: MIT
//
// Loads the tables of the program at the start, while the splash window is shown. Any failure is shown in a box, and the program
// continues with the rows read so far.
#pragma once

namespace vatro {

/// Loads the countries from lande.txt in gsFDLib.
void IndlæsLande();
/// Loads the prefixes from refpfx.txt in gsFDLib.
void IndlæsRefPfx();

/// Loads the society's stations from edr.txt in gsFDLib. If a failure ends the load, for example because the file has more lines than the
/// table has rows, the file stays open under number 1, so the first load of a log in this run finds nothing. Keep this: operators notice
/// at once that the list is too long.
void IndlæsEDR();

}  // namespace vatro
