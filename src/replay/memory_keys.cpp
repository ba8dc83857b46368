// SPDX-License-Identifier: MIT
#include "memory_keys.h"

#include <algorithm>
#include <optional>

#include "by_kind.h"

namespace vatro {

namespace {

/// Number of rows by which PageUp and PageDown move.
constexpr int kPage = 10;

/// Moves the caret; with Shift, also extends or shrinks the selection on that side.
void MoveCaret(TextControl& field, const KeyStroke& key) {
    const int size = static_cast<int>(field.Text().size());
    const int start = field.SelStart();
    const int end = start + field.SelLength();
    const bool back = key.name == "Left" || key.name == "Home";
    const bool far = key.name == "Home" || key.name == "End";
    if (key.shift) {
        if (back) {
            const int to = far ? 0 : std::max(0, start - 1);
            field.UserSelected(to, end - to);
        } else {
            const int to = far ? size : std::min(size, end + 1);
            field.UserSelected(start, to - start);
        }
        return;
    }
    int to = 0;
    if (far)
        to = back ? 0 : size;
    else if (field.SelLength() > 0)
        to = back ? start : end;
    else
        to = std::clamp(start + (back ? -1 : 1), 0, size);
    field.UserSelected(to, 0);
}

void UseInField(TextControl& field, const KeyStroke& key, KeyCode code) {
    if (key.name == "Delete")
        field.DeleteForward();
    else if (key.name == "Left" || key.name == "Right" || key.name == "Home" || key.name == "End")
        MoveCaret(field, key);
    else if (code == kBackspace)
        field.DeleteBack();
    else if (code >= kSpace)
        field.Insert(std::string(1, static_cast<char>(code)));
}

/// The row that a key moves to in a list with `rows` rows, or -1.
int RowBehind(const KeyStroke& key, int row, int rows) {
    if (rows == 0) return -1;
    int to = row;
    if (key.name == "Up")
        to = row - 1;
    else if (key.name == "Down")
        to = row + 1;
    else if (key.name == "PageUp")
        to = row - kPage;
    else if (key.name == "PageDown")
        to = row + kPage;
    else if (key.name == "Home")
        to = 0;
    else if (key.name == "End")
        to = rows - 1;
    else
        return -1;
    return std::clamp(to, 0, rows - 1);
}

void UseInCombo(ComboBox& combo, const KeyStroke& key, KeyCode code) {
    if (key.name != "Up" && key.name != "Down") return UseInField(combo, key, code);
    // With no row chosen, there is none above.
    if (key.name == "Up" && combo.ListIndex() < 0) return;
    const int row = RowBehind(key, combo.ListIndex(), combo.ListCount());
    if (row >= 0 && row != combo.ListIndex()) combo.UserPicked(row);
}

void UseInList(ListBox& list, const KeyStroke& key) {
    const int row = RowBehind(key, list.ListIndex(), list.ListCount());
    if (row >= 0) list.UserSelected(row);
}

void UseOnOption(OptionButton& option, const KeyStroke& key, KeyCode code) {
    const bool back = key.name == "Up" || key.name == "Left";
    if (back || key.name == "Down" || key.name == "Right")
        option.UserArrow(back);
    else if (code == kSpace)
        option.UserChosen(FocusWay::Key);
}

/// How the key moves a scroll bar, or nothing.
std::optional<ScrollBar::Move> MoveOf(const KeyStroke& key) {
    using enum ScrollBar::Move;
    if (key.name == "Left" || key.name == "Up") return StepBack;
    if (key.name == "Right" || key.name == "Down") return StepOn;
    if (key.name == "PageUp") return PageBack;
    if (key.name == "PageDown") return PageOn;
    if (key.name == "Home") return ToStart;
    if (key.name == "End") return ToEnd;
    return std::nullopt;
}

}  // namespace

KeyCode KeyCodeOf(const KeyStroke& key) {
    if (key.ctrl || key.alt) return kNoKey;
    if (key.name.empty()) return static_cast<unsigned char>(key.character);
    if (key.name == "Enter") return kEnter;
    if (key.name == "Esc") return kEsc;
    if (key.name == "Space") return kSpace;
    if (key.name == "Backspace") return kBackspace;
    return kNoKey;
}

void UseKey(Control& control, const KeyStroke& key, KeyCode code) {
    if (key.ctrl || key.alt || !control.Enabled()) return;
    ByKind(
        control, [&](ComboBox& combo) { UseInCombo(combo, key, code); }, [&](TextBox& field) { UseInField(field, key, code); },
        [&](ListBox& list) { UseInList(list, key); },
        [&](Button& button) {
            if (code == kEnter || code == kSpace) button.Press();
        },
        [&](CheckBox& box) {
            if (code == kSpace) box.Flip();
        },
        [&](OptionButton& option) { UseOnOption(option, key, code); },
        [&](ScrollBar& bar) {
            if (const auto move = MoveOf(key)) bar.UserMoved(*move);
        },
        [](Control&) {});
}

}  // namespace vatro
