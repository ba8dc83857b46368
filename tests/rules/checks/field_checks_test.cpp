// SPDX-License-Identifier: MIT
#include "checks/field_checks.h"
#include "frame/state.h"

#include "frame/band_mode.h"
#include "running_program.h"

namespace vatro {
namespace {

using namespace literals;

class Checks : public RunningProgram {};

TEST_F(Checks, AnOperatorOfBlanksIsNone) {
    EXPECT_TRUE(CheckOperator("OZ1AB "));
    for (const char* blank : {"", "      "}) {
        dialogs.Expect("Operatørcall skal angives");
        EXPECT_FALSE(CheckOperator(blank));
    }
}

TEST_F(Checks, ATimeHasFiveCharactersAndAColonInTheMiddle) {
    Start();
    TextBox& field = frmMain->Text1[0];
    for (const char* typed : {"12.30", "12:30", "12 30", "12130"}) {
        std::string time;
        field.SetText(typed);
        EXPECT_TRUE(CheckTime(field, time)) << typed;
        EXPECT_EQ(field.Text(), "12:30");
        EXPECT_EQ(time, "12:30");
    }
}

TEST_F(Checks, ATimeThatIsNoneIsToldWithThePresentTime) {
    Start();
    TextBox& field = frmMain->Text1[0];
    for (const auto& [typed, left] : {std::pair{"1230", "1230"}, {"", ""}, {"25:00", "25:00"}, {"12.60", "12:60"}, {"a2:30", "a2:30"}}) {
        std::string time;
        field.SetText(typed);
        dialogs.Expect("Indtast tid i formatet: 13:00");
        EXPECT_FALSE(CheckTime(field, time)) << typed;
        EXPECT_EQ(field.Text(), left);
    }
}

TEST_F(Checks, ACallHasThreeCharactersWithFigureAndLetter) {
    EXPECT_TRUE(CheckCall("A1A"));
    EXPECT_TRUE(CheckCall("1Å2"_t));
    dialogs.Expect("Et kaldesignal skal være på mindst 3 tegn");
    EXPECT_FALSE(CheckCall("A1"));
    for (const auto call : {"123"_t, "ABC"_t, "1ÆØ"_t}) {
        dialogs.Expect("Der skal være både tal og bogstaver i et kaldesignal");
        EXPECT_FALSE(CheckCall(call));
    }
}

TEST_F(Checks, ANoughtInFrontIsAskedForWithNoAsDefault) {
    dialogs.Expect("Skal det være et nul?", Answer::Yes);
    EXPECT_TRUE(CheckCall("0Z1AB"));
    EXPECT_EQ(dialogs.boxes.back().title, "Første tegn i call'et er et nul."_t);
    EXPECT_TRUE(dialogs.boxes.back().defaultNo);
    dialogs.Expect("Skal det være et nul?", Answer::No);
    EXPECT_FALSE(CheckCall("0Z1AB"));
    EXPECT_TRUE(CheckCall("OZ0AB"));
}

struct Report {
    const char* mode;
    const char* text;
    const char* message;
};

class Reports : public RunningProgram, public ::testing::WithParamInterface<Report> {};

TEST_P(Reports, AreJudgedFigureByFigure) {
    const auto& [mode, text, message] = GetParam();
    desk().gsMode = mode;
    if (*message != 0) dialogs.Expect(message);
    EXPECT_EQ(CheckReport(text), *message == 0);
}

INSTANTIATE_TEST_SUITE_P(
    Checks, Reports,
    ::testing::Values(Report{"SSB", "59", ""}, Report{"SSB", "11", ""}, Report{"SSB", "", "Modtaget RST skal være på 2 cifre."},
                      Report{"SSB", "5", "Modtaget RST skal være på 2 cifre."}, Report{"SSB", "599", "Modtaget RST skal være på 2 cifre."},
                      Report{"SSB", "09", "Første ciffer i RST skal være mellem 1 og 5."},
                      Report{"SSB", "60", "Første ciffer i RST skal være mellem 1 og 5."},
                      Report{"SSB", "50", "Andet ciffer i RST skal være mellem 1 og 9."}, Report{"CW", "599", ""}, Report{"CW", "519", ""},
                      Report{"CW", "111", ""}, Report{"CW", "59", "Modtaget RST skal være på 3 cifre."},
                      Report{"CW", "699", "Første ciffer i RST skal være mellem 1 og 5."},
                      Report{"CW", "509", "Andet ciffer i RST skal være mellem 1 og 9."},
                      Report{"CW", "500", "Andet ciffer i RST skal være mellem 1 og 9."},
                      Report{"CW", "510", "Sidste ciffer i RST skal være mellem 1 og 9."}));

TEST_F(Checks, ANumberOfNoughtIsAskedForAndBecomesFourOfThem) {
    Start();
    TextBox& field = frmMain->Text1[5];
    for (const char* typed : {"", "0", "0000", "AB"}) {
        field.SetText(typed);
        dialogs.Expect("Skal modtaget rapportnummer være nul?", Answer::No);
        EXPECT_FALSE(CheckReceivedNumber(field));
        EXPECT_EQ(field.Text(), typed);
        dialogs.Expect("Skal modtaget rapportnummer være nul?", Answer::Yes);
        EXPECT_TRUE(CheckReceivedNumber(field));
        EXPECT_EQ(field.Text(), "0000");
    }
    EXPECT_EQ(dialogs.boxes.back().title, "Modtaget rapport");
    EXPECT_TRUE(dialogs.boxes.back().defaultNo);
}

TEST_F(Checks, ANumberIsNumericAsAWhole) {
    Start();
    TextBox& field = frmMain->Text1[5];
    for (const char* number : {"345", "1e3", "1"}) {
        field.SetText(number);
        EXPECT_TRUE(CheckReceivedNumber(field)) << number;
    }
    field.SetText("12A");
    dialogs.Expect("Modtaget rapport skal være numerisk");
    EXPECT_FALSE(CheckReceivedNumber(field));
}

}  // namespace
}  // namespace vatro
