// SPDX-License-Identifier: MIT
#include "keyer/texts.h"
#include "frame/state.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "codepage.h"
#include "columns.h"
#include "entry/frmMain.h"
#include "entry/qso_fields.h"
#include "frame/station.h"
#include "keyer/frmCWTX.h"
#include "keyer/keyer_settings.h"
#include "log/contact_line.h"
#include "morse/synthesis.h"
#include "numbers.h"

namespace vatro {

std::string gsCWRaa;
std::string gsCWCall;
std::string gsCWRST;
std::string gsCWNummer;

namespace {

/// One column more than the call has, which only a note can fill.
constexpr Field kCallOgEfter{kCall.from, kCall.width + 1};
/// Serial numbers below 1000 are sent with three characters.
constexpr int kFireCifre = 1000;
constexpr std::size_t kTreTegn = 3;

/// What a code stands for; nothing if the letter is none.
std::optional<std::string_view> Værdi(char kode) {
    switch (kode) {
        case 'C':
            return gsCWCall;
        case 'T':
            return gsCWRST;
        case 'N':
            return NumericValue(gsCWNummer) < kFireCifre ? Right(gsCWNummer, kTreTegn) : gsCWNummer;
        case 'R':
            return desk().gsMyCall;
        default:
            return std::nullopt;
    }
}

/// A piece of text that is being read: the text itself, or the value of a code in it.
struct Stykke {
    /// The code that this is the value of, or 0.
    char kode = 0;
    std::string_view tekst;
    std::size_t læst = 0;
};

/// Replaces the first code of the text until there is none. Values belong to the text: a code may stand inside a value, or begin
/// at its end. A value that comes up again before its own end would come up for ever, so its code counts as unknown there.
class Udvidelse {
public:
    explicit Udvidelse(std::string_view tekst) : stykker_{{0, tekst}} {}

    std::string Udfør() {
        std::string udvidet;
        while (const auto tegn = Next()) {
            Læs();
            if (*tegn != '#')
                udvidet += *tegn;
            else
                Indsæt();
        }
        return udvidet;
    }

private:
    /// The character to be read next, if any. Values that have been read to their end are left only here.
    std::optional<char> Next() {
        while (!stykker_.empty() && stykker_.back().læst == stykker_.back().tekst.size()) stykker_.pop_back();
        if (stykker_.empty()) return std::nullopt;
        return stykker_.back().tekst[stykker_.back().læst];
    }
    void Læs() { ++stykker_.back().læst; }

    /// Behind a "#": continues with the value of the code, if it is one.
    void Indsæt() {
        const auto kode = Next();
        const auto værdi = kode ? Værdi(*kode) : std::nullopt;
        const auto samme = [&](const Stykke& stykke) { return stykke.kode == *kode; };
        if (!værdi || std::any_of(stykker_.begin(), stykker_.end(), samme)) return;
        Læs();
        stykker_.push_back({*kode, *værdi});
    }

    std::vector<Stykke> stykker_;
};

void HentVærdier(const FrmMain& main) {
    if (!main.Text1[kCallField].Text().empty()) {
        gsCWCall = main.Text1[kCallField].Text();
        gsCWRST = main.Text1[kReportSentField].Text();
        gsCWNummer = main.Text1[kNumberSentField].Text();
    } else if (main.List1.ListCount() > 0) {
        const std::string& sidste = main.List1.Items().back();
        gsCWCall = kCallOgEfter.TrimmedOf(sidste);
        gsCWRST = kReportSent.TrimmedOf(sidste);
        gsCWNummer = kNumberSent.TrimmedOf(sidste);
    }
}

}  // namespace

void DanCWTekst() {
    if (gsCWNummerFormat == kNummerMedT)
        for (std::size_t i = 0; i < gsCWNummer.size() && gsCWNummer[i] == '0'; ++i) gsCWNummer[i] = 'T';
    if (gsCWRSTFormat == kRSTMedN && gsCWRST == "599") gsCWRST = "5NN";
    const std::string raa = UpperText(gsCWRaa);
    gsCWTekst = Udvidelse(raa).Udfør() + ' ';
}

void SendCW(std::string_view tekst) {
    FrmMain& main = *frmMain;
    main.SetEnabled(false);
    frmCWTX.Load();
    if (frmCWTX->Klar()) {
        gsCWRaa = tekst;
        HentVærdier(main);
        frmCWTX->Show();
        frmCWTX->cmdTX_Click();
    }
    main.SetEnabled(true);
}

void SetCwMenuTekster() {
    for (std::size_t i = 0; i < kAntalCWTekster; ++i) frmMain->mnuCWTXT[i].SetCaption(CWTekster[i]);
}

void NulstilCWTekster() {
    for (std::string* tekst : {&gsCWRaa, &gsCWCall, &gsCWRST, &gsCWNummer}) tekst->clear();
}

}  // namespace vatro
