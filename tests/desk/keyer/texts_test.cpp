// SPDX-License-Identifier: MIT
#include "keyer/texts.h"

#include "desk/keyer/sending_program.h"

namespace vatro {
namespace {

using namespace literals;

constexpr const char* kFirstLine = "13:00 OZ9ZZ           599-0007 599-0345  3 OZ         OZ1DEF     CW    05-09-26";

class CWTexts : public SendingProgram {
protected:
    CWTexts() { settings.texts["SETTINGS/MYCALL"] = "OZ1AB/P"; }
    /// Starts the program with a log of two lines, of which this is the last.
    void StartWithLast(std::string_view line) {
        files.files["LOG\\FD80MCW.TXT"] = {kFirstLine, std::string(line)};
        Start();
    }
    /// Types the fields of an unfinished contact.
    void Fill(std::string_view call, std::string_view report, std::string_view number) {
        Type(frmMain->fields[kCallField], call);
        Type(frmMain->fields[kReportSentField], report);
        Type(frmMain->fields[kNumberSentField], number);
    }
    static void PressTX() {
        Dispatch([] { frmCWTX->sendButton.Press(); });
    }
};

// --- The form of the values

TEST_F(CWTexts, AContactInShortForm) {
    settings.texts.insert({{"CW/N", "--1"}, {"CW/T", "5nn"}});
    Start();
    Fill("DL9XYZ", "599", "0012");
    SendText("#C UR #T #N BK");
    EXPECT_EQ(Place().gsCWTekst, "DL9XYZ UR 5NN T12 BK ");
    EXPECT_EQ(desk().cw.gsCWNummer, "TT12");
    EXPECT_EQ(desk().cw.gsCWRST, "5NN");
    // Shortening values that are already short changes nothing.
    PressTX();
    EXPECT_EQ(Place().gsCWTekst, "DL9XYZ UR 5NN T12 BK ");
    EXPECT_EQ(desk().cw.gsCWNummer, "TT12");
}

TEST_F(CWTexts, AContactInLongForm) {
    Start();
    Fill("DL9XYZ", "599", "0012");
    SendText("#C DE #R UR #T #N BK");
    EXPECT_EQ(Place().gsCWTekst, "DL9XYZ DE OZ1AB/P UR 599 012 BK ");
    EXPECT_EQ(desk().cw.gsCWNummer, "0012");
    EXPECT_EQ(desk().cw.gsCWRST, "599");
}

TEST_F(CWTexts, TheTextShownIsTheTextSent) {
    Start();
    Fill("DL9XYZ", "599", "0012");
    SendText("de #r");
    EXPECT_EQ(desk().cw.gsCWRaa, "de #r");
    EXPECT_EQ(frmCWTX->text.Text(), "DE OZ1AB/P ");
    EXPECT_EQ(Place().gsCWTekst, "DE OZ1AB/P ");
}

TEST_F(CWTexts, TheExtraSilenceOfTheSettingsIsSent) {
    settings.texts.insert({{"CW/FARNSWORTH", "2"}, {"CW/WPM", "60"}});
    Start();
    SendText("EE");
    const auto dot = [this](int slot) { return sound.buffer->samples[static_cast<std::size_t>(slot * 882 + 100)] != 0; };
    // A dot, a gap of 3 + 2 slots, a dot.
    for (int slot = 0; slot < 25; ++slot) EXPECT_EQ(dot(slot), slot == 0 || slot == 6) << slot;
}

// --- Values of a send

TEST_F(CWTexts, AddressTheStationInTheFields) {
    StartWithLast(kFirstLine);
    Type(frmMain->fields[kCallField], "DL9XYZ");
    Type(frmMain->fields[kReportSentField], "569");
    SendText("#C #T");
    EXPECT_EQ(Place().gsCWTekst, "DL9XYZ 569 ");
}

TEST_F(CWTexts, TakeTheNumberOfTheField) {
    Start();
    Type(frmMain->fields[kCallField], "DL9XYZ");
    SendText("#N");
    EXPECT_EQ(Place().gsCWTekst, "001 ");
    EXPECT_EQ(desk().cw.gsCWNummer, "0001");
}

TEST_F(CWTexts, WithNothingAtAllTheCodesAreEmpty) {
    Start();
    SendText("#C UR #T #N BK");
    EXPECT_EQ(Place().gsCWTekst, " UR   BK ");
}

TEST_F(CWTexts, WithNoLogTheLastStationIsAddressedAgain) {
    Start();
    Type(frmMain->fields[kCallField], "DL9XYZ");
    SendText("#C");
    Type(frmMain->fields[kCallField], "");
    SendText("#C #C");
    EXPECT_EQ(Place().gsCWTekst, "DL9XYZ DL9XYZ ");
}

TEST_F(CWTexts, AnEmptyCallFieldAddressesTheStationOfTheLastLine) {
    StartWithLast("13:02 DL1ABC          579-0008 599-0034  1            OZ1DEF     CW    05-09-26");
    SendText("#C UR #T #N");
    EXPECT_EQ(Place().gsCWTekst, "DL1ABC UR 579 008 ");
    EXPECT_EQ(desk().cw.gsCWNummer, "0008");
}

TEST_F(CWTexts, ANoteIsCutLikeAContact) {
    //             123456789012345678901234567890
    StartWithLast("NOTE: antenna down at 579 x4321y");
    SendText("#C/#T/#N");
    // Columns 7 to 22, 23 to 25 and 27 to 30.
    EXPECT_EQ(desk().cw.gsCWCall, "antenna down at");
    EXPECT_EQ(desk().cw.gsCWRST, "579");
    EXPECT_EQ(desk().cw.gsCWNummer, "x432");
    EXPECT_EQ(Place().gsCWTekst, "antenna down at/579/432 ");
}

TEST_F(CWTexts, TheCallOfANoteReachesIntoTheColumnBehindACall) {
    //             123456789012345678901234567890
    StartWithLast("NOTE: abcdefghijklmnopqrstuvwx");
    SendText("#C");
    EXPECT_EQ(desk().cw.gsCWCall, "abcdefghijklmnop");
}

}  // namespace
}  // namespace vatro
