// SPDX-License-Identifier: MIT
#include "morse_keys.h"

#include <gtest/gtest.h>

#include "extras/keys.h"

namespace vatro {
namespace {

using namespace std::chrono_literals;

TEST(MorseKeys, OwnEscEnterAltSAndAltT) {
    EXPECT_TRUE(MorseKeys::Own(kEnterKey));
    EXPECT_TRUE(MorseKeys::Own(kEscKey));
    EXPECT_TRUE(MorseKeys::Own({.kind = KeyKind::AccessLetter, .letter = 'S'}));
    EXPECT_TRUE(MorseKeys::Own({.kind = KeyKind::AccessLetter, .letter = 'T'}));
}

TEST(MorseKeys, LeaveEveryOtherKeyToTheEntryFields) {
    EXPECT_FALSE(MorseKeys::Own({.kind = KeyKind::Space}));
    EXPECT_FALSE(MorseKeys::Own(kLetter));
    EXPECT_FALSE(MorseKeys::Own({.kind = KeyKind::Other}));
    EXPECT_FALSE(MorseKeys::Own({.kind = KeyKind::AccessLetter, .letter = 'C'}));
}

TEST(MorseKeys, EscAndEnterMeanTheTextForAWhileAfterItsEnd) {
    for (const PressedKey& key : {kEnterKey, kEscKey})
        for (const Moment after : {0ms, 40ms, 400ms}) {
            MorseKeys keys;
            keys.EndedByItself(5s);
            EXPECT_TRUE(keys.StillMeansText(key, 5s + after)) << after.count();
        }
}

TEST(MorseKeys, EscMeansTheFieldsAfterThat) {
    MorseKeys keys;
    keys.EndedByItself(5s);
    EXPECT_FALSE(keys.StillMeansText(kEscKey, 5s + 401ms));
}

TEST(MorseKeys, OnlyTheFirstKeyCanMeanTheText) {
    MorseKeys keys;
    keys.EndedByItself(5s);
    EXPECT_TRUE(keys.StillMeansText(kEscKey, 5s + 10ms));
    EXPECT_FALSE(keys.StillMeansText(kEscKey, 5s + 20ms));
}

TEST(MorseKeys, AKeyInBetweenGivesEscAndEnterToTheFields) {
    MorseKeys keys;
    keys.EndedByItself(5s);
    EXPECT_FALSE(keys.StillMeansText(kLetter, 5s + 10ms));
    EXPECT_FALSE(keys.StillMeansText(kEnterKey, 5s + 20ms));
}

TEST(MorseKeys, NothingMeansATextThatHasBeenStopped) {
    MorseKeys keys;
    EXPECT_FALSE(keys.StillMeansText(kEscKey, 0ms));
    keys.EndedByItself(5s);
    keys.Forget();
    EXPECT_FALSE(keys.StillMeansText(kEscKey, 5s));
}

}  // namespace
}  // namespace vatro
