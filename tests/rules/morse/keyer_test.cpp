// SPDX-License-Identifier: MIT
#include "morse/keyer.h"

#include "rules/morse/keyed.h"
#include "rules/morse/silence.h"

namespace vatro {
namespace {

// --- Halves

TEST(KeyerOfATone, AFillIsAHalfOfTheBuffer) {
    Keyer keyer = KeyerAt(20);
    keyer.SetText("E ", 0);
    const FilledHalf first = keyer.Fill(Half::First);
    EXPECT_EQ(first.first, 0);
    EXPECT_EQ(first.samples.size(), 22050U);
    const FilledHalf second = keyer.Fill(Half::Second);
    EXPECT_EQ(second.first, 22050);
    EXPECT_EQ(second.samples.size(), 22050U);
}

TEST(KeyerOfATone, ADotIsFollowedByTenDotsOfSilence) {
    Keyer keyer = KeyerAt(20);
    const Samples all = Filled(keyer, "E ");
    // 29106 samples need two halves; a third holds only the end.
    ASSERT_EQ(all.size(), 3U * kHalf);
    Samples expected(3 * kHalf);
    std::copy_n(keyer.CurrentPieces().CWPrik.begin(), 2646, expected.begin());
    EXPECT_EQ(all, expected);
}

TEST(KeyerOfATone, ADashIsThreePiecesBackToBack) {
    Keyer keyer = KeyerAt(20);
    const Samples all = Filled(keyer, "T ");
    const Pieces& pieces = keyer.CurrentPieces();
    Samples expected(all.size());
    std::copy_n(pieces.CWStart.begin(), 2646, expected.begin());
    std::copy_n(pieces.CWMidte.begin(), 2646, expected.begin() + 2646);
    std::copy_n(pieces.CWSlut.begin(), 2646, expected.begin() + 2 * 2646);
    EXPECT_EQ(all, expected);
    EXPECT_EQ(all[2645], all[2646]);
}

TEST(KeyerOfATone, AHalfEndsInsideAPieceWhoseRestOpensTheOther) {
    Keyer keyer = KeyerAt(20);
    keyer.SetText("00000 ", 0);
    EXPECT_TRUE(keyer.Fill(Half::First).active);
    // Eight pieces of 2646 samples are 21168, which leaves 882 samples for the start of the ninth.
    EXPECT_EQ(keyer.Place().glCWSlat, 882);
    EXPECT_EQ(keyer.Place().gsElement, "1");
    const FilledHalf second = keyer.Fill(Half::Second);
    EXPECT_EQ(second.samples[0], keyer.CurrentPieces().CWStart[882]);
    // The other 1764 samples of the ninth piece, seven whole pieces, and 1764 samples of the next.
    EXPECT_EQ(keyer.Place().glCWSlat, 1764);
}

TEST(KeyerOfATone, AtSixtyWordsTwentyFivePiecesFillAHalfWithoutACut) {
    Keyer keyer = KeyerAt(60);
    keyer.SetText("5555555555 ", 0);
    const FilledHalf first = keyer.Fill(Half::First);
    EXPECT_EQ(keyer.Place().glCWSlat, 882);
    // "5" has nine slots and three slots of gap.
    EXPECT_EQ(SamplesOf(first), Pasted(keyer.CurrentPieces(), "4 4 4 4 4   4 4 4 4 4   4"));
    EXPECT_EQ(SamplesOf(keyer.Fill(Half::Second)), Pasted(keyer.CurrentPieces(), " 4 4 4 4   4 4 4 4 4   4 "));
    EXPECT_EQ(keyer.Place().glCWSlat, 882);
}

TEST(KeyerOfATone, ATextRunsAcrossTheHalvesWithoutAClick) {
    const std::string slots = "123 4 123 4" + Silence(3) + "123 123 4 123" + Silence(7) + "123 4 4" + Silence(3) + "4" + Silence(10);
    for (const int wpm : {3, 6, 16, 20, 23, 37, 59, 60}) {
        Keyer keyer = KeyerAt(wpm);
        Samples expected = Pasted(keyer.CurrentPieces(), slots);
        const Samples all = Filled(keyer, "CQ DE ");
        ASSERT_GE(all.size(), expected.size()) << wpm;
        expected.resize(all.size());
        EXPECT_EQ(all, expected) << wpm;
    }
}

TEST(KeyerOfATone, ExtraSilenceIsThatOfTheText) {
    Keyer keyer = KeyerAt(60);
    keyer.SetText("EE ", 2);
    EXPECT_EQ(SamplesOf(keyer.Fill(Half::First)), Pasted(keyer.CurrentPieces(), "4" + Silence(5) + "4" + Silence(18)));
}

TEST(KeyerOfATone, AnElementWithoutAPieceLeavesItsSamplesAsTheyAre) {
    Keyer keyer = KeyerAt(20, {.gsCWTekst = "E ", .gsElement = "x", .glCWSlat = 2600});
    const FilledHalf filled = keyer.Fill(Half::First);
    EXPECT_TRUE(filled.active);
    const Samples half = SamplesOf(filled);
    EXPECT_EQ(Samples(half.begin(), half.begin() + 46), Samples(46, 0));
    EXPECT_EQ(half[46 + 1], keyer.CurrentPieces().CWPrik[1]);
}

TEST(KeyerOfATone, TheBareToneCanBeAnElement) {
    Keyer keyer = KeyerAt(20, {.gsElement = "-", .glCWSlat = 2600});
    const Samples half = SamplesOf(keyer.Fill(Half::First));
    const Piece& tone = keyer.CurrentPieces().CWStreg;
    EXPECT_EQ(Samples(half.begin(), half.begin() + 46), Samples(tone.begin() + 2600, tone.begin() + 2646));
}

TEST(KeyerOfATone, AtVeryLowSpeedsAHalfHoldsPartOfAPieceAndTheProgramGoesOn) {
    Keyer keyer = KeyerAt(1);
    keyer.SetText("T ", 0);
    const Samples first = SamplesOf(keyer.Fill(Half::First));
    const Piece& start = keyer.CurrentPieces().CWStart;
    EXPECT_EQ(keyer.Place().glCWSlat, kHalf);
    EXPECT_EQ(first, Samples(start.begin(), start.begin() + kHalf));
    const Samples second = SamplesOf(keyer.Fill(Half::Second));
    EXPECT_EQ(keyer.Place().glCWSlat, 0);
    EXPECT_EQ(second, Samples(start.begin() + kHalf, start.begin() + 2 * kHalf));
    // The next half begins with the middle of the dash, even if part of its first third was not yet sent.
    EXPECT_EQ(keyer.Fill(Half::First).samples[1], keyer.CurrentPieces().CWMidte[1]);
}

TEST(KeyerOfATone, AWordIsFiftyDotsAtEverySpeed) {
    // Speed is counted in this word: PARIS, up to the first tone of the next PARIS.
    for (int wpm = 6; wpm <= 60; ++wpm) {
        Keyer keyer = KeyerAt(wpm);
        const Samples all = Filled(keyer, "PARIS PARIS ");
        const auto sounds = [](std::int16_t sample) { return sample != 0; };
        const auto first = std::find_if(all.begin(), all.end(), sounds);
        // A pause longer than five dots separates words.
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

TEST(KeyerOfATone, EachToneAndEachGapIsAWholeNumberOfDots) {
    for (const int wpm : {6, 16, 20, 25, 33, 60}) {
        Keyer keyer = KeyerAt(wpm);
        const int dot = 52920 / wpm;
        const Samples all = Filled(keyer, "PARIS ");
        // The dots and dashes of PARIS, each followed by its gap. A tone begins with a zero sample and may end with one.
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
        // PARIS itself has 43 dots, and nothing follows it.
        EXPECT_EQ(at, static_cast<std::size_t>(43 * dot));
        EXPECT_TRUE(std::all_of(all.begin() + static_cast<std::ptrdiff_t>(at), all.end(), [](std::int16_t sample) { return sample == 0; }));
    }
}

// --- Ends, stops, and texts during a text

TEST(KeyerOfATone, TheEndMarkIsSilentAndStays) {
    Keyer keyer = KeyerAt(20);
    keyer.SetText("E ", 0);
    keyer.Fill(Half::First);
    EXPECT_TRUE(keyer.Fill(Half::Second).active);
    EXPECT_EQ(keyer.Place().gsElement, "0");
    // A new text alone does not start the keyer again.
    keyer.SetText("EEEE ", 0);
    const FilledHalf silent = keyer.Fill(Half::First);
    EXPECT_FALSE(silent.active);
    EXPECT_EQ(SamplesOf(silent), Samples(kHalf));
    EXPECT_EQ(keyer.Place().gsElement, "0");
    EXPECT_EQ(keyer.Place().glTegnPos, 0);
    // A new send does.
    keyer.Begin();
    EXPECT_TRUE(keyer.Fill(Half::First).active);
}

TEST(KeyerOfATone, ANewSendDropsTheCutPieceAndGoesOnWhereTheStepperStands) {
    Keyer keyer = KeyerAt(20);
    keyer.SetText("00000 ", 0);
    keyer.Fill(Half::First);
    // The ninth slot, the first of the third dash, is under way.
    EXPECT_EQ(keyer.Place().glElementPos, 9);
    keyer.SetText("TTTTT ", 0);
    keyer.Begin();
    EXPECT_EQ(keyer.Place().glCWSlat, 0);
    EXPECT_EQ(keyer.Place().gsElement, "");
    EXPECT_EQ(keyer.Place().glElementPos, 9);
    // The digit 0 that is being sent has ten slots left, followed by its gap. Eight slots and part of another fit.
    const Pieces& pieces = keyer.CurrentPieces();
    Samples expected = Pasted(pieces, "23 123 123");
    expected.resize(kHalf);
    EXPECT_EQ(SamplesOf(keyer.Fill(Half::First)), expected);
}

TEST(KeyerOfATone, AfterAStopTheNextTextStartsFromItsBeginning) {
    Keyer keyer = KeyerAt(20);
    keyer.SetText("EEEEEEEEEE ", 0);
    keyer.Fill(Half::First);
    keyer.ResetPosition();
    EXPECT_EQ(keyer.Place().gsElement, "");
    EXPECT_EQ(keyer.Place().glTegnPos, 0);
    // Eight slots of two dots with their gaps are 21168 samples, so 882 samples of the third dot were sent.
    EXPECT_EQ(keyer.Place().glCWSlat, 882);
    keyer.SetText("T ", 0);
    keyer.Begin();
    const Samples half = SamplesOf(keyer.Fill(Half::First));
    const Piece& start = keyer.CurrentPieces().CWStart;
    EXPECT_EQ(Samples(half.begin(), half.begin() + 2646), Samples(start.begin(), start.begin() + 2646));
}

TEST(KeyerOfATone, NewPiecesLeaveTheStepperWhereItIs) {
    Keyer keyer = KeyerAt(20);
    keyer.SetText("EEEEEEEEEE ", 0);
    keyer.Fill(Half::First);
    keyer.SetSpeed(40);
    keyer.MakePieces(600, 5000);
    EXPECT_EQ(keyer.CurrentPieces().Priklen, 1323);
    EXPECT_EQ(keyer.Place().glTegnPos, 2);
    EXPECT_EQ(keyer.Place().gsElement, "4");
    EXPECT_EQ(keyer.Place().glCWSlat, 882);
    EXPECT_EQ(keyer.Place().gsCWTekst, "EEEEEEEEEE ");
}

// --- Failures

TEST(KeyerOfATone, FailuresOfNewPiecesLeaveTextAndPlace) {
    Keyer keyer = KeyerAt(20);
    keyer.SetText("EEEEEEEEEE ", 0);
    keyer.Fill(Half::First);
    EXPECT_EQ(FailureOf([&] { keyer.SetSpeed(0); }), 11);
    EXPECT_EQ(keyer.CurrentPieces().Priklen, 2646);
    keyer.SetSpeed(3000);
    EXPECT_EQ(FailureOf([&] { keyer.MakePieces(800, 10000); }), 9);
    EXPECT_EQ(keyer.CurrentPieces().Priklen, 17);
    keyer.SetSpeed(20);
    EXPECT_EQ(FailureOf([&] { keyer.MakePieces(800, 32768); }), 6);
    EXPECT_EQ(keyer.Place().glTegnPos, 2);
    EXPECT_EQ(keyer.Place().gsCWTekst, "EEEEEEEEEE ");
}

}  // namespace
}  // namespace vatro
