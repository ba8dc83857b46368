// SPDX-License-Identifier: MIT
#include "field_characters.h"

#include "correction/frmNote.h"
#include "correction/frmRetQSO.h"
#include "entry/frmCall.h"
#include "entry/frmNytQSOnr.h"
#include "keyer/frmCW.h"
#include "running_program.h"

namespace vatro {
namespace {

using namespace literals;

class Pasting : public RunningProgram {
protected:
    Pasting() { Start(); }
    /// Empties the field, pastes the text and returns the content of the field; in UTF-8.
    static std::string Pasted(TextControl& field, std::string_view text) {
        field.SetText({});
        PasteInto(field, text);
        return ToUtf8(field.Text());
    }
};

TEST_F(Pasting, ANumberReceivedTakesFiguresOnly) {
    EXPECT_EQ(Pasted(frmMain->fields[kNumberReceivedField], "1E9"), "19");
    EXPECT_EQ(Pasted(frmMain->fields[kNumberReceivedField], " 12,3 "), "123");
    EXPECT_EQ(Pasted(frmRetQSO->fields[kNumberReceivedField], "-1e9"), "19");
}

TEST_F(Pasting, ACallIsPutInCapitals) {
    EXPECT_EQ(Pasted(frmMain->fields[kCallField], " oz1abc/p\t"), "OZ1ABC/P");
    EXPECT_EQ(Pasted(frmMain->fields[kCallField], "ø-z1"_t), "ØZ1");
    EXPECT_EQ(Pasted(frmRetQSO->fields[kCallField], "dl1we"), "DL1WE");
    EXPECT_EQ(Pasted(frmCall->callBox, "oz1ab/p"), "OZ1AB/P");
}

TEST_F(Pasting, ABlankPastedIsNoJump) {
    Dispatch([] { frmMain->fields[kCallField].SetFocus(); });
    EXPECT_EQ(Pasted(frmMain->fields[kCallField], "OZ1 ABC"), "OZ1ABC");
    EXPECT_TRUE(frmMain->fields[kCallField].HasFocus());
}

TEST_F(Pasting, ATimeTakesFiguresColonAndPoint) {
    EXPECT_EQ(Pasted(frmMain->fields[kUtcField], "kl. 12:30"), ".12:3");
}

TEST_F(Pasting, AReportTakesWhatItsKeysTake) {
    EXPECT_EQ(Pasted(frmMain->fields[kReportReceivedField], "5 9"), "59");
    EXPECT_EQ(Pasted(frmMain->fields[kReportReceivedField], "5n"), "5n");
}

TEST_F(Pasting, FieldsWithArrowsTakeFiguresOnly) {
    EXPECT_EQ(Pasted(frmNytQSOnr->number, "9E4"), "94");
    EXPECT_EQ(Pasted(frmCW->speed, "2e3 WPM"), "23");
    EXPECT_EQ(Pasted(frmCW->pitch, "-800"), "800");
}

TEST_F(Pasting, AFieldWithArrowsTakesNoLetterByKeyEither) {
    EXPECT_EQ(CharacterInto(frmNytQSOnr->number, 'E'), kNoKey);
    EXPECT_EQ(CharacterInto(frmNytQSOnr->number, '9'), '9');
    EXPECT_EQ(CharacterInto(frmNytQSOnr->number, kBackspace), kBackspace);
}

TEST_F(Pasting, AMorseTextKeepsItsBlanks) {
    EXPECT_EQ(Pasted(frmCW->texts[0], "cq test <de> #r"), "CQ TEST DE #R");
}

TEST_F(Pasting, ANoteTakesEverything) {
    EXPECT_EQ(Pasted(frmNote->note, "Pause 14-15, æble; #1!"_t), "Pause 14-15, æble; #1!");
}

TEST_F(Pasting, AnOperatorTakesASeventhCharacterAndNoMoreAsByKey) {
    EXPECT_EQ(Pasted(frmMain->operatorBox, "oz1abcdef"), "OZ1ABCD");
}

TEST_F(Pasting, TheRoomOfAFieldIsForWhatItTakes) {
    EXPECT_EQ(Pasted(frmMain->fields[kNumberReceivedField], "1 2 3 4 5"), "1234");
}

TEST_F(Pasting, TheFirstLineCounts) {
    EXPECT_EQ(Pasted(frmMain->fields[kCallField], "OZ1AB\r\nOZ2CD"), "OZ1AB");
}

TEST_F(Pasting, TellsWhetherAnythingButBlanksWasRefused) {
    TextBox& number = frmMain->fields[kNumberReceivedField];
    EXPECT_TRUE(PasteInto(number, " 1 2\t"));
    EXPECT_FALSE(PasteInto(number, "3E"));
    EXPECT_EQ(number.Text(), "123");
    EXPECT_FALSE(PasteInto(number, "45"));
    EXPECT_EQ(number.Text(), "1234");
}

TEST_F(Pasting, TheSelectionGoesIfTheFieldTakesAnything) {
    TextBox& call = frmMain->fields[kCallField];
    call.SetText("OZ1AB");
    call.Select(2, 3);
    PasteInto(call, "?!");
    EXPECT_EQ(call.Text(), "OZ1AB");
    PasteInto(call, "?7?");
    EXPECT_EQ(call.Text(), "OZ7");
}

}  // namespace
}  // namespace vatro
