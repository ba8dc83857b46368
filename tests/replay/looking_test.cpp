// SPDX-License-Identifier: MIT
#include "looking.h"
#include "frame/state.h"

#include <gtest/gtest.h>

#include "codepage.h"
#include "entry/clock.h"
#include "entry/operators.h"
#include "forms.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "log/duplicates.h"
#include "variables.h"

namespace vatro {

namespace {

using Lines = std::vector<std::string>;

class LookedAt : public Form {
public:
    LookedAt() : Form("frmLook", FormKind::Dialog, "Look") {}
    TextBox Text1[2]{{*this, "Text1", 0}, {*this, "Text1", 1}};
    Label Label1{*this, "Label1", "Vælg"_t, {.name = "Arial", .size = 14.25, .bold = true, .underline = true}};
    Label Label2{*this, "Label2", "", {.name = "Fixedsys", .size = 9}};
    CheckBox Check1{*this, "Check1", "Q&SL"};
    Button Command1{*this, "Command1", "&Log"};
    ListBox List1{*this, "List1"};
    ComboBox Combo1{*this, "Combo1"};
    StatusBar sbStatusBar{*this, "sbStatusBar", {"Status", "Point ", "a \"b\""}};
};

}  // namespace

TEST(Looking, FieldLabelAndButtonShowTheirText) {
    LookedAt form;
    form.Text1[1].SetText("OZ1AB \\ \"x\"");
    EXPECT_EQ(ShowControl(form.Text1[1]), (Lines{R"(frmLook.Text1(1) "OZ1AB \\ \"x\"")"}));
    EXPECT_EQ(ShowControl(form.Label1), (Lines{"frmLook.Label1 \"Vælg\""}));
    EXPECT_EQ(ShowControl(form.Command1), (Lines{"frmLook.Command1 \"&Log\""}));
}

TEST(Looking, CheckBoxIsOnOrOff) {
    LookedAt form;
    EXPECT_EQ(ShowControl(form.Check1), (Lines{"frmLook.Check1 off"}));
    form.Check1.SetValue(true);
    EXPECT_EQ(ShowControl(form.Check1), (Lines{"frmLook.Check1 on"}));
}

TEST(Looking, ListShowsCountSelectionAndItems) {
    LookedAt form;
    EXPECT_EQ(ShowControl(form.List1), (Lines{"frmLook.List1 0 items selected -1"}));
    form.List1.AddItem("13:00 DL9XYZ ");
    form.List1.AddItem("");
    form.List1.SetListIndex(1);
    EXPECT_EQ(ShowControl(form.List1), (Lines{"frmLook.List1 2 items selected 1", "\"13:00 DL9XYZ \"", "\"\""}));
}

TEST(Looking, ComboBoxShowsTextCountAndItems) {
    LookedAt form;
    form.Combo1.AddItem("OZ1AB");
    form.Combo1.SetText("OZ2");
    EXPECT_EQ(ShowControl(form.Combo1), (Lines{"frmLook.Combo1 \"OZ2\" 1 items", "\"OZ1AB\""}));
}

TEST(Looking, StatusBarShowsItsPanelsInOneLine) {
    const LookedAt form;
    EXPECT_EQ(ShowControl(form.sbStatusBar), (Lines{R"(frmLook.sbStatusBar "Status" "Point " "a \"b\"")"}));
}

TEST(Looking, StateOfAFieldHasLimitSelectionAndTip) {
    LookedAt form;
    TextBox& field = form.Text1[0];
    EXPECT_EQ(ShowControlState(field), (Lines{"frmLook.Text1(0) enabled shown selected 0 0"}));
    field.SetText("12:00");
    field.SetMaxLength(5);
    field.SelectAll();
    field.SetToolTip("Tidspunkt...");
    field.SetEnabled(false);
    field.SetVisible(false);
    EXPECT_EQ(ShowControlState(field), (Lines{"frmLook.Text1(0) disabled hidden limit 5 selected 0 5 tip \"Tidspunkt...\""}));
}

TEST(Looking, StateOfALabelHasColoursAndFont) {
    LookedAt form;
    form.Label1.SetForeColour(kRed);
    form.Label1.SetBackColour(0x00FF00);
    form.Label1.SetOpaque(true);
    EXPECT_EQ(ShowControlState(form.Label1), (Lines{"frmLook.Label1 enabled shown colour 255 back 65280 opaque font \"Arial\" 14.25 bu"}));
    form.Label2.SetFontSize(72);
    EXPECT_EQ(ShowControlState(form.Label2),
              (Lines{"frmLook.Label2 enabled shown colour 0 back 16777215 transparent font \"Fixedsys\" 72 -"}));
}

TEST(Looking, StateOfOtherControlsIsShort) {
    LookedAt form;
    EXPECT_EQ(ShowControlState(form.List1), (Lines{"frmLook.List1 enabled shown"}));
    EXPECT_EQ(ShowControlState(form.Combo1), (Lines{"frmLook.Combo1 enabled shown selected 0 0"}));
}

TEST(Looking, LinesTellHowTheyEnd) {
    EXPECT_EQ(ShowLines(""), Lines{});
    EXPECT_EQ(ShowLines("a\r\n\r\nb\nc\rd"), (Lines{"|a|", "||", "|b| LF", "|c| CR", "|d| EOF"}));
    EXPECT_EQ(ShowLines("\xE6 \r\n"), (Lines{"|æ |"}));
}

TEST(Looking, BoxIsToldWithButtonsAndIcon) {
    MessageBox box;
    box.text = std::string("Vælg bånd"_t) + "\r\n\"x\"";
    EXPECT_EQ(BoxLine(box), R"(box "vatro" "Vælg bånd\n\"x\"" OK -)");
    box = {.text = "t", .title = "T", .buttons = Buttons::YesNo, .icon = Icon::Question, .defaultNo = true};
    EXPECT_EQ(BoxLine(box), "box \"T\" \"t\" Ja|Nej* question");
    box.defaultNo = false;
    box.icon = Icon::Exclamation;
    EXPECT_EQ(BoxLine(box), "box \"T\" \"t\" Ja*|Nej exclamation");
    box.buttons = Buttons::Ok;
    box.icon = Icon::Critical;
    EXPECT_EQ(BoxLine(box), "box \"T\" \"t\" OK critical");
    box.icon = Icon::Information;
    EXPECT_EQ(BoxLine(box), "box \"T\" \"t\" OK information");
}

TEST(Looking, VariablesAreKnownByName) {
    for (const std::string_view name :
         {"gsBand"_t,     "gsMode"_t,    "gsQsoMode"_t, "gsLogLib"_t, "gsFDLib"_t,   "gsBackupLib"_t, "gsUTC"_t,  "gbAutoTid"_t,
          "gbVisLand"_t,  "gbVisInfo"_t, "gsMyCall"_t,  "gsKlasse"_t, "gsTelefon"_t, "gsOperatør"_t,  "gsCall"_t, "gbDupe"_t,
          "giQSOPoint"_t, "giQSOnr"_t,   "glPoint"_t,   "giMult"_t,   "giLande"_t,   "giRefPfx"_t,    "giEDR"_t})
        EXPECT_TRUE(VariableValue(name)) << ToUtf8(name);
    EXPECT_FALSE(VariableValue("gsband"));
}

TEST(Looking, VariablesOfTheKeyerAreKnownByName) {
    ResetDesk();
    KeyerState& cw = desk().cw;
    cw.giCWWPM = 21;
    cw.giCWTone = 650;
    cw.glCWVolume = 9000;
    cw.giCWFarnsworth = 3;
    cw.gsCWNummerFormat = "0001";
    cw.gsCWRSTFormat = "599";
    cw.gsCWRaa = "#C #R";
    cw.gsCWCall = "DL1ABC";
    cw.gsCWRST = "589";
    cw.gsCWNummer = "0012";
    EXPECT_EQ(VariableValue("giCWWPM"), "21");
    EXPECT_EQ(VariableValue("giCWTone"), "650");
    EXPECT_EQ(VariableValue("glCWVolume"), "9000");
    EXPECT_EQ(VariableValue("giCWFarnsworth"), "3");
    EXPECT_EQ(VariableValue("gsCWNummerFormat"), "\"0001\"");
    EXPECT_EQ(VariableValue("gsCWRSTFormat"), "\"599\"");
    EXPECT_EQ(VariableValue("gsCWRaa"), "\"#C #R\"");
    EXPECT_EQ(VariableValue("gsCWCall"), "\"DL1ABC\"");
    EXPECT_EQ(VariableValue("gsCWRST"), "\"589\"");
    EXPECT_EQ(VariableValue("gsCWNummer"), "\"0012\"");
    // Nothing has been sent yet.
    EXPECT_EQ(VariableValue("gsCWTekst"), "\"\"");
    EXPECT_EQ(VariableValue("gscwtegn"), "\"\"");
    EXPECT_EQ(VariableValue("gsElement"), "\"\"");
    EXPECT_EQ(VariableValue("glTegnPos"), "0");
    EXPECT_EQ(VariableValue("glElementPos"), "0");
    EXPECT_EQ(VariableValue("glCWSlat"), "0");
    EXPECT_EQ(VariableValue("Priklen"), "0");
    ResetDesk();
}

TEST(Looking, VariablesShowTextInQuotesAndTheRestBare) {
    desk().gsBand = "80m";
    desk().gsOperatør = "OZ1A";
    desk().gbDupe = true;
    desk().gbAutoTid = 1;
    desk().log.giQSOnr = 12;
    desk().log.glPoint = 123456;
    EXPECT_EQ(VariableValue("gsBand"), "\"80m\"");
    EXPECT_EQ(VariableValue("gsOperatør"_t), "\"OZ1A  \"");
    EXPECT_EQ(VariableValue("gbDupe"), "true");
    EXPECT_EQ(VariableValue("gbAutoTid"), "1");
    EXPECT_EQ(VariableValue("giQSOnr"), "12");
    EXPECT_EQ(VariableValue("glPoint"), "123456");
    desk().gbDupe = false;
    EXPECT_EQ(VariableValue("gbDupe"), "false");
}

}  // namespace vatro
