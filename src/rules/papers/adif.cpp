// SPDX-License-Identifier: MIT
#include "papers/adif.h"

#include "codepage.h"
#include "datetime.h"
#include "frame/band_mode.h"
#include "log/contact_line.h"
#include "papers/layout.h"
#include "papers/weekend.h"
#include "platform.h"
#include "printing/progress.h"

namespace vatro {

namespace {

constexpr std::string_view kLinjeskift = "\r\n";

void TilføjToCifre(std::string& post, int tal) {
    post += static_cast<char>('0' + tal / 10);
    post += static_cast<char>('0' + tal % 10);
}

/// `værdi` has at most as many characters as the widest field of a line.
void TilføjFelt(std::string& post, std::string_view mærke, std::string_view værdi) {
    const int længde = static_cast<int>(værdi.size());
    post.append(mærke);
    if (længde < 10)
        post += static_cast<char>('0' + længde);
    else
        TilføjToCifre(post, længde);
    post += '>';
    post.append(værdi).append(kLinjeskift);
}

void TilføjDato(std::string& post, std::string_view dato) {
    const auto dag = ParseDate(dato);
    if (!dag) return;
    post.append("<QSO_DATE:8:d>");
    for (const int tal : {dag->year / 100, dag->year % 100, dag->month, dag->day}) TilføjToCifre(post, tal);
    post.append(kLinjeskift);
}

void TilføjTid(std::string& post, std::string_view linje) {
    const auto klokken = ParseTime(std::string(Columns(linje, 1, 2)).append(1, ':').append(Columns(linje, 4, 2)));
    if (!klokken) return;
    post.append("<TIME_ON:4>");
    TilføjToCifre(post, klokken->hour);
    TilføjToCifre(post, klokken->minute);
    post.append(kLinjeskift);
}

void EksporterAlle() {
    ÅbnPapir("vatro" + Årstal() + ".adi");
    Skriv("Genereret af QQ9ZZZ's Logprogram (RT60)<EOH>\r\n");
    VisForløb("Dan ADIF");
    for (const LogId& log : kPapirOrden) DanAdif(log);
    platform().files.Close(kPapirFil);
}

}  // namespace

void EksporterAdif() {
    try {
        EksporterAlle();
    } catch (const RunTimeError& fejl) {
        if (fejl.Which() == Failure::PathNotFound) TjekLogLib();
    }
}

void DanAdif(const LogId& log) {
    Find1Weekend();
    TilføjForløb(BåndOgMode(log.band, log.mode));
    try {
        ÅbnLog(log);
    } catch (const RunTimeError&) {
        return;
    }
    try {
        DanAdifKrop(log);
    } catch (const RunTimeError&) {
        // The next contact needs the number.
        platform().files.Close(kLogFil);
        throw;
    }
    platform().files.Close(kLogFil);
}

void DanAdifKrop(const LogId& log) {
    Files& filer = platform().files;
    std::string post;
    while (!filer.EndOfFile(kLogFil)) {
        const std::string linje = filer.LineInput(kLogFil);
        if (ErNotelinje(linje)) continue;
        post.clear();
        TilføjPost(post, linje, log.band);
        post.append(kLinjeskift);
        Skriv(post);
    }
}

void TilføjPost(std::string& post, std::string_view linje, std::string_view bånd) {
    TilføjDato(post, kDate.Of(linje));
    TilføjTid(post, linje);
    TilføjFelt(post, "<BAND:", UpperText(bånd));
    TilføjFelt(post, "<MODE:", kQsoMode.TrimmedOf(linje));
    TilføjFelt(post, "<CALL:", kCall.TrimmedOf(linje));
    TilføjFelt(post, "<RST_SENT:", kReportSent.TrimmedOf(linje));
    TilføjFelt(post, "<SRL_SENT:", kNumberSent.TrimmedOf(linje));
    TilføjFelt(post, "<RST_RCVD:", kReportReceived.TrimmedOf(linje));
    TilføjFelt(post, "<SRL_RCVD:", kNumberReceived.TrimmedOf(linje));
    TilføjFelt(post, "<POINTS:", kPoint.TrimmedOf(linje));
    TilføjFelt(post, "<MULT:", kMultiplier.TrimmedOf(linje));
    TilføjFelt(post, "<OPERATOR:", kOperatorAsRead.TrimmedOf(linje));
    post.append("<EOR>").append(kLinjeskift);
}

}  // namespace vatro
