// SPDX-License-Identifier: MIT
//
// The page surface: text placed at positions on the pages of a print job. All measures are in the unit of the device; on the desktop and
// in scenarios that is the point.
#pragma once

#include <string_view>

#include "font.h"

namespace vatro {

/// The output device of a print job: a printer, a PDF file, or a scenario's record of pages.
class PageDevice {
public:
    virtual ~PageDevice() = default;
    /// Size of the printable area of a page.
    virtual double Width() const = 0;
    virtual double Height() const = 0;
    /// Width of a text.
    virtual double TextWidth(std::string_view text, const Font& font) const = 0;
    /// Height of one line.
    virtual double TextHeight(const Font& font) const = 0;
    /// Names the next job. A device may use the name as a title or for a file.
    virtual void NameJob(std::string_view name) { static_cast<void>(name); }
    /// Begins a job, at its first page.
    virtual void BeginJob() = 0;
    /// Draws the text with its upper left corner at (x, y).
    virtual void Place(double x, double y, const Font& font, std::string_view text) = 0;
    /// Starts the next page of the job.
    virtual void NextPage() = 0;
    /// Hands the job over to the printer. A job to which nothing was printed has no pages.
    virtual void EndJob() = 0;
};

/// The surface that reports are printed on. A job lasts from the first print to EndDoc.
class PageSurface {
public:
    explicit PageSurface(PageDevice& device) : device_(device) {}

    /// Font of all text printed from now on, including on later pages.
    Font font;
    /// Where the next text starts: its upper left corner.
    double currentX = 0;
    double currentY = 0;

    /// Size of the printable area of a page.
    double ScaleWidth() const { return device_.Width(); }
    double ScaleHeight() const { return device_.Height(); }
    /// Width of a text, and height of a line, in the current font.
    double TextWidth(std::string_view text) const { return device_.TextWidth(text, font); }
    double TextHeight() const { return device_.TextHeight(font); }
    /// Number of the current page in the current job, from 1.
    int Page() const { return page_; }

    /// Names the job that the next print begins. The name is not printed.
    void NameJob(std::string_view name) { device_.NameJob(name); }
    /// Prints the text and moves to the left edge of the next line. An empty text only moves to the next line. A text that does
    /// not fit above the bottom of the page is printed at the top of a new page.
    void Print(std::string_view text = {});
    /// Prints the text; the next text continues on the same line, directly after it.
    void PrintPart(std::string_view text);
    /// Like Print, but the text is centred on the page.
    void PrintCentred(std::string_view text);
    /// Starts a new page; the next text is printed at its top.
    void NewPage();
    /// Ends the job; the next print starts a new job at page 1. The font is kept.
    void EndDoc();
    /// Forgets a job that has not ended; the next print starts a new job at page 1, in the default font.
    void Abandon();

private:
    void Begin();
    void Rewind();

    PageDevice& device_;
    int page_ = 1;
    bool begun_ = false;
};

}  // namespace vatro
