// SPDX-License-Identifier: MIT
//
// The order of the prefix table. While the import runs, the Pfx of a row is filled up with a character above all digits
// and letters, so that in ascending order a prefix stands behind all longer ones that begin with it.
//
// Which of several equal rows comes first decides which country wins every lookup, so their order belongs to the result: it
// is the one that this selection sort leaves behind, the last row being the spare one of the swap.
//
//   for each row i from 1 on, among the rows i to n the one with the smallest Pfx is chosen, of equal ones the one that
//   stands last at that moment; if that is not row i itself: spare = row i, row i = chosen row, chosen row = spare
//
// In a full table the spare row holds a prefix, too, which is lost with the first swap. That is meant so.
#pragma once

#include <functional>
#include <span>

#include "country/tables.h"

namespace vatro {

/// Sorts the rows 1 to `count` ascending by Pfx, by character code. Row 0 is left alone; the last row of `rows` is the
/// spare one. `step` runs with the number of each row before the row is settled; the rows move when all are.
/// Takes time in proportion to `count`, but by its square for a full table and for rows that are equal.
void SortPrefixes(std::span<PfxRec> rows, int count, const std::function<void(int)>& step);

}  // namespace vatro
