// SPDX-License-Identifier: MIT
//
// The sound thread and the program's thread, with the standard library instead of Qt. Everything passed between them must
// arrive whole and in order. Under the thread sanitizer (preset tsan) the tests also detect data races.
#include "sound_thread.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <numeric>

#include "errors.h"
#include "sound_buffers.h"
#include "threads/thread_loop.h"

namespace vatro {

namespace {

constexpr int kSamples = 200;
constexpr int kHalf = kSamples / 2;
constexpr SoundFormat kFormat{.samplesPerSecond = 44100, .samples = kSamples};

using Samples = std::vector<std::int16_t>;

}  // namespace

class SoundThreads : public ::testing::Test {
protected:
    ~SoundThreads() override {
        buffer.reset();
        device.reset();
        thread->End();
    }
    /// A device whose streams write to the test's speaker.
    void MakeDevice() {
        device = std::make_unique<ThreadedSoundDevice>(
            thread, [speaker = speaker] { return std::make_unique<SpeakerStream>(speaker); },
            [this, program = program](const SoundSignal& signal) { program->Queue([this, signal] { TakeSignal(signal); }); });
    }
    /// Has an event at the end of each half.
    std::unique_ptr<SoundBuffer> MakeBuffer() {
        if (device == nullptr) MakeDevice();
        auto made = device->CreateBuffer(kFormat);
        const PositionNotification positions[]{{kHalf - 1, 1}, {kSamples - 1, 2}};
        made->SetNotificationPositions(positions);
        return made;
    }
    void TakeSignal(const SoundSignal& signal) {
        if (signal.OutOfDate()) {
            ++outOfDate;
            return;
        }
        run.push_back(signal.event);
        if (react) react(signal.event);
    }
    /// Runs the program's tasks until this many events have run.
    void RunProgram(std::size_t events) {
        const auto end = std::chrono::steady_clock::now() + kPatience;
        while (run.size() < events && std::chrono::steady_clock::now() < end)
            if (const auto task = program->Take(std::chrono::milliseconds(100))) (*task)();
        ASSERT_GE(run.size(), events) << "the events do not come";
    }
    /// Waits until the sound thread has done everything requested of it.
    void Settle() {
        ASSERT_TRUE(thread->Await([] {}, kPatience));
    }
    void Allow(long long samples) const {
        const std::lock_guard lock(speaker->mutex);
        speaker->allowed = samples;
    }

