// SPDX-License-Identifier: MIT
#include "scene_sound.h"

#include <gtest/gtest.h>

#include <numeric>
#include <utility>

#include "errors.h"
#include "forms.h"
#include "program.h"
#include "running_program.h"

namespace vatro {

namespace {

constexpr int kSamples = 44100;
constexpr SoundFormat kFormat{.samplesPerSecond = 44100, .samples = kSamples};

using Samples = std::vector<std::int16_t>;

/// A 16-bit sample has too few values for 44,100 different samples; these differ within each half.
Samples Ramp(int first) {
    Samples image(kSamples);
    std::iota(image.begin(), image.end(), static_cast<std::int16_t>(first));
    return image;
}

class FrmSound : public Form {
public:
    FrmSound() : Form("frmSound", FormKind::Dialog, "Sound") {}
};

FormSlot<FrmSound> frmSound{"frmSound"};

}  // namespace

/// A running program with a sound card.
class SceneCard : public RunningProgram {
protected:
    SceneCard() {
        BeginProgram();
        Dispatch([] { frmSound.Load(); });
        for (const int half : {0, 1})
            events_[half] = card.CreateEvent([this, half](SoundEvent) {
                run.emplace_back(half, scene.Passed());
                if (react) react(half);
            });
        device_ = card.CreateDevice();
        buffer = NewBuffer();
    }
    std::unique_ptr<SoundBuffer> NewBuffer() {
        auto made = device_->CreateBuffer(kFormat);
        const PositionNotification positions[]{{22049, events_[0]}, {44099, events_[1]}};
        made->SetNotificationPositions(positions);
        return made;
    }
    void Fill(const Samples& image) { buffer->Write(0, image); }
    /// Lets time pass, and delivers each event when it is due.
    void Pass(SceneTime milliseconds) {
        const SceneTime until = scene.Passed() + milliseconds;
        while (const auto due = card.NextDue()) {
            if (*due > until) break;
            scene.MoveTo(*due);
            card.DeliverNext();
        }
        scene.MoveTo(until);
    }
    using Run = std::vector<std::pair<int, SceneTime>>;

    SceneClock scene;
    SceneSound card{scene};
    std::unique_ptr<SoundBuffer> buffer;
    /// The events that ran: which half, and when.
    Run run;
    std::function<void(int half)> react;
    SoundEvent events_[2]{};

private:
    std::unique_ptr<SoundDevice> device_;
};

TEST_F(SceneCard, IsSilentUntilItPlays) {
    Fill(Ramp(0));
    Pass(2000);
    EXPECT_EQ(card.TakeHeard(), Samples{});
    EXPECT_EQ(run, Run{});
}

TEST_F(SceneCard, PlaysInTheScenariosTimeToTheSample) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    // 3 ms are 132.3 samples.
    Pass(3);
    const Samples heard = card.TakeHeard();
    ASSERT_EQ(heard.size(), 132U);
    EXPECT_EQ(heard.front(), 0);
    EXPECT_EQ(heard.back(), 131);
    // 4 ms are 176.4.
    Pass(1);
    EXPECT_EQ(card.TakeHeard().size(), 44U);
}

TEST_F(SceneCard, NothingIsHeardWhileTheClockStands) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    EXPECT_EQ(card.TakeHeard(), Samples{});
}

TEST_F(SceneCard, EventsRunWhenAHalfHasBeenPlayed) {
    buffer->PlayLooping();
    Pass(499);
    EXPECT_EQ(run, Run{});
    Pass(1);
    EXPECT_EQ(run, (Run{{0, 500}}));
    Pass(1600);
    EXPECT_EQ(run, (Run{{0, 500}, {1, 1000}, {0, 1500}, {1, 2000}}));
}

TEST_F(SceneCard, HalfSecondHasHeardItsHalfWhenItsEventRuns) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    std::size_t heard = 0;
    react = [&](int) { heard = card.TakeHeard().size(); };
    Pass(500);
    EXPECT_EQ(heard, 22050U);
}

TEST_F(SceneCard, GoesRoundAndPlaysTheSameAgain) {
    Fill(Ramp(7));
    buffer->PlayLooping();
    Pass(1001);
    const Samples heard = card.TakeHeard();
    ASSERT_EQ(heard.size(), 44144U);
    EXPECT_EQ(heard[44099], static_cast<std::int16_t>(44106));
    EXPECT_EQ(heard[44100], 7);
    EXPECT_EQ(heard[44143], 50);
}

TEST_F(SceneCard, WhatIsWrittenWhileItPlaysIsHeardInItsTurn) {
    Fill(Samples(kSamples, 1));
    buffer->PlayLooping();
    react = [&](int half) { buffer->Write(half * 22050, Samples(22050, static_cast<std::int16_t>(half + 2))); };
    Pass(2000);
    const Samples heard = card.TakeHeard();
    ASSERT_EQ(heard.size(), 88200U);
    // The first half is refilled while the second one sounds.
    EXPECT_EQ(std::count(heard.begin(), heard.begin() + 44100, 1), 44100);
    EXPECT_EQ(std::count(heard.begin() + 44100, heard.begin() + 66150, 2), 22050);
    EXPECT_EQ(std::count(heard.begin() + 66150, heard.end(), 3), 22050);
}

