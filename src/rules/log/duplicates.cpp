// SPDX-License-Identifier: MIT
#include "log/duplicates.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "entry/frmMain.h"
#include "log/contact_line.h"

namespace vatro {

std::string gsCall;
bool gbDupe = false;

namespace {

constexpr int kFlestFundne = 50;

/// Looks for one text in many short ones without regard to case: both spellings of its first character are sought, which
/// the rest of the text then has to follow.
class Søgning {
public:
    explicit Søgning(std::string_view tekst) : tekst_(UpperText(tekst)) {
        for (int kode = 0; kode < 256; ++kode) stor_[kode] = Upper(static_cast<char>(kode));
    }

    bool FindesI(std::string_view i) const {
        if (tekst_.empty()) return true;
        if (i.size() < tekst_.size()) return false;
        const std::size_t sidste = i.size() - tekst_.size();
        for (std::size_t her = 0; her <= sidste; ++her)
            if (Stor(i[her]) == tekst_[0] && FølgerEfter(i.data() + her)) return true;
        return false;
    }

private:
    char Stor(char c) const { return stor_[static_cast<unsigned char>(c)]; }
    bool FølgerEfter(const char* her) const {
        for (std::size_t n = 1; n < tekst_.size(); ++n)
            if (Stor(her[n]) != tekst_[n]) return false;
        return true;
    }

    std::string tekst_;
    char stor_[256]{};
};

std::string B4Linje(std::string_view linje) {
    std::string fundet = LeftAligned(kCall.Af(linje), kCall.bredde);
    fundet.append(LeftAligned(kNrSendt.Af(linje), kNrSendt.bredde)).append("/");
    fundet.append(LeftAligned(kNrModtaget.Af(linje), kNrModtaget.bredde)).append(" ");
    fundet.append(kTid.Af(linje));
    return fundet;
}

bool StårILoggen(std::string_view call) {
    std::string_view s;
    std::string kort;
    for (const std::string& linje : frmMain->List1.Items()) {
        // The text of the line before, not of this one: see the header.
        if (s.starts_with(kNoteMærke)) continue;
        s = kCall.TrimmetAf(linje);
        // Without a slash a call is its base call.
        if (s.find('/') != std::string_view::npos) {
            kort = s;
            StripCall(kort);
            s = kort;
        }
        if (s == call) return true;
    }
    return false;
}

/// What the last search of the log has found.
struct Svar {
    std::string call;
    unsigned udgave = 0;
    bool fundet = false;
};

}  // namespace

void CheckDupe() {
    // A call is sought when its field is left and again at Enter: the second time the answer is still good, unless the log
    // has become another one.
    static Svar svar;
    const unsigned udgave = frmMain->List1.Revision();
    if (svar.udgave != udgave || svar.call != gsCall) svar = {gsCall, udgave, StårILoggen(gsCall)};
    gbDupe = svar.fundet;
}

void WkdB4(const TextBox& txtCall, const ListBox& lstLog, ListBox& lstB4) {
    const ListBox::Filling fylder(lstB4);
    lstB4.Clear();
    const Søgning søgning(txtCall.Text());
    int fundne = 0;
    std::string_view c;
    for (const std::string& linje : lstLog.Items()) {
        if (ErNote(c)) continue;
        c = kCall.Af(linje);
        if (!søgning.FindesI(c)) continue;
        lstB4.AddItem(B4Linje(linje));
        if (++fundne == kFlestFundne) return;
    }
}

}  // namespace vatro
