// SPDX-License-Identifier: MIT
#include "sound_course.h"

#include <gtest/gtest.h>

#include <utility>

namespace vatro {

/// A buffer of ten samples with one event after the fifth sample and one after the last.
class Course : public ::testing::Test {
protected:
    Course() {
        const PositionNotification positions[]{{4, 1}, {9, 2}};
        course.SetPositions(positions);
    }
    /// Reports the passings one by one in their order.
    std::vector<std::pair<long long, SoundEvent>> Told(int count) {
        std::vector<std::pair<long long, SoundEvent>> told;
        for (int i = 0; i < count; ++i) {
            const auto next = course.Next();
            if (!next) break;
            told.emplace_back(next->played, next->event);
            course.Tell(*next);
        }
        return told;
    }
    using Passings = std::vector<std::pair<long long, SoundEvent>>;

    SoundCourse course{10};
};

TEST_F(Course, PassesASampleWhenItHasBeenPlayed) {
    EXPECT_EQ(Told(5), (Passings{{5, 1}, {10, 2}, {15, 1}, {20, 2}, {25, 1}}));
}

TEST_F(Course, PassingStandsUntilItIsTold) {
    EXPECT_EQ(course.Next()->played, 5);
    EXPECT_EQ(course.Next()->played, 5);
}

TEST_F(Course, TheFirstSampleIsPassedWhenItAloneHasBeenPlayed) {
    const PositionNotification first[]{{0, 1}};
    course.SetPositions(first);
    EXPECT_EQ(Told(2), (Passings{{1, 1}, {11, 1}}));
}

TEST_F(Course, CountsFromWhereThePlayBegan) {
    course.Begin(7);
    EXPECT_EQ(Told(3), (Passings{{3, 2}, {8, 1}, {13, 2}}));
    EXPECT_EQ(course.At(0), 7U);
    EXPECT_EQ(course.At(3), 0U);
    EXPECT_EQ(course.At(13), 0U);
}

TEST_F(Course, BeginningBehindASamplePassesItOneRoundLater) {
    Told(1);
    course.Begin(5);
    EXPECT_EQ(Told(2), (Passings{{5, 2}, {10, 1}}));
}

TEST_F(Course, WithoutPositionsNothingIsPassed) {
    course.SetPositions({});
    EXPECT_FALSE(course.Next().has_value());
}

}  // namespace vatro
