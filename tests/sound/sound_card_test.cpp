// SPDX-License-Identifier: MIT
//
// The window program's sound card on a real sound system. Everything played must be heard completely and in order.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTest>
#include <QThread>
#include <algorithm>
#include <regex>

#include "errors.h"
#include "forms.h"
#include "program.h"
#include "running_program.h"
#include "sound/recorder.h"
#include "sound_card.h"

namespace vatro {

namespace {

constexpr int kSamples = 44100;
constexpr std::size_t kHalf = 22050;
constexpr int kSamplesPerMillisecond = 44;
constexpr SoundFormat kFormat{.samplesPerSecond = 44100, .samples = kSamples};

/// No sample is silent, and no sample repeats within 0.7 seconds.
Samples Pattern(int step) {
    Samples image(kSamples);
    for (std::size_t i = 0; i < image.size(); ++i) image[i] = static_cast<std::int16_t>(1 + (static_cast<int>(i) * step) % 32749);
    return image;
}

class FrmSound : public Form {
public:
    FrmSound() : Form("frmSound", FormKind::Dialog, "Sound") {}
};

FormSlot<FrmSound> frmSound{"frmSound"};

/// Milliseconds from the request to play until the first samples are handed over, from the player's log.
std::vector<double> startTimes;

void TakeLog(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    std::smatch found;
    const std::string line = text.toStdString();
    if (std::regex_search(line, found, std::regex("first samples after ([0-9.]+) ms")))
        startTimes.push_back(std::stod(found[1]));
    else
        std::fprintf(stderr, "%s\n", line.c_str());
}

}  // namespace

class SoundCard : public RunningProgram {
protected:
    SoundCard() {
        BeginProgram();
        Dispatch([] { frmSound.Load(); });
        for (const int half : {0, 1})
            events[half] = card->CreateEvent([this, half](SoundEvent) {
                run.push_back(half);
                if (react) react(half);
            });
    }
    void MakeBuffer() {
        if (device == nullptr) device = card->CreateDevice();
        buffer = device->CreateBuffer(kFormat);
        const PositionNotification positions[]{{22049, events[0]}, {44099, events[1]}};
        buffer->SetNotificationPositions(positions);
    }
    void Fill(const Samples& image) { buffer->Write(0, image); }
    bool WaitForEvents(std::size_t count) {
        return QTest::qWaitFor([&] { return run.size() >= count; }, static_cast<int>(count) * 500 + 3000);
    }

    std::unique_ptr<QtSound> card = std::make_unique<QtSound>();
    std::unique_ptr<SoundDevice> device;
    std::unique_ptr<SoundBuffer> buffer;
    SoundEvent events[2]{};
    /// The halves whose events ran.
    std::vector<int> run;
    std::function<void(int half)> react;
};

TEST_F(SoundCard, LoopArrivesCompleteAndInOrder) {
    MakeBuffer();
    const Samples image = Pattern(1);
    Fill(image);
    Recorder recorder;
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(5));
    buffer->Stop();
    const Samples heard = WithoutGaps(recorder.Finish());
    EXPECT_GE(heard.size(), 5 * kHalf);
    EXPECT_EQ(Following(heard, image), heard.size());
    EXPECT_EQ(run, (std::vector{0, 1, 0, 1, 0}));
}

TEST_F(SoundCard, RefillOfTheHalfJustPlayedIsHeardInItsTurn) {
    MakeBuffer();
    Fill(Pattern(1));
    // Each half gets a different pattern the next time.
    int step = 1;
    Samples expected = Pattern(1);
    react = [&](int half) {
        const Samples next = Pattern(++step);
        const auto from = next.begin() + half * static_cast<int>(kHalf);
        buffer->Write(half * static_cast<int>(kHalf), {from, kHalf});
        expected.insert(expected.end(), from, from + kHalf);
    };
    Recorder recorder;
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(6));
    buffer->Stop();
    const Samples heard = WithoutGaps(recorder.Finish());
    EXPECT_GE(heard.size(), 6 * kHalf);
    ASSERT_LE(heard.size(), expected.size());
    EXPECT_EQ(Following(heard, expected), heard.size());
}

TEST_F(SoundCard, EventComesWhenItsHalfHasBeenHeardAndSoonAfter) {
    MakeBuffer();
    const Samples before = Pattern(1);
    Fill(before);
    react = [&](int half) {
        if (half == 0 && run.size() == 1) Fill(Samples(kSamples, -9));
    };
    Recorder recorder;
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(2));
    buffer->Stop();
    const Samples heard = WithoutGaps(recorder.Finish());
    // The sound system still holds samples of the old pattern.
    const std::size_t changed = Following(heard, before);
    EXPECT_GE(changed, kHalf);
    EXPECT_LE(changed, kHalf + 250 * kSamplesPerMillisecond);
    EXPECT_EQ(static_cast<std::size_t>(std::count(heard.begin() + static_cast<std::ptrdiff_t>(changed), heard.end(), -9)),
              heard.size() - changed);
}

