// SPDX-License-Identifier: MIT
#include "last_line.h"

#include <QAction>
#include <QMenu>

#include "deliver.h"
#include "entry/frmMain.h"
#include "qt_front.h"

namespace vatro {

void AddLastLine(QtFront& front) {
    front.extraEntries.emplace_back([](QMainWindow&, QMenu& menu) {
        QAction* command = menu.addAction(QStringLiteral("Ret sidste l&inje..."));
        command->setShortcut(QKeySequence(QStringLiteral("Ctrl+R")));
        QObject::connect(command, &QAction::triggered, &menu, [] {
            Deliver([] {
                if (!frmMain->Reachable() || frmMain->log.ListCount() == 0) return;
                frmMain->log.UserDoubleClicked(frmMain->log.ListCount() - 1);
            });
        });
    });
}

}  // namespace vatro
