// SPDX-License-Identifier: MIT
#include "tables/worked.h"

#include "frame/state.h"
#include "log/duplicates.h"
#include "numbers.h"
#include "score/points.h"

namespace vatro {

std::string RecordCountry(std::string_view call, MarkAction action) {
    const WorkedCountries::Result result = desk().countries.LandWkd(call, action);
    if (result.points) desk().giQSOPoint = *result.points;
    if (result.changed && action != MarkAction::Test) desk().giMult = ToInt16(desk().giMult + (action == MarkAction::Mark ? 1 : -1));
    return std::string(result.prefix);
}

void RecordStation(std::string_view call, MarkAction action) {
    if (const auto points = desk().stations.EDRstnWkd(call, action)) desk().giQSOPoint = *points;
}

void RecordPoints(std::string_view call) {
    desk().giQSOPoint = BeregnPoint(call, desk().tables, desk().stations, desk().gbVisLand);
}

CountryStatus ShownCountry(std::string_view call) {
    if (!desk().gbVisLand) return {};
    return desk().countries.LandStatusTekst(call);
}

void RecordDuplicate() {
    desk().gbDupe = CheckDupe(desk().log, desk().gsCall);
}

void ClearWorked() {
    desk().countries.ResetLande();
    desk().stations.ResetEDR();
    desk().giMult = 0;
}

PanelMark MarkOf(const CountryStatus& status) {
    if (status.text.empty()) return PanelMark::None;
    if (status.unknown) return PanelMark::Unknown;
    return status.isNew ? PanelMark::NewCountry : PanelMark::WorkedCountry;
}

}  // namespace vatro
