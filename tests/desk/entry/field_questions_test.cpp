// SPDX-License-Identifier: MIT
#include "entry/field_questions.h"

#include "frame/state.h"
#include "running_program.h"

namespace vatro {
namespace {

using namespace literals;

class FieldQuestions : public RunningProgram {
protected:
    void SetUp() override { Start(); }
    ContactFields& Fields() { return frmMain->fields; }
    void Fill(const char* sent, const char* received, const char* number) {
        Fields()[kReportSentField].SetText(sent);
        Fields()[kNumberSentField].SetText("0001");
        Fields()[kReportReceivedField].SetText(received);
        Fields()[kNumberReceivedField].SetText(number);
    }
};

TEST_F(FieldQuestions, AFieldWithoutAnObjectionIsAccepted) {
    EXPECT_TRUE(Accepted(std::nullopt));
}

TEST_F(FieldQuestions, AMessageRefusesAndAQuestionIsAnsweredWithNoAsDefault) {
    dialogs.Expect("Et kaldesignal skal være på mindst 3 tegn");
    EXPECT_FALSE(Accepted(CheckCall("A1")));
    dialogs.Expect("Skal det være et nul?", Answer::Yes);
    EXPECT_TRUE(Accepted(CheckCall("0Z1AB")));
    EXPECT_EQ(dialogs.boxes.back().title, "Første tegn i call'et er et nul."_t);
    EXPECT_TRUE(dialogs.boxes.back().defaultNo);
    dialogs.Expect("Skal det være et nul?", Answer::No);
    EXPECT_FALSE(Accepted(CheckCall("0Z1AB")));
}

TEST_F(FieldQuestions, ATimeGetsItsColonInTheField) {
    TextBox& field = Fields()[kUtcField];
    field.SetText("12.30");
    EXPECT_EQ(AcceptedTime(field), "12:30");
    EXPECT_EQ(field.Text(), "12:30");
}

TEST_F(FieldQuestions, ATimeThatIsNoneIsToldWithThePresentTime) {
    TextBox& field = Fields()[kUtcField];
    for (const auto& [typed, left] : {std::pair{"1230", "1230"}, {"", ""}, {"25:00", "25:00"}, {"12.60", "12:60"}, {"a2:30", "a2:30"}}) {
        field.SetText(typed);
        dialogs.Expect("Indtast tid i formatet: 13:00");
        EXPECT_EQ(AcceptedTime(field), std::nullopt) << typed;
        EXPECT_EQ(field.Text(), left);
    }
}

TEST_F(FieldQuestions, TheFirstFieldAtFaultIsNamed) {
    Fill("59", "59", "345");
    EXPECT_EQ(FieldAtFault(Fields()), std::nullopt);
    Fill("5", "5", "12A");
    dialogs.Expect("Modtaget RST skal være på 2 cifre.");
    EXPECT_EQ(FieldAtFault(Fields()), kReportSentField);
    Fill("59", "5", "12A");
    dialogs.Expect("Modtaget RST skal være på 2 cifre.");
    EXPECT_EQ(FieldAtFault(Fields()), kReportReceivedField);
    Fill("59", "59", "12A");
    dialogs.Expect("Modtaget rapport skal være numerisk");
    EXPECT_EQ(FieldAtFault(Fields()), kNumberReceivedField);
    Fill("59", "59", "345");
    Fields()[kNumberSentField].SetText("1A");
    dialogs.Expect("Sendt rapport skal være numerisk");
    EXPECT_EQ(FieldAtFault(Fields()), kNumberSentField);
}

TEST_F(FieldQuestions, AConfirmedNoughtBecomesFourOfThem) {
    for (const char* typed : {"", "0", "0000", "AB"}) {
        Fill("59", "59", typed);
        dialogs.Expect("Skal modtaget rapportnummer være nul?", Answer::No);
        EXPECT_EQ(FieldAtFault(Fields()), kNumberReceivedField);
        EXPECT_EQ(Fields()[kNumberReceivedField].Text(), typed);
        dialogs.Expect("Skal modtaget rapportnummer være nul?", Answer::Yes);
        EXPECT_EQ(FieldAtFault(Fields()), std::nullopt);
        EXPECT_EQ(Fields()[kNumberReceivedField].Text(), "0000");
    }
}

}  // namespace
}  // namespace vatro
