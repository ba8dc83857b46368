// SPDX-License-Identifier: MIT
#include "copy_lamp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vatro {
namespace {

using testing::HasSubstr;

CopyStatus Current() {
    CopyStatus status;
    status.on = true;
    status.current = true;
    status.good = DateTime{2026, 9, 5, 12, 7, 30, 0};
    return status;
}

TEST(CopyLampTest, IsOffUntilADirectoryIsChosen) {
    EXPECT_EQ(CopyLamp({}, "").state, Lamp::State::Off);
}

TEST(CopyLampTest, TellsWhenTheCopyWasLastBroughtUpToDate) {
    const Lamp lamp = CopyLamp(Current(), "/media/stick");
    EXPECT_EQ(lamp.state, Lamp::State::Good);
    EXPECT_EQ(lamp.text, "kopi 12:07");
    EXPECT_THAT(lamp.tip, HasSubstr("/media/stick"));
}

TEST(CopyLampTest, IsPatientWhileTheThreadIsAtWork) {
    CopyStatus status = Current();
    status.current = false;
    status.busy = std::chrono::milliseconds(4999);
    EXPECT_EQ(CopyLamp(status, "/media/stick").text, "kopi 12:07");
    status.good.reset();
    EXPECT_EQ(CopyLamp(status, "/media/stick").text, "kopi ...");
}

TEST(CopyLampTest, TellsSinceWhenThereIsNoCopyAndWhy) {
    CopyStatus status = Current();
    status.current = false;
    status.reason = "Disken er fuld.";
    const Lamp lamp = CopyLamp(status, "/media/stick");
    EXPECT_EQ(lamp.state, Lamp::State::Bad);
    EXPECT_EQ(lamp.text, "INGEN KOPI siden 12:07");
    EXPECT_EQ(lamp.brief, "12:07");
    EXPECT_THAT(lamp.tip, HasSubstr("Disken er fuld."));
    status.good.reset();
    EXPECT_EQ(CopyLamp(status, "/media/stick").text, "INGEN KOPI");
    EXPECT_EQ(CopyLamp(status, "/media/stick").brief, "");
}

TEST(CopyLampTest, TellsIfTheDiskDoesNotAnswer) {
    CopyStatus status = Current();
    status.busy = std::chrono::milliseconds(5000);
    const Lamp lamp = CopyLamp(status, "/media/stick");
    EXPECT_EQ(lamp.text, "INGEN KOPI siden 12:07");
    EXPECT_THAT(lamp.tip, HasSubstr("/media/stick svarer ikke."));
}

TEST(CopyLampTest, WarnsOfACopyOnTheSameDisk) {
    CopyStatus status = Current();
    status.sameDisk = true;
    EXPECT_EQ(CopyLamp(status, "/home/x").state, Lamp::State::Good);
    EXPECT_THAT(CopyLamp(status, "/home/x").tip, HasSubstr("samme disk"));
}

}  // namespace
}  // namespace vatro
