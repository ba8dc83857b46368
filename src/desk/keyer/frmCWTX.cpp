// SPDX-License-Identifier: MIT
#include "keyer/frmCWTX.h"

#include "keyer/frmAfslut.h"
#include "keyer/texts.h"
#include "morse/synthesis.h"
#include "platform.h"

namespace vatro {

FrmCWTX::FrmCWTX()
    : Form("frmCWTX", FormKind::Dialog, "CW TX"),
      Frame1(*this, "Frame1", "Sender teksten:"),
      Text1(*this, "Text1"),
      cmdTX(*this, "cmdTX", "&TX"),
      cmdStop(*this, "cmdStop", "&Stop") {
    cmdStop.isDefault = true;
    cmdStop.isCancel = true;
    SetTabOrder({&Text1, &cmdTX, &cmdStop});
    cmdTX.Click = [this] { cmdTX_Click(); };
    cmdStop.Click = [this] { cmdStop_Click(); };
}

FrmCWTX::~FrmCWTX() {
    SlipLyd();
    for (const SoundEvent event : CWEvent)
        if (event != 0) platform().sound.DestroyEvent(event);
}

void FrmCWTX::Form_Load() {
    try {
        Show();
        Sound& lyd = platform().sound;
        for (SoundEvent& event : CWEvent) event = lyd.CreateEvent([this](SoundEvent eventid) { DirectXEvent_DXCallback(eventid); });
        lydkort_ = lyd.CreateDevice();
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
    if (lukker_) {
        Cancel = true;
        return;
    }
    lukker_ = true;
    SlipLyd();
    SetHourglass(true);
    frmAfslut->Show();
    for (SoundEvent& event : CWEvent) {
        platform().front.DoEvents();
        if (event == 0) continue;
        platform().sound.DestroyEvent(event);
        event = 0;
    }
    SetHourglass(false);
    lydkort_.reset();
    frmAfslut.Unload();
}

void FrmCWTX::SlipLyd() {
    klar_ = false;
    spiller_ = false;
    CWBuffer.reset();
}

void FrmCWTX::DanLydBuffer() {
    SlipLyd();
    BeregnPriklen();
    CWBuffer = lydkort_->CreateBuffer({.samplesPerSecond = kSamplesPerSecond, .samples = kBufferSamples});
    const PositionNotification halvdele[]{{kBufferSamples / 2 - 1, CWEvent[0]}, {kBufferSamples - 1, CWEvent[1]}};
    CWBuffer->SetNotificationPositions(halvdele);
    TildelPladser();
    DanTone();
    DanElementer();
    klar_ = true;
}

void FrmCWTX::StartCW() {
    ended_ = false;
    glCWSlat = 0;
    gsElement.clear();
    bool aktiv = false;
    FyldDel1(aktiv, *CWBuffer);
    FyldDel2(aktiv, *CWBuffer);
    CWBuffer->SetCurrentPosition(0);
    CWBuffer->PlayLooping();
    spiller_ = true;
}

void FrmCWTX::StopCW() {
    spiller_ = false;
    if (CWBuffer) {
        CWBuffer->Stop();
        CWBuffer->SetCurrentPosition(0);
    }
    NulstilStilling();
}

void FrmCWTX::cmdTX_Click() {
    if (!klar_) return;
    DanCWTekst();
    Text1.SetText(gsCWTekst);
    StartCW();
}

void FrmCWTX::cmdStop_Click() {
    StopCW();
    Hide();
}

void FrmCWTX::DirectXEvent_DXCallback(SoundEvent eventid) {
    if (!spiller_) return;
    bool aktiv = true;
    if (eventid == CWEvent[0])
        FyldDel1(aktiv, *CWBuffer);
    else if (eventid == CWEvent[1])
        FyldDel2(aktiv, *CWBuffer);
    if (aktiv) return;
    StopCW();
    ended_ = true;
    Hide();
}

}  // namespace vatro
