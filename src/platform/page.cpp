// SPDX-License-Identifier: MIT
#include "page.h"

namespace vatro {

void PageSurface::Begin() {
    if (begun_) return;
    begun_ = true;
    device_.BeginJob();
}

void PageSurface::Print(std::string_view text) {
    PrintPart(text);
    currentX = 0;
    currentY += TextHeight();
}

void PageSurface::PrintPart(std::string_view text) {
    if (text.empty()) return;
    Begin();
    if (currentY > ScaleHeight() - TextHeight()) {
        // The text keeps its horizontal position on the new page.
        const double x = currentX;
        NewPage();
        currentX = x;
    }
    device_.Place(currentX, currentY, font, text);
    currentX += TextWidth(text);
}

void PageSurface::PrintCentred(std::string_view text) {
    currentX = (ScaleWidth() - TextWidth(text)) / 2;
    Print(text);
}

void PageSurface::NewPage() {
    Begin();
    device_.NextPage();
    ++page_;
    currentX = 0;
    currentY = 0;
}

void PageSurface::EndDoc() {
    Begin();
    device_.EndJob();
    Rewind();
}

void PageSurface::Abandon() {
    Rewind();
    font = {};
}

void PageSurface::Rewind() {
    begun_ = false;
    page_ = 1;
    currentX = 0;
    currentY = 0;
}

}  // namespace vatro
