// SPDX-License-Identifier: MIT
//
// Records what a sound system plays on the card of the tests, from with_sound_card.sh.
#pragma once

#include <QProcess>
#include <cstdint>
#include <vector>

namespace vatro {

using Samples = std::vector<std::int16_t>;

class Recorder {
public:
    /// Returns when the recording runs.
    Recorder();
    /// Ends it and gives what was heard from the first sound to the last one.
    Samples Finish();

private:
    QProcess parec_;
};

/// As many samples at the front as follow the loop of the image from `from` on, to the sample.
std::size_t Following(const Samples& heard, const Samples& image, std::size_t from = 0);

}  // namespace vatro
