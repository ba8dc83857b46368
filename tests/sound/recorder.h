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

/// The silent samples among those heard.
std::size_t Gaps(const Samples& heard);
/// The sound alone. On a machine that is too busy the sound system runs dry for a moment: that may delay the sound, but must
/// not cost a sample of it.
Samples WithoutGaps(Samples heard);

/// As many samples at the front as follow the loop of the image from `from` on, to the sample.
std::size_t Following(const Samples& heard, const Samples& image, std::size_t from = 0);

}  // namespace vatro