TEST_F(SoundCard, EventsComeInTimeOnAQuietProgram) {
    MakeBuffer();
    Fill(Pattern(1));
    QElapsedTimer watch;
    std::vector<qint64> times;
    react = [&](int) { times.push_back(watch.elapsed()); };
    watch.start();
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(4));
    buffer->Stop();
    ASSERT_GE(times.size(), 4U);
    std::vector<qint64> late;
    for (std::size_t i = 0; i < 4; ++i) late.push_back(times[i] - static_cast<qint64>(500 * (i + 1)));
    std::ranges::sort(late);
    EXPECT_GE(late.front(), 0);
    // Two of four attempts must be fast, because the machine may be busy.
    EXPECT_LE(late[1], 150);
}

TEST_F(SoundCard, FirstSamplesAreHandedOverAtOnce) {
    QLoggingCategory::setFilterRules(QStringLiteral("vatro.sound.debug=true"));
    const auto before = qInstallMessageHandler(TakeLog);
    startTimes.clear();
    MakeBuffer();
    Fill(Pattern(1));
    for (int i = 0; i < 9; ++i) {
        buffer->PlayLooping();
        QTest::qWait(60);
        buffer->Stop();
        QTest::qWait(20);
    }
    card.reset();
    qInstallMessageHandler(before);
    QLoggingCategory::setFilterRules({});
    ASSERT_EQ(startTimes.size(), 9U);
    std::ranges::sort(startTimes);
    RecordProperty("median_us", static_cast<int>(startTimes[4] * 1000));
    std::printf("first samples after %.2f ms, the slowest of 9 after %.2f ms\n", startTimes[4], startTimes[8]);
    // Only three of nine must be fast, because other processes on a busy machine also cost time.
    EXPECT_LT(startTimes[2], 20);
}

TEST_F(SoundCard, StopIsSilentAtOnce) {
    MakeBuffer();
    const Samples image = Pattern(1);
    Fill(image);
    Recorder recorder;
    QElapsedTimer watch;
    watch.start();
    buffer->PlayLooping();
    QTest::qWait(400);
    buffer->Stop();
    const auto played = static_cast<std::size_t>(watch.elapsed()) * kSamplesPerMillisecond;
    const Samples heard = WithoutGaps(recorder.Finish());
    EXPECT_EQ(Following(heard, image), heard.size());
    EXPECT_GE(heard.size(), played / 2);
    EXPECT_LE(heard.size(), played + 50U * kSamplesPerMillisecond);
    EXPECT_EQ(run, std::vector<int>{});
}

TEST_F(SoundCard, PositionSetWhileItPlaysIsHeardAtOnce) {
    MakeBuffer();
    const Samples image = Pattern(1);
    Fill(image);
    Recorder recorder;
    buffer->PlayLooping();
    QElapsedTimer watch;
    watch.start();
    QTest::qWait(300);
    buffer->SetCurrentPosition(22050);
    const auto played = static_cast<std::size_t>(watch.elapsed()) * kSamplesPerMillisecond;
    QTest::qWait(300);
    buffer->Stop();
    Samples heard = recorder.Finish();
    // The sound is opened again for this, so a short gap is allowed.
    EXPECT_LE(Gaps(heard), 150U * kSamplesPerMillisecond);
    heard = WithoutGaps(heard);
    const std::size_t first = Following(heard, image);
    EXPECT_GE(first, played / 2);
    EXPECT_LE(first, played + 50U * kSamplesPerMillisecond);
    heard.erase(heard.begin(), heard.begin() + static_cast<std::ptrdiff_t>(first));
    EXPECT_GE(heard.size(), 100U * kSamplesPerMillisecond);
    EXPECT_EQ(Following(heard, image, kHalf), heard.size());
}

TEST_F(SoundCard, BusyProgramDoesNotMakeItStutter) {
    MakeBuffer();
    const Samples image = Pattern(1);
    Fill(image);
    Recorder recorder;
    buffer->PlayLooping();
    QTest::qWait(100);
    QThread::msleep(1200);
    EXPECT_EQ(run, std::vector<int>{});
    // The missed events run afterwards, in order.
    EXPECT_TRUE(WaitForEvents(2));
    EXPECT_EQ(run, (std::vector{0, 1}));
    buffer->Stop();
    Samples heard = recorder.Finish();
    // If the busy thread fed it, it would be silent for a second.
    EXPECT_LE(Gaps(heard), 200U * kSamplesPerMillisecond);
    heard = WithoutGaps(heard);
    EXPECT_GE(heard.size(), 1000U * kSamplesPerMillisecond);
    EXPECT_EQ(Following(heard, image), heard.size());
}

TEST_F(SoundCard, EventOfAStoppedPlayDoesNotRun) {
    MakeBuffer();
    Fill(Pattern(1));
    buffer->PlayLooping();
    // The event has been signalled and waits for the program.
    QThread::msleep(800);
    buffer->Stop();
    QTest::qWait(100);
    EXPECT_EQ(run, std::vector<int>{});
}

