// SPDX-License-Identifier: MIT
#include "morse_speed.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "deliver.h"
#include "frame/state.h"
#include "keyer/frmCW.h"
#include "keyer/frmCWTX.h"
#include "qt_front.h"
#include "window.h"

namespace vatro {

MorseSpeed::MorseSpeed(QtFront& front) : front_(front) {
    front.extraEntries.emplace_back([this](QMainWindow&, QMenu& menu) {
        menu.addSeparator();
        const auto add = [&](const QString& caption, const QString& key, int step) {
            QAction* command = menu.addAction(caption);
            command->setShortcut(QKeySequence(key));
            connect(command, &QAction::triggered, this, [this, step] { Deliver([this, step] { Change(step); }); });
        };
        add(QStringLiteral("&Hurtigere CW"), QStringLiteral("Ctrl+PgUp"), kStep);
        add(QStringLiteral("Lan&gsommere CW"), QStringLiteral("Ctrl+PgDown"), -kStep);
    });
    qApp->installEventFilter(this);
}

void MorseSpeed::Change(int step) {
    const int now = wanted_.value_or(desk().cw.giCWWPM);
    wanted_ = std::clamp(now + step, kSlowest, kFastest);
    told(*wanted_);
    Apply();
}

void MorseSpeed::Apply() {
    if (!wanted_ || (frmCWTX.Loaded() && frmCWTX->Visible())) return;
    ChangeCwSpeed(*std::exchange(wanted_, std::nullopt));
}

bool MorseSpeed::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Hide || !wanted_ || !frmCWTX.Loaded()) return false;
    const FormWindow* sender = front_.WindowOf(*frmCWTX.Peek());
    if (sender != nullptr && sender->Top() == watched) QTimer::singleShot(0, this, [this] { Deliver([this] { Apply(); }); });
    return false;
}

}  // namespace vatro
