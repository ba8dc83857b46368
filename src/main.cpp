// SPDX-License-Identifier: MIT
//
// The main program: runs the logic with the Qt front.
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <cstdlib>
#include <memory>
#include <string>

#include "application.h"
#include "ask_at_first_start.h"
#include "call_mark.h"
#include "clock.h"
#include "codepage.h"
#include "copy_keeper.h"
#include "deliver.h"
#include "desktop.h"
#include "dialogs.h"
#include "disk_files.h"
#include "disk_settings.h"
#include "docking.h"
#include "ends.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "lamps.h"
#include "last_line.h"
#include "main_size.h"
#include "morse_speed.h"
#include "morse_tries.h"
#include "operator_mark.h"
#include "paper_ends.h"
#include "paper_watch.h"
#include "places.h"
#include "printer.h"
#include "program.h"
#include "qt_front.h"
#include "qt_text.h"
#include "safety.h"
#include "services.h"
#include "sound_card.h"

namespace {

using namespace vatro::literals;

struct Outcome {
    int result = 0;
    /// Whether a thread hangs in a call of the disk.
    bool hangs = false;
};

void Tell(const vatro::MessageBox& box) {
    std::unique_ptr<QMessageBox>(vatro::MakeBox(box, nullptr))->exec();
}

Outcome Run() {
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
    vatro::PaperWatch papers(safety.ProgramFiles());
    vatro::InstallPlatform(front, {dialogs,
                                   settings,
                                   papers,
                                   clock,
                                   help,
                                   safety.ProgramInstance(),
                                   sound,
                                   printer,
                                   {VATRO_VERSION_MAJOR, VATRO_VERSION_MINOR, VATRO_VERSION_PATCH}});

    const vatro::Desktop desktop(front, help);
    const vatro::PaperEnds paperEnds(front, papers, pages);
    vatro::AddLastLine(front);
    const vatro::MainSize size(front, settings);
    const vatro::Docking docking(front, settings);
    const vatro::Places places(front);
    const vatro::Ends ends(settings);
    vatro::CopyKeeper copy(front, safety, settings);
    vatro::Lamps lamps(front, safety, copy);
    vatro::MorseSpeed speed(front);
    speed.told = [&lamps](int wpm) {
        lamps.Tell("CW " + std::to_string(wpm) + " WPM", "Den næste tekst bliver sendt med denne hastighed."_t);
    };
    vatro::WatchMorseTries(front, [&lamps](bool sent) { lamps.MorseTried(sent); });
    front.ended = [] { QCoreApplication::quit(); };
    // The start procedure may open boxes, so it runs inside the event loop, like every other event.
    QTimer::singleShot(0, &front, [&front, &ends, &copy, &lamps] {
        vatro::BeginProgram();
        vatro::Deliver([&ends] {
            vatro::AskAtFirstStart();
            if (ends.Asked()) vatro::EndProgram();
            vatro::StartProgram();
        });
        if (!vatro::ProgramRuns()) return;
        vatro::MarkCall(front);
        vatro::MarkOperator(front);
        copy.Begin();
        lamps.Begin();
    });
    Outcome outcome;
    outcome.result = QApplication::exec();
    outcome.hangs = !copy.End();
    // If the end was requested from outside, nobody is at the screen to read a message.
    if (ends.Asked()) return outcome;
    safety.TellRest();
    if (const std::string word = copy.LastWord(); !word.empty()) {
        vatro::MessageBox box;
        box.text = word;
        box.title = vatro::FromQt(QStringLiteral("Løbende kopi"));
        box.icon = vatro::Icon::Exclamation;
        Tell(box);
    }
    if (const auto loss = settings.Loss()) Tell(*loss);
    return outcome;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    const Outcome outcome = Run();
    // The thread may still use static objects when the disk answers at last.
    if (outcome.hangs) std::_Exit(outcome.result);
    return outcome.result;
}
