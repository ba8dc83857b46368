// SPDX-License-Identifier: MIT
#include "checks/field_checks.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;

/// The text of an objection in UTF-8, or "fine" if there is none.
std::string Said(const std::optional<Objection>& objection) {
    return objection ? ToUtf8(objection->text) : "fine";
}

TEST(Checks, AnOperatorOfBlanksIsNone) {
    EXPECT_EQ(Said(CheckOperator("OZ1AB ")), "fine");
    for (const char* blank : {"", "      "}) EXPECT_EQ(Said(CheckOperator(blank)), "Operatørcall skal angives");
}

TEST(Checks, ATimeHasFiveCharactersAndAColonInTheMiddle) {
    for (const char* typed : {"12.30", "12:30", "12 30", "12130"}) EXPECT_EQ(WithColon(typed), "12:30") << typed;
    for (const char* typed : {"", "1230", "12:300"}) EXPECT_EQ(WithColon(typed), std::nullopt) << typed;
    EXPECT_EQ(CheckTime("12:30"), "12:30");
    for (const char* none : {"25:00", "12:60", "a2:30", ""}) EXPECT_EQ(CheckTime(none), std::nullopt) << none;
}

TEST(Checks, ACallHasThreeCharactersWithFigureAndLetter) {
    EXPECT_EQ(Said(CheckCall("A1A")), "fine");
    EXPECT_EQ(Said(CheckCall("1Å2"_t)), "fine");
    EXPECT_EQ(Said(CheckCall("A1")), "Et kaldesignal skal være på mindst 3 tegn");
    for (const auto call : {"123"_t, "ABC"_t, "1ÆØ"_t})
        EXPECT_EQ(Said(CheckCall(call)), "Der skal være både tal og bogstaver i et kaldesignal");
}

TEST(Checks, ANoughtInFrontIsAskedFor) {
    const auto objection = CheckCall("0Z1AB");
    EXPECT_EQ(Said(objection), "Skal det være et nul?");
    EXPECT_TRUE(objection->isQuestion);
    EXPECT_EQ(objection->title, "Første tegn i call'et er et nul."_t);
    EXPECT_EQ(Said(CheckCall("OZ0AB")), "fine");
}

struct Report {
    const char* mode;
    const char* text;
    const char* message;
};

class Reports : public ::testing::TestWithParam<Report> {};

TEST_P(Reports, AreJudgedFigureByFigure) {
    const auto& [mode, text, message] = GetParam();
    EXPECT_EQ(Said(CheckReport(text, mode)), message);
}

INSTANTIATE_TEST_SUITE_P(
    Checks, Reports,
    ::testing::Values(Report{"SSB", "59", "fine"}, Report{"SSB", "11", "fine"}, Report{"SSB", "", "Modtaget RST skal være på 2 cifre."},
                      Report{"SSB", "5", "Modtaget RST skal være på 2 cifre."}, Report{"SSB", "599", "Modtaget RST skal være på 2 cifre."},
                      Report{"SSB", "09", "Første ciffer i RST skal være mellem 1 og 5."},
                      Report{"SSB", "60", "Første ciffer i RST skal være mellem 1 og 5."},
                      Report{"SSB", "50", "Andet ciffer i RST skal være mellem 1 og 9."}, Report{"CW", "599", "fine"},
                      Report{"CW", "519", "fine"}, Report{"CW", "111", "fine"}, Report{"CW", "59", "Modtaget RST skal være på 3 cifre."},
                      Report{"CW", "699", "Første ciffer i RST skal være mellem 1 og 5."},
                      Report{"CW", "509", "Andet ciffer i RST skal være mellem 1 og 9."},
                      Report{"CW", "500", "Andet ciffer i RST skal være mellem 1 og 9."},
                      Report{"CW", "510", "Sidste ciffer i RST skal være mellem 1 og 9."}));

TEST(Checks, NumbersAreNumericAsAWhole) {
    for (const char* number : {"345", "1e3", "1"}) {
        EXPECT_EQ(Said(CheckNumberReceived(number)), "fine") << number;
        EXPECT_EQ(Said(CheckNumberSent(number)), "fine") << number;
    }
    EXPECT_EQ(Said(CheckNumberReceived("12A")), "Modtaget rapport skal være numerisk");
    EXPECT_EQ(Said(CheckNumberSent("")), "Sendt rapport skal være numerisk");
}

TEST(Checks, ANumberReceivedOfNoughtIsAskedFor) {
    for (const char* typed : {"", "0", "0000", "AB"}) {
        const auto objection = CheckZeroNumber(typed);
        EXPECT_EQ(Said(objection), "Skal modtaget rapportnummer være nul?") << typed;
        EXPECT_TRUE(objection->isQuestion);
        EXPECT_EQ(objection->title, "Modtaget rapport");
    }
    EXPECT_EQ(Said(CheckZeroNumber("12A")), "fine");
}

}  // namespace
}  // namespace vatro
