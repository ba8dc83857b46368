// SPDX-License-Identifier: MIT
//
// The state that the windows of the program share: one object, made again at each start. A form that needs more than its own controls
// reads and writes it here, so that this header tells who owns what. The Danish names are those by which operators, settings and
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

/// The bands of the equipment, in the order of its form and of the settings.
inline constexpr std::array<std::string_view, 5> kEquipmentBands{"80", "40", "20", "15", "10"};

struct DeskState {
    // The station, from the settings.

    /// The program's own data directory, without a final separator: lande.txt, refpfx.txt, edr.txt, operator.txt, cty.dat.
    /// Set by the start procedure only.
    std::string gsFDLib;
    /// The station's own call. Changed by the dialogue of the contest call.
    std::string gsMyCall;
    /// Contest class, "A" or "B". Changed by the menu.
    std::string gsKlasse;
    /// Telephone number for the summary. Changed by the dialogue of the contest call.
    std::string gsTelefon;
    /// Offset from local to universal time, not a time: a whole number of hours as text, -11 to 12. Changed by the dialogue of the
    /// offset.
    std::string gsUTC;
    /// Whether the start information is shown at the next start.
    bool gbVisInfo = false;
    /// Radio and antenna of each band, indexed as kEquipmentBands. Changed by FormRigAnt.
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

    /// The current operator; written in every line.
    FixedText<6> gsOperatør;
    /// Automatic time: 1 on, 0 off. It does not tell whether the clock is running: the clock stops while the time field is edited.
    std::int16_t gbAutoTid = 0;
    /// Whether the country is shown while a call is typed; changed by the menu. It also decides whether an unknown prefix counts 0
    /// points: switched off, such a contact keeps its points and is not written to ukendt.txt.
    bool gbVisLand = false;

    /// The keyer, its settings and its texts.
    KeyerState cw;

    // The current log and what has been worked in it.

    Log log;
    CountryTables tables;
    WorkedCountries countries{tables};
    Stations stations;
    /// Number of countries marked as worked.
    std::int16_t giMult = 0;

    // Results of the last lookup of a contact. They are valid only until the next lookup.

    /// The call that is being entered, corrected, imported or checked, reduced to the base call.
    std::string gsCall;
    /// Whether the contact of gsCall is a duplicate.
    bool gbDupe = false;
    /// Points of the contact being built; set by every lookup that decides points (tables/worked.h).
    std::int32_t giQSOPoint = 0;
};

/// The state of this run.
DeskState& desk();

/// Resets everything to the state before the first start.
void ResetDesk();

}  // namespace vatro
