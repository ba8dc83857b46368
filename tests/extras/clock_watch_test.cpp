// SPDX-License-Identifier: MIT
#include "clock_watch.h"

#include <gtest/gtest.h>

#include "codepage.h"

namespace vatro {
namespace {

using namespace literals;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr DateTime kEvening{2026, 9, 5, 19, 36, 12, 0};

/// A computer whose clocks a test moves. The operator's offset is that of a laptop set to Danish summer time.
class AClock : public testing::Test {
protected:
    /// Time passes.
    void Pass(milliseconds time) {
        universal_ = AddMilliseconds(universal_, time.count());
        steady_ += time;
    }
    /// Somebody sets the clock, or the computer sleeps while its steady clock stands.
    void Set(milliseconds by) { universal_ = AddMilliseconds(universal_, by.count()); }
    bool Look() { return watch_.Look({AddHours(universal_, zone_), universal_, offset_, steady_}); }
    /// Looks every second for this long; true if a look saw a jump.
    bool LookFor(milliseconds time) {
        bool jumped = false;
        for (milliseconds passed{0}; passed < time; passed += 1s) {
            Pass(1s);
            jumped = Look() || jumped;
        }
        return jumped;
    }

    ClockWatch watch_;
    DateTime universal_ = kEvening;
    milliseconds steady_{5'000'000};
    int zone_ = 2;
    std::optional<int> offset_ = -2;
};

TEST_F(AClock, IsNotShownBeforeTheFirstLook) {
    EXPECT_EQ(watch_.Shown().state, Lamp::State::Off);
}

TEST_F(AClock, ThatFitsShowsTheTimeThatIsLogged) {
    EXPECT_FALSE(Look());
    EXPECT_EQ(watch_.Shown().state, Lamp::State::Good);
    EXPECT_EQ(watch_.Shown().text, "UTC 19:36");
    EXPECT_FALSE(LookFor(48s));
    EXPECT_EQ(watch_.Shown().text, "UTC 19:37");
}

TEST_F(AClock, OfALaptopSetToUniversalTimeDiffersByTheOffset) {
    zone_ = 0;
    Look();
    EXPECT_TRUE(watch_.Differs());
    EXPECT_EQ(watch_.Shown().state, Lamp::State::Bad);
    EXPECT_EQ(watch_.Shown().text, "UTC er 19:36, loggen siger 17:36");
    EXPECT_EQ(watch_.Shown().brief, "17:36");
}

TEST_F(AClock, DiffersInEveryZoneThatTheOffsetDoesNotFit) {
    for (zone_ = -11; zone_ <= 12; ++zone_) {
        for (int offset = -12; offset <= 11; ++offset) {
            offset_ = offset;
            Look();
            EXPECT_EQ(watch_.Differs(), zone_ != -offset) << zone_ << " " << offset;
        }
    }
}

TEST_F(AClock, DiffersAcrossMidnightToo) {
    universal_ = {2026, 9, 5, 23, 30, 0, 0};
    zone_ = 2;
    offset_ = -1;
    Look();
    EXPECT_EQ(watch_.Shown().text, "UTC er 23:30, loggen siger 00:30");
}

TEST_F(AClock, WhoseOffsetIsNoNumberSaysSo) {
    offset_.reset();
    Look();
    EXPECT_TRUE(watch_.Differs());
    EXPECT_EQ(watch_.Shown().text, "UTC er 19:36, loggen har ingen tid");
}

TEST_F(AClock, ThatIsSetABitMakesTheMinuteTickButIsNotTold) {
    Look();
    for (const milliseconds by : {milliseconds(2000), milliseconds(-2000), milliseconds(90'000), milliseconds(-120'000)}) {
        Set(by);
        EXPECT_TRUE(Look()) << by.count();
        EXPECT_EQ(watch_.Shown().state, Lamp::State::Good) << by.count();
        EXPECT_FALSE(LookFor(5s)) << by.count();
    }
}

TEST_F(AClock, ThatTheSystemAdjustsByAnotherHalfSecondHasNotJumped) {
    Look();
    for (int i = 0; i < 100; ++i) {
        Pass(1s);
        Set(i % 2 == 0 ? 500ms : -500ms);
        EXPECT_FALSE(Look());
    }
}

TEST_F(AClock, ThatJumpsMoreThanTwoMinutesIsToldForAMinute) {
    Look();
    Set(3min);
    EXPECT_TRUE(Look());
    EXPECT_EQ(watch_.Shown().state, Lamp::State::Notice);
    EXPECT_EQ(watch_.Shown().text, "Uret sprang 3 min. frem: UTC 19:39");
    LookFor(59s);
    EXPECT_EQ(watch_.Shown().state, Lamp::State::Notice);
    LookFor(1s);
    EXPECT_EQ(watch_.Shown().state, Lamp::State::Good);
}

TEST_F(AClock, ThatIsSetBackADayIsTold) {
    Look();
    Set(-24h);
    EXPECT_TRUE(Look());
    EXPECT_EQ(watch_.Shown().text, "Uret sprang 24 t. tilbage: UTC 19:36");
}

TEST_F(AClock, ThatSleptIsToldWhetherItsSteadyClockStoodOrWentOn) {
    Look();
    Set(65min);
    EXPECT_TRUE(Look());
    EXPECT_EQ(watch_.Shown().text, "Uret sprang 1 t. 5 min. frem: UTC 20:41");
    LookFor(61s);
    Pass(65min);
    EXPECT_TRUE(Look());
    EXPECT_EQ(watch_.Shown().text, "Uret sprang 1 t. 5 min. frem: UTC 21:47");
}

TEST_F(AClock, OfAComputerThatWasBusyForSomeSecondsHasNotJumped) {
    Look();
    Pass(8s);
    EXPECT_FALSE(Look());
}

TEST_F(AClock, AtTheBeginningAndTheEndOfSummerTimeJumpsAndDiffers) {
    Look();
    zone_ = 1;
    EXPECT_TRUE(Look());
    EXPECT_EQ(watch_.Shown().text, "UTC er 19:36, loggen siger 18:36");
    zone_ = 2;
    EXPECT_TRUE(Look());
    EXPECT_EQ(watch_.Shown().text, "UTC 19:36");
    // The computer's own clock has not moved.
    EXPECT_EQ(watch_.Shown().state, Lamp::State::Good);
}

TEST_F(AClock, WhoseOffsetTheOperatorChangesHasNotJumped) {
    zone_ = 0;
    Look();
    offset_ = 0;
    EXPECT_FALSE(Look());
    EXPECT_EQ(watch_.Shown().text, "UTC 19:36");
}

TEST_F(AClock, ThatJumpsWhileItDiffersSaysFirstThatItDiffers) {
    zone_ = 0;
    Look();
    Set(3min);
    EXPECT_TRUE(Look());
    EXPECT_EQ(watch_.Shown().text, "UTC er 19:39, loggen siger 17:39");
}

}  // namespace
}  // namespace vatro
