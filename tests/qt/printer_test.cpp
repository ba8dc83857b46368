// SPDX-License-Identifier: MIT
#include "qt/printer.h"

#include <QFile>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include "platform/page.h"
#include "qt/text.h"
#include "running_program.h"

namespace vatro {
namespace {

/// Of a machine without a printer: each job becomes a PDF file.
class Printer : public RunningProgram {
protected:
    void SetUp() override {
        if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "skipped: this machine has a printer";
    }
    std::string File(const char* name) const { return FromQt(directory_.filePath(QLatin1String(name))); }
    static bool IsPdf(const std::string& file) {
        QFile pdf(ToQt(file));
        return pdf.open(QIODevice::ReadOnly) && pdf.read(5) == "%PDF-";
    }
    void PrintPage() {
        surface_.Print("80m CW");
        surface_.EndDoc();
    }

    QTemporaryDir directory_;
    QtPrinter pages_;
    PageSurface surface_{pages_};
};

TEST_F(Printer, AsksEachJobForAFile) {
    dialogs.chosen = File("first.pdf");
    PrintPage();
    dialogs.chosen = File("second.pdf");
    PrintPage();
    EXPECT_TRUE(IsPdf(File("first.pdf")));
    EXPECT_TRUE(IsPdf(File("second.pdf")));
}

TEST_F(Printer, DropsAJobThatIsGivenNoFile) {
    surface_.Print("80m CW");
    PrintPage();
    EXPECT_EQ(dialogs.asked.size(), 1U);
    dialogs.chosen = File("next.pdf");
    PrintPage();
    EXPECT_TRUE(IsPdf(File("next.pdf")));
}

TEST_F(Printer, TellsOnceThatAFileCannotBeWritten) {
    dialogs.chosen = File("gone/paper.pdf");
    dialogs.Expect("Udskriften kan ikke skrives til " + *dialogs.chosen);
    surface_.Print("80m CW");
    PrintPage();
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    dialogs.chosen = File("paper.pdf");
    PrintPage();
    EXPECT_TRUE(IsPdf(File("paper.pdf")));
}

}  // namespace
}  // namespace vatro
