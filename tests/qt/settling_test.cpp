// SPDX-License-Identifier: MIT
#include "settling.h"

#include <gtest/gtest.h>

#include <QTest>
#include <vector>

namespace vatro {
namespace {

struct Rests : ::testing::Test {
    std::vector<bool> byManager;
    Settling settling{[this](bool manager) { byManager.push_back(manager); }};
    bool Rested(std::size_t times) {
        return QTest::qWaitFor([&] { return byManager.size() == times; });
    }
};

TEST_F(Rests, AfterAMoveByTheUser) {
    settling.Moved();
    EXPECT_FALSE(settling.Active());
    EXPECT_TRUE(settling.Doubtful());
    ASSERT_TRUE(Rested(1));
    EXPECT_FALSE(byManager[0]);
    EXPECT_FALSE(settling.Doubtful());
}

TEST_F(Rests, AfterAChangeOfTheState) {
    settling.Begin();
    settling.Moved();
    EXPECT_TRUE(settling.Active());
    EXPECT_FALSE(settling.Doubtful());
    ASSERT_TRUE(Rested(1));
    EXPECT_TRUE(byManager[0]);
    EXPECT_FALSE(settling.Active());
}

TEST_F(Rests, AfterMovesThatTurnOutToBeThoseOfTheManager) {
    settling.Moved();
    settling.Begin();
    ASSERT_TRUE(Rested(1));
    EXPECT_TRUE(byManager[0]);
    settling.Moved();
    ASSERT_TRUE(Rested(2));
    EXPECT_FALSE(byManager[1]);
}

TEST_F(Rests, DoNotWaitForAWindowThatIsDraggedAfterAChange) {
    settling.Begin();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        settling.Moved();
        return !settling.Active();
    }));
}

}  // namespace
}  // namespace vatro
