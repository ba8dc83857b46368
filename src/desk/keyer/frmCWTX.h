// SPDX-License-Identifier: MIT
//
// The window that sends Morse. It owns the sound card, shows the text and has the button that stops the sound.
//
// The first send loads the window; later it is only hidden, so that card and buffer are ready for the next send. The buffer holds one
// second and plays in a loop: when one half has been played it is refilled while the other one plays.
//
// Two things look like mistakes but are rules of the keyer. Operators know them, and scenarios in tests/scenarios/cw check them:
//
// - The sound stops as soon as a refill finds no more text, although the half with the end mark has only begun to play. Up to 24
// words per minute only silence is lost; above that, the last tones can be lost. In return the window never stays longer than the
// text, so the entry form gets its keys back as early as possible.
//
// - A new text that is started during a send does not start at its beginning, but at the character where the old one stood. Operators
// press a second key to change the rest of a text. Only after an end or a stop does a text start from its beginning.
#pragma once

#include <memory>

#include "forms.h"
#include "morse/keyer.h"
#include "sound.h"

namespace vatro {

class FrmCWTX : public Form {
public:
    FrmCWTX();
    /// Releases buffer and events if the program ends without unloading the window.
    ~FrmCWTX() override;

    Frame textFrame;
    /// Shows the text as it is sent.
    TextBox text;
    Button sendButton;
    Button stopButton;

    /// The sound buffer; null before DanLydBuffer, or if DanLydBuffer failed before the card made a buffer.
    std::unique_ptr<SoundBuffer> CWBuffer;
    /// The events signalled at the end of the first and of the second half; 0 if there is no event.
    SoundEvent CWEvent[2]{};

    /// Creates events, card, buffer and pieces. On a failure shows a message, and the window stays hidden for the rest of the run.
    void Form_Load() override;
    /// Releases the sound card. Other events run while it does so; an attempt to close the window again during that time is refused.
    void Form_QueryUnload(bool& Cancel) override;

    /// Whether the last text was sent to its end without being stopped.
    bool EndedByItself() const { return ended_; }
    /// Whether buffer and pieces are ready.
    bool Ready() const { return ready_; }
    /// Makes new buffer and pieces for the current speed, pitch and volume. Sound that is playing breaks off and is not resumed.
    /// Fails with 11 at speed 0, with 5 if the card cannot make such a buffer, with 9 if the speed leaves no room for a ramp, and
    /// with 6 if the volume is too loud for 16 bits. After a failure nothing can be sent until a call succeeds.
    void DanLydBuffer();
    /// Fills both halves from the stepper's current position and plays the buffer from its beginning.
    void StartCW();
    /// Stops the sound at once; the next text starts from its beginning.
    void StopCW();
    /// Expands the text and starts sending it. Does nothing if the card is not ready.
    void cmdTX_Click();
    void cmdStop_Click();
    /// The callback for a half that has been played: refills it, or stops if the text is over. Does nothing if nothing is playing,
    /// since an event can still arrive after the sound was stopped. In spite of its name no DirectX is needed.
    void DirectXEvent_DXCallback(SoundEvent event);

private:
    void ReleaseSound();
    /// Refills a half and writes it into the sound buffer. Returns whether it holds any element other than the end mark.
    bool FillHalf(Half half);

    std::unique_ptr<SoundDevice> soundCard_;
    /// Whether buffer and pieces are ready.
    bool ready_ = false;
    bool playing_ = false;
    /// True while Form_QueryUnload lets other events run.
    bool closing_ = false;
    bool ended_ = false;
};

inline FormSlot<FrmCWTX> frmCWTX{"frmCWTX"};

}  // namespace vatro
