// SPDX-License-Identifier: MIT
//
// The page surface: text at positions on the pages of a print job. The unit is that of the device (points in both fronts).
#pragma once

#include <string_view>

#include "font.h"

namespace vatro {

/// What prints: a printer, a PDF file, a scenario's record of pages.
class PageDevice {
public:
    virtual ~PageDevice() = default;
    /// The printable page.
    virtual double Width() const = 0;
    virtual double Height() const = 0;
    virtual double TextWidth(std::string_view text, const Font& font) const = 0;
    /// Height of a line.
    virtual double TextHeight(const Font& font) const = 0;
    /// Begins a job at its first page.
    virtual void BeginJob() = 0;
    /// The upper left corner of the text.
    virtual void Place(double x, double y, const Font& font, std::string_view text) = 0;
    virtual void NextPage() = 0;
    /// Releases the job to the printer. A job in which nothing was printed has no page.
    virtual void EndJob() = 0;
};

/// The surface that the papers are printed on. One job from the first print to EndDoc.
class PageSurface {
public:
    explicit PageSurface(PageDevice& device) : device_(device) {}

    /// Of the text printed from now on, also on later pages.
    Font font;
    /// Where the next text starts.
    double currentX = 0;
    double currentY = 0;

    double ScaleWidth() const { return device_.Width(); }
    double ScaleHeight() const { return device_.Height(); }
    double TextWidth(std::string_view text) const { return device_.TextWidth(text, font); }
    double TextHeight() const { return device_.TextHeight(font); }
    /// Of the current job, from 1.
    int Page() const { return page_; }

    /// Prints the text and goes to the left edge of the next line. No text only ends the line. A text that does not fit
    /// above the bottom of the page starts a new page and stands at its top.
    void Print(std::string_view text = {});
    /// Prints the text; the next print goes on behind it.
    void PrintPart(std::string_view text);
    /// The same as Print, in the middle of the line.
    void PrintCentred(std::string_view text);
    /// The next text stands at the top of a new page.
    void NewPage();
    /// Ends the job; the next print begins another one at page 1. The font stays.
    void EndDoc();
    /// A job that has not ended is no more; the next print begins another one at page 1, in the default font.
    void Abandon();

private:
    void Begin();
    void Rewind();

    PageDevice& device_;
    int page_ = 1;
    bool begun_ = false;
};

}  // namespace vatro
