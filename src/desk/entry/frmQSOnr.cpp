// SPDX-License-Identifier: MIT
#include "entry/frmQSOnr.h"
#include "frame/state.h"

#include "codepage.h"
#include "entry/fitted_label.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "log/ten_logs.h"
#include "numbers.h"

namespace vatro {

using namespace literals;

namespace {

constexpr WindowPlace kPlace{"QSO", 0, 0, 1000, 3000};

}  // namespace

FrmQSOnr::FrmQSOnr() : Form("frmQSOnr", FormKind::Tool, "Næste QSO nr"_t), label1(*this, "label1", "", {"Arial", 72, true}) {
    label1.Change = [this] { FitWidth(*this, label1); };
}

void FrmQSOnr::visQSOnr() {
    std::string text = desk().gsQsoMode;
    text.append(" ").append(StandardRST(desk().gsQsoMode)).append(" ").append(ZeroPadded(desk().log.giQSOnr, 3));
    ShowNormal(label1, text);
}

void FrmQSOnr::visDupe() {
    label1.SetOpaque(true);
    label1.SetBackColour(kRed);
    label1.SetCaption("*** DUPE ***");
}

void FrmQSOnr::Form_Load() {
    RestorePlace(*this, kPlace);
    Form_Resize();
}

void FrmQSOnr::StoreState() {
    StorePlace(*this, kPlace);
}

void FrmQSOnr::Form_Resize() {
    FitText(*this, label1);
}

}  // namespace vatro
