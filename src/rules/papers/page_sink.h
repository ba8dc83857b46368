// SPDX-License-Identifier: MIT
//
// The output of printed papers: text on the pages of a print job, line by line from the top.
#pragma once

#include <string_view>

namespace vatro {

/// The pages of a print job. Text that does not fit on the page goes to a new page. Every operation may fail with a RunTimeError.
class PageSink {
public:
    virtual ~PageSink() = default;
    /// Sets the font, name and size in points, of all later text, also on later pages.
    virtual void SetFont(std::string_view name, double size) = 0;
    virtual void SetBold(bool bold) = 0;
    virtual void SetUnderline(bool underline) = 0;
    /// Prints the text and goes to the next line.
    virtual void PrintLine(std::string_view text) = 0;
    /// Prints the text; the next text follows on the same line.
    virtual void PrintPart(std::string_view text) = 0;
    /// Goes to the next line.
    virtual void EndLine() = 0;
    /// Prints the text centred and goes to the next line.
    virtual void PrintCentred(std::string_view text) = 0;
    /// Goes to the last line of the page, measured by the height of the current font.
    virtual void GoToLastLine() = 0;
    /// Begins a new page.
    virtual void NewPage() = 0;
    /// The number of the current page in the job, from 1.
    virtual int Page() const = 0;
};

}  // namespace vatro
