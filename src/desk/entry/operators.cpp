// SPDX-License-Identifier: MIT
#include "entry/operators.h"

#include <algorithm>

#include "codepage.h"
#include "entry/keys.h"
#include "frame/station.h"
#include "platform.h"

namespace vatro {

using namespace literals;

FixedText<6> gsOperatør;

namespace {

constexpr std::size_t kNavnLængde = 6;
constexpr std::string_view kFil = "operator.txt";

}  // namespace

void LæsOperatører(ComboBox& cbo, std::string_view ønsket) {
    Files& filer = platform().files;
    try {
        cbo.Clear();
        filer.Open(1, Sti(gsFDLib, kFil), FileMode::Input);
        while (!filer.EndOfFile(1)) cbo.AddItem(filer.LineInput(1).substr(0, kNavnLængde));
        filer.Close(1);
        if (!ønsket.empty()) cbo.SetText(gsOperatør.Padded());
    } catch (const RunTimeError&) {
        filer.Close(1);
        MsgBox("OperatørIndlæsning i fejl."_t);
    }
}

void GemOperatører(const ComboBox& cbo) {
    Files& filer = platform().files;
    filer.Open(1, Sti(gsFDLib, kFil), FileMode::Output);
    for (const std::string& navn : cbo.Items()) filer.PrintLine(1, navn);
    filer.Close(1);
}

void OperatørTjek(ComboBox& cbo, bool sæt) {
    const std::string navn = cbo.Text();
    if (navn.empty()) return;
    if (std::find(cbo.Items().begin(), cbo.Items().end(), navn) == cbo.Items().end()) cbo.AddItem(navn);
    if (sæt) gsOperatør = navn;
}

void OperatørValgt(const ComboBox& cbo) {
    gsOperatør = cbo.Text();
}

void OperatørTast(ComboBox& cbo, KeyCode& KeyAscii) {
    if (KeyAscii == kEnter && cbo.Text().size() <= kNavnLængde) OperatørTjek(cbo, true);
}

void OperatørFilter(const ComboBox& cbo, KeyCode& KeyAscii) {
    if (cbo.Text().size() > kNavnLængde) {
        KeyAscii = kNoKey;
        return;
    }
    KeyAscii = StorTast(KeyAscii);
    if (KeyAscii != kEnter) FiltrerTast(KeyAscii, kCallTegn);
}

void NulstilOperatør() {
    gsOperatør = std::string_view{};
}

}  // namespace vatro
