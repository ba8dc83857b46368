// SPDX-License-Identifier: MIT
//
// The tables of the program, loaded behind the splash window at the start. Whatever goes wrong with one of them is told in a box, and
// the program goes on with what was read.
#pragma once

namespace vatro {

/// Fills the countries from lande.txt in gsFDLib.
void IndlæsLande();
/// Fills the prefixes from refpfx.txt.
void IndlæsRefPfx();

/// Fills the society's stations from edr.txt. After a line beyond the table the file stays open under number 1, so that the first log
/// load of the run finds nothing: a list that is too long is a fault that the operators are to see at once.
void IndlæsEDR();

}  // namespace vatro
