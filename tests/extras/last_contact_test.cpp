// SPDX-License-Identifier: MIT
#include "last_contact.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;

constexpr DateTime kNow{2026, 9, 5, 17, 53, 40, 0};
constexpr std::string_view kLine = "17:52 SM7AA           59 -0034 59 -0012  3 SM         OZ1AB      SSB   05-09-26";

TEST(LastContact, IsNotShownBeforeTheFirstContact) {
    EXPECT_EQ(LastContact().Shown().state, Lamp::State::Off);
}

TEST(LastContact, HasItsNumberItsCallAndTheTimeWhenItWasSaved) {
    LastContact last;
    last.Saved(kLine, kNow);
    EXPECT_EQ(last.Shown().state, Lamp::State::Good);
    EXPECT_EQ(last.Shown().text, "0034 SM7AA gemt 17:53");
}

TEST(LastContact, IsNotReplacedByANote) {
    LastContact last;
    last.Saved(kLine, kNow);
    last.Saved("NOTE: antennen er faldet ned", {2026, 9, 5, 18, 1, 0, 0});
    EXPECT_EQ(last.Shown().text, "0034 SM7AA gemt 17:53");
}

TEST(LastContact, IsTheCorrectedOneAfterACorrection) {
    LastContact last;
    last.Saved(kLine, kNow);
    last.Corrected("17:40 OZ7XYZ          59 -0021 59 -0003  1 OZ         OZ1AB      SSB   05-09-26", {2026, 9, 5, 17, 55, 2, 0});
    EXPECT_EQ(last.Shown().state, Lamp::State::Good);
    EXPECT_EQ(last.Shown().text, "0021 OZ7XYZ rettet 17:55");
    last.Corrected("NOTE: antennen er faldet ned", {2026, 9, 5, 18, 1, 0, 0});
    EXPECT_EQ(last.Shown().text, "0021 OZ7XYZ rettet 17:55");
}

TEST(LastContact, IsNoLongerBadWhenACorrectionIsSaved) {
    LastContact last;
    last.Failed("FD80mSSB.txt", "disken er fuld");
    last.Corrected(kLine, kNow);
    EXPECT_EQ(last.Shown().state, Lamp::State::Good);
}

TEST(LastContact, TellsAWriteThatFailedUntilTheNextContactIsSaved) {
    LastContact last;
    last.Saved(kLine, kNow);
    last.Failed("FD80mSSB.txt", "disken er fuld");
    EXPECT_EQ(last.Shown().state, Lamp::State::Bad);
    EXPECT_EQ(last.Shown().text, "IKKE GEMT: disken er fuld");
    EXPECT_EQ(last.Shown().brief, "IKKE GEMT");
    EXPECT_EQ(last.Shown().tip, "FD80mSSB.txt: disken er fuld. Se Beskeder og fejl i håndbogen (Hjælp, Indhold)."_t);
    last.Saved("NOTE: hej", kNow);
    EXPECT_EQ(last.Shown().state, Lamp::State::Bad);
    last.Saved(kLine, kNow);
    EXPECT_EQ(last.Shown().state, Lamp::State::Good);
}

}  // namespace
}  // namespace vatro
