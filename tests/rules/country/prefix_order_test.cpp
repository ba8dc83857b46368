// SPDX-License-Identifier: MIT
#include "country/prefix_order.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace vatro {
namespace {

using Rows = std::vector<PfxRec>;

/// Rows 1 to n with these keys; each row has its number as its country. Then `spare` more rows.
Rows Table(const std::vector<std::string>& keys, std::size_t spare = 1) {
    Rows rows(keys.size() + 1 + spare);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        rows[i + 1].Pfx = keys[i];
        rows[i + 1].Land = std::to_string(i + 1);
    }
    return rows;
}

/// The selection sort that the header describes, step by step.
void SortPlainly(Rows& rows, std::size_t count) {
    PfxRec& spare = rows.back();
    for (std::size_t i = 1; i <= count; ++i) {
        std::size_t chosen = 0;
        std::string key(rows[i].Pfx.Padded());
        for (std::size_t j = i + 1; j <= count; ++j) {
            if (rows[j].Pfx.Padded() > key) continue;
            chosen = j;
            key = rows[j].Pfx.Padded();
        }
        if (chosen == 0) continue;
        spare = rows[i];
        rows[i] = rows[chosen];
        rows[chosen] = spare;
    }
}

void Sort(Rows& rows, std::size_t count) {
    SortPrefixes(rows, static_cast<int>(count), [](int) {});
}

/// The rows as "KEY/NUMBER".
std::vector<std::string> Told(const Rows& rows) {
    std::vector<std::string> told;
    for (const PfxRec& row : rows) told.push_back(std::string(row.Pfx.RightTrimmed()) + "/" + std::string(row.Land.RightTrimmed()));
    return told;
}

std::vector<std::string> Sorted(const std::vector<std::string>& keys) {
    Rows rows = Table(keys);
    Sort(rows, keys.size());
    std::vector<std::string> told = Told(rows);
    return {told.begin() + 1, told.end() - 1};
}

TEST(PrefixOrder, IsAscendingByCharacterCode) {
    EXPECT_EQ(Sorted({"b", "\xE5", "B", "9", "/", "Z"}), (std::vector<std::string>{"//5", "9/4", "B/3", "Z/6", "b/1", "\xE5/2"}));
}

TEST(PrefixOrder, OfEqualRowsTheLastOneComesFirst) {
    // Step 1 moves the last A, row 3, to the front and row 1 to its place. In step 2 the last A is therefore the former row 1.
    EXPECT_EQ(Sorted({"A", "A", "A"}), (std::vector<std::string>{"A/3", "A/1", "A/2"}));
}

TEST(PrefixOrder, ASwapCarriesAnEqualRowToTheBack) {
    EXPECT_EQ(Sorted({"B", "B", "A"}), (std::vector<std::string>{"A/3", "B/1", "B/2"}));
}

TEST(PrefixOrder, OneRowAndNoneAreInOrder) {
    EXPECT_EQ(Sorted({}), (std::vector<std::string>{}));
    EXPECT_EQ(Sorted({"A"}), (std::vector<std::string>{"A/1"}));
}

TEST(PrefixOrder, TheSpareRowOfAFullTableLosesItsPrefix) {
    // Row 3 is the spare row. Step 1 moves B through it on the way to row 2. Step 2 finds two equal rows and takes the last
    // one, which is the spare row itself.
    Rows rows = Table({"B", "A", "C"}, 0);
    Sort(rows, 3);
    EXPECT_EQ(Told(rows), (std::vector<std::string>{"/", "A/2", "B/1", "B/1"}));
}

TEST(PrefixOrder, EachRowIsToldOnceInItsTurn) {
    Rows rows = Table({"C", "B", "A"});
    std::vector<int> steps;
    SortPrefixes(rows, 3, [&](int row) { steps.push_back(row); });
    EXPECT_EQ(steps, (std::vector<int>{1, 2, 3}));
}

/// Random tables with many equal keys, and `spare` rows after the last one in use.
void CompareWithPlainSort(std::size_t spare) {
    std::mt19937 random(20260905);
    for (int table = 0; table < 5000; ++table) {
        const std::size_t count = random() % 40 + 1;
        const auto different = random() % 12 + 1;
        std::vector<std::string> keys;
        for (std::size_t i = 0; i < count; ++i)
            keys.push_back("KEY" + std::string(random() % 3, 'X') + std::to_string(random() % different));
        Rows rows = Table(keys, spare);
        Rows plain = rows;
        Sort(rows, count);
        SortPlainly(plain, count);
        ASSERT_EQ(Told(rows), Told(plain)) << "table " << table;
    }
}

TEST(PrefixOrder, IsThatOfTheSelectionSortOnAnyTable) {
    CompareWithPlainSort(1);
    CompareWithPlainSort(7);
}

TEST(PrefixOrder, IsThatOfTheSelectionSortOnAnyFullTable) {
    CompareWithPlainSort(0);
}

TEST(PrefixOrder, IsThatOfTheSelectionSortOnALargeTable) {
    for (const unsigned different : {1U, 40U, 700U}) {
        std::mt19937 random(different);
        std::vector<std::string> keys;
        for (int i = 0; i < 1500; ++i) keys.push_back(std::to_string(random() % different));
        Rows rows = Table(keys);
        Rows plain = rows;
        Sort(rows, keys.size());
        SortPlainly(plain, keys.size());
        ASSERT_EQ(Told(rows), Told(plain)) << different << " different keys";
    }
}

}  // namespace
}  // namespace vatro
