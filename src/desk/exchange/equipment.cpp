// SPDX-License-Identifier: MIT
#include "exchange/equipment.h"
#include "frame/state.h"

#include "frame/settings.h"

namespace vatro {

namespace {

constexpr std::string_view kSection = "Equipment";
constexpr int kLength = 15;

std::string BandKey(std::string_view kind, std::size_t band) {
    return std::string(kind).append(kEquipmentBands[band]);
}

}  // namespace

void HentUdstyr() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) {
        desk().rigs[i] = ReadText(kSection, BandKey("Rig", i));
        desk().antennas[i] = ReadText(kSection, BandKey("Ant", i));
    }
}

void GemUdstyr() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) StoreText(kSection, BandKey("Rig", i), desk().rigs[i]);
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) StoreText(kSection, BandKey("Ant", i), desk().antennas[i]);
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
    std::vector<Control*> order;
    for (TextBox& field : TextRig) order.push_back(&field);
    for (TextBox& field : TextAnt) order.push_back(&field);
    for (Control* field : order) static_cast<TextBox*>(field)->SetMaxLength(kLength);
    order.push_back(&CommandOK);
    order.push_back(&CommandLuk);
    SetTabOrder(order);
    CommandOK.Click = [this] { CommandOK_Click(); };
    CommandLuk.Click = [this] { Unload(); };
}

void FormRigAnt::Form_Load() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) {
        TextRig[i].SetText(desk().rigs[i]);
        TextAnt[i].SetText(desk().antennas[i]);
    }
}

void FormRigAnt::CommandOK_Click() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) {
        desk().antennas[i] = TextAnt[i].Text();
        desk().rigs[i] = TextRig[i].Text();
    }
    GemUdstyr();
    Unload();
}

}  // namespace vatro
