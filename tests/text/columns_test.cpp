// SPDX-License-Identifier: MIT
#include "columns.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

TEST(Columns, AreCountedFromOne) {
    EXPECT_EQ(Columns("12:07 DL9XYZ", 1, 5), "12:07");
    EXPECT_EQ(Columns("12:07 DL9XYZ", 7), "DL9XYZ");
    EXPECT_EQ(Columns("12:07 DL9XYZ", 12, 1), "Z");
}

TEST(Columns, BeyondTheEndOfTheLineAreEmpty) {
    EXPECT_EQ(Columns("12:07", 4, 10), "07");
    EXPECT_EQ(Columns("12:07", 6, 1), "");
    EXPECT_EQ(Columns("12:07", 70, 8), "");
    EXPECT_EQ(Columns("", 1, 1), "");
}

TEST(Columns, TrimTakesBlanksOnBothSidesAndNothingElse) {
    EXPECT_EQ(Trim("  OZ 1AB  "), "OZ 1AB");
    EXPECT_EQ(Trim("\tOZ1AB "), "\tOZ1AB");
    EXPECT_EQ(Trim("    "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Columns, RightGivesTheLastCharacters) {
    EXPECT_EQ(Right("0012", 3), "012");
    EXPECT_EQ(Right("12", 3), "12");
    EXPECT_EQ(Right("12", 0), "");
}

TEST(Columns, LeftAlignedFillsOrCutsToTheWidth) {
    EXPECT_EQ(LeftAligned("SSB", 5), "SSB  ");
    EXPECT_EQ(LeftAligned("PSK31+", 5), "PSK31");
    EXPECT_EQ(LeftAligned("", 2), "  ");
    EXPECT_EQ(LeftAligned("å"_t, 2), "å "_t);
}

TEST(FixedText, IsAlwaysOfItsWidth) {
    FixedText<6> text("OZ1AB");
    EXPECT_EQ(text.Padded(), "OZ1AB ");
    text = "OZ1ABC/P";
    EXPECT_EQ(text.Padded(), "OZ1ABC");
    text = "";
    EXPECT_EQ(text.Padded(), "      ");
    EXPECT_EQ(FixedText<3>().Padded(), "   ");
}

TEST(FixedText, TrimmedViewsFollowEveryAssignment) {
    FixedText<8> text(" OZ 1 ");
    EXPECT_EQ(text.RightTrimmed(), " OZ 1");
    EXPECT_EQ(text.Trimmed(), "OZ 1");
    text = "   ";
    EXPECT_EQ(text.RightTrimmed(), "");
    EXPECT_EQ(text.Trimmed(), "");
    text = "12345678";
    EXPECT_EQ(text.RightTrimmed(), "12345678");
}

TEST(FixedText, IsFilledWithAnotherCharacter) {
    FixedText<4> text;
    text.Fill("DL", '#');
    EXPECT_EQ(text.RightTrimmed(), "DL##");
    text.Fill("DL1ABC", '#');
    EXPECT_EQ(text.Padded(), "DL1A");
    text.Fill(" DL ", '#');
    EXPECT_EQ(text.Trimmed(), "DL");
    text.Fill("", '#');
    EXPECT_EQ(text.Trimmed(), "####");
}

TEST(FixedText, ComparesWhatItHolds) {
    EXPECT_EQ(FixedText<4>("DL"), FixedText<4>("DL  "));
    EXPECT_EQ(FixedText<2>("DLX"), FixedText<2>("DL"));
    EXPECT_FALSE(FixedText<4>("DL") == FixedText<4>("dl"));
}

}  // namespace
}  // namespace vatro