TEST_F(SceneCard, WritingChangesOnlyItsOwnSamples) {
    Fill(Samples(kSamples, 1));
    buffer->Write(50, Samples(10, 9));
    buffer->PlayLooping();
    Pass(10);
    const Samples heard = card.TakeHeard();
    EXPECT_EQ(heard[49], 1);
    EXPECT_EQ(heard[50], 9);
    EXPECT_EQ(heard[59], 9);
    EXPECT_EQ(heard[60], 1);
}

TEST_F(SceneCard, StopIsSilentAtOnceAndRunsNoMoreEvents) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    Pass(499);
    buffer->Stop();
    Pass(1000);
    EXPECT_EQ(card.TakeHeard().size(), 22005U);
    EXPECT_EQ(run, Run{});
}

TEST_F(SceneCard, PlayGoesOnWhereItStopped) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    Pass(400);
    buffer->Stop();
    Pass(5000);
    card.TakeHeard();
    buffer->PlayLooping();
    Pass(150);
    EXPECT_EQ(card.TakeHeard().front(), 17640);
    EXPECT_EQ(run, (Run{{0, 5500}}));
}

TEST_F(SceneCard, PlayOfOneThatPlaysChangesNothing) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    Pass(300);
    buffer->PlayLooping();
    Pass(200);
    EXPECT_EQ(card.TakeHeard().size(), 22050U);
    EXPECT_EQ(run, (Run{{0, 500}}));
}

TEST_F(SceneCard, PositionSetWhileItPlaysGoesOnThereAtOnce) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    Pass(400);
    buffer->SetCurrentPosition(0);
    Pass(400);
    const Samples heard = card.TakeHeard();
    ASSERT_EQ(heard.size(), 35280U);
    EXPECT_EQ(heard[17640], 0);
    EXPECT_EQ(run, Run{});
    Pass(100);
    EXPECT_EQ(run, (Run{{0, 900}}));
}

TEST_F(SceneCard, PlayBeginsAtThePositionSet) {
    Fill(Ramp(0));
    buffer->SetCurrentPosition(22050);
    buffer->PlayLooping();
    Pass(500);
    EXPECT_EQ(card.TakeHeard().front(), 22050);
    EXPECT_EQ(run, (Run{{1, 500}}));
}

TEST_F(SceneCard, BufferThatGoesFallsSilent) {
    Fill(Ramp(0));
    buffer->PlayLooping();
    Pass(100);
    buffer.reset();
    Pass(1000);
    EXPECT_EQ(card.TakeHeard().size(), 4410U);
    EXPECT_EQ(run, Run{});
}

TEST_F(SceneCard, SecondBufferIsHeardBehindTheFirst) {
    Fill(Samples(kSamples, 1));
    buffer->PlayLooping();
    Pass(100);
    buffer = nullptr;
    buffer = NewBuffer();
    Fill(Samples(kSamples, 2));
    Pass(100);
    buffer->PlayLooping();
    Pass(500);
    const Samples heard = card.TakeHeard();
    ASSERT_EQ(heard.size(), 4410U + 22050U);
    EXPECT_EQ(heard[4409], 1);
    EXPECT_EQ(heard[4410], 2);
    EXPECT_EQ(run, (Run{{0, 700}}));
}

TEST_F(SceneCard, DestroyedEventDoesNotRun) {
    buffer->PlayLooping();
    card.DestroyEvent(events_[0]);
    Pass(1100);
    EXPECT_EQ(run, (Run{{1, 1000}}));
}

TEST_F(SceneCard, CallbackMayStopTheBufferAndDestroyItsOwnEvent) {
    buffer->PlayLooping();
    react = [&](int half) {
        card.DestroyEvent(events_[half]);
        buffer = nullptr;
    };
    Pass(3000);
    EXPECT_EQ(run, (Run{{0, 500}}));
}

TEST_F(SceneCard, EveryEventHasAHandleOfItsOwnAndGetsIt) {
    EXPECT_NE(events_[0], 0);
    EXPECT_NE(events_[0], events_[1]);
    SoundEvent got = 0;
    const SoundEvent third = card.CreateEvent([&](SoundEvent event) { got = event; });
    const PositionNotification position[]{{0, third}};
    buffer->SetNotificationPositions(position);
    buffer->PlayLooping();
    Pass(1);
    EXPECT_EQ(got, third);
}

TEST_F(SceneCard, WithoutACardThereIsNoDevice) {
    card.SetCard(false);
    try {
        card.CreateDevice();
        FAIL() << "a device without a card";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.Number(), static_cast<int>(Failure::DeviceUnavailable));
    }
}

TEST_F(SceneCard, BufferWithoutRateOrLengthIsAnInvalidCall) {
    const auto device = card.CreateDevice();
    EXPECT_THROW(device->CreateBuffer({.samplesPerSecond = 0, .samples = kSamples}), RunTimeError);
    EXPECT_THROW(device->CreateBuffer({.samplesPerSecond = 44100, .samples = 0}), RunTimeError);
}

TEST_F(SceneCard, WriteOutsideTheBufferIsAnInvalidCall) {
    EXPECT_THROW(buffer->Write(22051, Samples(22050)), RunTimeError);
    EXPECT_THROW(buffer->Write(-1, Samples(100)), RunTimeError);
    buffer->Write(22050, Samples(22050));
}

}  // namespace vatro
