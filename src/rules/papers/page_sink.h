// SPDX-License-Identifier: MIT
//
// Where printed papers print: text on the pages of a print job, line by line from the top.
#pragma once

#include <string_view>

namespace vatro {

/// The pages of a print job. A text that does not fit above the bottom of the page begins a new one by itself. Every operation
/// may fail with a RunTimeError.
class PageSink {
public:
    virtual ~PageSink() = default;
    /// Name and size, in points, of the font of all text from now on, also on later pages.
    virtual void SetFont(std::string_view name, double size) = 0;
    virtual void SetBold(bool bold) = 0;
    virtual void SetUnderline(bool underline) = 0;
    /// Prints the text and goes to the next line.
    virtual void PrintLine(std::string_view text) = 0;
    /// Prints the text; the next print goes on behind it.
    virtual void PrintPart(std::string_view text) = 0;
    /// Goes to the next line without a text.
    virtual void EndLine() = 0;
    /// Prints the text in the middle of the line and goes to the next one.
    virtual void PrintCentred(std::string_view text) = 0;
    /// Goes to the last line of the page, by the height of the font that is set.
    virtual void GoToLastLine() = 0;
    /// Goes to the top of a new page.
    virtual void NewPage() = 0;
    /// Number of the page in the job, from 1.
    virtual int Page() const = 0;
};

}  // namespace vatro
