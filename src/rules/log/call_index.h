// SPDX-License-Identifier: MIT
//
// The calls of a log, kept beside its lines in the form in which they are searched for, so that a search reads only what it compares. A
// line added to the log costs the same however long the log is.
//
// Both indexes hold the lines down to the last one that their search reaches: the lines below a certain kind of note are never searched
// (duplicates.h), and each search has its own test for such a note. An index that has come to the note takes no more lines.
//
// The owner of the lines calls CatchUp before a search, with all its lines, and Forget when lines have changed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// The call columns of the lines in upper case, one after the other in one block, to be searched for a part of a call.
class CallColumns {
public:
    /// Takes over the lines that have been added.
    void CatchUp(std::span<const std::string> lines);
    /// Drops the lines from this row on, counted from 0.
    void Forget(std::size_t row);

    /// The first row from `from` on whose call contains the text, which must be in upper case; nothing if there is none.
    std::optional<std::size_t> Next(std::string_view text, std::size_t from) const;

private:
    /// An entry of the block has the characters of the call, then as many zeros as are missing, then the number of characters.
    static constexpr std::size_t kEntry = 16;
    /// So many entries are tested at once.
    static constexpr std::size_t kGroup = 16;

    std::string_view CallAt(std::size_t row) const;
    bool GroupMayHave(std::size_t row, std::string_view text) const;

    std::size_t rows_ = 0;
    std::vector<char> block_;
    /// Whether the last line is the note below which no line is searched.
    bool complete_ = false;
};

/// The base calls of the lines, to be searched for one of them.
class BaseCalls {
public:
    /// Takes over the lines that have been added.
    void CatchUp(std::span<const std::string> lines);
    /// Drops the lines from this row on, counted from 0.
    void Forget(std::size_t row);

    /// The first row with this base call; nothing if there is none.
    std::optional<std::size_t> FirstRow(std::string_view baseCall) const;

private:
    /// A call as two numbers, which are equal for equal calls only.
    struct Key {
        std::uint64_t front = 0;
        std::uint64_t back = 0;
        friend bool operator==(const Key&, const Key&) = default;
    };
    /// The call must fit into the call columns.
    static Key KeyOf(std::string_view call);
    /// The slot that holds the row of this key, or the empty slot where it belongs.
    std::size_t SlotOf(const Key& key) const;
    /// Enters a row unless an earlier row has the same call.
    void Enter(std::size_t row);
    /// Empties the table, gives it `slots` slots, a power of 2, and enters all rows.
    void Rebuild(std::size_t slots);

    std::vector<Key> keys_;
    /// A hash table with the first row of each call, counted from 1; 0 in an empty slot. At least half of the slots are empty.
    std::vector<std::uint32_t> slots_;
    /// Whether the last line is the note below which no line is searched.
    bool complete_ = false;
};

}  // namespace vatro
