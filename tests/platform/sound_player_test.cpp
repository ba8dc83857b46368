// SPDX-License-Identifier: MIT
#include "sound_player.h"

#include <gtest/gtest.h>

#include <vector>

namespace vatro {
namespace {

using namespace std::chrono_literals;

constexpr int kSamplesPerSecond = 1000;

/// What the test and the player see of the sound system.
struct Card {
    std::size_t room = 5000;
    long long heardMicroseconds = 0;
    std::function<std::chrono::milliseconds()> feed;
};

class TestStream : public SoundStream {
public:
    explicit TestStream(Card& card) : card_(card) {}
    bool Open(int /*samplesPerSecond*/) override { return open_ = true; }
    void Drop() override { open_ = false; }
    bool IsOpen() const override { return open_; }
    std::optional<std::size_t> Room() override { return card_.room; }
    std::optional<std::size_t> Write(std::span<const std::int16_t> samples) override {
        card_.room -= samples.size();
        return samples.size();
    }
    long long HeardMicroseconds() const override { return card_.heardMicroseconds; }
    void StartFeeding(std::function<std::chrono::milliseconds()> feed) override { card_.feed = std::move(feed); }
    void StopFeeding() override { card_.feed = {}; }
    void TellStarted(std::chrono::nanoseconds /*sinceAsked*/) override {}
    void TellGone() override {}

private:
    Card& card_;
    bool open_ = false;
};

class PlayerOfABuffer : public testing::Test {
protected:
    PlayerOfABuffer() {
        const PositionNotification ends[]{{499, 1}, {999, 2}};
        player.SetPositions(ends);
        player.Play(SoundPlayer::Clock::now());
    }
    std::chrono::milliseconds FeedAfter(long long milliseconds) {
        card.heardMicroseconds = milliseconds * 1000;
        return card.feed();
    }

    Card card;
    std::vector<SoundEvent> passed;
    SoundPlayer player{std::make_shared<SoundRing>(1000), kSamplesPerSecond, std::make_unique<TestStream>(card),
                       [this](SoundEvent event, unsigned /*run*/) { passed.push_back(event); }};
};

TEST_F(PlayerOfABuffer, IsFedTwentyTimesASecondWhileNothingPasses) {
    EXPECT_EQ(FeedAfter(0), 50ms);
    EXPECT_EQ(FeedAfter(200), 50ms);
    EXPECT_TRUE(passed.empty());
}

TEST_F(PlayerOfABuffer, WakesWhenTheNextPassingIsDue) {
    // 30 of the 500 samples are still to be heard, and the last one to its end.
    EXPECT_EQ(FeedAfter(470), 31ms);
    EXPECT_TRUE(passed.empty());
    EXPECT_EQ(FeedAfter(500), 50ms);
    EXPECT_EQ(passed, std::vector<SoundEvent>{1});
}

TEST_F(PlayerOfABuffer, LooksSoonAgainWhenTheSoundIsLate) {
    EXPECT_EQ(FeedAfter(499), 10ms);
    EXPECT_EQ(FeedAfter(499), 10ms);
    EXPECT_EQ(FeedAfter(501), 50ms);
    EXPECT_EQ(passed, std::vector<SoundEvent>{1});
}

}  // namespace
}  // namespace vatro
