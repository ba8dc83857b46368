// SPDX-License-Identifier: MIT
#include "keyer/texts.h"
#include "frame/state.h"

#include "desk/keyer/sending_program.h"

namespace vatro {
namespace {

using namespace literals;

class CWTexts : public SendingProgram {
protected:
    CWTexts() {
        settings.texts["SETTINGS/MYCALL"] = "OZ1AB/P";
        Start();
        gsCWCall = "DL9XYZ";
        gsCWRST = "599";
        gsCWNummer = "0012";
    }
    /// The text as it is sent.
    static std::string Expanded(std::string_view text) {
        gsCWRaa = text;
        DanCWTekst();
        return gsCWTekst;
    }
    static std::string WithNumber(std::string_view number) {
        gsCWNummer = number;
        return Expanded("#N");
    }
};

TEST_F(CWTexts, AContactInShortForm) {
    gsCWRSTFormat = "5nn";
    gsCWNummerFormat = "--1";
    EXPECT_EQ(Expanded("#C UR #T #N BK"), "DL9XYZ UR 5NN T12 BK ");
    EXPECT_EQ(gsCWNummer, "TT12");
    EXPECT_EQ(gsCWRST, "5NN");
    // Once more, as the button TX does: the values are short already.
    EXPECT_EQ(Expanded("#C UR #T #N BK"), "DL9XYZ UR 5NN T12 BK ");
}

TEST_F(CWTexts, AContactInLongForm) {
    EXPECT_EQ(Expanded("#C UR #T #N BK"), "DL9XYZ UR 599 012 BK ");
}

TEST_F(CWTexts, EachCodeHasItsValueHoweverOften) {
    EXPECT_EQ(Expanded("CQ DE #R #R TEST"), "CQ DE OZ1AB/P OZ1AB/P TEST ");
    EXPECT_EQ(Expanded("#C#R#T#N"), "DL9XYZOZ1AB/P599012 ");
    EXPECT_EQ(Expanded(""), " ");
}

TEST_F(CWTexts, TheTextIsSentInCapitalsAndTheValuesAsTheyAre) {
    gsCWCall = "dl9xyz";
    EXPECT_EQ(Expanded("de #c æøå"_t), "DE dl9xyz ÆØÅ "_t);
}

TEST_F(CWTexts, OnlyNoughtsInFrontBecomeT) {
    gsCWNummerFormat = "--1";
    EXPECT_EQ(WithNumber("0001"), "TT1 ");
    EXPECT_EQ(WithNumber("0100"), "100 ");
    EXPECT_EQ(WithNumber("0000"), "TTT ");
    EXPECT_EQ(gsCWNummer, "TTTT");
    EXPECT_EQ(WithNumber("1000"), "1000 ");
    EXPECT_EQ(WithNumber(""), " ");
}

TEST_F(CWTexts, FromAThousandOnANumberHasAllItsFigures) {
    EXPECT_EQ(WithNumber("0999"), "999 ");
    EXPECT_EQ(WithNumber("1000"), "1000 ");
    EXPECT_EQ(WithNumber("1234"), "1234 ");
    EXPECT_EQ(WithNumber("12"), "12 ");
    gsCWNummerFormat = "--1";
    EXPECT_EQ(WithNumber("1234"), "1234 ");
}

TEST_F(CWTexts, OnlyTheReport599IsShortened) {
    gsCWRSTFormat = "5nn";
    gsCWRST = "579";
    EXPECT_EQ(Expanded("#T"), "579 ");
    gsCWRST = "59";
    EXPECT_EQ(Expanded("#T"), "59 ");
}

TEST_F(CWTexts, AnUnknownFormatChangesNothing) {
    gsCWRSTFormat = "kort";
    gsCWNummerFormat = "kort";
    EXPECT_EQ(Expanded("#T #N"), "599 012 ");
}

TEST_F(CWTexts, OfAnUnknownCodeTheSignIsDropped) {
    EXPECT_EQ(Expanded("A#XB"), "AXB ");
    EXPECT_EQ(Expanded("TEST #"), "TEST  ");
    EXPECT_EQ(Expanded("##C"), "DL9XYZ ");
    EXPECT_EQ(Expanded("# C"), " C ");
    EXPECT_EQ(Expanded("#"), " ");
}

TEST_F(CWTexts, ACodeInsideAValueHasItsValueToo) {
    gsCWCall = "#R/#N";
    EXPECT_EQ(Expanded("DE #C K"), "DE OZ1AB/P/012 K ");
}

TEST_F(CWTexts, ACodeInsideItsOwnValueIsDropped) {
    gsCWCall = "A#CB";
    EXPECT_EQ(Expanded("#C #C"), "ACB ACB ");
    // Each leads to the other.
    gsCWCall = "X#T";
    gsCWRST = "Y#C";
    EXPECT_EQ(Expanded("#C"), "XYC ");
}

TEST_F(CWTexts, ACodeMayBeginAtTheEndOfAValue) {
    gsCWCall = "A#";
    EXPECT_EQ(Expanded("#CT K"), "A599 K ");
    // Each call takes the C behind it for its code, until there is none left.
    EXPECT_EQ(Expanded("#CCCC"), "AAAA ");
    EXPECT_EQ(Expanded("#C"), "A ");
    EXPECT_EQ(Expanded("#C K"), "A K ");
    // "#CT", then "#T" of two values and the text.
    gsCWCall = "#R";
    desk().gsMyCall = "OZ#";
    EXPECT_EQ(Expanded("#CT"), "OZ599 ");
}

TEST_F(CWTexts, ACodeThatComesUpInItsOwnValueIsDroppedAcrossTheEndOfAnother) {
    // "#C" becomes "#RC", "A#C", "A#RC" and so on: it would have no end.
    gsCWCall = "#RC";
    desk().gsMyCall = "A#";
    EXPECT_EQ(Expanded("#C K"), "AC K ");
}

TEST_F(CWTexts, ALowerCaseLetterInAValueIsNoCode) {
    gsCWCall = "A#r";
    EXPECT_EQ(Expanded("#C"), "Ar ");
}

// --- Values of a send

TEST_F(CWTexts, AddressTheStationInTheFields) {
    files.files["LOG\\FD80MCW.TXT"] = {"13:00 OZ9ZZ           599-0007 599-0345  3 OZ         OZ1DEF     CW    05-09-26"};
    Type(frmMain->Text1[1], "DL9XYZ");
    Type(frmMain->Text1[2], "569");
    SendText("#C #T #N");
    EXPECT_EQ(gsCWTekst, "DL9XYZ 569 001 ");
    EXPECT_EQ(gsCWNummer, "0001");
}

TEST_F(CWTexts, WithNothingAtAllTheCodesAreEmpty) {
    NulstilCWTekster();
    SendText("#C UR #T #N BK");
    EXPECT_EQ(gsCWTekst, " UR   BK ");
}

TEST_F(CWTexts, WithNoLogTheLastStationIsAddressedAgain) {
    Type(frmMain->Text1[1], "DL9XYZ");
    SendText("#C");
    Type(frmMain->Text1[1], "");
    SendText("#C #C");
    EXPECT_EQ(gsCWTekst, "DL9XYZ DL9XYZ ");
}

/// With a log of two lines.
class CWTextsOfALog : public SendingProgram {
protected:
    void StartWithLast(std::string_view line) {
        files.files["LOG\\FD80MCW.TXT"] = {"13:00 OZ9ZZ           599-0007 599-0345  3 OZ         OZ1DEF     CW    05-09-26",
                                           std::string(line)};
        Start();
    }
};

TEST_F(CWTextsOfALog, AnEmptyCallFieldAddressesTheStationOfTheLastLine) {
    StartWithLast("13:02 DL1ABC          579-0008 599-0034  1            OZ1DEF     CW    05-09-26");
    SendText("#C UR #T #N");
    EXPECT_EQ(gsCWTekst, "DL1ABC UR 579 008 ");
    EXPECT_EQ(gsCWNummer, "0008");
}

TEST_F(CWTextsOfALog, ANoteIsCutLikeAContact) {
    //             123456789012345678901234567890
    StartWithLast("NOTE: antenna down at 579 x4321y");
    SendText("#C/#T/#N");
    // Columns 7 to 22, 23 to 25, 27 to 30.
    EXPECT_EQ(gsCWCall, "antenna down at");
    EXPECT_EQ(gsCWRST, "579");
    EXPECT_EQ(gsCWNummer, "x432");
    EXPECT_EQ(gsCWTekst, "antenna down at/579/432 ");
}

TEST_F(CWTextsOfALog, TheCallOfANoteReachesIntoTheColumnBehindACall) {
    //             123456789012345678901234567890
    StartWithLast("NOTE: abcdefghijklmnopqrstuvwx");
    SendText("#C");
    EXPECT_EQ(gsCWCall, "abcdefghijklmnop");
}

}  // namespace
}  // namespace vatro
