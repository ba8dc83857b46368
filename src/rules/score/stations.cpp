// SPDX-License-Identifier: MIT
#include "score/stations.h"

#include <algorithm>

#include "errors.h"

namespace vatro {

namespace {

constexpr std::int32_t kStationPoints = 10;

/// The six characters that identify a station, as a number.
std::uint64_t PackedCall(std::string_view call) {
    const FixedText<kEdrCall> station = call;
    std::uint64_t key = 0;
    for (const char c : station.Padded()) key = (key << 8U) | static_cast<unsigned char>(c);
    return key;
}

std::string_view CallOf(const EDRRec& station) {
    return station.Linje.Padded().substr(0, kEdrCall);
}

}  // namespace

std::string StationCall(std::string call) {
    call.resize(kEdrCall, ' ');
    return call;
}

void Stations::Read(std::string_view line) {
    ++giEDR;
    if (giEDR > kEdrRows) throw RunTimeError(Failure::IndexOutOfRange);
    const auto row = static_cast<std::size_t>(giEDR);
    EDRstn[row].Linje = line;
    EDRstn[row].Wkd = false;
    keys_[row] = PackedCall(CallOf(EDRstn[row]));
}

int Stations::StationsInUse() const {
    return std::min<int>(giEDR, kEdrRows);
}

std::size_t Stations::RowBehind(std::size_t row, std::uint64_t call) const {
    const auto end = keys_.begin() + StationsInUse() + 1;
    const auto found = std::find(keys_.begin() + static_cast<std::ptrdiff_t>(row) + 1, end, call);
    return found == end ? 0 : static_cast<std::size_t>(found - keys_.begin());
}

std::optional<std::int32_t> Stations::EDRstnWkd(std::string_view call, MarkAction action) {
    const std::uint64_t wanted = PackedCall(call);
    std::optional<std::int32_t> points;
    for (std::size_t row = RowBehind(0, wanted); row != 0; row = RowBehind(row, wanted)) {
        points = kStationPoints;
        if (action != MarkAction::Test) EDRstn[row].Wkd = action == MarkAction::Mark;
    }
    return points;
}

std::optional<std::int32_t> Stations::StationPoints(std::string_view call) const {
    if (RowBehind(0, PackedCall(call)) == 0) return std::nullopt;
    return kStationPoints;
}

std::optional<std::string> Stations::findEDRstn(std::string_view call) const {
    for (int i = 1; i <= StationsInUse(); ++i) {
        const EDRRec& station = EDRstn[static_cast<std::size_t>(i)];
        if (Trim(CallOf(station)) != Trim(call)) continue;
        const std::string_view line = station.Linje.Padded();
        return std::string(line.substr(0, line.find(',')));
    }
    return std::nullopt;
}

void Stations::ResetEDR() {
    for (EDRRec& station : EDRstn) station.Wkd = false;
}

}  // namespace vatro
