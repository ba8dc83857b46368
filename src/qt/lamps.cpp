// SPDX-License-Identifier: MIT
#include "lamps.h"

#include <QApplication>
#include <QDateTime>
#include <QMainWindow>
#include <QMenuBar>
#include <chrono>

#include "clock.h"
#include "codepage.h"
#include "copy_keeper.h"
#include "deliver.h"
#include "entry/clock.h"
#include "entry/frmMain.h"
#include "entry/frmUTC.h"
#include "frame/state.h"
#include "frame/station.h"
#include "joined.h"
#include "names.h"
#include "platform.h"
#include "program.h"
#include "qt_front.h"
#include "safety.h"

namespace vatro {

using namespace literals;

namespace {

ClockWatch::Reading ReadClocks() {
    ClockWatch::Reading reading;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    reading.local = FromQtTime(now.toLocalTime());
    reading.universal = FromQtTime(now);
    reading.steady = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
    return reading;
}

std::optional<int> Offset() {
    try {
        return UtcOffset();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// The offset is outside the list of its window, which cannot be opened then.
void TellOffset() {
    MessageBox box;
    box.title = "UTC offset";
    box.text = Joined({"UTC offset er \"", desk().gsUTC,
                       "\" og står ikke i listen (-11 til 12).\r\n\r\nAfslut Vatro, slet linjen UTC i "
                       "indstillingsfilen, og start igen. Se Indstillingsfilen i håndbogen."_t});
    box.icon = Icon::Exclamation;
    MsgBox(box);
}

}  // namespace

Lamps::Lamps(QtFront& front, Safety& safety, CopyKeeper& copy) : clocks(ReadClocks), front_(front), safety_(safety), copy_(copy) {
    safety_.saved = [this](std::string_view line) {
        lastContact_.Saved(line, FromQtTime(QDateTime::currentDateTimeUtc()));
        ShowLastContact();
    };
    safety_.corrected = [this](std::string_view line) {
        lastContact_.Corrected(line, FromQtTime(QDateTime::currentDateTimeUtc()));
        ShowLastContact();
    };
    safety_.notSaved = [this](const std::filesystem::path& file, Failure failure) {
        lastContact_.Failed(NativeText(file.filename()), Meaning(failure));
        ShowLastContact();
    };
    everySecond_.setInterval(std::chrono::seconds(1));
    connect(&everySecond_, &QTimer::timeout, this, [this] {
        LookAtClock();
        LookAtCopy();
    });
    connect(&copy_, &CopyKeeper::changed, this, &Lamps::LookAtCopy, Qt::QueuedConnection);
}

Lamps::~Lamps() {
    safety_.saved = {};
    safety_.corrected = {};
    safety_.notSaved = {};
}

void Lamps::Begin() {
    auto* window = qobject_cast<QMainWindow*>(front_.WidgetOf(frmMain->log)->window());
    if (window == nullptr) return;
    row_ = new LampRow(*window->menuBar());
    row_->clicked = [this](LampKind kind) { Clicked(kind); };
    qApp->installEventFilter(this);
    LookAtClock();
    LookAtCopy();
    ShowLastContact();
    everySecond_.start();
}

void Lamps::LookAtCopy() {
    copy_.Look();
    if (row_) row_->Show(LampKind::Copy, copy_.Shown());
}

void Lamps::LookAtClock() {
    if (!ProgramRuns()) return;
    ClockWatch::Reading reading = clocks();
    reading.offset = Offset();
    const bool jumped = clock_.Look(reading);
    if (row_) row_->Show(LampKind::Utc, clock_.Shown());
    if (jumped) CatchUp();
}

void Lamps::CatchUp() {
    // A handler that is repainting its window must not be interrupted.
    if (TicksHeld()) {
        QTimer::singleShot(1, this, &Lamps::CatchUp);
        return;
    }
    Deliver([] { CatchUpClock(); });
}

void Lamps::Clicked(LampKind kind) {
    if (kind == LampKind::Copy) return Deliver([this] { copy_.Choose(); });
    if (kind != LampKind::Utc || !clock_.Differs()) return;
    Deliver([] {
        if (FrmUTC::OffsetIsListed())
            ChangeUtcOffset();
        else
            TellOffset();
    });
    LookAtClock();
}

void Lamps::Tell(std::string_view text, std::string_view tip) {
    lastContact_.Tell(text, tip);
    ShowLastContact();
}

void Lamps::MorseTried(bool sent) {
    if (!row_) return;
    LampButton& lamp = row_->Button(LampKind::Morse);
    const bool again = lamp.Shown().state == Lamp::State::Bad;
    Lamp shown;
    if (!sent)
        shown = {Lamp::State::Bad, "CW ikke sendt",
                 std::string("Der blev ikke sendt noget: programmet har intet lydkort. Se Morse i håndbogen (Hjælp, Indhold)."_t), "CW"};
    row_->Show(LampKind::Morse, shown);
    if (!sent && again) lamp.Blink();
}

void Lamps::ShowLastContact() {
    if (row_) row_->Show(LampKind::LastContact, lastContact_.Shown());
}

bool Lamps::eventFilter(QObject*, QEvent* event) {
    // After sleep, the first key or click can come before the next second.
    if ((event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) && event->spontaneous()) LookAtClock();
    return false;
}

}  // namespace vatro
