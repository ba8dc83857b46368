// SPDX-License-Identifier: MIT
#include "exchange/frmVisTekst.h"
#include "frame/state.h"

#include "codepage.h"
#include "frame/station.h"

namespace vatro {

using namespace literals;

namespace {

constexpr std::string_view kStartInfo =
    "Info fra FD manager:\r\n"
    "\r\n"
    "Det er tilladt at køre PSK31, RTTY og Hellschreiber. Disse modes registreres i CW loggen. Når en station er kørt på en f.eks. "
    "PSK31, så må den ikke køres på CW, RTTY eller Hellschreiber. \r\n"
    "Det vil sige at en station stadig kun må registreres 1 (een) gang i CW loggen.\r\n"
    "Denne version af Vatro kan registrere PSK31, HELL og RTTY efter denne regel.\r\n"
    "\r\n"
    "\r\n"
    "Info til contestdeltagere:\r\n"
    "\r\n"
    "Udskriv et eksemplar af følgende til hver station inden contesten:\r\n"
    "vatroanv.doc:\r\n"
    "   Et enkelt A4-ark, som viser alle anvendelser af programmet.\r\n"
    "F-taster.doc:\r\n"
    "   Udskrift af standardopsætning af funktionstaster. Passer de fleste tastaturer.\r\n"
    "\r\n"
    "Hver operatør bør læse følgende inden contesten:\r\n"
    "Vatro.doc (eller online dokumentationen):\r\n"
    "   Hele onlinedokumentationen samlet i eet worddokument.\r\n"
    "Hjælp:\r\n"
    "   Se under 'Hurtig hjælp oversigt' i onlinedokumentationen."_t;

}  // namespace

FrmVisTekst::FrmVisTekst()
    : Form("frmVisTekst", FormKind::Tool, "Vis Tekst"),
      text(*this, "Text1"),
      showAgain(*this, "chkVisTekst", "&Vis denne tekst igen."),
      closeButton(*this, "cmdLuk", "&Luk") {
    closeButton.isDefault = true;
    closeButton.isCancel = true;
    SetTabOrder({&text, &showAgain, &closeButton});
    closeButton.Click = [this] {
        desk().gbVisInfo = showAgain.Value();
        Unload();
    };
}

void FrmVisTekst::Form_Load() {
    showAgain.SetValue(desk().gbVisInfo);
}

void VisStartInfo() {
    frmVisTekst->SetCaption("Information til Fieldday 2004");
    frmVisTekst->text.SetText(kStartInfo);
    frmVisTekst->ShowModal();
}

}  // namespace vatro
