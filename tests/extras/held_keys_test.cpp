// SPDX-License-Identifier: MIT
#include "held_keys.h"

#include <gtest/gtest.h>

namespace vatro {
namespace {

using namespace std::chrono_literals;

constexpr unsigned kReturn = 36;
constexpr unsigned kEscape = 9;

TEST(HeldKeys, APressAtTheTimeOfItsReleaseIsNoNewOne) {
    HeldKeys keys;
    EXPECT_FALSE(keys.Repeats(kReturn, 1000ms));
    keys.Released(kReturn, 1660ms);
    EXPECT_TRUE(keys.Repeats(kReturn, 1660ms));
    keys.Released(kReturn, 1700ms);
    EXPECT_TRUE(keys.Repeats(kReturn, 1700ms));
}

TEST(HeldKeys, APressLaterThanItsReleaseIsNew) {
    HeldKeys keys;
    keys.Released(kReturn, 1660ms);
    EXPECT_FALSE(keys.Repeats(kReturn, 1661ms));
}

TEST(HeldKeys, AnotherKeyAtThatTimeIsPressedAnew) {
    HeldKeys keys;
    keys.Released(kReturn, 1660ms);
    EXPECT_FALSE(keys.Repeats(kEscape, 1660ms));
    keys.Released(kEscape, 1660ms);
    EXPECT_FALSE(keys.Repeats(kReturn, 1660ms));
}

}  // namespace
}  // namespace vatro
