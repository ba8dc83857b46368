// SPDX-License-Identifier: MIT
//
// The printer of the desktop. Without any printer a job becomes a PDF file, whose place the user is asked for.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "platform/page.h"

namespace vatro {

class QtPrinter : public PageDevice {
public:
    QtPrinter();
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    /// The printer that the jobs go to; its paper and its file may be set.
    QPrinter& Device() { return *printer_; }

    double Width() const override;
    double Height() const override;
    double TextWidth(std::string_view text, const Font& font) const override;
    double TextHeight(const Font& font) const override;
    void BeginJob() override;
    void Place(double x, double y, const Font& font, std::string_view text) override;
    void NextPage() override;
    void EndJob() override;

private:
    QFont FontOnPaper(const Font& font) const;
    bool Start();

    std::unique_ptr<QPrinter> printer_;
    QPainter painter_;
    /// Pages begun before anything stood on the first one.
    int pending_ = 0;
    /// The user gave no place for the job, or nothing can be printed there, which has been told.
    bool dropped_ = false;
    /// The file is one that the user gave for this job alone.
    bool asked_ = false;
};

}  // namespace vatro
