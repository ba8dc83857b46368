// SPDX-License-Identifier: MIT
#include "frame/shown_values.h"

#include <array>

#include "codepage.h"
#include "frame/state.h"

namespace vatro {

using namespace literals;

namespace {

ShownValue Shown(const std::string& text) {
    return text;
}
ShownValue Shown(const FixedText<6>& text) {
    return std::string(text.Padded());
}
ShownValue Shown(bool flag) {
    return flag;
}
ShownValue Shown(std::int32_t number) {
    return number;
}

struct Variable {
    std::string_view name;
    ShownValue (*value)();
};

constexpr std::array kVariables{
    Variable{"gsBand", [] { return Shown(desk().gsBand); }},
    Variable{"gsMode", [] { return Shown(desk().gsMode); }},
    Variable{"gsQsoMode", [] { return Shown(desk().gsQsoMode); }},
    Variable{"gsLogLib", [] { return Shown(desk().gsLogLib); }},
    Variable{"gsFDLib", [] { return Shown(desk().gsFDLib); }},
    Variable{"gsBackupLib", [] { return Shown(desk().gsBackupLib); }},
    Variable{"gsUTC", [] { return Shown(desk().gsUTC); }},
    Variable{"gbAutoTid", [] { return Shown(desk().gbAutoTid); }},
    Variable{"gbVisLand", [] { return Shown(desk().gbVisLand); }},
    Variable{"gbVisInfo", [] { return Shown(desk().gbVisInfo); }},
    Variable{"gsMyCall", [] { return Shown(desk().gsMyCall); }},
    Variable{"gsKlasse", [] { return Shown(desk().gsKlasse); }},
    Variable{"gsTelefon", [] { return Shown(desk().gsTelefon); }},
    Variable{"gsOperatør"_t, [] { return Shown(desk().gsOperatør); }},
    Variable{"gsCall", [] { return Shown(desk().gsCall); }},
    Variable{"gbDupe", [] { return Shown(desk().gbDupe); }},
    Variable{"giQSOPoint", [] { return Shown(desk().giQSOPoint); }},
    Variable{"giQSOnr", [] { return Shown(desk().log.giQSOnr); }},
    Variable{"glPoint", [] { return Shown(desk().log.glPoint); }},
    Variable{"giMult", [] { return Shown(desk().giMult); }},
    Variable{"giLande", [] { return Shown(desk().tables.Rows().giLande); }},
    Variable{"giRefPfx", [] { return Shown(desk().tables.Rows().giRefPfx); }},
    Variable{"giEDR", [] { return Shown(desk().stations.giEDR); }},
    Variable{"giCWWPM", [] { return Shown(desk().cw.giCWWPM); }},
    Variable{"giCWTone", [] { return Shown(desk().cw.giCWTone); }},
    Variable{"glCWVolume", [] { return Shown(desk().cw.glCWVolume); }},
    Variable{"giCWFarnsworth", [] { return Shown(desk().cw.giCWFarnsworth); }},
    Variable{"gsCWNummerFormat", [] { return Shown(desk().cw.gsCWNummerFormat); }},
    Variable{"gsCWRSTFormat", [] { return Shown(desk().cw.gsCWRSTFormat); }},
    Variable{"gsCWRaa", [] { return Shown(desk().cw.gsCWRaa); }},
    Variable{"gsCWCall", [] { return Shown(desk().cw.gsCWCall); }},
    Variable{"gsCWRST", [] { return Shown(desk().cw.gsCWRST); }},
    Variable{"gsCWNummer", [] { return Shown(desk().cw.gsCWNummer); }},
    Variable{"gsCWTekst", [] { return Shown(desk().cw.keyer.Place().gsCWTekst); }},
    Variable{"Priklen", [] { return Shown(desk().cw.keyer.CurrentPieces().Priklen); }},
    Variable{"glTegnPos", [] { return Shown(desk().cw.keyer.Place().glTegnPos); }},
    Variable{"gscwtegn", [] { return Shown(desk().cw.keyer.Place().gscwtegn); }},
    Variable{"glElementPos", [] { return Shown(desk().cw.keyer.Place().glElementPos); }},
    Variable{"gsElement", [] { return Shown(desk().cw.keyer.Place().gsElement); }},
    Variable{"glCWSlat", [] { return Shown(desk().cw.keyer.Place().glCWSlat); }},
};

}  // namespace

std::optional<ShownValue> FindShownValue(std::string_view name) {
    for (const Variable& variable : kVariables)
        if (variable.name == name) return variable.value();
    return std::nullopt;
}

}  // namespace vatro
