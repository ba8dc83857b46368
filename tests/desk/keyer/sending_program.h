// SPDX-License-Identifier: MIT
//
// The program in mode CW, with a sound card whose buffer halves the test plays one by one.
#pragma once

#include <string>
#include <vector>

#include "frame/state.h"
#include "frame/station.h"
#include "keyer/frmCWTX.h"
#include "keyer/texts.h"
#include "running_program.h"

namespace vatro {

class SendingProgram : public RunningProgram {
protected:
    SendingProgram() {
        settings.texts["SETTINGS/MODE"] = "CW";
        settings.texts["SETTINGS/QSOMODE"] = "CW";
    }

    /// The keyer's text and its position in it.
    static const Stepper& Place() { return desk().cw.keyer.Place(); }
    static const Pieces& CurrentPieces() { return desk().cw.keyer.CurrentPieces(); }

    /// Presses the text key F5 (0) to Shift+F8 (7).
    void Send(std::size_t text) {
        Dispatch([&] { frmMain->mnuCWTXT[text].Choose(); });
    }
    void SendText(std::string_view text) {
        desk().cw.CWTekster[7] = text;
        Send(7);
    }
    /// Lets the play position pass the end of the first (0) or second (1) half: keeps the samples heard and runs the event.
    void Pass(std::size_t half) {
        const auto from = sound.buffer->samples.begin() + static_cast<std::ptrdiff_t>(half) * kHalf;
        heard.insert(heard.end(), from, from + kHalf);
        const SoundEvent event = sound.buffer->positions[half].event;
        Dispatch([&] { sound.events.at(event)(event); });
    }
    /// Plays until the program stops the sound.
    void PlayOut() {
        for (std::size_t half = 0; Playing(); half = 1 - half) {
            ASSERT_LT(heard.size(), 100U * kHalf) << "the text has no end";
            Pass(half);
        }
    }
    bool Playing() const {
        for (auto call = sound.calls.rbegin(); call != sound.calls.rend(); ++call) {
            if (*call == "play") return true;
            if (*call == "stop") return false;
        }
        return false;
    }
    void Type(TextBox& field, std::string_view text) {
        Dispatch([&] { field.SetText(text); });
    }

    static constexpr int kHalf = 22050;
    std::vector<std::int16_t> heard;
};

}  // namespace vatro
