// SPDX-License-Identifier: MIT
//
// The window that sends Morse: it owns the sound card, shows the text and has the button that stops it.
//
// It is loaded by the first send and then only hidden, so that card and buffer are there for the next one. The buffer is one
// second that plays round and round: at the end of each half that half is filled anew while the other one sounds.
//
// The first half into which nothing of the text has come stops the sound at once, when the half before it has only begun. Up to 24
// words per minute all that goes unheard is silence; above, it can be the last tones. A new text during a send is no new start: it
// comes in at the character where the old one stood, and only after an end or a stop does a text begin at its beginning. All
// this is meant so.
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

    Frame Frame1;
    /// The text as it is sent.
    TextBox Text1;
    Button cmdTX;
    Button cmdStop;

    /// Nothing before DanLydBuffer, and after it if the card or the settings do not do.
    std::unique_ptr<SoundBuffer> CWBuffer;
    /// The ends of the first and of the second half; 0 without one.
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
    /// off and is not resumed. Fails with 5, 6, 9 or 11 where they do not do.
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
    bool ready_ = false;
    bool playing_ = false;
    bool closing_ = false;
    bool ended_ = false;
};

inline FormSlot<FrmCWTX> frmCWTX{"frmCWTX"};

}  // namespace vatro
