// SPDX-License-Identifier: MIT
#include "log/contact_line.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;

Qso Contact() {
    Qso qso;
    qso.tid = "12:07";
    qso.call = "DL9XYZ";
    qso.rstSendt = "59";
    qso.nrSendt = "0012";
    qso.rstModtaget = "59";
    qso.nrModtaget = "345";
    qso.point = 3;
    qso.multiplier = "DL";
    qso.operatør = "OZ1AB";
    qso.qsl = true;
    qso.qsoMode = "SSB";
    qso.dato = "07-09-02";
    return qso;
}

TEST(QsoLine, HasEveryFieldInItsColumns) {
    EXPECT_EQ(QsoLine(Contact(), "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345  3 DL         OZ1AB  QSL SSB   07-09-02");
    EXPECT_EQ(QsoLine(Contact(), "SSB").size(), 79U);
}

TEST(QsoLine, HasNoBlankBehindAReportOfThreeFigures) {
    Qso qso = Contact();
    qso.rstSendt = "599";
    qso.rstModtaget = "589";
    qso.qsl = false;
    qso.qsoMode = "PSK31";
    EXPECT_EQ(QsoLine(qso, "CW"), "12:07 DL9XYZ          599-0012 589-0345  3 DL         OZ1AB      PSK31 07-09-02");
}

TEST(QsoLine, FillsThePointsColumnsWithTen) {
    Qso qso = Contact();
    qso.point = 10;
    EXPECT_EQ(QsoLine(qso, "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345 10 DL         OZ1AB  QSL SSB   07-09-02");
}

TEST(QsoLine, LeavesTheMultiplierColumnsBlankWithoutOne) {
    Qso qso = Contact();
    qso.multiplier.clear();
    EXPECT_EQ(QsoLine(qso, "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345  3            OZ1AB  QSL SSB   07-09-02");
}

TEST(QsoLine, IsPushedOneColumnByASerialNumberOfFiveFigures) {
    Qso qso = Contact();
    qso.nrSendt = "10000";
    EXPECT_EQ(QsoLine(qso, "SSB"), "12:07 DL9XYZ          59 -10000 59 -0345  3 DL         OZ1AB  QSL SSB   07-09-02");
}

TEST(QsoLine, CutsAnOperatorOfSevenCharactersSoThatNoColumnMoves) {
    Qso qso = Contact();
    qso.operatør = "OZ1ABCD";
    EXPECT_EQ(QsoLine(qso, "SSB"), "12:07 DL9XYZ          59 -0012 59 -0345  3 DL         OZ1ABC QSL SSB   07-09-02");
}

TEST(QsoLine, GivesADanishLetterOneColumn) {
    Qso qso = Contact();
    qso.call = "OZ1ÆØÅ"_t;
    const std::string line = QsoLine(qso, "SSB");
    EXPECT_EQ(line.size(), 79U);
    EXPECT_EQ(kCall.TrimmetAf(line), "OZ1ÆØÅ"_t);
    EXPECT_EQ(kDato.Af(line), "07-09-02");
}

TEST(QsoLine, IsReadBackByItsColumns) {
    const std::string line = QsoLine(Contact(), "SSB");
    EXPECT_EQ(kTid.Af(line), "12:07");
    EXPECT_EQ(kCall.Af(line), "DL9XYZ         ");
    EXPECT_EQ(kRstSendt.Af(line), "59 ");
    EXPECT_EQ(kNrSendt.Af(line), "0012");
    EXPECT_EQ(kRstModtaget.Af(line), "59 ");
    EXPECT_EQ(kNrModtaget.Af(line), "0345");
    EXPECT_EQ(kPoint.Af(line), " 3");
    EXPECT_EQ(kMultiplier.Af(line), "DL        ");
    EXPECT_EQ(kOperatør.Af(line), "OZ1AB ");
    EXPECT_EQ(kQsl.Af(line), "QSL");
    EXPECT_EQ(kQsoMode.Af(line), "SSB  ");
    EXPECT_EQ(kDato.Af(line), "07-09-02");
}

TEST(QsoLine, OfAnEarlierYearEndsBeforeModeAndDate) {
    const std::string_view line = "12:07 DL9XYZ          59 -0012 59 -0345  3 DL         OZ1AB";
    EXPECT_EQ(kOperatør.Af(line), "OZ1AB");
    EXPECT_EQ(kQsl.Af(line), "");
    EXPECT_EQ(kQsoMode.Af(line), "");
    EXPECT_EQ(kDato.TrimmetAf(line), "");
}

TEST(ErNote, KnowsTheMarkInAnyCase) {
    EXPECT_TRUE(ErNote("NOTE: Regn"));
    EXPECT_TRUE(ErNote("note: regn"));
    EXPECT_TRUE(ErNote("NOTE: "));
}

TEST(ErNote, NeedsAllSixCharactersOfTheMarkAtTheStart) {
    EXPECT_FALSE(ErNote("NOTE:"));
    EXPECT_FALSE(ErNote("NOTE:Regn"));
    EXPECT_FALSE(ErNote(" NOTE: Regn"));
    EXPECT_FALSE(ErNote(""));
}

}  // namespace
}  // namespace vatro
