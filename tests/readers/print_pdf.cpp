// SPDX-License-Identifier: MIT
//
//   vatro-print-pdf WORLD FILE.pdf
//
// Starts the program in its window, in a world that a scenario has left, chooses the menu entry that prints all papers, and has
// the window's printer write them to the file.
#include <QApplication>
#include <cstdio>

#include "application.h"
#include "deliver.h"
#include "disk_files.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "memory_platform.h"
#include "printer.h"
#include "program.h"
#include "window_driver.h"
#include "world.h"

namespace vatro {

namespace {

/// Answers for a program without an operator. A box would wait for ever, so it ends the run.
void PrintAll(const std::string& directory, const QString& pdf) {
    const World world(directory);
    DiskFiles files([&world](std::string_view path) { return world.Found(path); }, World::kSeparator,
                    std::string(World::kCurrentDirectory));
    SettingsStore settings(world.SettingsFile());
    SceneClock clock;
    SceneSound sound(clock);
    NobodyThere nobody;
    QtPrinter pages;
    pages.PrintToFile(pdf);
    PageSurface printer(pages);
    WindowDriver driver;
    InstallPlatform(
        driver.ProgramFront(),
        {nobody, settings, files, clock, nobody, nobody, sound, printer, {VATRO_VERSION_MAJOR, VATRO_VERSION_MINOR, VATRO_VERSION_PATCH}});
    BeginProgram();
    Deliver([] { StartProgram(); });
    driver.Settle();
    driver.Choose(frmMain->mnuUdskrivAlt);
    driver.Settle();
    EndProgram();
    driver.Settle();
}

}  // namespace

}  // namespace vatro

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: vatro-print-pdf WORLD FILE.pdf\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    vatro::PrepareApplication();
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    try {
        vatro::PrintAll(argv[1], QString::fromLocal8Bit(argv[2]));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
