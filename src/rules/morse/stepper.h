// SPDX-License-Identifier: MIT
//
// The text that is sent, and how far it has come.
//
// The stepper walks through the text and gives one element for each dot length (morse_table.h). Between the elements of a
// character there is one dot length of silence, after a character 3 + the extra silence; a blank is 4 + the extra silence, and
// behind the last character 3 + the extra silence pass before the end mark.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vatro {

struct Stepper {
    /// The text: expanded, in upper case, a blank at its end.
    std::string gsCWTekst{};
    /// Dot lengths of silence added behind each character.
    std::int16_t extraSilence = 0;
    /// Characters of gsCWTekst that are done with.
    std::int32_t glTegnPos = 0;
    /// Elements of the character that is being sent; empty between two.
    std::string gscwtegn{};
    /// Place in gscwtegn, from 1; 0 between two characters.
    std::int32_t glElementPos = 0;
    /// The present element; empty before the first one of a text.
    std::string gsElement{};
    /// Samples of the present element that stand at the end of the other half already; 0 if none was cut.
    std::int32_t glCWSlat = 0;

    /// The element of the next dot length; "0", and the place at the beginning of the text, when the text is over. The caller makes
    /// it the present element.
    std::string NæsteElement();
    /// Whether the present element is the end mark.
    bool AtEnd() const;
    /// The next text starts from its beginning. glCWSlat stays: it is dropped when the next text starts.
    void ResetPosition();

private:
    std::string_view NextCharacter();
};

}  // namespace vatro
