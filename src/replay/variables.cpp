// SPDX-License-Identifier: MIT
#include "variables.h"

#include <array>
#include <cstdint>
#include <variant>

#include "codepage.h"
#include "country/lookup.h"
#include "country/tables.h"
#include "entry/clock.h"
#include "entry/operators.h"
#include "exchange/backup.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "keyer/keyer_state.h"
#include "log/duplicates.h"
#include "scenario.h"
#include "score/points.h"
#include "score/stations.h"

namespace vatro {

namespace {

struct Variable {
    std::string_view name;
    std::variant<const std::string*, const FixedText<6>*, const bool*, const std::int16_t*, const std::int32_t*> value;
};

const std::array kVariables{
    Variable{"gsBand", &gsBand},         Variable{"gsMode", &gsMode},
    Variable{"gsQsoMode", &gsQsoMode},   Variable{"gsLogLib", &gsLogLib},
    Variable{"gsFDLib", &gsFDLib},       Variable{"gsBackupLib", &gsBackupLib},
    Variable{"gsUTC", &gsUTC},           Variable{"gbAutoTid", &gbAutoTid},
    Variable{"gbVisLand", &gbVisLand},   Variable{"gbVisInfo", &gbVisInfo},
    Variable{"gsMyCall", &gsMyCall},     Variable{"gsKlasse", &gsKlasse},
    Variable{"gsTelefon", &gsTelefon},   Variable{"gsOperatør"_t, &gsOperatør},
    Variable{"gsCall", &gsCall},         Variable{"gbDupe", &gbDupe},
    Variable{"giQSOPoint", &giQSOPoint}, Variable{"giQSOnr", &giQSOnr},
    Variable{"glPoint", &glPoint},       Variable{"giMult", &giMult},
    Variable{"giLande", &giLande},       Variable{"giRefPfx", &giRefPfx},
    Variable{"giEDR", &giEDR},
};

struct Shown {
    std::string operator()(const std::string* text) const { return Quoted(*text); }
    std::string operator()(const FixedText<6>* text) const { return Quoted(text->Padded()); }
    std::string operator()(const bool* flag) const { return *flag ? "true" : "false"; }
    std::string operator()(const std::int16_t* number) const { return std::to_string(*number); }
    std::string operator()(const std::int32_t* number) const { return std::to_string(*number); }
};

/// Those of the keyer.
struct KeyerVariable {
    std::string_view name;
    std::string (*shown)(const KeyerState&);
};

const std::array kKeyerVariables{
    KeyerVariable{"giCWWPM", [](const KeyerState& cw) { return Shown{}(&cw.giCWWPM); }},
    KeyerVariable{"giCWTone", [](const KeyerState& cw) { return Shown{}(&cw.giCWTone); }},
    KeyerVariable{"glCWVolume", [](const KeyerState& cw) { return Shown{}(&cw.glCWVolume); }},
    KeyerVariable{"giCWFarnsworth", [](const KeyerState& cw) { return Shown{}(&cw.giCWFarnsworth); }},
    KeyerVariable{"gsCWNummerFormat", [](const KeyerState& cw) { return Shown{}(&cw.gsCWNummerFormat); }},
    KeyerVariable{"gsCWRSTFormat", [](const KeyerState& cw) { return Shown{}(&cw.gsCWRSTFormat); }},
    KeyerVariable{"gsCWRaa", [](const KeyerState& cw) { return Shown{}(&cw.gsCWRaa); }},
    KeyerVariable{"gsCWCall", [](const KeyerState& cw) { return Shown{}(&cw.gsCWCall); }},
    KeyerVariable{"gsCWRST", [](const KeyerState& cw) { return Shown{}(&cw.gsCWRST); }},
    KeyerVariable{"gsCWNummer", [](const KeyerState& cw) { return Shown{}(&cw.gsCWNummer); }},
    KeyerVariable{"gsCWTekst", [](const KeyerState& cw) { return Shown{}(&cw.keyer.Place().gsCWTekst); }},
    KeyerVariable{"Priklen", [](const KeyerState& cw) { return Shown{}(&cw.keyer.CurrentPieces().Priklen); }},
    KeyerVariable{"glTegnPos", [](const KeyerState& cw) { return Shown{}(&cw.keyer.Place().glTegnPos); }},
    KeyerVariable{"gscwtegn", [](const KeyerState& cw) { return Shown{}(&cw.keyer.Place().gscwtegn); }},
    KeyerVariable{"glElementPos", [](const KeyerState& cw) { return Shown{}(&cw.keyer.Place().glElementPos); }},
    KeyerVariable{"gsElement", [](const KeyerState& cw) { return Shown{}(&cw.keyer.Place().gsElement); }},
    KeyerVariable{"glCWSlat", [](const KeyerState& cw) { return Shown{}(&cw.keyer.Place().glCWSlat); }},
};

}  // namespace

std::optional<std::string> VariableValue(std::string_view name) {
    for (const Variable& variable : kVariables)
        if (variable.name == name) return std::visit(Shown{}, variable.value);
    for (const KeyerVariable& variable : kKeyerVariables)
        if (variable.name == name) return variable.shown(keyerState());
    return std::nullopt;
}

}  // namespace vatro
