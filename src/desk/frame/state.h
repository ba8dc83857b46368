// SPDX-License-Identifier: MIT
//
// What the windows of the program share: one object, made anew at each start. A form that needs more than its own controls reads and
// writes it here, so that this page tells who owns what. The names are those under which the operators' notes, the settings and the
// scenarios know the values.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "columns.h"
#include "country/lookup.h"
#include "country/tables.h"
#include "keyer/keyer_state.h"
#include "log/log.h"
#include "score/stations.h"

namespace vatro {

/// Bands of the equipment, in the order of its form and of the settings.
inline constexpr std::array<std::string_view, 5> kEquipmentBands{"80", "40", "20", "15", "10"};

struct DeskState {
    // The station, as the settings tell it.

    /// The program's own data directory, without a final separator: lande.txt, refpfx.txt, edr.txt, operator.txt, cty.dat.
    /// Set by the start procedure only.
    std::string gsFDLib;
    /// The station's own call. Changed by the dialogue of the contest call.
    std::string gsMyCall;
    /// Contest class, "A" or "B". Changed by the menu.
    std::string gsKlasse;
    /// Telephone number for the summary. Changed by the dialogue of the contest call.
    std::string gsTelefon;
    /// A whole number of hours as text, -11 to 12: what is added to local time to get universal time. Changed by the
    /// dialogue of the offset.
    std::string gsUTC;
    /// Whether the start information is shown at the next start.
    bool gbVisInfo = false;
    /// Radio and antenna of each band, by its place in kEquipmentBands. Changed by FormRigAnt.
    std::array<std::string, kEquipmentBands.size()> rigs;
    std::array<std::string, kEquipmentBands.size()> antennas;

    // Which log the program works on. Changed by the choice of band and mode and by the CT import.

    /// "10m", "15m", "20m", "40m", "80m" or "XXm": part of the log's file name.
    std::string gsBand;
    /// Log mode, "SSB" or "CW": part of the log's file name; decides how many digits a report has.
    std::string gsMode;
    /// QSO mode, "SSB", "CW", "PSK31", "RTTY" or "HELL": written in each line; decides the default report.
    std::string gsQsoMode;
    /// The log directory, without a final separator.
    std::string gsLogLib;
    /// The backup directory, without a final separator; empty if it is not set.
    std::string gsBackupLib;

    // The desk.

    /// The operator at the key: written in every line.
    FixedText<6> gsOperatør;
    /// Automatic time, 1 on, 0 off. Not the same as the running clock: that one stands still while the time field is edited.
    std::int16_t gbAutoTid = 0;
    /// Whether the country is shown while a call is typed; the menu changes it. Also a condition of the rule of the unknown
    /// prefix: switched off, such a contact keeps its points and is not written to ukendt.txt.
    bool gbVisLand = false;

    /// The keyer, its settings and its texts.
    KeyerState cw;

    // The current log and what has been worked in it.

    Log log;
    CountryTables tables;
    WorkedCountries countries{tables};
    Stations stations;
    /// Countries marked as worked.
    std::int16_t giMult = 0;

    // What the last look at a contact has left behind. Each has a meaning only until the next look.

    /// The call being entered, corrected, imported or checked, reduced to the base call.
    std::string gsCall;
    /// The contact of gsCall is a duplicate.
    bool gbDupe = false;
    /// The last search for a duplicate in the log, for the next one (NoteDuplicate).
    struct DuplicateSearch {
        bool made = false;
        std::string call;
        /// Of the log.
        unsigned revision = 0;
        bool found = false;
    };
    DuplicateSearch lastSearch;
    /// Points of the contact being built; every lookup that decides points writes it (tables/worked.h).
    std::int32_t giQSOPoint = 0;
};

/// The state of this run.
DeskState& desk();

/// Everything as it is before the first start; a run begins with nothing of an earlier one.
void ResetDesk();

}  // namespace vatro
