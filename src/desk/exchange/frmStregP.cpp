// SPDX-License-Identifier: MIT
#include "exchange/frmStregP.h"

#include "call/call_analysis.h"
#include "frame/log_file.h"
#include "frame/settings.h"
#include "log/contact_line.h"
#include "platform.h"

namespace vatro {

namespace {

constexpr Vinduesplads kPlads{"StregP", 2000, 2000, 6000, 6000};

constexpr Felt kBasis{1, 15};
constexpr Felt kSkilleMærke{16, 4};
constexpr Felt kLogget{29, 15};
constexpr std::string_view kSkille = "------------";

std::string Kontakt(const BåndMode& log, std::string_view linje) {
    std::string basis(kCall.TrimmetAf(linje));
    StripCall(basis);
    std::string post = LeftAligned(basis, kBasis.bredde);
    post.append(log.bånd).append(" ");
    post.append(LeftAligned(log.mode, 4));
    post.append(LeftAligned(kNrSendt.Af(linje), kNrSendt.bredde)).append(" ");
    post.append(LeftAligned(kCall.Af(linje), kCall.bredde));
    return post;
}

std::string Gruppe(std::string_view post) {
    std::string call(kBasis.TrimmetAf(post));
    StripCall(call);
    return call;
}

std::string Skille(std::string_view call) {
    return LeftAligned(call, kBasis.bredde).append(kSkille);
}

}  // namespace

FrmStregP::FrmStregP()
    : Form("frmStregP", FormKind::Tool, "Mangler nogle calls '/P'?"), List1(*this, "List1", {"Fixedsys", 9}, ListOrder::Sorted) {
    SetTabOrder({&List1});
}

void FrmStregP::Form_Load() {
    HentPlads(*this, kPlads);
    Show();
    List1.Clear();
    IndlæsLogs();
    Refresh();
    IndsætBlanke();
    Refresh();
    FjernDubletter();
}

void FrmStregP::StoreState() {
    GemPlads(*this, kPlads);
}

void FrmStregP::IndlæsLogs() {
    const ListBox::Filling fylder(List1);
    for (const BåndMode& log : kTiLogge) indlæslog(log);
}

void FrmStregP::indlæslog(const BåndMode& log) {
    Files& filer = platform().files;
    try {
        filer.Open(1, LogSti(log.bånd, log.mode), FileMode::Input);
        while (!filer.EndOfFile(1)) {
            const std::string linje = filer.LineInput(1);
            if (!ErNote(linje)) List1.AddItem(Kontakt(log, linje));
        }
    } catch (const RunTimeError&) {
        // What has been read so far is shown.
    }
    filer.Close(1);
}

void FrmStregP::IndsætBlanke() {
    const ListBox::Filling fylder(List1);
    const int antal = List1.ListCount();
    std::string sidste = antal > 0 ? List1.List(antal - 1) : std::string();
    std::string forrige = Gruppe(sidste);
    for (int i = antal - 2; i >= 1; --i) {
        sidste = List1.List(i);
        std::string denne = Gruppe(sidste);
        if (denne != forrige) List1.AddItem(Skille(forrige));
        forrige = std::move(denne);
    }
    List1.AddItem(std::string(kBasis.Af(sidste)).append(kSkille));
}

void FrmStregP::FjernDubletter() {
    const ListBox::Filling fylder(List1);
    int i = List1.ListCount() - 1;
    while (i > 1) {
        const int sidste = i;
        bool ens = true;
        for (; kSkilleMærke.Af(List1.List(i)) != "----"; --i)
            if (kLogget.Af(List1.List(i)) != kLogget.Af(List1.List(sidste))) ens = false;
        if (ens)
            for (int række = sidste; række >= i; --række) List1.RemoveItem(række);
        --i;
    }
}

}  // namespace vatro
