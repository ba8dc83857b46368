// SPDX-License-Identifier: MIT
//
// Records the output of a sound system on the test card that with_sound_card.sh sets up.
#pragma once

#include <QProcess>
#include <cstdint>
#include <vector>

namespace vatro {

using Samples = std::vector<std::int16_t>;

class Recorder {
public:
    /// Returns once the recording is running.
    Recorder();
    /// Ends the recording and returns the samples from the first sound to the last.
    Samples Finish();

private:
    QProcess parec_;
};

/// How many of the recorded samples are silent.
std::size_t Gaps(const Samples& heard);
/// The recording without silent samples. On a busy machine the sound system may run out of samples for a moment. That may delay
/// the sound, but must not lose a sample.
Samples WithoutGaps(Samples heard);

/// How many of the first samples match the image exactly, played as a loop that starts at `from`.
std::size_t Following(const Samples& heard, const Samples& image, std::size_t from = 0);

}  // namespace vatro
