// SPDX-License-Identifier: MIT
#include "exchange/equipment.h"

#include "frame/settings.h"

namespace vatro {

std::array<std::string, kUdstyrBånd.size()> gsRig;
std::array<std::string, kUdstyrBånd.size()> gsAnt;

namespace {

constexpr std::string_view kSektion = "Equipment";
constexpr int kLængde = 15;

std::string Nøgle(std::string_view slags, std::size_t bånd) {
    return std::string(slags).append(kUdstyrBånd[bånd]);
}

}  // namespace

void HentUdstyr() {
    for (std::size_t i = 0; i < kUdstyrBånd.size(); ++i) {
        gsRig[i] = HentTekst(kSektion, Nøgle("Rig", i));
        gsAnt[i] = HentTekst(kSektion, Nøgle("Ant", i));
    }
}

void GemUdstyr() {
    for (std::size_t i = 0; i < kUdstyrBånd.size(); ++i) GemTekst(kSektion, Nøgle("Rig", i), gsRig[i]);
    for (std::size_t i = 0; i < kUdstyrBånd.size(); ++i) GemTekst(kSektion, Nøgle("Ant", i), gsAnt[i]);
}

FormRigAnt::FormRigAnt()
    : Form("FormRigAnt", FormKind::FixedDialog, "Udstyr"),
      Frame1(*this, "Frame1", "Radio + PA"),
      TextRig{{*this, "TextRig", 0}, {*this, "TextRig", 1}, {*this, "TextRig", 2}, {*this, "TextRig", 3}, {*this, "TextRig", 4}},
      Frame2(*this, "Frame2", "Antenner"),
      TextAnt{{*this, "TextAnt", 0}, {*this, "TextAnt", 1}, {*this, "TextAnt", 2}, {*this, "TextAnt", 3}, {*this, "TextAnt", 4}},
      CommandOK(*this, "CommandOK", "&OK"),
      CommandLuk(*this, "CommandLuk", "&Annuller"),
      Label1{{*this, "Label1", 0, "80m"}, {*this, "Label1", 1, "40m"}, {*this, "Label1", 2, "20m"}, {*this, "Label1", 3, "15m"},
             {*this, "Label1", 4, "10m"}, {*this, "Label1", 5, "80m"}, {*this, "Label1", 6, "40m"}, {*this, "Label1", 7, "20m"},
             {*this, "Label1", 8, "15m"}, {*this, "Label1", 9, "10m"}} {
    std::vector<Control*> orden;
    for (TextBox& felt : TextRig) orden.push_back(&felt);
    for (TextBox& felt : TextAnt) orden.push_back(&felt);
    for (Control* felt : orden) static_cast<TextBox*>(felt)->SetMaxLength(kLængde);
    orden.push_back(&CommandOK);
    orden.push_back(&CommandLuk);
    SetTabOrder(orden);
    CommandOK.Click = [this] { CommandOK_Click(); };
    CommandLuk.Click = [this] { Unload(); };
}

void FormRigAnt::Form_Load() {
    for (std::size_t i = 0; i < kUdstyrBånd.size(); ++i) {
        TextRig[i].SetText(gsRig[i]);
        TextAnt[i].SetText(gsAnt[i]);
    }
}

void FormRigAnt::CommandOK_Click() {
    for (std::size_t i = 0; i < kUdstyrBånd.size(); ++i) {
        gsAnt[i] = TextAnt[i].Text();
        gsRig[i] = TextRig[i].Text();
    }
    GemUdstyr();
    Unload();
}

}  // namespace vatro
