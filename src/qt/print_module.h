// SPDX-License-Identifier: MIT
//
// The part of the program that is linked with Qt PrintSupport. It is a library of its own (modules/qt_print_module.h), loaded when
// something is printed or a printer is chosen for the first time: the libraries of the print system would cost every start time and memory.
#pragma once

#include <QDialog>
#include <QObject>
#include <QPagedPaintDevice>
#include <QString>
#include <memory>

namespace vatro {

/// A printer of the desktop.
class SystemPrinter {
public:
    virtual ~SystemPrinter() = default;
    virtual QPagedPaintDevice& Device() = 0;
    /// The file that was chosen in the dialogue in place of a printer, or empty.
    virtual QString File() const = 0;
    /// Empty if there is none.
    virtual QString Name() const = 0;
    /// Names the next job.
    virtual void NameJob(const QString& name) = 0;
    /// The dialogue that chooses a printer and its options. With `selection` it also offers to print the selected text alone.
    virtual std::unique_ptr<QDialog> MakeDialog(QWidget* owner, bool selection) = 0;
};

class PrintModule {
public:
    virtual ~PrintModule() = default;
    /// The default printer, with A4 paper. Asks the print server.
    virtual std::unique_ptr<SystemPrinter> MakePrinter() = 0;
    /// Whether this machine has a printer. Asks the print server.
    virtual bool PrinterThere() = 0;
};

/// Loads the module if this has not been done; null if that is not possible.
PrintModule* LoadPrintModule();

}  // namespace vatro

Q_DECLARE_INTERFACE(vatro::PrintModule, "dk.vatro.PrintModule/1")
