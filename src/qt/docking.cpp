// SPDX-License-Identifier: MIT
#include "docking.h"

#include <QAction>
#include <QMenu>

#include "main_size.h"
#include "platform.h"
#include "qt_front.h"

namespace vatro {

namespace {

constexpr std::string_view kDocked = "Saml";

}  // namespace

Docking::Docking(QtFront& front, Settings& settings) : front_(front), settings_(settings) {
    front.docksWindows = settings.Read(kWindowSection, kDocked) != "False";
    front.extraEntries.emplace_back([this](QMainWindow&, QMenu& menu) {
        QAction* docked = menu.addAction(QStringLiteral("Saml &vinduerne"));
        docked->setCheckable(true);
        docked->setChecked(front_.docksWindows);
        connect(docked, &QAction::triggered, this, &Docking::Choose);
    });
}

void Docking::Choose(bool docked) {
    front_.docksWindows = docked;
    settings_.Write(kWindowSection, kDocked, docked ? "True" : "False");
    front_.FollowDocking();
}

}  // namespace vatro
