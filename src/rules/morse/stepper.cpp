// SPDX-License-Identifier: MIT
#include "morse/stepper.h"

#include "columns.h"
#include "morse/morse_table.h"

namespace vatro {

namespace {

constexpr std::string_view kEndMark = "0";

std::size_t CharacterIndex(std::int32_t position) {
    return static_cast<std::size_t>(position);
}

}  // namespace

std::string Stepper::NæsteElement() {
    if (glTegnPos > static_cast<std::int32_t>(gsCWTekst.size())) {
        gscwtegn.clear();
        glTegnPos = 0;
        glElementPos = 0;
        return std::string(kEndMark);
    }
    ++glElementPos;
    if (gscwtegn.empty()) gscwtegn = MorseElements(NextCharacter());
    const auto length = static_cast<std::int32_t>(gscwtegn.size());
    if (glElementPos <= length) return {gscwtegn[CharacterIndex(glElementPos - 1)]};
    if (glElementPos > length + 2 + extraSilence) {
        glElementPos = 0;
        gscwtegn.clear();
        ++glTegnPos;
    }
    return " ";
}

bool Stepper::AtEnd() const {
    return gsElement == kEndMark;
}

void Stepper::ResetPosition() {
    glTegnPos = 0;
    gscwtegn.clear();
    gsElement.clear();
    glElementPos = 0;
}

/// The key into the Morse table at the current position. "<" joins the two letters after it into one key. The position then moves to the
/// ">", and past it when the sign has been sent.
std::string_view Stepper::NextCharacter() {
    const std::string_view rest = Columns(gsCWTekst, CharacterIndex(glTegnPos + 1));
    if (!rest.starts_with('<')) return rest.substr(0, 1);
    glTegnPos += 3;
    return Columns(rest, 2, 2);
}

}  // namespace vatro
