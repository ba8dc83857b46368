// SPDX-License-Identifier: MIT
#include "log/call_index.h"

#include <algorithm>
#include <array>
#include <bit>

#include "call/call_analysis.h"
#include "codepage.h"
#include "log/contact_line.h"

namespace vatro {

void CallColumns::CatchUp(std::span<const std::string> lines) {
    for (; rows_ < lines.size() && !complete_; ++rows_) {
        const std::string_view call = kCall.Of(lines[rows_]);
        std::array<char, kEntry> entry{};
        static_assert(kCall.width < kEntry);
        std::ranges::transform(call, entry.begin(), Upper);
        entry.back() = static_cast<char>(call.size());
        block_.insert(block_.end(), entry.begin(), entry.end());
        complete_ = IsNote(call);
    }
}

void CallColumns::Forget(std::size_t row) {
    if (row >= rows_) return;
    rows_ = row;
    block_.resize(row * kEntry);
    complete_ = false;
}

std::string_view CallColumns::CallAt(std::size_t row) const {
    const char* entry = block_.data() + row * kEntry;
    return {entry, static_cast<std::size_t>(entry[kEntry - 1])};
}

/// Whether the first and the last character of the text stand at its distance anywhere in a group, across entries too. The loop has a
/// fixed length and no branch, so that the compiler compares sixteen characters at a time.
bool CallColumns::GroupMayHave(std::size_t row, std::string_view text) const {
    const char* const first = block_.data() + row * kEntry;
    const char* const last = first + text.size() - 1;
    const char front = text.front();
    const char back = text.back();
    unsigned char least = 0xFF;
    for (std::size_t i = 0; i < kGroup * kEntry; ++i)
        least = std::min(
            least, static_cast<unsigned char>(static_cast<unsigned char>(first[i] ^ front) | static_cast<unsigned char>(last[i] ^ back)));
    return least == 0;
}

std::optional<std::size_t> CallColumns::Next(std::string_view text, std::size_t from) const {
    if (text.size() > kCall.width) return std::nullopt;
    for (std::size_t row = from; row < rows_;) {
        // The test of a group reads into the entry behind it.
        const bool isGroup = row + kGroup < rows_;
        const std::size_t end = isGroup ? row + kGroup : rows_;
        if (text.empty() || !isGroup || GroupMayHave(row, text))
            for (std::size_t candidate = row; candidate < end; ++candidate)
                if (CallAt(candidate).find(text) != std::string_view::npos) return candidate;
        row = end;
    }
    return std::nullopt;
}

BaseCalls::Key BaseCalls::KeyOf(std::string_view call) {
    std::array<char, sizeof(Key)> characters{};
    static_assert(kCall.width < sizeof(Key));
    std::ranges::copy(call, characters.begin());
    // Tells calls apart that differ by zeros at the end.
    characters.back() = static_cast<char>(call.size());
    return std::bit_cast<Key>(characters);
}

std::size_t BaseCalls::SlotOf(const Key& key) const {
    const std::uint64_t hash = (key.front * 0x9E3779B97F4A7C15U) ^ (key.back * 0xC2B2AE3D27D4EB4FU);
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = (hash >> 32U) & mask;
    while (slots_[slot] != 0 && keys_[slots_[slot] - 1] != key) slot = (slot + 1) & mask;
    return slot;
}

void BaseCalls::Enter(std::size_t row) {
    std::uint32_t& slot = slots_[SlotOf(keys_[row])];
    if (slot == 0) slot = static_cast<std::uint32_t>(row + 1);
}

void BaseCalls::Rebuild(std::size_t slots) {
    slots_.assign(slots, 0);
    for (std::size_t row = 0; row < keys_.size(); ++row) Enter(row);
}

void BaseCalls::CatchUp(std::span<const std::string> lines) {
    while (keys_.size() < lines.size() && !complete_) {
        const std::string call = StripCall(kCall.TrimmedOf(lines[keys_.size()]));
        complete_ = call.starts_with(kNoteMark);
        keys_.push_back(KeyOf(call));
        if (2 * keys_.size() > slots_.size())
            Rebuild(std::bit_ceil(4 * keys_.size()));
        else
            Enter(keys_.size() - 1);
    }
}

void BaseCalls::Forget(std::size_t row) {
    if (row >= keys_.size()) return;
    keys_.resize(row);
    Rebuild(slots_.size());
    complete_ = false;
}

std::optional<std::size_t> BaseCalls::FirstRow(std::string_view baseCall) const {
    if (baseCall.size() > kCall.width || slots_.empty()) return std::nullopt;
    const std::uint32_t row = slots_[SlotOf(KeyOf(baseCall))];
    if (row == 0) return std::nullopt;
    return row - 1;
}

}  // namespace vatro
