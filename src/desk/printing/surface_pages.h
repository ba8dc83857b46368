// SPDX-License-Identifier: MIT
//
// Prints papers on a page surface.
#pragma once

#include "page.h"
#include "papers/page_sink.h"

namespace vatro {

/// The pages of papers on a surface. Fonts set here stay set on the surface.
class SurfacePages : public PageSink {
public:
    explicit SurfacePages(PageSurface& surface) : surface_(surface) {}
    void SetFont(std::string_view name, double size) override {
        surface_.font.name = name;
        surface_.font.size = size;
    }
    void SetBold(bool bold) override { surface_.font.bold = bold; }
    void SetUnderline(bool underline) override { surface_.font.underline = underline; }
    void PrintLine(std::string_view text) override { surface_.Print(text); }
    void PrintPart(std::string_view text) override { surface_.PrintPart(text); }
    void EndLine() override { surface_.Print(); }
    void PrintCentred(std::string_view text) override { surface_.PrintCentred(text); }
    void GoToLastLine() override { surface_.currentY = surface_.ScaleHeight() - surface_.TextHeight(); }
    void NewPage() override { surface_.NewPage(); }
    int Page() const override { return surface_.Page(); }

private:
    PageSurface& surface_;
};

}  // namespace vatro
