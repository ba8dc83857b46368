// SPDX-License-Identifier: MIT
#include "diff.h"

#include <gtest/gtest.h>

namespace vatro {

TEST(UnifiedDiff, SameTextsHaveNone) {
    UnifiedDiff diff("a", "b");
    diff.Same("x");
    diff.Compare({"y"}, {"y"}, "");
    EXPECT_EQ(diff.Text(), "");
}

TEST(UnifiedDiff, CommonLinesStayInPlace) {
    UnifiedDiff diff("a", "b");
    diff.Compare({"1", "2", "3"}, {"1", "3", "4"}, "");
    EXPECT_EQ(diff.Text(), "--- a\n+++ b\n@@ -1,3 +1,3 @@\n 1\n-2\n 3\n+4\n");
}

TEST(UnifiedDiff, DistantChangesAreTwoHunks) {
    UnifiedDiff diff("a", "b");
    diff.Compare({}, {"new"}, "> ");
    for (int i = 1; i <= 7; ++i) diff.Same(std::to_string(i));
    diff.Compare({"old"}, {}, "> ");
    EXPECT_EQ(diff.Text(), "--- a\n+++ b\n@@ -1,3 +1,4 @@\n+> new\n 1\n 2\n 3\n@@ -5,4 +6,3 @@\n 5\n 6\n 7\n-> old\n");
}

TEST(UnifiedDiff, NearChangesAreOneHunk) {
    UnifiedDiff diff("a", "b");
    diff.Compare({"x"}, {"y"}, "");
    for (int i = 1; i <= 6; ++i) diff.Same(std::to_string(i));
    diff.Compare({}, {"z"}, "");
    EXPECT_EQ(diff.Text(), "--- a\n+++ b\n@@ -1,7 +1,8 @@\n-x\n+y\n 1\n 2\n 3\n 4\n 5\n 6\n+z\n");
}

TEST(UnifiedDiff, ChangeInAnEmptyTextIsToldByTheLineInFrontOfIt) {
    UnifiedDiff diff("a", "b");
    diff.Compare({}, {"1"}, "");
    EXPECT_EQ(diff.Text(), "--- a\n+++ b\n@@ -0,0 +1 @@\n+1\n");
}

}  // namespace vatro
