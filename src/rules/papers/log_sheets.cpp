// SPDX-License-Identifier: MIT
#include "papers/log_sheets.h"

#include "papers/layout.h"
#include "papers/mult_check.h"
#include "papers/summary.h"
#include "papers/weekend.h"
#include "platform.h"
#include "printing/progress.h"

namespace vatro {

namespace {

/// A page ends with a line of its own that the printer takes as one.
constexpr std::string_view kFormFeed = "\f";

class LogArk : public LogPapir {
public:
    explicit LogArk(const LogId& log) : log_(log) {}

private:
    void Række(std::string_view tekst) override { Skriv(tekst); }
    const IaltForm& Ialt() const override { return kIaltFil; }
    void NySide() override {
        Skriv(kFormFeed);
        DanHoved(log_.band, log_.mode);
    }
    LogId log_;
};

}  // namespace

void Danlog(const LogId& log) {
    Find1Weekend();
    VisForløb("Dan log");
    TilføjForløb(BåndOgMode(log.band, log.mode));
    try {
        // The log first: without one an earlier sheet stays as it is.
        ÅbnLog(log);
        ÅbnPapir(std::string("SM").append(log.band).append(log.mode).append(".txt"));
        DanHoved(log.band, log.mode);
        DanKrop(log);
        platform().files.Close(kLogFil);
        platform().files.Close(kPapirFil);
    } catch (const RunTimeError&) {
        return;
    }
}

void DanHoved(std::string_view bånd, std::string_view mode) {
    Skriv(Indrykket(LogTitel() + VersionMærke()));
    Skriv(Indrykket(BåndOgMode(bånd, mode)));
    SkrivBlank();
    if (bånd != "Multiplier" && bånd != "ukendt") Skriv(Indrykket(kKolonner));
}

void DanKrop(const LogId& log) {
    LogArk(log).Krop();
}

void DanAlt() {
    for (const LogId& log : kPapirOrden) Danlog(log);
    DanMultCheck();
    DanSummary();
}

}  // namespace vatro
