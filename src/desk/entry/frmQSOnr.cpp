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

FrmQSOnr::FrmQSOnr() : Form("frmQSOnr", FormKind::Tool, "Næste QSO nr"_t), exchange(*this, "label1", "", {"Arial", 72, true}) {
    onlyShows = true;
    exchange.Change = [this] { FitWidth(*this, exchange); };
}

void FrmQSOnr::visQSOnr() {
    std::string text = desk().gsQsoMode;
    text.append(" ").append(StandardRST(desk().gsQsoMode)).append(" ").append(ZeroPadded(desk().log.giQSOnr, 3));
    ShowNormal(exchange, text);
}

void FrmQSOnr::visDupe() {
    exchange.SetOpaque(true);
    exchange.SetBackColour(kRed);
    exchange.SetCaption("*** DUPE ***");
}

void FrmQSOnr::Form_Load() {
    RestorePlace(*this, setting::kQsoPlace);
    Form_Resize();
}

void FrmQSOnr::StoreState() {
    StorePlace(*this, setting::kQsoPlace);
}

void FrmQSOnr::Form_Resize() {
    FitText(*this, exchange);
}

}  // namespace vatro
