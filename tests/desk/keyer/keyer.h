// SPDX-License-Identifier: MIT
//
// The keyer without a program: pieces for a speed, and what comes out of the fills.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "keyer/keyer_settings.h"
#include "morse/synthesis.h"

namespace vatro {

using Samples = std::vector<std::int16_t>;

inline constexpr int kHalf = 22050;

/// A buffer that keeps what is written.
class KeptBuffer : public SoundBuffer {
public:
    void SetNotificationPositions(std::span<const PositionNotification> positions) override { static_cast<void>(positions); }
    void Write(int first, std::span<const std::int16_t> written) override {
        writes.emplace_back(first, static_cast<int>(written.size()));
        std::ranges::copy(written, samples.begin() + first);
    }
    void SetCurrentPosition(int sample) override { static_cast<void>(sample); }
    void PlayLooping() override {}
    void Stop() override {}

    /// First sample and number of samples.
    std::vector<std::pair<int, int>> writes;
    Samples samples = Samples(44100);
};

class Keyer : public ::testing::Test {
protected:
    Keyer() {
        giCWWPM = 20;
        giCWTone = 800;
        glCWVolume = 10000;
        giCWFarnsworth = 0;
        NulstilSyntese();
    }
    ~Keyer() override { NulstilSyntese(); }

    static void MakePieces(int wpm = 20) {
        giCWWPM = static_cast<std::int16_t>(wpm);
        BeregnPriklen();
        TildelPladser();
        DanTone();
        DanElementer();
    }

    /// All slots of the text up to the end mark, which is left out.
    static std::string Slots(std::string_view text) {
        gsCWTekst = text;
        std::string slots;
        std::string element;
        while (slots.size() < 10000) {
            NæsteElement(element);
            if (element == "0") return slots;
            slots += element;
        }
        ADD_FAILURE() << "the text has no end";
        return slots;
    }

    /// The samples of these slots, one piece behind the other.
    static Samples Pasted(std::string_view slots) {
        Samples samples;
        for (const char slot : slots) {
            const Stykke& piece = slot == '1' ? CWStart : slot == '2' ? CWMidte : slot == '3' ? CWSlut : slot == '4' ? CWPrik : CWPause;
            samples.insert(samples.end(), piece.begin(), piece.begin() + Priklen);
        }
        return samples;
    }

    /// Fills half after half until one is not active, and gives the samples of all of them.
    Samples Filled(std::string_view text) {
        gsCWTekst = text;
        glCWSlat = 0;
        gsElement.clear();
        Samples all;
        bool aktiv = true;
        for (int i = 0; aktiv && i < 1000; ++i) {
            const bool first = i % 2 == 0;
            if (first)
                FyldDel1(aktiv, buffer);
            else
                FyldDel2(aktiv, buffer);
            const auto from = buffer.samples.begin() + (first ? 0 : kHalf);
            all.insert(all.end(), from, from + kHalf);
        }
        EXPECT_FALSE(aktiv);
        return all;
    }

    KeptBuffer buffer;
};

}  // namespace vatro
