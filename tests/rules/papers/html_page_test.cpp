// SPDX-License-Identifier: MIT
#include "papers/html_page.h"

#include <algorithm>

#include "paper_lines.h"

namespace vatro {
namespace {

const Lines kWebTop{"<html>", "<head><title>Fieldday log for OZ1AB/P 2026</title></head>", "<body>",
                    "<a name=\"Top\"></a><h1 align=\"Center\">(foreløbig) Fieldday log for OZ1AB/P 2026</h1>",
                    "<p><a href=\"#10mCW\">10m CW</a>, <a href=\"#10mSSB\">10m SSB</a>, <a href=\"#15mCW\">15m CW</a>, "
                    "<a href=\"#15mSSB\">15m SSB</a>, <a href=\"#20mCW\">20m CW</a>, <a href=\"#20mSSB\">20m SSB</a>, "
                    "<a href=\"#40mCW\">40m CW</a>, <a href=\"#40mSSB\">40m SSB</a>, <a href=\"#80mCW\">80m CW</a>, "
                    "<a href=\"#80mSSB\">80m SSB</a>, <a href=\"#Summary\">Summary</a></p>"};

Lines Section(const std::string& band, const std::string& mode, const Lines& body = {}) {
    const Lines head{"<a name=\"" + band + mode + "\"></a><a href=\"#top\">Top</a>", "<h3 align=\"center\">" + band + " " + mode + "</h3>",
                     "<pre>", " ", "       <B>  Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode</B>"};
    return head + body + Lines{"</pre>"};
}

Lines SummaryOf(const std::string& name, const std::string& operators, const Lines& table) {
    const Lines head{"<a name=\"Summary\"></a><a href=\"#top\">Top</a>",
                     "<h3 align=\"center\">Summary for OZ1AB/P</a></h3>",
                     "<table width=90% border=1 align=\"center\" bgcolor=\"#F1F1F1\">",
                     "<tr align=\"center\"><td>Kaldesignal: <b>OZ1AB/P</B><td>Kategori: A",
                     "<tr align=\"center\"><td colspan=2>" + name,
                     "<tr align=\"center\"><td colspan=2><b>Operatører:</B>",
                     "<tr align=\"center\"><td colspan=2>" + operators + "</tr>",
                     "</table>",
                     "<table width=90% border=1 align=\"center\">",
                     "<TABLE BORDER WIDTH=\"90%\" Align = \"Center\" BGCOLOR = \"#F0F0F0\"> ",
                     "<TR BGCOLOR=\"#E0E0E0\">           <TH>B&aring;nd<TH>Mode<TH>QSO'er            <TH>Multiplier          "
                     "<TH>Points               <TH>Score  <TH>B&aring;nd Score"};
    return head + table + Lines{"</table>", "</body>", "</html>"};
}

const std::string kCwNought = " Meter<TD>CW  <TD> 0 <TD> 0 <TD> 0 <TD> 0 <TD ROWSPAN=\"2\"> 0 <BR>";
const std::string kSsbNought = "<TR ALIGN=\"Center\">                          <TD>SSB <TD> 0 <TD> 0 <TD> 0 <TD> 0 ";
const std::string kBand = "<TR ALIGN=\"Center\"><TD ROWSPAN=\"2\">";
const std::string kAll = "<TD COLSPAN=\"2\">Alle b&aring;nd og modes                  ";
const std::string kTotalRow = "<TR ALIGN=\"Center\" BGCOLOR=\"#E0E0E0\"> ";

class HtmlPage : public Papers {
protected:
    Lines Page() {
        WrittenLines page;
        WriteHtmlTop(page, context);
        for (const LogId& log : kPaperOrder) {
            DanHtmHoved(page, log);
            const auto found = logs.logs.find(std::string(log.band).append(log.mode));
            if (found != logs.logs.end()) {
                ListedLines lines(found->second);
                DanHtmKrop(lines, page);
            }
            WriteHtmlSectionEnd(page);
        }
        DanHtmSummary(page, context, TallyLogs(logs, stations, context.call));
        WriteHtmlEnd(page);
        return page.lines;
    }
};

TEST_F(HtmlPage, WithoutALogHasEmptySectionsAndASummaryOfNoughts) {
    Lines page = kWebTop;
    for (const char* band : {"80m", "40m", "20m", "15m", "10m"}) page = page + Section(band, "CW") + Section(band, "SSB");
    Lines table;
    for (const char* band : {"80", "40", "20", "15", "10"}) table = table + Lines{kBand + band + kCwNought, kSsbNought};
    table = table + Lines{kTotalRow, kAll + "<TD> 0 <TD> 0 <TD> 0 <TD> 0 <TD><B> 0 </B>"};
    EXPECT_EQ(Page(), page + SummaryOf("", "", table));
}

TEST_F(HtmlPage, ShowsEveryLineAndTheSumsBelow) {
    const std::string note = NoteWith("17", "DL");
    Log("80mCW", {Contact({.points = 6, .mult = "VK"}), note, Contact({.points = 0, .mult = "-DUPE-"}), "NOTE: <b> & \"x\""});
    Log("80mSSB", {});
    const Lines body{"       05-09-26 13:05 DL1AA           599-0012 579-0034  6 VK         OZ1AB      CW   ",
                     "        " + note,
                     "       05-09-26 13:05 DL1AA           599-0012 579-0034  0 -DUPE-     OZ1AB      CW   ",
                     "        NOTE: <b> & \"x\"",
                     " ",
                     "       Ialt akkumuleret:                                23    1           23"};
    const Lines empty{" ", "       Ialt akkumuleret:                                 0    0            0"};
    const Lines wanted = kWebTop + Section("80m", "CW", body) + Section("80m", "SSB", empty) + Section("40m", "CW");
    const Lines page = Page();
    EXPECT_EQ(Lines(page.begin(), page.begin() + static_cast<std::ptrdiff_t>(wanted.size())), wanted);
}

TEST_F(HtmlPage, ShiftsALongNoteByItsOwnDateColumns) {
    Log("80mCW", {"NOTE: " + std::string(65, 'a') + "12345678ende"});
    EXPECT_EQ(Page()[10], "       12345678 NOTE: " + std::string(64, 'a'));
}

TEST_F(HtmlPage, HasNoPages) {
    Log("80mCW", Times(120, Contact({})));
    const Lines page = Page();
    EXPECT_EQ(std::count(page.begin(), page.end(), "\f"), 0);
    EXPECT_EQ(page[10 + 120], " ");
    EXPECT_EQ(page[10 + 121], "       Ialt akkumuleret:                               360    0            0");
}

TEST_F(HtmlPage, SumsUpInATable) {
    Log("80mCW", {Contact({.points = 3, .mult = "DL"}), Contact({.points = 6, .mult = "VK"}), Contact({})});
    Log("80mSSB", {Contact({.points = 10, .mult = "OZ", .operatorCall = "OZ9Z"})});
    Log("10mSSB", {Contact({.points = 1, .operatorCall = "OZ2B"})});
    Lines table{kBand + "80 Meter<TD>CW  <TD> 3 <TD> 2 <TD> 12 <TD> 24 <TD ROWSPAN=\"2\"> 66 <BR>",
                "<TR ALIGN=\"Center\">                          <TD>SSB <TD> 1 <TD> 1 <TD> 10 <TD> 10 "};
    for (const char* band : {"40", "20", "15"}) table = table + Lines{kBand + band + kCwNought, kSsbNought};
    table = table + Lines{kBand + "10" + kCwNought, "<TR ALIGN=\"Center\">                          <TD>SSB <TD> 1 <TD> 0 <TD> 1 <TD> 0 ",
                          kTotalRow, kAll + "<TD> 5 <TD> 3 <TD> 23 <TD> 69 <TD><B> 69 </B>"};
    // Listed from 10 m up in the order found, not sorted. The first one lacks its first letter.
    const Lines wanted = SummaryOf("", "Z2B,OZ1AB,OZ9Z", table);
    const Lines page = Page();
    ASSERT_GE(page.size(), wanted.size());
    EXPECT_EQ(Lines(page.end() - static_cast<std::ptrdiff_t>(wanted.size()), page.end()), wanted);
}

}  // namespace
}  // namespace vatro
