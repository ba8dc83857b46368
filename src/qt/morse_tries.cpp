// SPDX-License-Identifier: MIT
#include "morse_tries.h"

#include <QAction>
#include <QMainWindow>
#include <utility>

#include "bar_widgets.h"
#include "entry/frmMain.h"
#include "keyer/frmCWTX.h"
#include "qt_front.h"

namespace vatro {

void WatchMorseTries(QtFront& front, std::function<void(bool sent)> told) {
    front.extraEntries.emplace_back([told = std::move(told)](QMainWindow& window, QMenu& /*menu*/) {
        for (const MenuItem& text : frmMain->mnuCWTXT) {
            QAction* command = ActionOf(text, window);
            if (command == nullptr) continue;
            // Runs after the connection that sends the text, which was made earlier.
            QObject::connect(command, &QAction::triggered, &window, [told] { told(frmCWTX.Loaded() && frmCWTX->Ready()); });
        }
    });
}

}  // namespace vatro
