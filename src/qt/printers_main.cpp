// SPDX-License-Identifier: MIT
//
// Asks the print server the same question that the window program is about to ask, and exits. If it exits in time, the server answers;
// otherwise its parent ends it.
#include <QCoreApplication>
#include <QPrinter>
#include <QPrinterInfo>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QPrinter printer(QPrinter::HighResolution);
    QPrinterInfo::availablePrinterNames();
    return 0;
}