    std::shared_ptr<Tasks> program = std::make_shared<Tasks>();
    std::shared_ptr<Speaker> speaker = std::make_shared<Speaker>();
    std::shared_ptr<SoundThread> thread = std::make_shared<SoundThread>(std::make_unique<ThreadLoop>());
    std::unique_ptr<ThreadedSoundDevice> device;
    std::unique_ptr<SoundBuffer> buffer;
    std::vector<SoundEvent> run;
    int outOfDate = 0;
    std::function<void(SoundEvent)> react;
};

TEST_F(SoundThreads, EachRefillOfTheHalfJustHeardIsHeardInItsTurn) {
    buffer = MakeBuffer();
    Samples image(kSamples);
    std::iota(image.begin(), image.end(), std::int16_t{0});
    buffer->Write(0, image);
    Samples expected = image;
    constexpr int kRefills = 60;
    react = [&](SoundEvent event) {
        const int from = event == 1 ? 0 : kHalf;
        for (int i = from; i < from + kHalf; ++i)
            image[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(expected.size() + static_cast<std::size_t>(i - from));
        buffer->Write(from, std::span(image).subspan(static_cast<std::size_t>(from), static_cast<std::size_t>(kHalf)));
        expected.insert(expected.end(), image.begin() + from, image.begin() + from + kHalf);
        // Allows the next half to be played.
        Allow(kHalf * static_cast<long long>(run.size() + 1));
    };
    Allow(kHalf);
    buffer->PlayLooping();
    RunProgram(kRefills);
    buffer->Stop();
    Settle();
    const Samples heard = speaker->Heard();
    ASSERT_GE(heard.size(), kRefills * static_cast<std::size_t>(kHalf));
    ASSERT_LE(heard.size(), expected.size());
    EXPECT_TRUE(std::equal(heard.begin(), heard.end(), expected.begin()));
    for (std::size_t i = 0; i < run.size(); ++i) EXPECT_EQ(run[i], i % 2 == 0 ? 1 : 2);
}

TEST_F(SoundThreads, WritingWhileItPlaysDisturbsNeitherSide) {
    buffer = MakeBuffer();
    Allow(1'000'000);
    buffer->PlayLooping();
    for (int i = 1; i <= 2000; ++i) {
        const Samples image(kSamples, static_cast<std::int16_t>(i));
        buffer->Write(0, image);
    }
    RunProgram(4);
    buffer->Stop();
    Settle();
    // A write is complete before the next sample is read, so the samples heard never go back.
    const Samples heard = speaker->Heard();
    ASSERT_FALSE(heard.empty());
    EXPECT_TRUE(std::ranges::is_sorted(heard));
}

TEST_F(SoundThreads, SignalsOfAStoppedPlayAreOutOfDate) {
    buffer = MakeBuffer();
    Allow(10LL * kSamples);
    buffer->PlayLooping();
    // The sound was heard and its event signalled, but the program has not handled the event yet.
    while (speaker->Heard().size() < 10U * kSamples) std::this_thread::yield();
    Settle();
    buffer->Stop();
    while (const auto task = program->Take(std::chrono::milliseconds(0))) (*task)();
    EXPECT_TRUE(run.empty());
    EXPECT_GE(outOfDate, 19);
}

TEST_F(SoundThreads, MoveBeginsARunOfItsOwn) {
    buffer = MakeBuffer();
    Allow(kHalf);
    buffer->PlayLooping();
    while (speaker->Heard().size() < static_cast<std::size_t>(kHalf)) std::this_thread::yield();
    Settle();
    buffer->SetCurrentPosition(kHalf);
    Settle();
    Allow(2LL * kHalf);
    RunProgram(1);
    // The event of the first half is out of date; the second half was heard from its beginning.
    EXPECT_EQ(run, std::vector<SoundEvent>{2});
    EXPECT_EQ(outOfDate, 1);
}

TEST_F(SoundThreads, BuffersComeAndGoWhileOthersPlay) {
    Allow(2'000'000);
    for (int i = 0; i < 200; ++i) {
        auto one = MakeBuffer();
        auto other = MakeBuffer();
        one->PlayLooping();
        other->SetCurrentPosition(kHalf);
        other->PlayLooping();
        one->Write(0, Samples(kSamples, 1));
        one->SetCurrentPosition(0);
        other->Stop();
        other->PlayLooping();
        one.reset();
        other->Write(0, Samples(kSamples, 2));
        while (const auto task = program->Take(std::chrono::milliseconds(0))) (*task)();
        if (i % 50 == 0) Settle();
    }
    Settle();
    run.clear();
    while (const auto task = program->Take(std::chrono::milliseconds(0))) (*task)();
    EXPECT_TRUE(run.empty()) << "an event of a buffer that has gone";
}

TEST_F(SoundThreads, PlayGoesOnUnheardWhenTheDeviceHasGone) {
    {
        const std::lock_guard lock(speaker->mutex);
        speaker->allowed = kHalf;
        speaker->goes = true;
    }
    buffer = MakeBuffer();
    buffer->PlayLooping();
    RunProgram(5);
    EXPECT_EQ(run[0], 1);
    EXPECT_EQ(run[1], 2);
    EXPECT_EQ(run[2], 1);
    EXPECT_EQ(speaker->Heard().size(), static_cast<std::size_t>(kHalf));
}

TEST_F(SoundThreads, AnswerThatComesTooLateIsNotWaitedFor) {
    std::atomic<bool> goOn = false;
    const auto late = std::make_shared<int>(0);
    EXPECT_FALSE(thread->Await(
        [late, &goOn] {
            while (!goOn) std::this_thread::yield();
            *late = 7;
        },
        std::chrono::milliseconds(5)));
    goOn = true;
    Settle();
    EXPECT_EQ(*late, 7);
}

TEST_F(SoundThreads, NothingIsDoneBehindTheEnd) {
    Allow(1'000'000);
    buffer = MakeBuffer();
    buffer->PlayLooping();
    RunProgram(1);
    EXPECT_TRUE(thread->End());
    const std::size_t heard = speaker->Heard().size();
    buffer->Write(0, Samples(kSamples, 3));
    buffer->PlayLooping();
    EXPECT_FALSE(thread->Await([] { ADD_FAILURE() << "the thread has ended"; }, std::chrono::milliseconds(1)));
    EXPECT_EQ(speaker->Heard().size(), heard);
}

TEST_F(SoundThreads, ThreadThatWasNeverAskedHasNothingToEnd) {
    EXPECT_TRUE(thread->End());
    EXPECT_TRUE(thread->End());
}

}  // namespace vatro
