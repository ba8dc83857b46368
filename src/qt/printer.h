// SPDX-License-Identifier: MIT
//
// The printer of the desktop. Without any printer a job becomes a PDF file, whose place the user is asked for.
//
// Nothing is asked of the print server before something is printed or the printer is chosen, and then a process of its own asks
// first: a server that does not answer costs a job two seconds, and the job becomes a PDF file too.
#pragma once

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <functional>
#include <memory>

#include "page.h"
#include "print_server.h"

namespace vatro {

class QtPrinter : public PageDevice {
public:
    /// `answers` tells whether the print server can be asked now; it is asked itself, at most once for each job.
    explicit QtPrinter(std::function<bool()> answers = PrintServerAnswers);
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    /// The printer that the jobs go to, for its dialogue; nothing if the print server does not answer.
    QPrinter* Printer() const;
    /// All jobs go to this file, and no server is asked.
    void PrintToFile(const QString& pdf);

    double Width() const override;
    double Height() const override;
    double TextWidth(std::string_view text, const Font& font) const override;
    double TextHeight(const Font& font) const override;
    void BeginJob() override;
    void Place(double x, double y, const Font& font, std::string_view text) override;
    void NextPage() override;
    void EndJob() override;

private:
    enum class Target { Unknown, Printer, File, FileForWantOfAnAnswer };

    Target FindTarget() const;
    /// Asking for it decides where the job goes: measures are taken before the first text.
    QPagedPaintDevice& Device() const;
    QFont FontOnPaper(const Font& font) const;
    QString AskForFile() const;
    void TellFailure() const;
    bool Start();

    std::function<bool()> answers_;
    mutable Target target_ = Target::Unknown;
    /// Made when the server has answered for the first time.
    mutable std::unique_ptr<QPrinter> printer_;
    mutable QFile file_;
    /// Writes into the file.
    mutable std::unique_ptr<QPdfWriter> pdf_;
    QPainter painter_;
    /// Pages begun before anything stood on the first one.
    int pending_ = 0;
    /// The user gave no place for the job, or nothing can be printed there, which has been told.
    bool dropped_ = false;
    /// The file that all jobs go to, or nothing.
    QString fixedFile_;
};

}  // namespace vatro
