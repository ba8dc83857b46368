// SPDX-License-Identifier: MIT
//
// The main program: runs the logic with the Qt front.
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <memory>

#include "application.h"
#include "clock.h"
#include "deliver.h"
#include "desktop.h"
#include "dialogs.h"
#include "disk_files.h"
#include "disk_settings.h"
#include "ends.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "printer.h"
#include "program.h"
#include "qt_front.h"
#include "safety.h"
#include "services.h"
#include "sound_card.h"
#include "spread.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    vatro::PrepareApplication();

    vatro::QtFront front;
    vatro::DiskSettings settings(vatro::SettingsPath());
    vatro::DiskFiles disk;
    vatro::QtClock clock;
    vatro::QtHelp help;
    vatro::QtInstance perUser;
    vatro::Safety safety(disk, clock, settings, perUser);
    vatro::QtSound sound;
    vatro::QtPrinter pages;
    vatro::PageSurface printer(pages);
    vatro::QtDialogs dialogs(&pages);
    vatro::InstallPlatform(front, {dialogs,
                                   settings,
                                   safety.ProgramFiles(),
                                   clock,
                                   help,
                                   safety.ProgramInstance(),
                                   sound,
                                   printer,
                                   {VATRO_VERSION_MAJOR, VATRO_VERSION_MINOR, VATRO_VERSION_PATCH}});

    const vatro::Desktop desktop(front);
    const vatro::Ends ends(settings);
    front.ended = [] { QCoreApplication::quit(); };
    // The start procedure may open boxes, so it runs inside the event loop, like every other event.
    QTimer::singleShot(0, &front, [&front] {
        vatro::BeginProgram();
        vatro::Deliver([] { vatro::StartProgram(); });
        if (vatro::ProgramRuns() && !vatro::FrmMain::HasPlace()) vatro::SpreadWindows(front);
    });
    const int result = QApplication::exec();
    // If the end was requested from outside, nobody is at the screen to read a message.
    if (ends.Asked()) return result;
    safety.TellRest();
    if (const auto loss = settings.Loss()) std::unique_ptr<QMessageBox>(vatro::MakeBox(*loss, nullptr))->exec();
    return result;
}
