// SPDX-License-Identifier: MIT
#include "morse/text_codes.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;

/// The values of a contact; a test may change each of them.
class TextCodes : public ::testing::Test {
protected:
    std::string Expanded(std::string_view text) const { return DanCWTekst(text, values); }
    std::string WithNumber(std::string_view number) {
        values.number = number;
        return Expanded("#N");
    }

    CodeValues values{.call = "DL9XYZ", .report = "599", .number = "0012", .ownCall = "OZ1AB/P"};
};

TEST_F(TextCodes, EachCodeHasItsValueHoweverOften) {
    EXPECT_EQ(Expanded("#C UR #T #N BK"), "DL9XYZ UR 599 012 BK ");
    EXPECT_EQ(Expanded("CQ DE #R #R TEST"), "CQ DE OZ1AB/P OZ1AB/P TEST ");
    EXPECT_EQ(Expanded("#C#R#T#N"), "DL9XYZOZ1AB/P599012 ");
    EXPECT_EQ(Expanded(""), " ");
}

TEST_F(TextCodes, TheTextIsSentInCapitalsAndTheValuesAsTheyAre) {
    values.call = "dl9xyz";
    EXPECT_EQ(Expanded("de #c æøå"_t), "DE dl9xyz ÆØÅ "_t);
}

TEST_F(TextCodes, OnlyNoughtsInFrontBecomeT) {
    EXPECT_EQ(NumberAsSent("0001", "--1"), "TTT1");
    EXPECT_EQ(NumberAsSent("0100", "--1"), "T100");
    EXPECT_EQ(NumberAsSent("0000", "--1"), "TTTT");
    EXPECT_EQ(NumberAsSent("1000", "--1"), "1000");
    EXPECT_EQ(NumberAsSent("", "--1"), "");
    // Already short values stay unchanged; the TX button shortens them a second time.
    EXPECT_EQ(NumberAsSent("TTT1", "--1"), "TTT1");
}

TEST_F(TextCodes, OnlyTheReport599IsShortened) {
    EXPECT_EQ(ReportAsSent("599", "5nn"), "5NN");
    EXPECT_EQ(ReportAsSent("579", "5nn"), "579");
    EXPECT_EQ(ReportAsSent("59", "5nn"), "59");
    EXPECT_EQ(ReportAsSent("5NN", "5nn"), "5NN");
}

TEST_F(TextCodes, TheLongFormsAndUnknownOnesChangeNothing) {
    EXPECT_EQ(NumberAsSent("0012", "001"), "0012");
    EXPECT_EQ(NumberAsSent("0012", "kort"), "0012");
    EXPECT_EQ(ReportAsSent("599", "599"), "599");
    EXPECT_EQ(ReportAsSent("599", "kort"), "599");
}

TEST_F(TextCodes, BelowAThousandANumberHasThreeCharacters) {
    EXPECT_EQ(WithNumber("0999"), "999 ");
    EXPECT_EQ(WithNumber("12"), "12 ");
    EXPECT_EQ(WithNumber("TT12"), "T12 ");
    EXPECT_EQ(WithNumber("TTTT"), "TTT ");
    EXPECT_EQ(WithNumber(""), " ");
}

TEST_F(TextCodes, FromAThousandOnANumberHasAllItsFigures) {
    EXPECT_EQ(WithNumber("1000"), "1000 ");
    EXPECT_EQ(WithNumber("1234"), "1234 ");
}

TEST_F(TextCodes, OfAnUnknownCodeTheSignIsDropped) {
    EXPECT_EQ(Expanded("A#XB"), "AXB ");
    EXPECT_EQ(Expanded("TEST #"), "TEST  ");
    EXPECT_EQ(Expanded("##C"), "DL9XYZ ");
    EXPECT_EQ(Expanded("# C"), " C ");
    EXPECT_EQ(Expanded("#"), " ");
}

TEST_F(TextCodes, ACodeInsideAValueHasItsValueToo) {
    values.call = "#R/#N";
    EXPECT_EQ(Expanded("DE #C K"), "DE OZ1AB/P/012 K ");
}

TEST_F(TextCodes, ACodeInsideItsOwnValueIsDropped) {
    values.call = "A#CB";
    EXPECT_EQ(Expanded("#C #C"), "ACB ACB ");
    // Each value contains the code of the other.
    values.call = "X#T";
    values.report = "Y#C";
    EXPECT_EQ(Expanded("#C"), "XYC ");
}

TEST_F(TextCodes, ACodeMayBeginAtTheEndOfAValue) {
    values.call = "A#";
    EXPECT_EQ(Expanded("#CT K"), "A599 K ");
    // Each inserted call ends in "#", which forms a code with the following C, until no C is left.
    EXPECT_EQ(Expanded("#CCCC"), "AAAA ");
    EXPECT_EQ(Expanded("#C"), "A ");
    EXPECT_EQ(Expanded("#C K"), "A K ");
    // First "#CT" is expanded. The result contains a new code "#T", made of two values and the text.
    values.call = "#R";
    values.ownCall = "OZ#";
    EXPECT_EQ(Expanded("#CT"), "OZ599 ");
}

TEST_F(TextCodes, ACodeThatComesUpInItsOwnValueIsDroppedAcrossTheEndOfAnother) {
    // "#C" becomes "#RC", "A#C", "A#RC" and so on without end.
    values.call = "#RC";
    values.ownCall = "A#";
    EXPECT_EQ(Expanded("#C K"), "AC K ");
}

TEST_F(TextCodes, ALowerCaseLetterInAValueIsNoCode) {
    values.call = "A#r";
    EXPECT_EQ(Expanded("#C"), "Ar ");
}

}  // namespace
}  // namespace vatro
