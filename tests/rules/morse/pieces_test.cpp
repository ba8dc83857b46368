// SPDX-License-Identifier: MIT
#include "morse/pieces.h"

#include <cmath>
#include <cstdlib>

#include "rules/morse/keyed.h"

namespace vatro {
namespace {

int DotAt(int wpm) {
    Pieces pieces;
    pieces.ComputeDotLength(static_cast<std::int16_t>(wpm));
    return pieces.Priklen;
}

TEST(PiecesOfATone, ADotIsTwelveTenthsOfASecondDividedByTheSpeed) {
    EXPECT_EQ(DotAt(6), 8820);
    EXPECT_EQ(DotAt(16), 3307);  // 3307.5
    EXPECT_EQ(DotAt(20), 2646);
    EXPECT_EQ(DotAt(24), 2205);
    EXPECT_EQ(DotAt(60), 882);
    EXPECT_EQ(DotAt(1), 52920);
    for (int wpm = 1; wpm <= 200; ++wpm) EXPECT_EQ(DotAt(wpm), 52920 / wpm) << wpm;
}

TEST(PiecesOfATone, SpeedNoughtIsADivisionByNought) {
    EXPECT_EQ(FailureOf([] { DotAt(0); }), 11);
}

TEST(PiecesOfATone, ADotShorterThanItsRampHasNoRoom) {
    EXPECT_EQ(FailureOf([] { PiecesAt(2116); }), 0);  // 25 samples
    EXPECT_EQ(FailureOf([] { PiecesAt(2117); }), 9);
    EXPECT_EQ(FailureOf([] { PiecesAt(32767); }), 9);
    EXPECT_EQ(FailureOf([] { PiecesAt(-20); }), 9);
}

TEST(PiecesOfATone, TheToneBeginsAtNoughtAndGoesDown) {
    const Pieces pieces = PiecesAt(20);
    EXPECT_EQ(pieces.CWStreg.size(), 3U * 2646 + 1);
    EXPECT_EQ(pieces.CWStreg[0], 0);
    EXPECT_EQ(pieces.CWStreg[1], -1137);
    EXPECT_EQ(pieces.CWStreg[2], -2259);
    EXPECT_EQ(pieces.CWStreg[3], -3352);
    EXPECT_EQ(pieces.CWStreg[4], -4401);
}

TEST(PiecesOfATone, TheRoundedSamplesLetThePeakWander) {
    const Pieces pieces = PiecesAt(20);
    int peak = 0;
    for (const std::int16_t sample : pieces.CWStreg) peak = std::max(peak, std::abs(static_cast<int>(sample)));
    EXPECT_EQ(peak, 10034);
}

TEST(PiecesOfATone, TheToneHasItsPitch) {
    // 0.18 seconds hold 144 periods of 800 Hz. Each crosses zero upwards once, and the first begins with that.
    const Pieces pieces = PiecesAt(20);
    int rising = 0;
    for (std::size_t i = 1; i < pieces.CWStreg.size(); ++i) rising += pieces.CWStreg[i - 1] < 0 && pieces.CWStreg[i] >= 0;
    EXPECT_EQ(rising, 144);
}

TEST(PiecesOfATone, WithoutVolumeTheToneIsSilent) {
    const Pieces pieces = PiecesAt(20, 800, 0);
    EXPECT_EQ(pieces.CWStreg, Samples(3 * 2646 + 1));
    EXPECT_EQ(pieces.CWPrik, Samples(2647));
}

TEST(PiecesOfATone, AToneTooLoudForSixteenBitsOverflows) {
    EXPECT_EQ(FailureOf([] { PiecesAt(20, 800, 32768); }), 6);
    EXPECT_EQ(FailureOf([] { PiecesAt(20, 800, 70000); }), 6);
    // At this pitch the peak is sometimes above 32767.
    EXPECT_EQ(FailureOf([] { PiecesAt(20, 800, 32767); }), 6);
    EXPECT_EQ(FailureOf([] { PiecesAt(20, 800, 32000); }), 0);
}

TEST(PiecesOfATone, ADashHasOneSampleTwice) {
    const Pieces pieces = PiecesAt(20);
    const std::size_t p = 2646;
    EXPECT_EQ(pieces.CWStart[p - 1], 1075);
    EXPECT_EQ(pieces.CWMidte[0], 1075);
    // From there on the tone continues without a break.
    EXPECT_EQ(pieces.CWMidte[1], -68);
    EXPECT_EQ(pieces.CWMidte[p - 1], 2106);
    EXPECT_EQ(pieces.CWSlut[0], 981);
    EXPECT_EQ(pieces.CWSlut[1], -157);
}

TEST(PiecesOfATone, DotsAndDashesBeginWithARamp) {
    const Pieces pieces = PiecesAt(20);
    // -1137 / 25 = -45.48, -2259 * 2 / 25 = -180.72, -3352 * 3 / 25 = -402.24, -4401 * 4 / 25 = -704.16: always rounded down.
    const Samples first{0, -46, -181, -403, -705};
    EXPECT_EQ(Samples(pieces.CWStart.begin(), pieces.CWStart.begin() + 5), first);
    EXPECT_EQ(Samples(pieces.CWPrik.begin(), pieces.CWPrik.begin() + 5), first);
    for (std::size_t i = 0; i <= 25; ++i) {
        const auto ramped = std::floor(pieces.CWStreg[i] / 25.0 * static_cast<double>(i));
        EXPECT_EQ(pieces.CWStart[i], ramped) << i;
        EXPECT_EQ(pieces.CWPrik[i], ramped) << i;
    }
    EXPECT_EQ(pieces.CWStart[26], pieces.CWStreg[26]);
    EXPECT_EQ(pieces.CWPrik[26], pieces.CWStreg[26]);
    EXPECT_EQ(pieces.CWMidte[10], pieces.CWStreg[2646 + 9]);
    EXPECT_EQ(pieces.CWSlut[10], pieces.CWStreg[2 * 2646 + 9]);
}

TEST(PiecesOfATone, DotsAndDashesEndWithARampThatDoesNotReachNought) {
    const Pieces pieces = PiecesAt(20);
    const std::size_t p = 2646;
    // At the end of a dot 1075 / 25 = 43 and 2204 * 2 / 25 = 176.32; at the end of a dash 2032 / 25 = 81.28.
    EXPECT_EQ(pieces.CWPrik[p - 1], 43);
    EXPECT_EQ(pieces.CWPrik[p - 2], 176);
    EXPECT_EQ(pieces.CWSlut[p - 1], 81);
    for (std::size_t left = 1; left <= 25; ++left) {
        EXPECT_EQ(pieces.CWPrik[p - left], std::floor(pieces.CWStreg[p - left] / 25.0 * static_cast<double>(left))) << left;
        EXPECT_EQ(pieces.CWSlut[p - left], std::floor(pieces.CWStreg[3 * p - 1 - left] / 25.0 * static_cast<double>(left))) << left;
    }
    EXPECT_EQ(pieces.CWPrik[p - 26], pieces.CWStreg[p - 26]);
    EXPECT_EQ(pieces.CWSlut[p - 26], pieces.CWStreg[3 * p - 27]);
    EXPECT_EQ(pieces.CWStart[p - 5], pieces.CWStreg[p - 5]);
    EXPECT_EQ(pieces.CWMidte[p - 5], pieces.CWStreg[2 * p - 6]);
}

TEST(PiecesOfATone, ARampIsRoundedDownAlsoBelowNought) {
    // The first sample of 300 Hz is -427.3 at full volume. At this volume it is about -1012, and a 25th of that is not an
    // integer.
    const Pieces pieces = PiecesAt(20, 300, 23693);
    ASSERT_EQ(pieces.CWStreg[1], -1012);
    EXPECT_EQ(pieces.CWStart[1], -41);  // -40.48
}

TEST(PiecesOfATone, ThePauseIsSilent) {
    const Pieces pieces = PiecesAt(20);
    EXPECT_EQ(pieces.CWPause, Samples(2647));
}

TEST(PiecesOfATone, AFailedSpeedLeavesTheLengthOfADotAndTheNextOneTheOldPieces) {
    Pieces pieces = PiecesAt(20);
    EXPECT_EQ(FailureOf([&] { pieces.ComputeDotLength(0); }), 11);
    EXPECT_EQ(pieces.Priklen, 2646);
    pieces.ComputeDotLength(2117);
    EXPECT_EQ(pieces.Priklen, 24);
    EXPECT_EQ(FailureOf([&] { pieces.AllocateTone(); }), 9);
    EXPECT_EQ(pieces.CWStreg.size(), 3U * 2646 + 1);
    EXPECT_EQ(pieces.CWPrik.size(), 2647U);
}

TEST(PiecesOfATone, EachElementHasItsPiece) {
    const Pieces pieces = PiecesAt(20);
    EXPECT_EQ(pieces.Of("1"), &pieces.CWStart);
    EXPECT_EQ(pieces.Of("2"), &pieces.CWMidte);
    EXPECT_EQ(pieces.Of("3"), &pieces.CWSlut);
    EXPECT_EQ(pieces.Of("4"), &pieces.CWPrik);
    EXPECT_EQ(pieces.Of(" "), &pieces.CWPause);
    EXPECT_EQ(pieces.Of("0"), &pieces.CWPause);
    EXPECT_EQ(pieces.Of("-"), &pieces.CWStreg);
    EXPECT_EQ(pieces.Of("x"), nullptr);
    EXPECT_EQ(pieces.Of(""), nullptr);
    EXPECT_EQ(pieces.Of("12"), nullptr);
}

}  // namespace
}  // namespace vatro
