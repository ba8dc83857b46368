// SPDX-License-Identifier: MIT
//
// Asks the print server what the window program is about to ask it, and ends. Whoever starts it learns by its end that the
// server answers, or ends it when that takes too long.
#include <QCoreApplication>
#include <QPrinter>
#include <QPrinterInfo>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QPrinter printer(QPrinter::HighResolution);
    QPrinterInfo::availablePrinterNames();
    return 0;
}
