// SPDX-License-Identifier: MIT
#include "printing/paper_files.h"

#include "frame/log_file.h"
#include "frame/state.h"
#include "frame/station.h"
#include "frame/version.h"
#include "platform.h"

namespace vatro {

namespace {

/// Papers list the bands from 10 m to 80 m, the settings from 80 m to 10 m.
std::array<Equipment, kBandCount> CurrentEquipment() {
    static_assert(kEquipmentBands.size() == kBandCount);
    std::array<Equipment, kBandCount> equipment;
    for (std::size_t i = 0; i < kBandCount; ++i) equipment[i] = {desk().rigs[kBandCount - 1 - i], desk().antennas[kBandCount - 1 - i]};
    return equipment;
}

}  // namespace

PaperContext CurrentPaperContext() {
    return {desk().gsMyCall, desk().gsKlasse, desk().gsTelefon, CurrentEquipment(), platform().clock.Now(), VersionText()};
}

Tally CurrentTally() {
    LogFiles logs;
    return TallyLogs(logs, desk().stations, desk().gsMyCall);
}

FileLines OpenLog(const LogId& log) {
    platform().files.Open(kLogFile, LogPath(log.band, log.mode), FileMode::Input);
    return {platform().files, kLogFile};
}

FileLines OpenInLogLibrary(std::string_view name) {
    platform().files.Open(kLogFile, PathIn(desk().gsLogLib, name), FileMode::Input);
    return {platform().files, kLogFile};
}

FileSink OpenPaper(std::string_view name) {
    platform().files.Open(kPaperFile, PathIn(desk().gsLogLib, name), FileMode::Output);
    return {platform().files, kPaperFile};
}

void CloseLog() {
    platform().files.Close(kLogFile);
}

void ClosePaper() {
    platform().files.Close(kPaperFile);
}

}  // namespace vatro
