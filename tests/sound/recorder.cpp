// SPDX-License-Identifier: MIT
#include "sound/recorder.h"

#include <QTest>
#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace vatro {

namespace {

constexpr int kPatience = 5000;
/// Longer than the delay of the card and the recorder together.
constexpr int kTail = 400;

}  // namespace

Recorder::Recorder() {
    parec_.start(QStringLiteral("parec"),
                 {QStringLiteral("-d"), QStringLiteral("prove.monitor"), QStringLiteral("--format=s16le"), QStringLiteral("--rate=44100"),
                  QStringLiteral("--channels=1"), QStringLiteral("--raw"), QStringLiteral("--latency-msec=20")});
    // Silence is recorded too.
    if (!QTest::qWaitFor([&] { return parec_.bytesAvailable() > 0; }, kPatience)) throw std::runtime_error("parec records nothing");
}

Samples Recorder::Finish() {
    QTest::qWait(kTail);
    parec_.terminate();
    parec_.waitForFinished(kPatience);
    const QByteArray bytes = parec_.readAllStandardOutput();
    Samples samples(static_cast<std::size_t>(bytes.size()) / sizeof(std::int16_t));
    std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(std::int16_t));
    const auto sound = [](std::int16_t sample) { return sample != 0; };
    samples.erase(samples.begin(), std::ranges::find_if(samples, sound));
    samples.erase(std::find_if(samples.rbegin(), samples.rend(), sound).base(), samples.end());
    return samples;
}

std::size_t Gaps(const Samples& heard) {
    return static_cast<std::size_t>(std::ranges::count(heard, 0));
}

Samples WithoutGaps(Samples heard) {
    std::erase(heard, 0);
    return heard;
}

std::size_t Following(const Samples& heard, const Samples& image, std::size_t from) {
    std::size_t count = 0;
    while (count < heard.size() && heard[count] == image[(from + count) % image.size()]) ++count;
    return count;
}

}  // namespace vatro
