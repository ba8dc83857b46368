// SPDX-License-Identifier: MIT
#include "log/contact_line.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;

Contact SomeContact() {
    Contact contact;
    contact.time = "12:07";
    contact.call = "DL9XYZ";
    contact.reportSent = "59";
    contact.numberSent = "0012";
    contact.reportReceived = "59";
    contact.numberReceived = "345";
    contact.point = 3;
    contact.multiplier = "DL";
    contact.operatorCall = "OZ1AB";
    contact.qsl = true;
    contact.qsoMode = "SSB";
    contact.date = "07-09-02";
    return contact;
}

TEST(QsoLine, HasEveryFieldInItsColumns) {
    EXPECT_EQ(QsoLine(SomeContact(), "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345  3 DL         OZ1AB  QSL SSB   07-09-02");
    EXPECT_EQ(QsoLine(SomeContact(), "SSB").size(), 79U);
}

TEST(QsoLine, HasNoBlankBehindAReportOfThreeFigures) {
    Contact contact = SomeContact();
    contact.reportSent = "599";
    contact.reportReceived = "589";
    contact.qsl = false;
    contact.qsoMode = "PSK31";
    EXPECT_EQ(QsoLine(contact, "CW"), "12:07 DL9XYZ          599-0012 589-0345  3 DL         OZ1AB      PSK31 07-09-02");
}

TEST(QsoLine, FillsThePointsColumnsWithTen) {
    Contact contact = SomeContact();
    contact.point = 10;
    EXPECT_EQ(QsoLine(contact, "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345 10 DL         OZ1AB  QSL SSB   07-09-02");
}

TEST(QsoLine, LeavesTheMultiplierColumnsBlankWithoutOne) {
    Contact contact = SomeContact();
    contact.multiplier.clear();
    EXPECT_EQ(QsoLine(contact, "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345  3            OZ1AB  QSL SSB   07-09-02");
}

TEST(QsoLine, IsPushedOneColumnByASerialNumberOfFiveFigures) {
    Contact contact = SomeContact();
    contact.numberSent = "10000";
    EXPECT_EQ(QsoLine(contact, "SSB"), "12:07 DL9XYZ          59 -10000 59 -0345  3 DL         OZ1AB  QSL SSB   07-09-02");
}

TEST(QsoLine, CutsAnOperatorOfSevenCharactersSoThatNoColumnMoves) {
    Contact contact = SomeContact();
    contact.operatorCall = "OZ1ABCD";
    EXPECT_EQ(QsoLine(contact, "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345  3 DL         OZ1ABC QSL SSB   07-09-02");
}

TEST(QsoLine, GivesADanishLetterOneColumn) {
    Contact contact = SomeContact();
    contact.call = "OZ1ÆØÅ"_t;
    const std::string line = QsoLine(contact, "SSB");
    EXPECT_EQ(line.size(), 79U);
    EXPECT_EQ(kCall.TrimmedOf(line), "OZ1ÆØÅ"_t);
    EXPECT_EQ(kDate.Of(line), "07-09-02");
}

TEST(QsoLine, IsReadBackByItsColumns) {
    const std::string line = QsoLine(SomeContact(), "SSB");
    EXPECT_EQ(kTime.Of(line), "12:07");
    EXPECT_EQ(kCall.Of(line), "DL9XYZ         ");
    EXPECT_EQ(kReportSent.Of(line), "59 ");
    EXPECT_EQ(kNumberSent.Of(line), "0012");
    EXPECT_EQ(kReportReceived.Of(line), "59 ");
    EXPECT_EQ(kNumberReceived.Of(line), "0345");
    EXPECT_EQ(kPoint.Of(line), " 3");
    EXPECT_EQ(kMultiplier.Of(line), "DL        ");
    EXPECT_EQ(kOperator.Of(line), "OZ1AB ");
    EXPECT_EQ(kQsl.Of(line), "QSL");
    EXPECT_EQ(kQsoMode.Of(line), "SSB  ");
    EXPECT_EQ(kDate.Of(line), "07-09-02");
}

TEST(QsoLine, OfAnEarlierYearEndsBeforeModeAndDate) {
    const std::string_view line = "12:07 DL9XYZ          59 -0012 59 -0345  3 DL         OZ1AB";
    EXPECT_EQ(kOperator.Of(line), "OZ1AB");
    EXPECT_EQ(kQsl.Of(line), "");
    EXPECT_EQ(kQsoMode.Of(line), "");
    EXPECT_EQ(kDate.TrimmedOf(line), "");
}

TEST(IsNote, KnowsTheMarkInAnyCase) {
    EXPECT_TRUE(IsNote("NOTE: Regn"));
    EXPECT_TRUE(IsNote("note: regn"));
    EXPECT_TRUE(IsNote("NOTE: "));
}

TEST(IsNote, NeedsAllSixCharactersOfTheMarkAtTheStart) {
    EXPECT_FALSE(IsNote("NOTE:"));
    EXPECT_FALSE(IsNote("NOTE:Regn"));
    EXPECT_FALSE(IsNote(" NOTE: Regn"));
    EXPECT_FALSE(IsNote(""));
}

}  // namespace
}  // namespace vatro
