// SPDX-License-Identifier: MIT
#include "score/points.h"

#include <gtest/gtest.h>

namespace vatro {
namespace {

class Points : public ::testing::Test {
protected:
    void SetUp() override {
        tables.BeginCountries();
        for (const char* line : {"DL        Fed. Rep. of Germany     EU -1 ", "K         United States            NA  5 ",
                                 "OZ        Denmark                  EU -1 ", "TA        Turkey                   AS -2 "})
            tables.ReadCountry(line);
        tables.BeginPrefixes();
        for (const char* line : {"DL        DL        14 28", "K         K         05 08", "OZ        OZ        14 18",
                                 "TA        TA        20 39", "W         K         05 08"})
            tables.ReadPrefix(line);
        tables.IndexPrefixes();
        List({"OZ1ABC Test, formand"});
    }
    void List(const std::vector<std::string>& lines) {
        stations.BeginReading();
        for (const std::string& line : lines) stations.Read(line);
    }
    int Of(std::string_view call) const { return BeregnPoint(call, tables, stations, shown); }

    CountryTables tables;
    Stations stations;
    /// Whether the country is shown to the operator.
    bool shown = true;
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
    // Only this one suffix for low power is removed, and only once.
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
    List({"W1ABC  Test, medlem"});
    EXPECT_EQ(Of("W1ABC"), 10);
}

TEST_F(Points, OfAnUnknownPrefixAreNoneWhileCountriesAreShown) {
    List({"XZ9XYZ Test, rejsende"});
    EXPECT_EQ(Of("XZ9XYZ"), 0);
    EXPECT_EQ(Of("XZ9ABC"), 0);
    EXPECT_EQ(Of("OU1ABC"), 0);
    shown = false;
    EXPECT_EQ(Of("XZ9XYZ"), 10);
    EXPECT_EQ(Of("XZ9ABC"), 3);
    EXPECT_EQ(Of("XZ9ABC/P"), 5);
    EXPECT_EQ(Of("OU1ABC"), 1);
}

TEST_F(Points, OfASuffixWithoutACallAreThreeAndNothingIsLookedUp) {
    // A blank line in the list would match a call of six blanks.
    List({""});
    for (const char* call : {"", "/3", "9/", "/QRP", "/QRP/3"}) EXPECT_EQ(Of(call), 3) << call;
    EXPECT_EQ(Of("/P"), 10);
}

TEST_F(Points, ThatCountryAndListLeaveAreThoseOfEurope) {
    EXPECT_EQ(EuropeanPoints("OZ7XYZ/P"), 1);
    EXPECT_EQ(EuropeanPoints("W1ABC/P"), 5);
    EXPECT_EQ(EuropeanPoints(""), 3);
}

TEST(Danish, AreSevenPrefixes) {
    for (const char* call : {"5P1ABC", "5Q1ABC", "OU1ABC", "OV1ABC", "OW1ABC", "OZ1ABC", "XP1ABC", "oz1abc", "OZ"})
        EXPECT_TRUE(ErDansk(call)) << call;
    for (const char* call : {"5R1ABC", "5O1ABC", "OX3ABC", "OY1ABC", "OT1ABC", "XO1ABC", "P5A", "Z5A", "DL1ABC", "1OZABC", ""})
        EXPECT_FALSE(ErDansk(call)) << call;
}

}  // namespace
}  // namespace vatro
