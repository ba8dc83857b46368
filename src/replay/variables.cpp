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
#include "keyer/keyer_settings.h"
#include "keyer/texts.h"
#include "log/duplicates.h"
#include "morse/synthesis.h"
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
    Variable{"gsBand", &gsBand},
    Variable{"gsMode", &gsMode},
    Variable{"gsQsoMode", &gsQsoMode},
    Variable{"gsLogLib", &gsLogLib},
    Variable{"gsFDLib", &gsFDLib},
    Variable{"gsBackupLib", &gsBackupLib},
    Variable{"gsUTC", &gsUTC},
    Variable{"gbAutoTid", &gbAutoTid},
    Variable{"gbVisLand", &gbVisLand},
    Variable{"gbVisInfo", &gbVisInfo},
    Variable{"gsMyCall", &gsMyCall},
    Variable{"gsKlasse", &gsKlasse},
    Variable{"gsTelefon", &gsTelefon},
    Variable{"gsOperatør"_t, &gsOperatør},
    Variable{"gsCall", &gsCall},
    Variable{"gbDupe", &gbDupe},
    Variable{"giQSOPoint", &giQSOPoint},
    Variable{"giQSOnr", &giQSOnr},
    Variable{"glPoint", &glPoint},
    Variable{"giMult", &giMult},
    Variable{"giLande", &giLande},
    Variable{"giRefPfx", &giRefPfx},
    Variable{"giEDR", &giEDR},
    Variable{"giCWWPM", &giCWWPM},
    Variable{"giCWTone", &giCWTone},
    Variable{"glCWVolume", &glCWVolume},
    Variable{"giCWFarnsworth", &giCWFarnsworth},
    Variable{"gsCWNummerFormat", &gsCWNummerFormat},
    Variable{"gsCWRSTFormat", &gsCWRSTFormat},
    Variable{"gsCWRaa", &gsCWRaa},
    Variable{"gsCWCall", &gsCWCall},
    Variable{"gsCWRST", &gsCWRST},
    Variable{"gsCWNummer", &gsCWNummer},
    Variable{"gsCWTekst", &gsCWTekst},
    Variable{"Priklen", &Priklen},
    Variable{"glTegnPos", &glTegnPos},
    Variable{"gscwtegn", &gscwtegn},
    Variable{"glElementPos", &glElementPos},
    Variable{"gsElement", &gsElement},
    Variable{"glCWSlat", &glCWSlat},
};

struct Shown {
    std::string operator()(const std::string* text) const { return Quoted(*text); }
    std::string operator()(const FixedText<6>* text) const { return Quoted(text->Padded()); }
    std::string operator()(const bool* flag) const { return *flag ? "true" : "false"; }
    std::string operator()(const std::int16_t* number) const { return std::to_string(*number); }
    std::string operator()(const std::int32_t* number) const { return std::to_string(*number); }
};

}  // namespace

std::optional<std::string> VariableValue(std::string_view name) {
    for (const Variable& variable : kVariables)
        if (variable.name == name) return std::visit(Shown{}, variable.value);
    return std::nullopt;
}

}  // namespace vatro
