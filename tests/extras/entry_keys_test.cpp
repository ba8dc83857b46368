// SPDX-License-Identifier: MIT
#include "entry_keys.h"

#include <gtest/gtest.h>

#include "extras/keys.h"

namespace vatro {
namespace {

using namespace std::chrono_literals;

constexpr PressedKey kHeldEnter{.kind = KeyKind::Enter, .repeated = true};

TEST(EntryKeys, TakeEveryEnterBeforeTheFirstContact) {
    EntryKeys keys;
    EXPECT_FALSE(keys.Swallows(kEnterKey, true, 0ms));
    EXPECT_FALSE(keys.Swallows(kEnterKey, false, 0ms));
}

TEST(EntryKeys, SwallowTheBounceOfASpace) {
    EntryKeys keys;
    EXPECT_FALSE(keys.Swallows(kSpaceKey, false, 10s));
    EXPECT_TRUE(keys.Swallows(kSpaceKey, false, 10s + 100ms));
    EXPECT_TRUE(keys.Swallows(kSpaceKey, false, 10s + 200ms)) << "a key that bounces twice";
    EXPECT_FALSE(keys.Swallows(kSpaceKey, false, 10s + 350ms)) << "back to the call";
    // Another key in between shows that both were meant.
    EXPECT_FALSE(keys.Swallows({.kind = KeyKind::Character}, false, 10s + 360ms));
    EXPECT_FALSE(keys.Swallows(kSpaceKey, false, 10s + 370ms));
}

TEST(EntryKeys, SwallowASecondEnterForHalfASecondBehindAContact) {
    EntryKeys keys;
    keys.Logged(60s);
    for (const Moment after : {0ms, 40ms, 180ms, 500ms}) EXPECT_TRUE(keys.Swallows(kEnterKey, true, 60s + after)) << after.count();
    EXPECT_FALSE(keys.Swallows(kEnterKey, true, 60s + 501ms));
}

TEST(EntryKeys, TakeTheEnterOfACallThatIsTypedThatFast) {
    EntryKeys keys;
    keys.Logged(60s);
    EXPECT_FALSE(keys.Swallows(kEnterKey, false, 60s + 10ms));
}

TEST(EntryKeys, SwallowNoOtherKeyBehindAContact) {
    EntryKeys keys;
    keys.Logged(60s);
    for (const KeyKind kind : {KeyKind::Esc, KeyKind::Space, KeyKind::Character, KeyKind::AccessLetter, KeyKind::Other})
        EXPECT_FALSE(keys.Swallows({.kind = kind}, true, 60s));
}

TEST(EntryKeys, CountFromTheContactLoggedLast) {
    EntryKeys keys;
    keys.Logged(60s);
    keys.Logged(61s);
    EXPECT_TRUE(keys.Swallows(kEnterKey, true, 61s + 400ms));
}

TEST(EntryKeys, NeverTakeAnEnterThatIsHeldDown) {
    EntryKeys keys;
    EXPECT_TRUE(keys.Swallows(kHeldEnter, false, 0ms));
    EXPECT_TRUE(EntryKeys::Held(kHeldEnter));
    EXPECT_TRUE(EntryKeys::Held({.kind = KeyKind::Esc, .repeated = true}));
}

TEST(EntryKeys, TakeOtherKeysThatAreHeldDown) {
    for (const KeyKind kind : {KeyKind::Space, KeyKind::Character, KeyKind::AccessLetter, KeyKind::Other})
        EXPECT_FALSE(EntryKeys::Held({.kind = kind, .repeated = true}));
    EXPECT_FALSE(EntryKeys::Held(kEnterKey));
}

}  // namespace
}  // namespace vatro
