// SPDX-License-Identifier: MIT
#include "keyer/frmCWTX.h"

#include "frame/state.h"
#include "frame/station.h"
#include "front.h"
#include "keyer/frmAfslut.h"
#include "morse/text_codes.h"
#include "platform.h"

namespace vatro {

FrmCWTX::FrmCWTX()
    : Form("frmCWTX", FormKind::Dialog, "CW TX"),
      textFrame(*this, "Frame1", "Sender teksten:"),
      text(*this, "Text1"),
      sendButton(*this, "cmdTX", "&TX"),
      stopButton(*this, "cmdStop", "&Stop") {
    stopButton.isDefault = true;
    stopButton.isCancel = true;
    SetTabOrder({&text, &sendButton, &stopButton});
    sendButton.Click = [this] { cmdTX_Click(); };
    stopButton.Click = [this] { cmdStop_Click(); };
}

FrmCWTX::~FrmCWTX() {
    ReleaseSound();
    for (const SoundEvent event : CWEvent)
        if (event != 0) platform().sound.DestroyEvent(event);
}

void FrmCWTX::Form_Load() {
    try {
        Show();
        Sound& sound = platform().sound;
        for (SoundEvent& event : CWEvent) event = sound.CreateEvent([this](SoundEvent signalled) { DirectXEvent_DXCallback(signalled); });
        soundCard_ = sound.CreateDevice();
        DanLydBuffer();
    } catch (const RunTimeError&) {
        MessageBox box;
        box.text = "Lydkort findes ikke.";
        box.icon = Icon::Critical;
        MsgBox(box);
        Hide();
    }
}

void FrmCWTX::Form_QueryUnload(bool& Cancel) {
    if (closing_) {
        Cancel = true;
        return;
    }
    closing_ = true;
    ReleaseSound();
    SetHourglass(true);
    frmAfslut->Show();
    for (SoundEvent& event : CWEvent) {
        InstalledFront().DoEvents();
        if (event == 0) continue;
        platform().sound.DestroyEvent(event);
        event = 0;
    }
    SetHourglass(false);
    soundCard_.reset();
    frmAfslut.Unload();
}

void FrmCWTX::ReleaseSound() {
    ready_ = false;
    playing_ = false;
    CWBuffer.reset();
}

void FrmCWTX::DanLydBuffer() {
    ReleaseSound();
    KeyerState& cw = desk().cw;
    cw.keyer.SetSpeed(cw.giCWWPM);
    CWBuffer = soundCard_->CreateBuffer({.samplesPerSecond = kSamplesPerSecond, .samples = kBufferSamples});
    const PositionNotification ends[]{{kHalfSamples - 1, CWEvent[0]}, {kBufferSamples - 1, CWEvent[1]}};
    CWBuffer->SetNotificationPositions(ends);
    cw.keyer.MakePieces(cw.giCWTone, cw.glCWVolume);
    ready_ = true;
}

void FrmCWTX::StartCW() {
    ended_ = false;
    desk().cw.keyer.Begin();
    FillHalf(Half::First);
    FillHalf(Half::Second);
    CWBuffer->SetCurrentPosition(0);
    CWBuffer->PlayLooping();
    playing_ = true;
}

void FrmCWTX::StopCW() {
    playing_ = false;
    if (CWBuffer) {
        CWBuffer->Stop();
        CWBuffer->SetCurrentPosition(0);
    }
    desk().cw.keyer.ResetPosition();
}

void FrmCWTX::cmdTX_Click() {
    if (!ready_) return;
    KeyerState& cw = desk().cw;
    cw.gsCWNummer = NumberAsSent(cw.gsCWNummer, cw.gsCWNummerFormat);
    cw.gsCWRST = ReportAsSent(cw.gsCWRST, cw.gsCWRSTFormat);
    const CodeValues values{.call = cw.gsCWCall, .report = cw.gsCWRST, .number = cw.gsCWNummer, .ownCall = desk().gsMyCall};
    cw.keyer.SetText(DanCWTekst(cw.gsCWRaa, values), cw.giCWFarnsworth);
    text.SetText(cw.keyer.Place().gsCWTekst);
    StartCW();
}

void FrmCWTX::cmdStop_Click() {
    StopCW();
    Hide();
}

void FrmCWTX::DirectXEvent_DXCallback(SoundEvent event) {
    if (!playing_) return;
    bool active = true;
    if (event == CWEvent[0])
        active = FillHalf(Half::First);
    else if (event == CWEvent[1])
        active = FillHalf(Half::Second);
    if (active) return;
    StopCW();
    ended_ = true;
    Hide();
}

bool FrmCWTX::FillHalf(Half half) {
    const FilledHalf filled = desk().cw.keyer.Fill(half);
    CWBuffer->Write(filled.first, filled.samples);
    return filled.active;
}

}  // namespace vatro
