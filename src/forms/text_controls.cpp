// SPDX-License-Identifier: MIT
#include "text_controls.h"

#include <algorithm>

namespace vatro {

void TextControl::SetText(std::string_view text) {
    if (text == text_) return;
    TakeText(text);
    if (Change) Change();
}

void TextControl::TakeText(std::string_view text) {
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
    Tell(Aspect::Text);
}

void TextControl::SetMaxLength(int length) {
    Put(maxLength_, length, Aspect::MaxLength);
}

void TextControl::SetLocked(bool locked) {
    Put(locked_, locked, Aspect::Locked);
}

void TextControl::Select(int start, int length) {
    const int size = static_cast<int>(text_.size());
    selStart_ = std::clamp(start, 0, size);
    selLength_ = std::clamp(length, 0, size - selStart_);
    Tell(Aspect::Selection);
}

std::size_t TextControl::Room() const {
    if (maxLength_ <= 0) return std::string::npos;
    const std::size_t kept = text_.size() - static_cast<std::size_t>(selLength_);
    const auto limit = static_cast<std::size_t>(maxLength_);
    return kept >= limit ? 0 : limit - kept;
}

void TextControl::Insert(std::string_view text) {
    text = text.substr(0, text.find_first_of("\r\n"));
    text = text.substr(0, Room());
    if (text.empty()) return;
    Replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), text);
}

void TextControl::DeleteBack() {
    if (selLength_ > 0)
        Replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), {});
    else if (selStart_ > 0)
        Replace(static_cast<std::size_t>(selStart_) - 1, 1, {});
}

void TextControl::DeleteForward() {
    if (selLength_ > 0)
        Replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), {});
    else if (static_cast<std::size_t>(selStart_) < text_.size())
        Replace(static_cast<std::size_t>(selStart_), 1, {});
}

void TextControl::Replace(std::size_t start, std::size_t length, std::string_view by) {
    if (locked_ || !Enabled()) return;
    std::string text = text_;
    text.replace(start, length, by);
    UserEdited(text, static_cast<int>(start + by.size()), 0);
}

void TextControl::UserEdited(std::string_view text, int selStart, int selLength) {
    const bool another = text != text_;
    if (another) {
        TakeText(text);
    }
    Select(selStart, selLength);
    if (another && Change) Change();
}

void TextControl::UserSelected(int selStart, int selLength) {
    if (selStart == selStart_ && selLength == selLength_) return;
    Select(selStart, selLength);
}

}  // namespace vatro
