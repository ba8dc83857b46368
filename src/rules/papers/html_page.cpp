// SPDX-License-Identifier: MIT
#include "papers/html_page.h"

#include <string>

#include "columns.h"
#include "numbers.h"
#include "papers/layout.h"

namespace vatro {

namespace {

/// Skips the comma and the first letter of the first operator; see DanHtmSummary.
constexpr std::size_t kOperatorsFrom = 3;

std::string Anchor(const LogId& log) {
    return std::string(log.band).append(log.mode);
}

/// Formats a number with a blank or its minus sign before it and a blank after it.
std::string FreeForm(std::int32_t number) {
    return NumberText(number) + " ";
}

std::string Cell(std::int32_t number) {
    return "<TD>" + FreeForm(number);
}

std::string Cells(std::int32_t QSOs, const LogSum& sum) {
    return Cell(QSOs) + Cell(sum.Mults) + Cell(sum.Points) + Cell(sum.Score);
}

void WriteBandSum(LineSink& page, const Tally& tally, std::size_t bandNumber) {
    const std::string metres(Trim(kTenLogs[2 * bandNumber].band.substr(0, 2)));
    page.Write("<TR ALIGN=\"Center\"><TD ROWSPAN=\"2\">" + metres + " Meter<TD>CW  " +
               Cells(tally.CW(bandNumber).QSOs, tally.CW(bandNumber)) + "<TD ROWSPAN=\"2\">" + FreeForm(tally.band[bandNumber].Score) +
               "<BR>");
    page.Write("<TR ALIGN=\"Center\">                          <TD>SSB " + Cells(tally.SSB(bandNumber).QSOs, tally.SSB(bandNumber)));
}

}  // namespace

void WriteHtmlTop(LineSink& page, const PaperContext& context) {
    const std::string title = LogTitle(context);
    page.Write("<html>");
    page.Write("<head><title>" + title + "</title></head>");
    page.Write("<body>");
    page.Write(std::string("<a name=\"Top\"></a><h1 align=\"Center\">(foreløbig) "_t) + title + "</h1>");
    std::string links = "<p>";
    for (const LogId& log : kTenLogs) links += "<a href=\"#" + Anchor(log) + "\">" + BandAndMode(log.band, log.mode) + "</a>, ";
    page.Write(links + "<a href=\"#Summary\">Summary</a></p>");
}

void DanHtmHoved(LineSink& page, const LogId& log) {
    page.Write("<a name=\"" + Anchor(log) + "\"></a><a href=\"#top\">Top</a>");
    page.Write("<h3 align=\"center\">" + BandAndMode(log.band, log.mode) + "</h3>");
    page.Write("<pre>");
    WriteBlank(page);
    if (log.band != "ukendt") page.Write(Indented("<B>" + std::string(kColumnNames) + "</B>"));
}

void DanHtmKrop(LineSource& lines, LineSink& page) {
    LogSum total;
    while (!lines.AtEnd()) {
        const std::string line = lines.Next();
        page.Write(ContactRow(line));
        total.CountLine(line);
    }
    total.ComputeScore();
    WriteBlank(page);
    page.Write(TotalRow(kFileTotals, kAccumulated, total));
}

void WriteHtmlSectionEnd(LineSink& page) {
    page.Write("</pre>");
}

void DanHtmSummary(LineSink& page, const PaperContext& context, const Tally& tally) {
    page.Write("<a name=\"Summary\"></a><a href=\"#top\">Top</a>");
    page.Write("<h3 align=\"center\">Summary for " + context.call + "</a></h3>");
    page.Write("<table width=90% border=1 align=\"center\" bgcolor=\"#F1F1F1\">");
    page.Write("<tr align=\"center\"><td>Kaldesignal: <b>" + context.call + "</B><td>Kategori: " + context.contestClass);
    page.Write("<tr align=\"center\"><td colspan=2>" + tally.name);
    page.Write("<tr align=\"center\"><td colspan=2><b>Operatører:</B>"_t);
    page.Write("<tr align=\"center\"><td colspan=2>" + std::string(Columns(tally.Operators, kOperatorsFrom)) + "</tr>");
    page.Write("</table>");
    page.Write("<table width=90% border=1 align=\"center\">");
    page.Write("<TABLE BORDER WIDTH=\"90%\" Align = \"Center\" BGCOLOR = \"#F0F0F0\"> ");
    page.Write(
        "<TR BGCOLOR=\"#E0E0E0\">           <TH>B&aring;nd<TH>Mode<TH>QSO'er            <TH>Multiplier          <TH>Points"
        "               <TH>Score  <TH>B&aring;nd Score");
    for (std::size_t bandNumber = kBandCount; bandNumber-- > 0;) WriteBandSum(page, tally, bandNumber);
    page.Write("<TR ALIGN=\"Center\" BGCOLOR=\"#E0E0E0\"> ");
    page.Write("<TD COLSPAN=\"2\">Alle b&aring;nd og modes                  " + Cells(tally.TotalQSOs, tally.Total) + "<TD><B>" +
               FreeForm(tally.Total.Score) + "</B>");
    page.Write("</table>");
}

void WriteHtmlEnd(LineSink& page) {
    page.Write("</body>");
    page.Write("</html>");
}

}  // namespace vatro
