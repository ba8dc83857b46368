// SPDX-License-Identifier: MIT
#include "qt_print_module.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace vatro {

namespace {

class QtSystemPrinter : public SystemPrinter {
public:
    QtSystemPrinter() { printer_.setPageSize(QPageSize(QPageSize::A4)); }
    QPagedPaintDevice& Device() override { return printer_; }
    QString File() const override { return printer_.outputFileName(); }
    QString Name() const override { return printer_.printerName(); }
    void NameJob(const QString& name) override { printer_.setDocName(name); }
    std::unique_ptr<QDialog> MakeDialog(QWidget* owner, bool selection) override {
        auto dialog = std::make_unique<QPrintDialog>(&printer_, owner);
        dialog->setOption(QAbstractPrintDialog::PrintSelection, selection);
        return dialog;
    }

private:
    QPrinter printer_{QPrinter::HighResolution};
};

}  // namespace

std::unique_ptr<SystemPrinter> QtPrintModule::MakePrinter() {
    return std::make_unique<QtSystemPrinter>();
}

bool QtPrintModule::PrinterThere() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

}  // namespace vatro
