// SPDX-License-Identifier: MIT
//
// The print module on Qt PrintSupport.
#pragma once

#include <QObject>

#include "print_module.h"

namespace vatro {

class QtPrintModule : public QObject, public PrintModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "dk.vatro.PrintModule/1")
    Q_INTERFACES(vatro::PrintModule)

public:
    std::unique_ptr<SystemPrinter> MakePrinter() override;
    bool PrinterThere() override;
};

}  // namespace vatro
