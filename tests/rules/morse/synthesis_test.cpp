// SPDX-License-Identifier: MIT
#include "morse/synthesis.h"

#include <cmath>
#include <cstdlib>

#include "codepage.h"
#include "desk/keyer/keyer.h"
#include "errors.h"

namespace vatro {
namespace {

using namespace literals;

using Synthesis = Keyer;

/// The number of the failure, or 0.
template <class Work>
int FailureOf(Work work) {
    try {
        work();
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return 0;
}

int DotAt(int wpm) {
    giCWWPM = static_cast<std::int16_t>(wpm);
    BeregnPriklen();
    return Priklen;
}

std::string Silence(int slots) {
    return std::string(static_cast<std::size_t>(slots), ' ');
}

// --- Pieces

TEST_F(Synthesis, ADotIsTwelveTenthsOfASecondDividedByTheSpeed) {
    EXPECT_EQ(DotAt(6), 8820);
    EXPECT_EQ(DotAt(16), 3307);  // 3307.5
    EXPECT_EQ(DotAt(20), 2646);
    EXPECT_EQ(DotAt(24), 2205);
    EXPECT_EQ(DotAt(60), 882);
    EXPECT_EQ(DotAt(1), 52920);
    for (int wpm = 1; wpm <= 200; ++wpm) EXPECT_EQ(DotAt(wpm), 52920 / wpm) << wpm;
}

TEST_F(Synthesis, SpeedNoughtIsADivisionByNought) {
    EXPECT_EQ(FailureOf([] { DotAt(0); }), 11);
}

TEST_F(Synthesis, ADotShorterThanItsRampHasNoRoom) {
    EXPECT_EQ(FailureOf([] { MakePieces(2116); }), 0);  // 25 samples
    EXPECT_EQ(FailureOf([] { MakePieces(2117); }), 9);
    EXPECT_EQ(FailureOf([] { MakePieces(32767); }), 9);
    EXPECT_EQ(FailureOf([] { MakePieces(-20); }), 9);
}

TEST_F(Synthesis, TheToneBeginsAtNoughtAndGoesDown) {
    MakePieces();
    EXPECT_EQ(CWStreg.size(), 3U * 2646 + 1);
    EXPECT_EQ(CWStreg[0], 0);
    EXPECT_EQ(CWStreg[1], -1137);
    EXPECT_EQ(CWStreg[2], -2259);
    EXPECT_EQ(CWStreg[3], -3352);
    EXPECT_EQ(CWStreg[4], -4401);
}

TEST_F(Synthesis, TheRoundedSamplesLetThePeakWander) {
    MakePieces();
    int peak = 0;
    for (const std::int16_t sample : CWStreg) peak = std::max(peak, std::abs(static_cast<int>(sample)));
    EXPECT_EQ(peak, 10034);
}

TEST_F(Synthesis, TheToneHasItsPitch) {
    // In 0.18 seconds 144 waves of 800 Hz, each of which goes up through nought once; the first begins there.
    MakePieces();
    int rising = 0;
    for (std::size_t i = 1; i < CWStreg.size(); ++i) rising += CWStreg[i - 1] < 0 && CWStreg[i] >= 0;
    EXPECT_EQ(rising, 144);
}

TEST_F(Synthesis, WithoutVolumeTheToneIsSilent) {
    glCWVolume = 0;
    MakePieces();
    EXPECT_EQ(CWStreg, Samples(3 * 2646 + 1));
    EXPECT_EQ(CWPrik, Samples(2647));
}

TEST_F(Synthesis, AToneTooLoudForSixteenBitsOverflows) {
    glCWVolume = 32768;
    EXPECT_EQ(FailureOf([] { MakePieces(); }), 6);
    glCWVolume = 70000;
    EXPECT_EQ(FailureOf([] { MakePieces(); }), 6);
    // The peak wanders above 32767 at this pitch.
    glCWVolume = 32767;
    EXPECT_EQ(FailureOf([] { MakePieces(); }), 6);
    glCWVolume = 32000;
    EXPECT_EQ(FailureOf([] { MakePieces(); }), 0);
}

TEST_F(Synthesis, ADashHasOneSampleTwice) {
    MakePieces();
    const std::size_t p = 2646;
    EXPECT_EQ(CWStart[p - 1], 1075);
    EXPECT_EQ(CWMidte[0], 1075);
    // From there on the tone runs on without a break.
    EXPECT_EQ(CWMidte[1], -68);
    EXPECT_EQ(CWMidte[p - 1], 2106);
    EXPECT_EQ(CWSlut[0], 981);
    EXPECT_EQ(CWSlut[1], -157);
}

TEST_F(Synthesis, DotsAndDashesBeginWithARamp) {
    MakePieces();
    // -1137 / 25 = -45.48, -2259 * 2 / 25 = -180.72, -3352 * 3 / 25 = -402.24, -4401 * 4 / 25 = -704.16: always downwards.
    const Samples first{0, -46, -181, -403, -705};
    EXPECT_EQ(Samples(CWStart.begin(), CWStart.begin() + 5), first);
    EXPECT_EQ(Samples(CWPrik.begin(), CWPrik.begin() + 5), first);
    for (std::size_t i = 0; i <= 25; ++i) {
        const auto ramped = std::floor(CWStreg[i] / 25.0 * static_cast<double>(i));
        EXPECT_EQ(CWStart[i], ramped) << i;
        EXPECT_EQ(CWPrik[i], ramped) << i;
    }
    EXPECT_EQ(CWStart[26], CWStreg[26]);
    EXPECT_EQ(CWPrik[26], CWStreg[26]);
    EXPECT_EQ(CWMidte[10], CWStreg[2646 + 9]);
    EXPECT_EQ(CWSlut[10], CWStreg[2 * 2646 + 9]);
}

TEST_F(Synthesis, DotsAndDashesEndWithARampThatDoesNotReachNought) {
    MakePieces();
    const std::size_t p = 2646;
    // 1075 / 25 = 43 and 2204 * 2 / 25 = 176.32 at the end of a dot, 2032 / 25 = 81.28 at the end of a dash.
    EXPECT_EQ(CWPrik[p - 1], 43);
    EXPECT_EQ(CWPrik[p - 2], 176);
    EXPECT_EQ(CWSlut[p - 1], 81);
    for (std::size_t left = 1; left <= 25; ++left) {
        EXPECT_EQ(CWPrik[p - left], std::floor(CWStreg[p - left] / 25.0 * static_cast<double>(left))) << left;
        EXPECT_EQ(CWSlut[p - left], std::floor(CWStreg[3 * p - 1 - left] / 25.0 * static_cast<double>(left))) << left;
    }
    EXPECT_EQ(CWPrik[p - 26], CWStreg[p - 26]);
    EXPECT_EQ(CWSlut[p - 26], CWStreg[3 * p - 27]);
    EXPECT_EQ(CWStart[p - 5], CWStreg[p - 5]);
    EXPECT_EQ(CWMidte[p - 5], CWStreg[2 * p - 6]);
}

TEST_F(Synthesis, ARampIsRoundedDownAlsoBelowNought) {
    // The first sample of 300 Hz is -427.3 at full volume; at this volume it is -1012 or so, of which a 25th part is no integer.
    giCWTone = 300;
    glCWVolume = 23693;
    MakePieces();
    ASSERT_EQ(CWStreg[1], -1012);
    EXPECT_EQ(CWStart[1], -41);  // -40.48
}

TEST_F(Synthesis, ThePauseIsSilent) {
    MakePieces();
    EXPECT_EQ(CWPause, Samples(2647));
}

// --- Slots

TEST_F(Synthesis, ASingleDotIsFollowedByTenSilentSlots) {
    EXPECT_EQ(Slots("E "), "4" + Silence(10));
}

TEST_F(Synthesis, ADashIsThreeSlots) {
    EXPECT_EQ(Slots("T "), "123" + Silence(10));
}

TEST_F(Synthesis, ElementsAreOneSlotApartCharactersThreeAndWordsSeven) {
    EXPECT_EQ(Slots("AN T "), "4 123" + Silence(3) + "123 4" + Silence(7) + "123" + Silence(10));
}

TEST_F(Synthesis, ExtraSilenceStretchesOnlyTheGaps) {
    giCWFarnsworth = 2;
    EXPECT_EQ(Slots("A T "), "4 123" + Silence(5 + 6) + "123" + Silence(16));
    giCWFarnsworth = 20;
    EXPECT_EQ(Slots("EE "), "4" + Silence(23) + "4" + Silence(70));
}

TEST_F(Synthesis, ExtraSilenceBelowNoughtLeavesOneSlot) {
    giCWFarnsworth = -30;
    EXPECT_EQ(Slots("AT "), "4 123" + Silence(1) + "123" + Silence(1) + Silence(2) + Silence(1));
}

TEST_F(Synthesis, WhatHasNoMorseIsThreeSlotsOfSilence) {
    EXPECT_EQ(Slots("EaE "), "4" + Silence(6) + "4" + Silence(10));
    EXPECT_EQ(Slots("E*E "), "4" + Silence(6) + "4" + Silence(10));
    giCWFarnsworth = 4;
    EXPECT_EQ(Slots("E*E "), "4" + Silence(14) + "4" + Silence(22));
}

TEST_F(Synthesis, TwoLettersInBracketsAreOneSign) {
    EXPECT_EQ(Slots("AB<SK>C "),
              "4 123" + Silence(3) + "123 4 4 4" + Silence(3) + "4 4 4 123 4 123" + Silence(3) + "123 4 123 4" + Silence(10));
}

TEST_F(Synthesis, WhateverStandsInPlaceOfTheClosingBracketIsPassedBy) {
    EXPECT_EQ(Slots("<SKEE "), "4 4 4 123 4 123" + Silence(3) + "4" + Silence(10));
}

TEST_F(Synthesis, AnUnknownPairIsAGapOfOneCharacter) {
    EXPECT_EQ(Slots("E<XX>E "), "4" + Silence(6) + "4" + Silence(10));
}

TEST_F(Synthesis, ABracketAtTheEndTakesTheBlankAndEndsTheText) {
    EXPECT_EQ(Slots("E< "), "4" + Silence(3) + Silence(1));
}

TEST_F(Synthesis, AnEmptyTextIsSevenSlotsOfSilence) {
    EXPECT_EQ(Slots(" "), Silence(7));
}

TEST_F(Synthesis, DanishLettersAreSent) {
    EXPECT_EQ(Slots("Å "_t), "4 123 123 4 123" + Silence(10));
}

TEST_F(Synthesis, TheEndOfATextPutsTheStepperBack) {
    Slots("ET ");
    EXPECT_EQ(glTegnPos, 0);
    EXPECT_EQ(glElementPos, 0);
    EXPECT_EQ(gscwtegn, "");
}

TEST_F(Synthesis, TheStepperCountsCharactersAndElements) {
    gsCWTekst = "AE ";
    std::string element;
    for (int i = 0; i < 5; ++i) NæsteElement(element);
    EXPECT_EQ(element, "3");
    EXPECT_EQ(gscwtegn, "4 123");
    EXPECT_EQ(glElementPos, 5);
    EXPECT_EQ(glTegnPos, 0);
    for (int i = 0; i < 3; ++i) NæsteElement(element);
    EXPECT_EQ(element, " ");
    EXPECT_EQ(glTegnPos, 1);
    EXPECT_EQ(glElementPos, 0);
    EXPECT_EQ(gscwtegn, "");
}

// --- Fills

TEST_F(Synthesis, AFillWritesItsOwnHalf) {
    MakePieces();
    gsCWTekst = "E ";
    bool aktiv = false;
    FyldDel1(aktiv, buffer);
    FyldDel2(aktiv, buffer);
    EXPECT_EQ(buffer.writes, (std::vector<std::pair<int, int>>{{0, 22050}, {22050, 22050}}));
}

TEST_F(Synthesis, ADotIsFollowedByTenDotsOfSilence) {
    MakePieces();
    const Samples all = Filled("E ");
    // 29106 samples are two halves with something in them, and one with nothing but the end.
    ASSERT_EQ(all.size(), 3U * kHalf);
    Samples expected(3 * kHalf);
    std::copy_n(CWPrik.begin(), 2646, expected.begin());
    EXPECT_EQ(all, expected);
}

TEST_F(Synthesis, ADashIsThreePiecesBackToBack) {
    MakePieces();
    const Samples all = Filled("T ");
    Samples expected(all.size());
    std::copy_n(CWStart.begin(), 2646, expected.begin());
    std::copy_n(CWMidte.begin(), 2646, expected.begin() + 2646);
    std::copy_n(CWSlut.begin(), 2646, expected.begin() + 2 * 2646);
    EXPECT_EQ(all, expected);
    EXPECT_EQ(all[2645], all[2646]);
}

TEST_F(Synthesis, AHalfEndsInsideAPieceWhoseRestOpensTheOther) {
    MakePieces();
    gsCWTekst = "00000 ";
    bool aktiv = false;
    FyldDel1(aktiv, buffer);
    EXPECT_TRUE(aktiv);
    // Eight pieces of 2646 are 21168, and 882 samples of the ninth are left.
    EXPECT_EQ(glCWSlat, 882);
    EXPECT_EQ(gsElement, "1");
    FyldDel2(aktiv, buffer);
    EXPECT_EQ(buffer.samples[kHalf], CWStart[882]);
    // 1764 samples of the ninth, seven whole pieces, and 1764 of the next.
    EXPECT_EQ(glCWSlat, 1764);
}

TEST_F(Synthesis, TheEndMarkIsSilentAndStays) {
    MakePieces();
    gsCWTekst = "E ";
    bool aktiv = false;
    FyldDel1(aktiv, buffer);
    FyldDel2(aktiv, buffer);
    EXPECT_TRUE(aktiv);
    EXPECT_EQ(gsElement, "0");
    // Another text does not wake it up.
    gsCWTekst = "EEEE ";
    FyldDel1(aktiv, buffer);
    EXPECT_FALSE(aktiv);
    EXPECT_EQ(gsElement, "0");
    EXPECT_EQ(glTegnPos, 0);
    EXPECT_EQ(Samples(buffer.samples.begin(), buffer.samples.begin() + kHalf), Samples(kHalf));
}

TEST_F(Synthesis, AtSixtyWordsTwentyFivePiecesFillAHalfWithoutACut) {
    MakePieces(60);
    gsCWTekst = "5555555555 ";
    bool aktiv = false;
    FyldDel1(aktiv, buffer);
    EXPECT_EQ(glCWSlat, 882);
    const Samples half(buffer.samples.begin(), buffer.samples.begin() + kHalf);
    // "5" has nine slots, and three behind it.
    EXPECT_EQ(half, Pasted("4 4 4 4 4   4 4 4 4 4   4"));
    FyldDel2(aktiv, buffer);
    EXPECT_EQ(Samples(buffer.samples.begin() + kHalf, buffer.samples.end()), Pasted(" 4 4 4 4   4 4 4 4 4   4 "));
    EXPECT_EQ(glCWSlat, 882);
}

TEST_F(Synthesis, ATextRunsAcrossTheHalvesWithoutAClick) {
    const std::string slots = "123 4 123 4" + Silence(3) + "123 123 4 123" + Silence(7) + "123 4 4" + Silence(3) + "4" + Silence(10);
    for (const int wpm : {3, 6, 16, 20, 23, 37, 59, 60}) {
        MakePieces(wpm);
        Samples expected = Pasted(slots);
        const Samples all = Filled("CQ DE ");
        ASSERT_GE(all.size(), expected.size()) << wpm;
        expected.resize(all.size());
        EXPECT_EQ(all, expected) << wpm;
    }
}

TEST_F(Synthesis, AnElementThatIsNoneLeavesThePictureAsItIs) {
    MakePieces();
    std::fill(CWBillede.begin(), CWBillede.end(), std::int16_t{7});
    gsElement = "x";
    glCWSlat = 2600;
    gsCWTekst = "E ";
    bool aktiv = false;
    FyldDel1(aktiv, buffer);
    EXPECT_TRUE(aktiv);
    EXPECT_EQ(Samples(buffer.samples.begin(), buffer.samples.begin() + 46), Samples(46, 7));
    EXPECT_EQ(buffer.samples[46 + 1], CWPrik[1]);
}

TEST_F(Synthesis, TheBareToneCanBeAnElement) {
    MakePieces();
    gsElement = "-";
    glCWSlat = 2600;
    bool aktiv = false;
    FyldDel1(aktiv, buffer);
    EXPECT_EQ(Samples(buffer.samples.begin(), buffer.samples.begin() + 46), Samples(CWStreg.begin() + 2600, CWStreg.begin() + 2646));
}

TEST_F(Synthesis, AWordIsFiftyDotsAtEverySpeed) {
    // The word that speed is counted in: PARIS, up to the first tone of the next one.
    for (int wpm = 6; wpm <= 60; ++wpm) {
        MakePieces(wpm);
        const Samples all = Filled("PARIS PARIS ");
        const auto sounds = [](std::int16_t sample) { return sample != 0; };
        const auto first = std::find_if(all.begin(), all.end(), sounds);
        // A pause longer than five dots parts the words.
        auto second = first;
        for (auto silent = first; second == first && silent != all.end();) {
            silent = std::find(silent, all.end(), 0);
            const auto end = std::find_if(silent, all.end(), sounds);
            if (end - silent > 5L * 52920 / wpm) second = end;
            silent = end;
        }
        const auto word = second - first;
        EXPECT_EQ(word, 50L * (52920 / wpm)) << wpm;
        EXPECT_NEAR(static_cast<double>(word) / kSamplesPerSecond, 60.0 / wpm, 50.0 / kSamplesPerSecond) << wpm;
    }
}

TEST_F(Synthesis, EachToneAndEachGapIsAWholeNumberOfDots) {
    for (const int wpm : {6, 16, 20, 25, 33, 60}) {
        MakePieces(wpm);
        const int dot = 52920 / wpm;
        const Samples all = Filled("PARIS ");
        // Dots and dashes of PARIS, then the gap behind each. A tone begins with a sample of nought, and may end with one.
        const int tones[]{1, 3, 3, 1, 1, 3, 1, 3, 1, 1, 1, 1, 1, 1};
        const int gaps[]{1, 1, 1, 3, 1, 3, 1, 1, 3, 1, 3, 1, 1, 0};
        std::size_t at = 0;
        for (std::size_t i = 0; i < std::size(tones); ++i) {
            const auto length = static_cast<std::size_t>(tones[i] * dot);
            const auto begin = all.begin() + static_cast<std::ptrdiff_t>(at);
            EXPECT_EQ(begin[0], 0);
            EXPECT_NE(begin[1], 0) << wpm << ": tone " << i;
            EXPECT_TRUE(begin[static_cast<std::ptrdiff_t>(length) - 1] != 0 || begin[static_cast<std::ptrdiff_t>(length) - 2] != 0)
                << wpm << ": tone " << i;
            const auto gap = static_cast<std::ptrdiff_t>(gaps[i] * dot);
            const auto silence = begin + static_cast<std::ptrdiff_t>(length);
            EXPECT_TRUE(std::all_of(silence, silence + gap, [](std::int16_t sample) { return sample == 0; })) << wpm << ": gap " << i;
            at += length + static_cast<std::size_t>(gap);
        }
        // 43 dots of PARIS itself, and nothing more.
        EXPECT_EQ(at, static_cast<std::size_t>(43 * dot));
        EXPECT_TRUE(std::all_of(all.begin() + static_cast<std::ptrdiff_t>(at), all.end(), [](std::int16_t sample) { return sample == 0; }));
    }
}

TEST_F(Synthesis, AtVeryLowSpeedsAHalfHoldsPartOfAPieceAndTheProgramGoesOn) {
    MakePieces(1);
    bool aktiv = false;
    gsCWTekst = "T ";
    FyldDel1(aktiv, buffer);
    EXPECT_EQ(glCWSlat, kHalf);
    EXPECT_EQ(Samples(buffer.samples.begin(), buffer.samples.begin() + kHalf), Samples(CWStart.begin(), CWStart.begin() + kHalf));
    FyldDel2(aktiv, buffer);
    EXPECT_EQ(glCWSlat, 0);
    EXPECT_EQ(Samples(buffer.samples.begin() + kHalf, buffer.samples.end()), Samples(CWStart.begin() + kHalf, CWStart.begin() + 2 * kHalf));
}

}  // namespace
}  // namespace vatro
