// SPDX-License-Identifier: MIT
#include "country/prefix_order.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <vector>

namespace vatro {

namespace {

using RowNumber = std::uint16_t;

/// The characters of a row, and its place in the table.
struct SortKey {
    std::array<unsigned char, kPrefixLength> characters{};
    RowNumber place = 0;
};

/// Returns the rows 1 to `count` in ascending order: a stable sort by each character in turn, beginning with the last.
std::vector<SortKey> ByCharacters(std::span<const PfxRec> rows, int count) {
    std::vector<SortKey> keys(static_cast<std::size_t>(count));
    // Bits set where the rows differ at a character position. Most of the last positions hold only filler and are skipped.
    std::array<unsigned char, kPrefixLength> differences{};
    for (std::size_t i = 0; i < keys.size(); ++i) {
        std::ranges::copy(rows[i + 1].Pfx.Padded(), keys[i].characters.begin());
        keys[i].place = static_cast<RowNumber>(i + 1);
        for (std::size_t number = 0; number < kPrefixLength; ++number)
            differences[number] =
                static_cast<unsigned char>(differences[number] | (keys[i].characters[number] ^ keys[0].characters[number]));
    }
    std::vector<SortKey> next(keys.size());
    for (std::size_t number = kPrefixLength; number-- > 0;) {
        if (differences[number] == 0) continue;
        std::array<RowNumber, 256> start{};
        for (const SortKey& key : keys) ++start[key.characters[number]];
        std::exclusive_scan(start.begin(), start.end(), start.begin(), RowNumber{0});
        for (const SortKey& key : keys) next[start[key.characters[number]]++] = key;
        keys.swap(next);
    }
    return keys;
}

/// The selection sort as described in the header, for a full table, where the spare row is itself one of the rows to be sorted.
void SelectionSort(std::span<PfxRec> rows, const std::function<void(int)>& step) {
    PfxRec& reserve = rows.back();
    for (std::size_t i = 1; i < rows.size(); ++i) {
        step(static_cast<int>(i));
        std::size_t chosen = i;
        for (std::size_t j = i + 1; j < rows.size(); ++j)
            if (rows[j].Pfx.Padded() <= rows[chosen].Pfx.Padded()) chosen = j;
        if (chosen == i) continue;
        reserve = rows[i];
        rows[i] = rows[chosen];
        rows[chosen] = reserve;
    }
}

}  // namespace

void SortPrefixes(std::span<PfxRec> rows, int count, const std::function<void(int)>& step) {
    const auto last = static_cast<std::size_t>(count);
    if (last + 1 == rows.size()) return SelectionSort(rows, step);

    std::vector<SortKey> rest = ByCharacters(rows, count);
    // The rows themselves are moved at the end. Until then only numbers are swapped: the place of each row, and the row at each
    // place.
    std::vector<RowNumber> placeOf(last + 1);
    std::iota(placeOf.begin(), placeOf.end(), RowNumber{0});
    std::vector<RowNumber> row = placeOf;
    RowNumber lastSwapped = 0;
    for (std::size_t i = 1; i <= last; ++i) {
        step(static_cast<int>(i));
        // The rows that are left begin at rest[i - 1], the smallest first. Of equal ones, which are rare, the one whose place is last is
        // chosen.
        std::size_t chosen = i - 1;
        for (std::size_t j = i; j < last && rest[j].characters == rest[i - 1].characters; ++j)
            if (placeOf[rest[j].place] > placeOf[rest[chosen].place]) chosen = j;
        std::swap(rest[i - 1].place, rest[chosen].place);
        const RowNumber chosenRow = rest[i - 1].place;
        const RowNumber target = placeOf[chosenRow];
        if (target == i) continue;
        lastSwapped = row[i];
        row[target] = lastSwapped;
        placeOf[lastSwapped] = target;
        row[i] = chosenRow;
    }
    if (lastSwapped == 0) return;

    const std::vector<PfxRec> before(rows.begin(), rows.begin() + count + 1);
    for (std::size_t i = 1; i <= last; ++i) rows[i] = before[row[i]];
    rows.back() = before[lastSwapped];
}

}  // namespace vatro
