// SPDX-License-Identifier: MIT
#include "papers/error_list.h"
#include "frame/state.h"

#include <memory_resource>
#include <unordered_set>

#include "call/call_analysis.h"
#include "checks/field_checks.h"
#include "columns.h"
#include "datetime.h"
#include "entry/frmMain.h"
#include "entry/next_contact.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "papers/layout.h"
#include "papers/weekend.h"
#include "platform.h"
#include "printing/frmInfo.h"
#include "printing/progress.h"
#include "score/points.h"
#include "score/stations.h"
#include "tables/worked.h"

namespace vatro {

namespace {

/// Calls seen in a log are texts of ten characters, cut or filled up with blanks: a longer call is never found again.
constexpr std::size_t kHusketCall = 10;

void SkrivFejl(std::string_view besked) {
    Skriv(std::string(kIndryk).append("- ").append(besked));
}

/// Whether a figure of a report lies between 1 and this one. A figure that is missing counts as good.
bool GodtCiffer(std::string_view rst, std::size_t nr, char højeste) {
    return rst.size() < nr || (rst[nr - 1] >= '1' && rst[nr - 1] <= højeste);
}

struct RapportBeskeder {
    std::string_view treCifre;
    std::string_view toCifre;
    std::string_view første;
    std::string_view andet;
    std::string_view sidste;
};
constexpr RapportBeskeder kSendt{
    "Sendt RST skal være på 3 cifre."_t, "Sendt RST skal være på 2 cifre."_t, "Første ciffer i sendt sendt RST skal være mellem 1 og 5."_t,
    "Andet ciffer i sendt RST skal være mellem 1 og 9."_t, "Sidste ciffer i sendt RST skal være mellem 1 og 9."_t};
constexpr RapportBeskeder kModtaget{"Modtaget RST skal være på 3 cifre."_t, "Modtaget RST skal være på 2 cifre."_t,
                                    "Første ciffer i modtaget RST skal være mellem 1 og 5."_t,
                                    "Andet ciffer i modtaget RST skal være mellem 1 og 9."_t,
                                    "Sidste ciffer i modtaget RST skal være mellem 1 og 9."_t};

std::string_view PointBesked(std::int32_t point) {
    switch (point) {
        case 10:
            return "EDR station giver 10 point.";
        case 1:
            return "OZ station giver 1 point.";
        case 6:
            return "DX station giver 6 point.";
        case 5:
            return "EU/P station giver 5 point.";
        default:
            return "EU station giver 3 point.";
    }
}

/// The rules, in their order, each without regard to the others.
class Kontrol {
public:
    explicit Kontrol(std::string_view logMode) : cw_(logMode == "CW"), ssb_(logMode == "SSB") {}

    /// Checks a contact line. Gives whether it has an error. Fails with 5 if it has no call, behind the errors found so far.
    bool Tjek(std::string_view linje) {
        linje_ = linje;
        vist_ = false;
        TjekTidspunkt();
        TjekCall();
        TjekRapport(kReportSent.TrimmedOf(linje_), kSendt);
        if (!IsNumeric(kNumberSent.TrimmedOf(linje_))) Fejl("Sendt QSOnr skal være numerisk."_t);
        TjekRapport(kReportReceived.TrimmedOf(linje_), kModtaget);
        TjekRapportSomNummer(kReportReceived.TrimmedOf(linje_));
        TjekPoint();
        TjekMultiplier();
        TjekResten();
        return vist_;
    }

private:
    void Fejl(std::string_view besked) {
        DanFejlQSO(linje_, vist_);
        SkrivFejl(besked);
    }

    void TjekTidspunkt() {
        std::string tid(kTime.TrimmedOf(linje_));
        ValiderTid(tid);
        if (!tid.empty()) Fejl(tid);
    }

    void TjekCall() {
        desk().gsCall = StripCall(kCall.TrimmedOf(linje_));
        if (desk().gsCall.size() < 3) Fejl("Et kaldesignal skal være på mindst 3 tegn."_t);
        if (!HasDigitsAndLetters(desk().gsCall)) Fejl("Der skal være både tal og bogstaver i et kaldesignal."_t);
        if (desk().gsCall.starts_with('0')) Fejl("Første tegn i call'et er et nul."_t);
        const bool husket = !sete_.insert(LeftAligned(desk().gsCall, kHusketCall)).second;
        dublet_ = husket && desk().gsCall.size() <= kHusketCall;
        if (dublet_) Fejl(desk().gsCall + " er en dublet!");
    }

    void TjekRapport(std::string_view rst, const RapportBeskeder& beskeder) {
        if (cw_ && rst.size() != 3) Fejl(beskeder.treCifre);
        if (!cw_ && rst.size() != 2) Fejl(beskeder.toCifre);
        if (!GodtCiffer(rst, 1, '5')) Fejl(beskeder.første);
        if (!GodtCiffer(rst, 2, '9')) Fejl(beskeder.andet);
        if (cw_ && !GodtCiffer(rst, 3, '9')) Fejl(beskeder.sidste);
    }

    /// The messages tell of the received number, but the report is tested once more: meant so.
    void TjekRapportSomNummer(std::string_view rst) {
        if (NumericValue(rst) == 0) Fejl("Modtaget QSOnr er nul.");
        if (!IsNumeric(rst)) Fejl("Modtaget QSOnr skal være numerisk."_t);
    }

