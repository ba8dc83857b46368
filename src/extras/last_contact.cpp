// SPDX-License-Identifier: MIT
#include "last_contact.h"

#include "codepage.h"
#include "joined.h"
#include "log/contact_line.h"

namespace vatro {

using namespace literals;

namespace {

/// "0034 SM7AA gemt 14:07". `what`: how the tip names the contact.
Lamp OnDisk(std::string_view line, std::string_view done, std::string_view what, const DateTime& universal) {
    const std::string contact = Joined({kNumberSent.TrimmedOf(line), " ", kCall.TrimmedOf(line)});
    const std::string time = FormatTime(universal);
    return {Lamp::State::Good, Joined({contact, " ", done, " ", time}),
            Joined({what, ", ", contact, ", har ligget på disken siden "_t, time, " UTC."})};
}

}  // namespace

void LastContact::Saved(std::string_view line, const DateTime& universal) {
    if (!IsNote(line)) lamp_ = OnDisk(line, "gemt", "Den sidste kontakt", universal);
}

void LastContact::Corrected(std::string_view line, const DateTime& universal) {
    if (!IsNote(line)) lamp_ = OnDisk(line, "rettet", "Den rettede kontakt", universal);
}

void LastContact::Failed(std::string_view file, std::string_view why) {
    lamp_ = {Lamp::State::Bad, Joined({"IKKE GEMT: ", why}),
             Joined({file, ": ", why, ". Se Beskeder og fejl i håndbogen (Hjælp, Indhold)."_t}), "IKKE GEMT"};
}

void LastContact::Tell(std::string_view text, std::string_view tip) {
    if (lamp_.state != Lamp::State::Bad) lamp_ = {Lamp::State::Good, std::string(text), std::string(tip)};
}

}  // namespace vatro
