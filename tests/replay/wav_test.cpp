// SPDX-License-Identifier: MIT
#include "wav.h"

#include <gtest/gtest.h>

#include <array>

namespace vatro {

TEST(Wav, EmptyFileIsItsHeaderAlone) {
    EXPECT_EQ(WavFile({}),
              std::string("RIFF\x24\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x44\xAC\0\0\x88\x58\x01\0\x02\0\x10\0data\0\0\0\0", 44));
}

TEST(Wav, SamplesStandWithTheLowerByteFirst) {
    const std::array<std::int16_t, 2> samples{0x0102, -2};
    const std::string file = WavFile(samples);
    ASSERT_EQ(file.size(), 48U);
    EXPECT_EQ(file.substr(4, 4), std::string("\x28\0\0\0", 4));
    EXPECT_EQ(file.substr(40), std::string("\x04\0\0\0\x02\x01\xFE\xFF", 8));
}

}  // namespace vatro
