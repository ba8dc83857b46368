// SPDX-License-Identifier: MIT
//
// The window that sends Morse: it owns the sound card, shows the text and has the button that stops it.
//
// It is loaded by the first send and then only hidden, so that card and buffer are there for the next one. The buffer is one
// second that plays round and round: at the end of each half that half is filled anew while the other one sounds.
//
// Two things look like mistakes and are rules of the keyer, which operators know and scenarios in tests/scenarios/cw hold:
//
// - The refill that finds nothing left of the text stops the sound at once, while the half with the end mark has only begun to
//   sound. Up to 24 words per minute only silence is lost; above, the last tones can be. The window never stays longer than the
//   text, so the entry form gets its keys back as early as possible.
// - A new text during a send does not start anew: it comes in at the character where the old one stood. Only after an end or a
//   stop does a text start from its beginning.
#pragma once

#include <memory>

#include "forms.h"
#include "morse/keyer.h"
#include "sound.h"

namespace vatro {

class FrmCWTX : public Form {
public:
    FrmCWTX();
    /// Gives back what a program that ends at once has left.
    ~FrmCWTX() override;

    Frame textFrame;
    /// The text as it is sent.
    TextBox text;
    Button sendButton;
    Button stopButton;

    /// Nothing before DanLydBuffer, or when it has failed before the card had made a buffer.
    std::unique_ptr<SoundBuffer> CWBuffer;
    /// Run at the ends of the first and of the second half; 0 when there is no event.
    SoundEvent CWEvent[2]{};

    /// Makes card, events, buffer and pieces ready; a failure gives a message, and the window stays hidden for good.
    void Form_Load() override;
    /// Gives the card back, letting other events run in between; closing the window once more meanwhile is refused.
    void Form_QueryUnload(bool& Cancel) override;

    /// Whether the last text has been sent to its end, and not been stopped.
    bool EndedByItself() const { return ended_; }
    /// Whether buffer and pieces are there.
    bool Ready() const { return ready_; }
    /// Makes buffer and pieces for the present speed, tone and volume, in place of those that are there; a sound that plays breaks
    /// off and is not resumed. Fails with 11 at speed 0, 5 if the card makes no such buffer, 9 at a speed without room for a ramp and
    /// 6 at a volume too loud for 16 bits; nothing can be sent then until it succeeds.
    void DanLydBuffer();
    /// Fills both halves from where the stepper stands and plays them from the beginning of the buffer.
    void StartCW();
    /// Silence at once; the next text starts from its beginning.
    void StopCW();
    /// Expands the text and starts it. Nothing if the card is not ready.
    void cmdTX_Click();
    void cmdStop_Click();
    /// A half has been played: fills it anew, or stops if the text is over. Nothing if nothing plays: an event can be on its way
    /// when the sound is stopped.
    void DirectXEvent_DXCallback(SoundEvent event);

private:
    void ReleaseSound();
    /// Fills a half anew and writes it. Returns whether anything but the end mark has gone into it.
    bool FillHalf(Half half);

    std::unique_ptr<SoundDevice> soundCard_;
    /// Whether buffer and pieces are there.
    bool ready_ = false;
    bool playing_ = false;
    /// While Form_QueryUnload lets other events run.
    bool closing_ = false;
    bool ended_ = false;
};

inline FormSlot<FrmCWTX> frmCWTX{"frmCWTX"};

}  // namespace vatro
