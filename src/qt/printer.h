// SPDX-License-Identifier: MIT
//
// The desktop's printer. If there is no printer, a job becomes a PDF file, and the user is asked where to save it.
//
// Until something is printed or the user chooses a printer, the print module is not loaded and the print server is not contacted. Then a
// separate process asks the server first: one that does not answer delays a job by two seconds, and the job becomes a PDF file, too.
#pragma once

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <functional>
#include <memory>

#include "page.h"
#include "paper_watch.h"
#include "print_module.h"
#include "print_server.h"

namespace vatro {

class QtPrinter : public PageDevice {
public:
    /// `answers` tells whether the print server can be asked now. It is called at most once for each job.
    /// `load` loads the print module or returns null.
    explicit QtPrinter(std::function<bool()> answers = PrintServerAnswers, std::function<PrintModule*()> load = LoadPrintModule);
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    /// The printer for all jobs, for use by the printer dialogue. Null if the print server does not answer, or if there is no print module.
    SystemPrinter* Printer() const;
    /// Loads the print module if this has not been done; null if that is not possible.
    PrintModule* Module() const;
    /// Sends all jobs to this file, without asking any server.
    void PrintToFile(const QString& pdf);
    /// Returns the directory that is proposed for PDF files, or an empty text; replaceable.
    std::function<QString()> directory = [] { return QString(); };
    /// Runs when a job has ended.
    std::function<void(const PrintJob&)> ended = [](const PrintJob&) {};

    double Width() const override;
    double Height() const override;
    double TextWidth(std::string_view text, const Font& font) const override;
    double TextHeight(const Font& font) const override;
    void NameJob(std::string_view name) override { name_ = name; }
    void BeginJob() override;
    void Place(double x, double y, const Font& font, std::string_view text) override;
    void NextPage() override;
    void EndJob() override;

private:
    /// Where the current job goes. FileForWantOfAnAnswer: to a PDF file, because the print server does not answer. FileForWantOfAModule: to
    /// a PDF file, because the print module is missing.
    enum class Target { Unknown, Printer, File, FileForWantOfAnAnswer, FileForWantOfAModule };

    Target FindTarget() const;
    /// The device of the current job. The first call decides between printer and file, because text is measured before any is printed.
    QPagedPaintDevice& Device() const;
    QFont FontOnPaper(const Font& font) const;
    /// Says why the job does not go to a printer, where that needs saying.
    static std::string TitleOfFileDialog(Target target);
    QString AskForFile() const;
    bool Start();
    /// The job cannot be printed: tells the user.
    void Fail();
    QString Title() const;

    std::function<bool()> answers_;
    std::function<PrintModule*()> load_;
    mutable PrintModule* module_ = nullptr;
    mutable Target target_ = Target::Unknown;
    /// Created when the server answers for the first time.
    mutable std::unique_ptr<SystemPrinter> printer_;
    mutable QFile file_;
    /// Writes to file_.
    mutable std::unique_ptr<QPdfWriter> pdf_;
    QPainter painter_;
    /// The name of the next job, in the code page.
    std::string name_;
    /// What has become of the current job. If it has no pages, nothing was printed.
    PrintJob job_;
    /// Number of pages begun before anything was printed on the first one.
    int pending_ = 0;
    /// Whether the job is discarded: the user chose no file, or the output cannot be opened, which has been reported.
    bool dropped_ = false;
    /// The file for all jobs, or empty.
    QString fixedFile_;
};

}  // namespace vatro
