// SPDX-License-Identifier: MIT
#include "entry/frmQSOnr.h"

#include "codepage.h"
#include "entry/fitted_label.h"
#include "entry/validation.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "numbers.h"

namespace vatro {

using namespace literals;

namespace {

constexpr Vinduesplads kPlads{"QSO", 0, 0, 1000, 3000};

}  // namespace

FrmQSOnr::FrmQSOnr() : Form("frmQSOnr", FormKind::Tool, "Næste QSO nr"_t), label1(*this, "label1", "", {"Arial", 72, true}) {
    label1.Change = [this] { TilpasBredde(*this, label1); };
}

void FrmQSOnr::visQSOnr() {
    std::string tekst = gsQsoMode;
    tekst.append(" ").append(StandardRST()).append(" ").append(ZeroPadded(giQSOnr, 3));
    VisNormal(label1, tekst);
}

void FrmQSOnr::visDupe() {
    label1.SetOpaque(true);
    label1.SetBackColour(kRed);
    label1.SetCaption("*** DUPE ***");
}

void FrmQSOnr::Form_Load() {
    HentPlads(*this, kPlads);
    Form_Resize();
}

void FrmQSOnr::StoreState() {
    GemPlads(*this, kPlads);
}

void FrmQSOnr::Form_Resize() {
    TilpasTekst(*this, label1);
}

}  // namespace vatro
