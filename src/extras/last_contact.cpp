// SPDX-License-Identifier: MIT
#include "last_contact.h"

#include "codepage.h"
#include "joined.h"
#include "log/contact_line.h"

namespace vatro {

using namespace literals;

namespace {

/// The number and the call, as in "0034 SM7AA".
std::string ContactIn(std::string_view line) {
    return Joined({kNumberSent.TrimmedOf(line), " ", kCall.TrimmedOf(line)});
}

}  // namespace

void LastContact::Saved(std::string_view line, const DateTime& universal) {
    if (IsNote(line)) return;
    const std::string contact = ContactIn(line);
    const std::string time = FormatTime(universal);
    lamp_ = {Lamp::State::Good, Joined({contact, " gemt ", time}),
             Joined({"Den sidste kontakt, "_t, contact, ", har ligget på disken siden "_t, time, " UTC."})};
}

void LastContact::Corrected(std::string_view line, const DateTime& universal) {
    if (IsNote(line)) return;
    const std::string contact = ContactIn(line);
    const std::string time = FormatTime(universal);
    lamp_ = {Lamp::State::Good, Joined({contact, " rettet ", time}),
             Joined({"Den rettede kontakt, "_t, contact, ", har ligget på disken siden "_t, time, " UTC."})};
}

void LastContact::Failed(std::string_view file, std::string_view why) {
    lamp_ = {Lamp::State::Bad, Joined({"IKKE GEMT: ", why}),
             Joined({file, ": ", why, ". Se Beskeder og fejl i håndbogen (Hjælp, Indhold)."_t}), "IKKE GEMT"};
}

void LastContact::Tell(std::string_view text, std::string_view tip) {
    if (lamp_.state != Lamp::State::Bad) lamp_ = {Lamp::State::Good, std::string(text), std::string(tip)};
}

}  // namespace vatro
