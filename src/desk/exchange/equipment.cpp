// SPDX-License-Identifier: MIT
#include "exchange/equipment.h"
#include "frame/state.h"

#include "frame/settings.h"

namespace vatro {

namespace {

constexpr int kLength = 15;

static_assert(setting::kRigs.size() == kEquipmentBands.size() && setting::kAntennas.size() == kEquipmentBands.size());

}  // namespace

void HentUdstyr() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) {
        desk().rigs[i] = ReadSetting(setting::kRigs[i]);
        desk().antennas[i] = ReadSetting(setting::kAntennas[i]);
    }
}

void GemUdstyr() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) StoreSetting(setting::kRigs[i], desk().rigs[i]);
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) StoreSetting(setting::kAntennas[i], desk().antennas[i]);
}

FormRigAnt::FormRigAnt()
    : Form("FormRigAnt", FormKind::FixedDialog, "Udstyr"),
      rigFrame(*this, "Frame1", "Radio + PA"),
      rigs{{*this, "TextRig", 0}, {*this, "TextRig", 1}, {*this, "TextRig", 2}, {*this, "TextRig", 3}, {*this, "TextRig", 4}},
      antennaFrame(*this, "Frame2", "Antenner"),
      antennas{{*this, "TextAnt", 0}, {*this, "TextAnt", 1}, {*this, "TextAnt", 2}, {*this, "TextAnt", 3}, {*this, "TextAnt", 4}},
      okButton(*this, "CommandOK", "&OK"),
      cancelButton(*this, "CommandLuk", "&Annuller"),
      bandLabels{{*this, "Label1", 0, "80m"}, {*this, "Label1", 1, "40m"}, {*this, "Label1", 2, "20m"}, {*this, "Label1", 3, "15m"},
                 {*this, "Label1", 4, "10m"}, {*this, "Label1", 5, "80m"}, {*this, "Label1", 6, "40m"}, {*this, "Label1", 7, "20m"},
                 {*this, "Label1", 8, "15m"}, {*this, "Label1", 9, "10m"}} {
    std::vector<Control*> order;
    for (TextBox& field : rigs) order.push_back(&field);
    for (TextBox& field : antennas) order.push_back(&field);
    for (Control* field : order) static_cast<TextBox*>(field)->SetMaxLength(kLength);
    order.push_back(&okButton);
    order.push_back(&cancelButton);
    SetTabOrder(order);
    tabSelects = true;
    okButton.Click = [this] { CommandOK_Click(); };
    cancelButton.Click = [this] { Unload(); };
}

void FormRigAnt::Form_Load() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) {
        rigs[i].SetText(desk().rigs[i]);
        antennas[i].SetText(desk().antennas[i]);
    }
}

bool FormRigAnt::EscCloses() const {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i)
        if (rigs[i].Text() != desk().rigs[i] || antennas[i].Text() != desk().antennas[i]) return false;
    return true;
}

void FormRigAnt::CommandOK_Click() {
    for (std::size_t i = 0; i < kEquipmentBands.size(); ++i) {
        desk().antennas[i] = antennas[i].Text();
        desk().rigs[i] = rigs[i].Text();
    }
    GemUdstyr();
    Unload();
}

}  // namespace vatro
