// SPDX-License-Identifier: MIT
#include "morse/stepper.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "codepage.h"
#include "rules/morse/silence.h"

namespace vatro {
namespace {

using namespace literals;

/// All slots of the text, without the end mark.
std::string Slots(std::string_view text, int extraSilence = 0) {
    Stepper stepper{.gsCWTekst = std::string(text), .extraSilence = static_cast<std::int16_t>(extraSilence)};
    std::string slots;
    while (slots.size() < 10000) {
        const std::string element = stepper.NæsteElement();
        if (element == "0") return slots;
        slots += element;
    }
    ADD_FAILURE() << "the text has no end";
    return slots;
}

TEST(StepperOfAText, ASingleDotIsFollowedByTenSilentSlots) {
    EXPECT_EQ(Slots("E "), "4" + Silence(10));
}

TEST(StepperOfAText, ADashIsThreeSlots) {
    EXPECT_EQ(Slots("T "), "123" + Silence(10));
}

TEST(StepperOfAText, ElementsAreOneSlotApartCharactersThreeAndWordsSeven) {
    EXPECT_EQ(Slots("AN T "), "4 123" + Silence(3) + "123 4" + Silence(7) + "123" + Silence(10));
}

TEST(StepperOfAText, ExtraSilenceStretchesOnlyTheGaps) {
    EXPECT_EQ(Slots("A T ", 2), "4 123" + Silence(5 + 6) + "123" + Silence(16));
    EXPECT_EQ(Slots("EE ", 20), "4" + Silence(23) + "4" + Silence(70));
}

TEST(StepperOfAText, ExtraSilenceBelowNoughtLeavesOneSlot) {
    EXPECT_EQ(Slots("AT ", -30), "4 123" + Silence(1) + "123" + Silence(1) + Silence(2) + Silence(1));
}

TEST(StepperOfAText, WhatHasNoMorseIsThreeSlotsOfSilence) {
    EXPECT_EQ(Slots("EaE "), "4" + Silence(6) + "4" + Silence(10));
    EXPECT_EQ(Slots("E*E "), "4" + Silence(6) + "4" + Silence(10));
    EXPECT_EQ(Slots("E*E ", 4), "4" + Silence(14) + "4" + Silence(22));
}

TEST(StepperOfAText, TwoLettersInBracketsAreOneSign) {
    EXPECT_EQ(Slots("AB<SK>C "),
              "4 123" + Silence(3) + "123 4 4 4" + Silence(3) + "4 4 4 123 4 123" + Silence(3) + "123 4 123 4" + Silence(10));
}

TEST(StepperOfAText, WhateverStandsInPlaceOfTheClosingBracketIsPassedBy) {
    EXPECT_EQ(Slots("<SKEE "), "4 4 4 123 4 123" + Silence(3) + "4" + Silence(10));
}

TEST(StepperOfAText, AnUnknownPairIsAGapOfOneCharacter) {
    EXPECT_EQ(Slots("E<XX>E "), "4" + Silence(6) + "4" + Silence(10));
}

TEST(StepperOfAText, ABracketAtTheEndTakesTheBlankAndEndsTheText) {
    EXPECT_EQ(Slots("E< "), "4" + Silence(3) + Silence(1));
}

TEST(StepperOfAText, AnEmptyTextIsSevenSlotsOfSilence) {
    EXPECT_EQ(Slots(" "), Silence(7));
}

TEST(StepperOfAText, DanishLettersAreSent) {
    EXPECT_EQ(Slots("Å "_t), "4 123 123 4 123" + Silence(10));
}

TEST(StepperOfAText, TheEndOfATextPutsTheStepperBack) {
    Stepper stepper{.gsCWTekst = "ET "};
    std::string element;
    for (int i = 0; i < 100 && element != "0"; ++i) element = stepper.NæsteElement();
    EXPECT_EQ(element, "0");
    EXPECT_EQ(stepper.glTegnPos, 0);
    EXPECT_EQ(stepper.glElementPos, 0);
    EXPECT_EQ(stepper.gscwtegn, "");
}

TEST(StepperOfAText, TheStepperCountsCharactersAndElements) {
    Stepper stepper{.gsCWTekst = "AE "};
    std::string element;
    for (int i = 0; i < 5; ++i) element = stepper.NæsteElement();
    EXPECT_EQ(element, "3");
    EXPECT_EQ(stepper.gscwtegn, "4 123");
    EXPECT_EQ(stepper.glElementPos, 5);
    EXPECT_EQ(stepper.glTegnPos, 0);
    for (int i = 0; i < 3; ++i) element = stepper.NæsteElement();
    EXPECT_EQ(element, " ");
    EXPECT_EQ(stepper.glTegnPos, 1);
    EXPECT_EQ(stepper.glElementPos, 0);
    EXPECT_EQ(stepper.gscwtegn, "");
}

TEST(StepperOfAText, AStopLeavesTextAndCutPiece) {
    Stepper stepper{.gsCWTekst = "AE ", .glTegnPos = 1, .gscwtegn = "4", .glElementPos = 1, .gsElement = "4", .glCWSlat = 882};
    stepper.ResetPosition();
    EXPECT_EQ(stepper.gsCWTekst, "AE ");
    EXPECT_EQ(stepper.glTegnPos, 0);
    EXPECT_EQ(stepper.gscwtegn, "");
    EXPECT_EQ(stepper.glElementPos, 0);
    EXPECT_EQ(stepper.gsElement, "");
    EXPECT_EQ(stepper.glCWSlat, 882);
}

}  // namespace
}  // namespace vatro
