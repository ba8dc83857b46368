// SPDX-License-Identifier: MIT
#include "papers/html_page.h"
#include "frame/state.h"

#include <string>

#include "columns.h"
#include "frame/station.h"
#include "numbers.h"
#include "papers/layout.h"
#include "papers/summary.h"
#include "papers/weekend.h"
#include "platform.h"
#include "printing/progress.h"

namespace vatro {

namespace {

/// Behind the comma and the first letter of the first operator.
constexpr std::size_t kOperatørerFra = 3;

std::string Anker(const LogId& log) {
    return std::string(log.band).append(log.mode);
}

/// A number with one blank, or its sign, before it and one blank behind.
std::string FriForm(std::int32_t tal) {
    return NumberText(tal) + " ";
}

std::string Celle(std::int32_t tal) {
    return "<TD>" + FriForm(tal);
}

std::string Celler(std::int32_t QSOs, const LogSum& sum) {
    return Celle(QSOs) + Celle(sum.Mults) + Celle(sum.Points) + Celle(sum.Score);
}

void SkrivTop() {
    const std::string titel = LogTitel();
    Skriv("<html>");
    Skriv("<head><title>" + titel + "</title></head>");
    Skriv("<body>");
    Skriv(std::string("<a name=\"Top\"></a><h1 align=\"Center\">(foreløbig) "_t) + titel + "</h1>");
    std::string links = "<p>";
    for (const LogId& log : kTenLogs) links += "<a href=\"#" + Anker(log) + "\">" + BåndOgMode(log.band, log.mode) + "</a>, ";
    Skriv(links + "<a href=\"#Summary\">Summary</a></p>");
}

void SkrivBåndsum(const Sammentælling& alt, std::size_t båndNr) {
    const std::string meter(Trim(kTenLogs[2 * båndNr].band.substr(0, 2)));
    Skriv("<TR ALIGN=\"Center\"><TD ROWSPAN=\"2\">" + meter + " Meter<TD>CW  " + Celler(alt.CW(båndNr).QSOs, alt.CW(båndNr)) +
          "<TD ROWSPAN=\"2\">" + FriForm(alt.band[båndNr].Score) + "<BR>");
    Skriv("<TR ALIGN=\"Center\">                          <TD>SSB " + Celler(alt.SSB(båndNr).QSOs, alt.SSB(båndNr)));
}

}  // namespace

void DanHtml() {
    ÅbnPapir("vatro" + Årstal() + ".htm");
    SkrivTop();
    VisForløb("Dan html");
    for (const LogId& log : kPapirOrden) DanHtm(log);
    DanHtmSummary();
    Skriv("</body>");
    Skriv("</html>");
    platform().files.Close(kPapirFil);
}

void DanHtm(const LogId& log) {
    Find1Weekend();
    TilføjForløb(BåndOgMode(log.band, log.mode));
    DanHtmHoved(log);
    bool åben = true;
    try {
        ÅbnLog(log);
    } catch (const RunTimeError&) {
        åben = false;
    }
    if (åben) DanHtmKrop();
    Skriv("</pre>");
    platform().files.Close(kLogFil);
}

void DanHtmHoved(const LogId& log) {
    Skriv("<a name=\"" + Anker(log) + "\"></a><a href=\"#top\">Top</a>");
    Skriv("<h3 align=\"center\">" + BåndOgMode(log.band, log.mode) + "</h3>");
    Skriv("<pre>");
    SkrivBlank();
    if (log.band != "ukendt") Skriv(Indrykket("<B>" + std::string(kKolonner) + "</B>"));
}

void DanHtmKrop() {
    Files& filer = platform().files;
    LogSum ialt;
    while (!filer.EndOfFile(kLogFil)) {
        const std::string linje = filer.LineInput(kLogFil);
        Skriv(Kontaktrække(linje));
        ialt.Tæl(linje);
    }
    ialt.BeregnScore();
    SkrivBlank();
    Skriv(Ialtrække(kIaltFil, kAkkumuleret, ialt));
}

void DanHtmSummary() {
    const Sammentælling alt = Sammentæl();
    Skriv("<a name=\"Summary\"></a><a href=\"#top\">Top</a>");
    Skriv("<h3 align=\"center\">Summary for " + desk().gsMyCall + "</a></h3>");
    Skriv("<table width=90% border=1 align=\"center\" bgcolor=\"#F1F1F1\">");
    Skriv("<tr align=\"center\"><td>Kaldesignal: <b>" + desk().gsMyCall + "</B><td>Kategori: " + desk().gsKlasse);
    Skriv("<tr align=\"center\"><td colspan=2>" + alt.name);
    Skriv("<tr align=\"center\"><td colspan=2><b>Operatører:</B>"_t);
    Skriv("<tr align=\"center\"><td colspan=2>" + std::string(Columns(alt.Operators, kOperatørerFra)) + "</tr>");
    Skriv("</table>");
    Skriv("<table width=90% border=1 align=\"center\">");
    Skriv("<TABLE BORDER WIDTH=\"90%\" Align = \"Center\" BGCOLOR = \"#F0F0F0\"> ");
    Skriv(
        "<TR BGCOLOR=\"#E0E0E0\">           <TH>B&aring;nd<TH>Mode<TH>QSO'er            <TH>Multiplier          <TH>Points"
        "               <TH>Score  <TH>B&aring;nd Score");
    for (std::size_t båndNr = kAntalBånd; båndNr-- > 0;) SkrivBåndsum(alt, båndNr);
    Skriv("<TR ALIGN=\"Center\" BGCOLOR=\"#E0E0E0\"> ");
    Skriv("<TD COLSPAN=\"2\">Alle b&aring;nd og modes                  " + Celler(alt.TotalQSOs, alt.Total) + "<TD><B>" +
          FriForm(alt.Total.Score) + "</B>");
    Skriv("</table>");
}

}  // namespace vatro
