// SPDX-License-Identifier: MIT
//
// The text being sent, and the position in it.
//
// The stepper walks through the text and returns one element for each dot length (morse_table.h). The elements of a character are
// separated by one dot length of silence. A character is followed by 3 dot lengths of silence plus the extra silence. A blank lasts 4 dot
// lengths plus the extra silence. At the end of the text, another 3 dot lengths plus the extra silence come before the end mark.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vatro {

struct Stepper {
    /// The text: expanded, in upper case, with a blank at its end.
    std::string gsCWTekst{};
    /// Silence added after each character, in dot lengths.
    std::int16_t extraSilence = 0;
    /// Number of characters of gsCWTekst that have been processed.
    std::int32_t glTegnPos = 0;
    /// Elements of the character being sent; empty between two characters.
    std::string gscwtegn{};
    /// Position in gscwtegn, from 1; 0 between two characters.
    std::int32_t glElementPos = 0;
    /// The current element; empty before the first one of a text.
    std::string gsElement{};
    /// If the current element was cut off at the end of the half filled last: the number of its samples that were written there;
    /// otherwise 0.
    std::int32_t glCWSlat = 0;

    /// Returns the element for the next dot length. At the end of the text it returns "0" and moves the position back to the
    /// beginning. The caller stores the result in gsElement.
    std::string NæsteElement();
    /// Whether the current element is the end mark "0".
    bool AtEnd() const;
    /// Makes the next text start from its beginning. glCWSlat is kept; it is cleared when the next text starts.
    void ResetPosition();

private:
    std::string_view NextCharacter();
};

}  // namespace vatro
