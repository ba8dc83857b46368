// SPDX-License-Identifier: MIT
#include "entry/operators.h"
#include "frame/state.h"

#include <algorithm>

#include "codepage.h"
#include "entry/keys.h"
#include "frame/station.h"
#include "platform.h"

namespace vatro {

using namespace literals;

namespace {

constexpr std::size_t kNameLength = 6;
constexpr std::string_view kFile = "operator.txt";

}  // namespace

void LæsOperatører(ComboBox& box, std::string_view wanted) {
    Files& files = platform().files;
    try {
        box.Clear();
        files.Open(1, PathIn(desk().gsFDLib, kFile), FileMode::Input);
        while (!files.EndOfFile(1)) box.AddItem(files.LineInput(1).substr(0, kNameLength));
        files.Close(1);
        if (!wanted.empty()) box.SetText(desk().gsOperatør.Padded());
    } catch (const RunTimeError&) {
        files.Close(1);
        MsgBox("OperatørIndlæsning i fejl."_t);
    }
}

void GemOperatører(const ComboBox& box) {
    Files& files = platform().files;
    files.Open(1, PathIn(desk().gsFDLib, kFile), FileMode::Output);
    for (const std::string& name : box.Items()) files.PrintLine(1, name);
    files.Close(1);
}

void OperatørTjek(ComboBox& box, bool takeOver) {
    const std::string name = box.Text();
    if (name.empty()) return;
    if (std::find(box.Items().begin(), box.Items().end(), name) == box.Items().end()) box.AddItem(name);
    if (takeOver) desk().gsOperatør = name;
}

void OperatørValgt(const ComboBox& box) {
    desk().gsOperatør = box.Text();
}

void OperatørTast(ComboBox& box, KeyCode& KeyAscii) {
    if (KeyAscii == kEnter && box.Text().size() <= kNameLength) OperatørTjek(box, true);
}

void OperatorFilter(const ComboBox& box, KeyCode& KeyAscii) {
    if (box.Text().size() > kNameLength) {
        KeyAscii = kNoKey;
        return;
    }
    KeyAscii = UpperKey(KeyAscii);
    if (KeyAscii != kEnter) FilterKey(KeyAscii, kCallCharacters);
}

}  // namespace vatro