    void TjekPoint() {
        const std::string_view call = kCall.TrimmedOf(linje_);
        desk().giQSOPoint = 3;
        if (ErDansk(call))
            desk().giQSOPoint = 1;
        else if (call.ends_with("/P"))
            desk().giQSOPoint = 5;
        nytLand_ = NoteCountry(call, MarkAction::Mark);
        const double point = NumericValue(kPoint.TrimmedOf(linje_));
        if (dublet_) {
            if (point != 0) Fejl("Dublet station giver 0 point.");
            return;
        }
        NoteStation(desk().gsCall, MarkAction::Mark);
        desk().gsCall = StationCall(desk().gsCall);
        if (point != desk().giQSOPoint) Fejl(PointBesked(desk().giQSOPoint));
    }

    void TjekMultiplier() {
        const std::string_view mult = kMultiplier.TrimmedOf(linje_);
        const std::string_view nyt = Trim(nytLand_);
        if (mult == nyt || mult == kDupeMark) return;
        if (nyt.empty())
            Fejl(std::string("QSO er ikke første qso for land: "_t)
                     .append(mult)
                     .append(". Flyt markeringen til den første QSO for landet."_t));
        else
            Fejl(std::string("QSO er første multiplier for land: "_t).append(nyt).append(", men er ikke markeret."));
    }

    void TjekResten() {
        if (kOperatorAsRead.TrimmedOf(linje_).empty()) Fejl("Operatør skal udfyldes."_t);
        const std::string_view mode = kQsoMode.TrimmedOf(linje_);
        if (ssb_ && mode != "SSB") Fejl("Mode skal være SSB i SSB-log."_t);
        if (cw_ && mode != "PSK31" && mode != "CW" && mode != "RTTY" && mode != "HELL")
            Fejl("Mode skal være CW, PSK31, RTTY eller HELL i CW-log."_t);
        if (!GyldigDato(kDate.TrimmedOf(linje_))) Fejl("Dato skal være i formatet dd-mm-åå."_t);
    }

    bool cw_;
    bool ssb_;
    /// The calls so far, one behind the other in memory: a log has thousands, and all of them go at once.
    std::pmr::monotonic_buffer_resource lager_;
    std::pmr::unordered_set<std::string> sete_{&lager_};
    std::string_view linje_;
    /// The line has been shown above its first error.
    bool vist_ = false;
    /// It holds a call that an earlier line has.
    bool dublet_ = false;
    /// The multiplier that the contact is by the tables, or nothing.
    std::string nytLand_;
};

}  // namespace

void DanFejlliste() {
    frmMain->SetHourglass(true);
    frmMain->SetEnabled(false);
    VisForløb("Dan fejlliste");
    ÅbnPapir("Fejllist.txt");
    Skriv(Indrykket("Vatro fejlliste for " + desk().gsMyCall + ". Dannet d. " + FormatDate(platform().clock.Now(), "dd.mm.yyyy")));
    SkrivBlank();
    for (const LogId& log : kPapirOrden) DanFejlList(log);
    platform().files.Close(kPapirFil);

    IndlæsLogfil();
    frmMain->SetEnabled(true);
    ResetQSO();
    frmInfo->Show();
    frmMain->SetHourglass(false);
}

void DanFejlList(const LogId& log) {
    Find1Weekend();
    TilføjForløb(BåndOgMode(log.band, log.mode));
    DanFejlListHoved(log);
    try {
        ÅbnLog(log);
        DanFejlListKrop(log);
        SkrivBlank();
        platform().files.Close(kLogFil);
    } catch (const RunTimeError&) {
        SkrivBlank();
        SkrivFejl("Log ikke fundet.");
        SkrivBlank();
        platform().files.Close(kLogFil);
    }
}

void DanFejlListHoved(const LogId& log) {
    Skriv(Indrykket("================================   " + BåndOgMode(log.band, LeftAligned(log.mode, 3)) +
                    "   =================================="));
}

void DanFejlListKrop(const LogId& log) {
    Files& filer = platform().files;
    desk().countries.ResetLande();
    desk().stations.ResetEDR();
    Kontrol kontrol(log.mode);
    bool FileHasErrors = false;
    do {
        const std::string linje = filer.LineInput(kLogFil);
        if (ErNotelinje(linje)) {
            SkrivBlank();
            Skriv(Indrykket(linje));
        } else if (kontrol.Tjek(linje)) {
            FileHasErrors = true;
        }
    } while (!filer.EndOfFile(kLogFil));
    if (FileHasErrors) return;
    SkrivBlank();
    SkrivFejl("Der er ikke fundet fejl i denne log.");
}

void DanFejlQSO(std::string_view linje, bool& QSOShown) {
    if (QSOShown) return;
    SkrivBlank();
    Skriv(Indrykket(kKolonner));
    Skriv(Kontaktrække(linje));
    SkrivBlank();
    QSOShown = true;
}

void ValiderTid(std::string& tekst) {
    constexpr std::size_t kLængde = 5;
    if (tekst.size() == kLængde) {
        tekst[2] = ':';
        if (ParseTime(tekst)) {
            tekst.clear();
            return;
        }
    }
    const DateTime nu = platform().clock.Now();
    tekst = std::string("Fejl i tidspunkt. Tidspunkt skal angives som: '").append(FormatTime(nu.hour, nu.minute)).append("'.");
}

bool GyldigDato(std::string_view tekst) {
    return ParseDate(tekst).has_value();
}

}  // namespace vatro
