// SPDX-License-Identifier: MIT
#include "box_keys.h"

#include <gtest/gtest.h>

#include "extras/keys.h"

namespace vatro {
namespace {

using namespace std::chrono_literals;
using enum BoxKeys::Verdict;

constexpr PressedKey kAltJ{.kind = KeyKind::AccessLetter, .letter = 'J'};

constexpr PressedKey Held(PressedKey key) {
    key.repeated = true;
    return key;
}

/// A box that was shown at 10 s.
class BoxInFront : public ::testing::Test {
protected:
    BoxInFront() { box.CameUp(10s); }
    BoxKeys box;
};

TEST_F(BoxInFront, TakesEnterEscSpaceAndAltWithALetter) {
    for (const PressedKey& key : {kEnterKey, kEscKey, kSpaceKey, kAltJ}) EXPECT_EQ(box.Press(key, 11s), Take);
}

TEST_F(BoxInFront, FlashesForALetterOrFigureAndTakesNone) {
    for (const Moment now : {10s + 0ms, 10s + 150ms, 15s + 0ms}) EXPECT_EQ(box.Press(kLetter, now), DropAndFlash);
    EXPECT_EQ(box.Press(Held(kLetter), 16s), DropAndFlash);
}

TEST_F(BoxInFront, TakesArrowsTabAndCopyAtAnyTime) {
    EXPECT_EQ(box.Press({.kind = KeyKind::Other}, 10s), Take);
    EXPECT_EQ(box.Press({.kind = KeyKind::Other, .repeated = true}, 10s), Take);
}

TEST_F(BoxInFront, TakesNoAnswerBeforeAnybodyCanHaveSeenIt) {
    for (const PressedKey& key : {kEnterKey, kEscKey, kSpaceKey, kAltJ}) {
        EXPECT_EQ(box.Press(key, 10s), DropAndFlash);
        EXPECT_EQ(box.Press(key, 10s + 199ms), DropAndFlash);
        EXPECT_EQ(box.Press(key, 10s + 200ms), Take);
    }
}

TEST_F(BoxInFront, IsNotAnsweredByAKeyHeldDown) {
    for (const PressedKey& key : {kEnterKey, kEscKey, kSpaceKey, kAltJ}) {
        EXPECT_EQ(box.Press(Held(key), 10s + 50ms), Drop);
        EXPECT_EQ(box.Press(Held(key), 20s), Drop);
    }
    EXPECT_EQ(box.Press(kEnterKey, 20s), Take);
}

TEST_F(BoxInFront, TakesNoEnterThatEndsAContactTypedAtIt) {
    for (const Moment at : {11s + 0ms, 11s + 20ms, 11s + 40ms}) box.Press(kLetter, at);
    box.Press(kSpaceKey, 11s + 60ms);
    box.Press(kLetter, 11s + 80ms);
    EXPECT_EQ(box.Press(kEnterKey, 11s + 300ms), DropAndFlash);
    EXPECT_EQ(box.Press(kEnterKey, 11s + 800ms), Take) << "the second one is meant";
    for (const Moment at : {20s + 0ms, 20s + 20ms, 20s + 40ms}) box.Press(kLetter, at);
    EXPECT_EQ(box.Press(kEnterKey, 21s + 40ms), Take) << "after a pause the box has been seen";
    for (const Moment at : {30s, 31s, 32s}) box.Press(kLetter, at);
    EXPECT_EQ(box.Press(kEnterKey, 32s + 100ms), Take) << "that slowly nobody types a call";
}

TEST_F(BoxInFront, TakesNoBlankInTheMiddleOfTyping) {
    box.Press(kLetter, 12s);
    EXPECT_EQ(box.Press(kSpaceKey, 12s + 180ms), DropAndFlash);
    // A blank counts as typing too.
    EXPECT_EQ(box.Press(kSpaceKey, 12s + 429ms), DropAndFlash);
    EXPECT_EQ(box.Press(kSpaceKey, 12s + 679ms), Take);
}

TEST_F(BoxInFront, TakesEnterRightBehindALetter) {
    box.Press(kLetter, 12s);
    EXPECT_EQ(box.Press(kEnterKey, 12s + 1ms), Take);
}

TEST_F(BoxInFront, KnowsNothingOfWhatWasTypedUnderTheOneBefore) {
    box.Press(kLetter, 12s);
    box.CameUp(12s);
    EXPECT_EQ(box.Press(kSpaceKey, 12s + 220ms), Take);
}

}  // namespace
}  // namespace vatro
