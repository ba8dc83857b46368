// SPDX-License-Identifier: MIT
#include "printer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include "page.h"
#include "qt_text.h"
#include "running_program.h"

namespace vatro {
namespace {

/// Needs a machine without a printer, on which each job becomes a PDF file.
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

TEST_F(Printer, ProposesAFileNamedAfterTheJobInTheDirectoryThatItIsGiven) {
    pages_.directory = [this] { return directory_.path(); };
    surface_.NameJob("Summary 2026");
    PrintPage();
    // The name is that of one job.
    PrintPage();
    ASSERT_EQ(dialogs.asked.size(), 2U);
    EXPECT_EQ(dialogs.asked[0].fileName, File("Summary 2026.pdf"));
    EXPECT_EQ(dialogs.asked[1].fileName, File("Vatro.pdf"));
}

TEST_F(Printer, TellsWhatHasBecomeOfAJob) {
    std::vector<PrintJob> jobs;
    pages_.ended = [&jobs](const PrintJob& job) { jobs.push_back(job); };
    dialogs.chosen = File("first.pdf");
    surface_.Print("80m CW");
    surface_.NewPage();
    PrintPage();
    surface_.NewPage();
    PrintPage();
    surface_.EndDoc();
    dialogs.chosen.reset();
    PrintPage();
    dialogs.chosen = File("gone/paper.pdf");
    dialogs.Expect("Udskriften kan ikke skrives til " + *dialogs.chosen);
    PrintPage();
    ASSERT_EQ(jobs.size(), 5U);
    EXPECT_EQ(jobs[0].state, PrintJob::State::Done);
    EXPECT_EQ(jobs[0].file, File("first.pdf"));
    EXPECT_EQ(jobs[0].pages, 2);
    EXPECT_EQ(jobs[1].pages, 2) << "also if the first page is empty";
    EXPECT_EQ(jobs[2].pages, 0);
    EXPECT_EQ(jobs[3].state, PrintJob::State::Dropped);
    EXPECT_EQ(jobs[4].state, PrintJob::State::Failed);
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

TEST_F(Printer, TellsThatAFullDiskHasNotTakenTheJob) {
    dialogs.chosen = "/dev/full";
    if (!QFile::exists(ToQt(*dialogs.chosen))) GTEST_SKIP() << "this system has no full disk";
    dialogs.Expect("Udskriften kan ikke skrives til /dev/full");
    PrintPage();
}

TEST_F(Printer, OffersAPdfWhenThePrintServerDoesNotAnswer) {
    int asked = 0;
    QtPrinter silent([&asked] {
        ++asked;
        return false;
    });
    PageSurface surface(silent);
    EXPECT_EQ(asked, 0);
    dialogs.chosen = File("silent.pdf");
    surface.PrintCentred("80m CW");
    surface.NewPage();
    surface.Print("80m CW");
    surface.EndDoc();
    EXPECT_EQ(asked, 1) << "once for a job";
    EXPECT_EQ(silent.Printer(), nullptr);
    EXPECT_TRUE(IsPdf(File("silent.pdf")));
    EXPECT_EQ(dialogs.asked.at(0).title, "Printserveren svarer ikke: gem udskriften som PDF");
}

TEST_F(Printer, OffersAPdfAndAsksNoServerWithoutThePrintModule) {
    int asked = 0;
    QtPrinter lacking(
        [&asked] {
            ++asked;
            return true;
        },
        []() -> PrintModule* { return nullptr; });
    PageSurface surface(lacking);
    dialogs.chosen = File("lacking.pdf");
    surface.Print("80m CW");
    surface.EndDoc();
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(lacking.Printer(), nullptr);
    EXPECT_TRUE(IsPdf(File("lacking.pdf")));
    EXPECT_EQ(dialogs.asked.at(0).title, "Vatros del til printere mangler: gem udskriften som PDF");
}

TEST_F(Printer, LoadsThePrintModuleWithTheFirstJob) {
    int loaded = 0;
    QtPrinter counted([] { return false; },
                      [&loaded] {
                          ++loaded;
                          return LoadPrintModule();
                      });
    PageSurface surface(counted);
    EXPECT_EQ(loaded, 0);
    dialogs.chosen = File("first.pdf");
    for (int job = 0; job < 2; ++job) {
        surface.Print("80m CW");
        surface.EndDoc();
    }
    EXPECT_EQ(loaded, 1);
    EXPECT_NE(counted.Module(), nullptr);
}

TEST_F(Printer, MeasuresTheSameOnEveryPaper) {
    QtPrinter silent([] { return false; });
    const Font font{"Courier New", 10};
    EXPECT_GT(silent.TextWidth("0123456789", font), 0);
    EXPECT_DOUBLE_EQ(silent.TextWidth("0123456789", font), pages_.TextWidth("0123456789", font));
    EXPECT_DOUBLE_EQ(silent.TextHeight(font), pages_.TextHeight(font));
    SystemPrinter* const device = pages_.Printer();
    ASSERT_NE(device, nullptr);
    const QRectF onPrinter = device->Device().pageLayout().paintRectPoints();
    EXPECT_DOUBLE_EQ(silent.Width(), onPrinter.width());
    EXPECT_DOUBLE_EQ(silent.Height(), onPrinter.height());
}

TEST(PrintServer, AnswersWhereThereIsNone) {
    const QByteArray before = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", "/nowhere");
    EXPECT_TRUE(PrintServerAnswers());
    before.isNull() ? qunsetenv("CUPS_SERVER") : qputenv("CUPS_SERVER", before);
}

TEST(PrintServer, ThatAcceptsAndSaysNothingIsGivenUpAfterTwoSeconds) {
    const int silent = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    ASSERT_EQ(::bind(silent, reinterpret_cast<sockaddr*>(&address), length), 0);
    // The kernel accepts connections although nothing ever answers them.
    ASSERT_EQ(::listen(silent, 8), 0);
    ASSERT_EQ(::getsockname(silent, reinterpret_cast<sockaddr*>(&address), &length), 0);

    const QByteArray before = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(ntohs(address.sin_port)));
    QElapsedTimer taken;
    taken.start();
    EXPECT_FALSE(PrintServerAnswers());
    EXPECT_GE(taken.elapsed(), 1900);
    EXPECT_LT(taken.elapsed(), 4000);
    before.isNull() ? qunsetenv("CUPS_SERVER") : qputenv("CUPS_SERVER", before);
    ::close(silent);
}

}  // namespace
}  // namespace vatro