TEST_F(SoundCard, DestroyedEventDoesNotRunEvenIfItHasBeenSignalled) {
    MakeBuffer();
    Fill(Pattern(1));
    buffer->PlayLooping();
    QThread::msleep(800);
    card->DestroyEvent(events[0]);
    EXPECT_TRUE(WaitForEvents(1));
    EXPECT_EQ(run, std::vector{1});
}

TEST_F(SoundCard, SecondBufferPlaysBehindTheFirst) {
    MakeBuffer();
    const Samples first = Pattern(1);
    const Samples second = Pattern(3);
    Fill(first);
    Recorder recorder;
    buffer->PlayLooping();
    QTest::qWait(300);
    MakeBuffer();
    Fill(second);
    QTest::qWait(100);
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(1));
    buffer.reset();
    Samples heard = WithoutGaps(recorder.Finish());
    const std::size_t before = Following(heard, first);
    EXPECT_GE(before, 100U * kSamplesPerMillisecond);
    EXPECT_LT(before, kHalf);
    heard.erase(heard.begin(), heard.begin() + static_cast<std::ptrdiff_t>(before));
    EXPECT_GE(heard.size(), kHalf);
    EXPECT_EQ(Following(heard, second), heard.size());
    EXPECT_EQ(run, std::vector{0});
}

TEST_F(SoundCard, BufferMayOutliveTheCard) {
    MakeBuffer();
    Fill(Pattern(1));
    buffer->PlayLooping();
    QTest::qWait(100);
    card.reset();
    Fill(Pattern(2));
    buffer->SetCurrentPosition(0);
    buffer->PlayLooping();
    buffer->Stop();
    buffer.reset();
    device.reset();
    QTest::qWait(700);
    EXPECT_EQ(run, std::vector<int>{});
}

TEST_F(SoundCard, WriteOutsideTheBufferIsAnInvalidCall) {
    MakeBuffer();
    EXPECT_THROW(buffer->Write(22051, Samples(kHalf)), RunTimeError);
    EXPECT_THROW(buffer->Write(-1, Samples(100)), RunTimeError);
    buffer->Write(22050, Samples(kHalf));
}

TEST_F(SoundCard, BufferWithoutRateOrLengthIsAnInvalidCall) {
    MakeBuffer();
    EXPECT_THROW(device->CreateBuffer({.samplesPerSecond = 0, .samples = kSamples}), RunTimeError);
    EXPECT_THROW(device->CreateBuffer({.samplesPerSecond = 44100, .samples = 0}), RunTimeError);
}

/// Must run alone, because the machine's card is removed for good.
class SoundCardThatGoes : public SoundCard {
protected:
    static void Pactl(const QStringList& arguments) {
        QProcess pactl;
        pactl.start(QStringLiteral("pactl"), arguments);
        pactl.waitForFinished(3000);
    }
};

TEST_F(SoundCardThatGoes, LeavesThePlayToGoOnUnheard) {
    MakeBuffer();
    Fill(Pattern(1));
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(1));
    Pactl({QStringLiteral("unload-module"), QStringLiteral("module-null-sink")});
    EXPECT_TRUE(WaitForEvents(4));
    EXPECT_EQ(run, (std::vector{0, 1, 0, 1}));
    // Another card takes its place.
    Pactl({QStringLiteral("load-module"), QStringLiteral("module-null-sink"), QStringLiteral("sink_name=prove"),
           QStringLiteral("rate=44100"), QStringLiteral("format=s16le"), QStringLiteral("channels=1")});
    QTest::qWait(1500);
    Recorder recorder;
    QTest::qWait(300);
    EXPECT_GT(recorder.Finish().size(), 100U * kSamplesPerMillisecond);
    buffer->Stop();
}

TEST_F(SoundCardThatGoes, SystemThatEndsLeavesThePlayToGoOnUnheard) {
    MakeBuffer();
    Fill(Pattern(1));
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(1));
    Pactl({QStringLiteral("exit")});
    EXPECT_TRUE(WaitForEvents(8));
    buffer->SetCurrentPosition(0);
    EXPECT_TRUE(WaitForEvents(9));
    buffer->Stop();
    buffer->PlayLooping();
    EXPECT_TRUE(WaitForEvents(10));
    QElapsedTimer ending;
    ending.start();
    buffer.reset();
    card.reset();
    EXPECT_LT(ending.elapsed(), 1500);
}

/// Must run without a sound system.
using NoSoundCard = SoundCard;

TEST_F(NoSoundCard, GivesNoDevice) {
    QElapsedTimer asked;
    asked.start();
    for (int i = 0; i < 2; ++i) {
        try {
            card->CreateDevice();
            ADD_FAILURE() << "a device without a card";
        } catch (const RunTimeError& failure) {
            EXPECT_EQ(failure.Number(), static_cast<int>(Failure::DeviceUnavailable));
        }
    }
    EXPECT_LT(asked.elapsed(), 2000);
}

}  // namespace vatro
