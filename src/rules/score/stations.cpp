// SPDX-License-Identifier: MIT
#include "score/stations.h"

#include <algorithm>

#include "codepage.h"
#include "frame/station.h"
#include "platform.h"
#include "score/points.h"

namespace vatro {

using namespace literals;

std::array<EDRRec, kEdrRows + 1> EDRstn;
std::int16_t giEDR = 0;

namespace {

/// The calls of the rows, packed: every line of a log that is loaded is looked for among all stations.
std::array<std::uint64_t, kEdrRows + 1> keys{};

std::uint64_t PackedCall(std::string_view sixCharacters) {
    std::uint64_t key = 0;
    for (const char c : sixCharacters) key = (key << 8U) | static_cast<unsigned char>(c);
    return key;
}

std::string_view StationCall(const EDRRec& station) {
    return station.Linje.Padded().substr(0, kEdrCall);
}

}  // namespace

int StationsInUse() {
    return std::min<int>(giEDR, kEdrRows);
}

void IndlæsEDR() {
    Files& files = platform().files;
    try {
        files.Open(1, PathIn(gsFDLib, "edr.txt"), FileMode::Input);
        giEDR = 0;
        while (!files.EndOfFile(1)) {
            const std::string line = files.LineInput(1);
            ++giEDR;
            if (giEDR > kEdrRows) throw RunTimeError(Failure::IndexOutOfRange);
            const auto row = static_cast<std::size_t>(giEDR);
            EDRstn[row].Linje = line;
            EDRstn[row].Wkd = false;
            keys[row] = PackedCall(StationCall(EDRstn[row]));
        }
        files.Close(1);
    } catch (const RunTimeError&) {
        MsgBox("Kan ikke finde filen " + PathIn(gsFDLib, "edr.txt"));
    }
}

void EDRstnWkd(std::string& call, MarkAction action) {
    call.resize(kEdrCall, ' ');
    const std::uint64_t wanted = PackedCall(call);
    const auto end = keys.begin() + StationsInUse() + 1;
    for (auto key = std::find(keys.begin() + 1, end, wanted); key != end; key = std::find(key + 1, end, wanted)) {
        giQSOPoint = 10;
        if (action != MarkAction::Test) EDRstn[static_cast<std::size_t>(key - keys.begin())].Wkd = action == MarkAction::Mark;
    }
}

void findEDRstn(std::string_view call, std::string& text) {
    for (int i = 1; i <= StationsInUse(); ++i) {
        const EDRRec& station = EDRstn[static_cast<std::size_t>(i)];
        if (Trim(StationCall(station)) != Trim(call)) continue;
        const std::string_view line = station.Linje.Padded();
        text = line.substr(0, line.find(','));
        return;
    }
}

void ResetEDR() {
    for (EDRRec& station : EDRstn) station.Wkd = false;
}

void ClearStations() {
    EDRstn.fill({});
    keys.fill(0);
    giEDR = 0;
}

}  // namespace vatro
