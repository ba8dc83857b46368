// SPDX-License-Identifier: MIT
#include "score/points.h"
#include "frame/state.h"

#include "country/lookup.h"
#include "country/tables.h"
#include "frame/station.h"
#include "running_program.h"
#include "score/stations.h"

namespace vatro {
namespace {

class Points : public RunningProgram {
protected:
    void SetUp() override {
        BeginProgram();
        desk().gsFDLib = "data";
        desk().gbVisLand = true;
        desk().giMult = 0;
        ResetTables();
        files.files["DATA\\LANDE.TXT"] = {"DL        Fed. Rep. of Germany     EU -1 ", "K         United States            NA  5 ",
                                          "OZ        Denmark                  EU -1 ", "TA        Turkey                   AS -2 "};
        files.files["DATA\\REFPFX.TXT"] = {"DL        DL        14 28", "K         K         05 08", "OZ        OZ        14 18",
                                           "TA        TA        20 39", "W         K         05 08"};
        IndlæsLande();
        IndlæsRefPfx();
        Stations({"OZ1ABC Test, formand"});
    }
    void TearDown() override {
        ResetTables();
        ClearStations();
    }
    void Stations(std::vector<std::string> lines) {
        files.files["DATA\\EDR.TXT"] = std::move(lines);
        IndlæsEDR();
    }
    static int Of(const std::string& call) {
        desk().giQSOPoint = 99;
        BeregnPoint(call);
        return desk().giQSOPoint;
    }
};

TEST_F(Points, OfDanishStationsDependOnTheList) {
    EXPECT_EQ(Of("OZ1ABC"), 10);
    EXPECT_EQ(Of("OZ7XYZ"), 1);
    EXPECT_EQ(Of("OZ1ABC/P"), 10);
    EXPECT_EQ(Of("OZ7XYZ/P"), 1);
}

TEST_F(Points, OfEuropeansDependOnThePortableSign) {
    EXPECT_EQ(Of("DL1ABC"), 3);
    EXPECT_EQ(Of("DL1ABC/P"), 5);
    EXPECT_EQ(Of("DL1ABC/M"), 3);
    EXPECT_EQ(Of("DL1ABC/P/QRP"), 5);
    EXPECT_EQ(Of("DL1ABC/QRP/P"), 5);
    EXPECT_EQ(Of("DL1ABC/QRP"), 3);
    // Only one sign for low power is taken off, and only that one.
    EXPECT_EQ(Of("DL1ABC/P/QRPP"), 3);
    EXPECT_EQ(Of("DL1ABC/P/QRP/QRP"), 3);
}

TEST_F(Points, OutsideEuropeAreSixAlways) {
    EXPECT_EQ(Of("W1ABC"), 6);
    EXPECT_EQ(Of("W1ABC/P"), 6);
}

TEST_F(Points, OfTheEuropeanAreasAreThoseOfEurope) {
    EXPECT_EQ(Of("TA1ABC"), 3);
    EXPECT_EQ(Of("TA1ABC/P"), 5);
    EXPECT_EQ(Of("TA2ABC"), 6);
}

TEST_F(Points, AreCountedForTheCallWithItsNewNumber) {
    EXPECT_EQ(Of("DL1ABC/3"), 3);
    EXPECT_EQ(Of("TA2ABC/1"), 3);
    EXPECT_EQ(Of("TA1ABC/2"), 6);
    EXPECT_EQ(Of("OZ1ABC/3"), 1);
    EXPECT_EQ(Of("OZ3ABC/1"), 10);
}

TEST_F(Points, OfALongerCallAreThoseOfItsFirstSixCharacters) {
    EXPECT_EQ(Of("OZ1ABCDE"), 10);
    EXPECT_EQ(Of("OZ1AB"), 1);
}

TEST_F(Points, OfAListedStationBeatTheContinent) {
    Stations({"W1ABC  Test, medlem"});
    EXPECT_EQ(Of("W1ABC"), 10);
}

TEST_F(Points, OfAnUnknownPrefixAreNoneWhileCountriesAreShown) {
    Stations({"XZ9XYZ Test, rejsende"});
    EXPECT_EQ(Of("XZ9XYZ"), 0);
    EXPECT_EQ(Of("XZ9ABC"), 0);
    EXPECT_EQ(Of("OU1ABC"), 0);
    desk().gbVisLand = false;
    EXPECT_EQ(Of("XZ9XYZ"), 10);
    EXPECT_EQ(Of("XZ9ABC"), 3);
    EXPECT_EQ(Of("XZ9ABC/P"), 5);
    EXPECT_EQ(Of("OU1ABC"), 1);
}

TEST_F(Points, OfASuffixWithoutACallAreThreeAndNothingIsLookedUp) {
    // A blank line of the list would match a call of six blanks.
    Stations({""});
    for (const char* call : {"", "/3", "9/", "/QRP", "/QRP/3"}) EXPECT_EQ(Of(call), 3) << call;
    EXPECT_EQ(Of("/P"), 10);
}

TEST_F(Points, ChangeNoMarks) {
    Of("DL1ABC");
    Of("OZ1ABC");
    EXPECT_EQ(desk().giMult, 0);
    EXPECT_FALSE(desk().tables.Lande[1].Wkd);
    EXPECT_FALSE(desk().stations.EDRstn[1].Wkd);
}

TEST_F(Points, DoNotDependOnWhatWasWorkedBefore) {
    std::string result;
    LandWkd("DL1ABC", result, MarkAction::Mark);
    EXPECT_EQ(Of("DL1ABC"), 3);
}

TEST(Danish, AreSevenPrefixes) {
    for (const char* call : {"5P1ABC", "5Q1ABC", "OU1ABC", "OV1ABC", "OW1ABC", "OZ1ABC", "XP1ABC", "oz1abc", "OZ"})
        EXPECT_TRUE(ErDansk(call)) << call;
    for (const char* call : {"5R1ABC", "5O1ABC", "OX3ABC", "OY1ABC", "OT1ABC", "XO1ABC", "P5A", "Z5A", "DL1ABC", "1OZABC", ""})
        EXPECT_FALSE(ErDansk(call)) << call;
}

}  // namespace
}  // namespace vatro
