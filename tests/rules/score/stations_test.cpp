// SPDX-License-Identifier: MIT
#include "score/stations.h"

#include <gtest/gtest.h>

#include "errors.h"

namespace vatro {
namespace {

class StationList : public ::testing::Test {
protected:
    void Load(const std::vector<std::string>& lines) {
        stations.BeginReading();
        for (const std::string& line : lines) stations.Read(line);
    }
    bool Worked(int row) const { return stations.EDRstn[static_cast<std::size_t>(row)].Wkd; }
    std::optional<std::int32_t> Handle(std::string_view call, MarkAction action) {
        EXPECT_EQ(stations.StationPoints(call), stations.EDRstnWkd(call, MarkAction::Test));
        return stations.EDRstnWkd(call, action);
    }
    std::optional<std::string> Name(std::string_view call) const { return stations.findEDRstn(call); }

    Stations stations;
};

TEST_F(StationList, AreRecognisedByEveryAction) {
    Load({"OZ1ABC Test, formand"});
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Test), 10);
    EXPECT_FALSE(Worked(1));
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Mark), 10);
    EXPECT_TRUE(Worked(1));
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Test), 10);
    EXPECT_TRUE(Worked(1));
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Unmark), 10);
    EXPECT_FALSE(Worked(1));
}

TEST_F(StationList, NotOnTheListLeaveThePointsAlone) {
    Load({"OZ1ABC Test, formand"});
    EXPECT_EQ(Handle("OZ7XYZ", MarkAction::Mark), std::nullopt);
    EXPECT_FALSE(Worked(1));
}

TEST_F(StationList, OfAnEmptyListAreNobody) {
    Load({});
    EXPECT_EQ(Handle("OZ1ABC", MarkAction::Mark), std::nullopt);
    EXPECT_EQ(Handle("", MarkAction::Mark), std::nullopt);
    EXPECT_EQ(Name("OZ1ABC"), std::nullopt);
}

TEST_F(StationList, AreComparedBySixCharactersToWhichTheCallIsCutOrFilled) {
    Load({"OZ1ABC Test", "OZ1AB", "OZ2AB  Test"});
    EXPECT_EQ(StationCall("OZ1ABCDE"), "OZ1ABC");
    Handle("OZ1ABCDE", MarkAction::Mark);
    EXPECT_TRUE(Worked(1));
    EXPECT_FALSE(Worked(2));
    EXPECT_EQ(StationCall("OZ1AB"), "OZ1AB ");
    Handle("OZ1AB", MarkAction::Mark);
    EXPECT_TRUE(Worked(2));
    EXPECT_EQ(Handle("OZ2AB", MarkAction::Mark), 10);
}

TEST_F(StationList, ListedTwiceAreBothMarked) {
    Load({"OZ1ABC Test, formand", "OZ7XYZ Test", "OZ1ABC Aalborg, reserve"});
    Handle("OZ1ABC", MarkAction::Mark);
    EXPECT_TRUE(Worked(1));
    EXPECT_FALSE(Worked(2));
    EXPECT_TRUE(Worked(3));
    EXPECT_EQ(Name("OZ1ABC"), "OZ1ABC Test");
}

TEST_F(StationList, AreNamedUpToTheFirstComma) {
    const std::string longer = "OZ3AB  " + std::string(73, 'x') + "yz, formand";
    Load({"OZ1ABC Aarhus afdeling, formand, reserve", "OZ7XYZ Odense", longer, "OZ2AB, Test"});
    EXPECT_EQ(Name("OZ1ABC"), "OZ1ABC Aarhus afdeling");
    EXPECT_EQ(Name("OZ7XYZ"), "OZ7XYZ Odense" + std::string(67, ' '));
    EXPECT_EQ(Name("OZ3AB"), longer.substr(0, 80));
    EXPECT_EQ(Name("OZ1AB"), std::nullopt);
    // Here the comma is within the call columns, so the line matches no call.
    EXPECT_EQ(Name("OZ2AB"), std::nullopt);
}

TEST_F(StationList, ClearedAreNotWorked) {
    Load({"OZ1ABC", "OZ7XYZ"});
    Handle("OZ1ABC", MarkAction::Mark);
    Handle("OZ7XYZ", MarkAction::Mark);
    stations.ResetEDR();
    EXPECT_FALSE(Worked(1));
    EXPECT_FALSE(Worked(2));
}

TEST_F(StationList, HoldsTwoHundredAndCountsTheOneThatDoesNotFit) {
    std::vector<std::string> lines;
    for (int i = 0; i < 200; ++i) lines.push_back("OZ" + std::to_string(1000 + i) + " Test");
    Load(lines);
    EXPECT_EQ(Handle("OZ1199", MarkAction::Mark), 10);
    EXPECT_THROW(stations.Read("OZ1200 Test"), RunTimeError);
    EXPECT_EQ(stations.giEDR, 201);
    EXPECT_EQ(stations.StationsInUse(), 200);
    EXPECT_EQ(Handle("OZ1199", MarkAction::Mark), 10) << "the rows read so far count";
    EXPECT_EQ(Handle("OZ1200", MarkAction::Mark), std::nullopt);
}

}  // namespace
}  // namespace vatro
