// SPDX-License-Identifier: MIT
//
// Looks through the log directory before the program reads it, for what a power cut, an older edition of the program or a hand has
// left there, and puts it right as the operator chooses.
//
// Looking changes nothing. A repair deletes nothing either: every file that it replaces goes into the history first. What a repair
// proposes is what cannot take a contact away: contacts are put together, or what is there stays.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "history.h"
#include "log_text.h"

namespace vatro {

/// Where to look.
struct RecoveryPlaces {
    std::filesystem::path logs;
    /// With the tables and the list of operators.
    std::filesystem::path tables;
    /// "80mSSB": the log with which the program will begin, for a copy that could be of several logs. May be empty.
    std::string firstLog;
    DateTime now;
};

struct Finding {
    enum class Action {
        /// The operator is told; nothing can be repaired here.
        None,
        /// FDkopi.txt becomes the log, which is missing.
        CopyBecomesLog,
        /// The contacts of FDkopi.txt that the log lacks join it.
        MergeCopy,
        /// FDkopi.txt goes into the history.
        KeepCopy,
        /// The damaged end of the log is cut off.
        CutEnd,
        /// The contacts of the newest version in the history that the log lacks join it.
        MergeVersion,
        /// The log stays as it is; the newest version of the history is put beside it under a name of its own.
        PutBeside,
        /// The newest version of the history becomes the log, which is missing.
        Restore,
    };

    Action action = Action::None;
    /// The name of the file that it is about, such as "FD80mSSB.txt".
    std::string file;
    /// What is there, in a sentence or two; what the repair does; both in the code page.
    std::string what;
    std::string proposal;
    /// Of what was found, which may be more than the log has.
    LogSummary found;
    std::filesystem::path log;
    /// The copy or the version.
    std::filesystem::path source;
    /// The logs that an FDkopi.txt may belong to where its contacts do not tell; the first one is proposed.
    std::vector<std::string> candidates;
};

/// What there is to be told, the gravest first. Empty on a sound directory.
std::vector<Finding> LookForDamage(const RecoveryPlaces& places, const History& history);

/// Does what the finding proposes; `candidate` is the log chosen for a copy whose owner is not certain. Gives what the operator
/// should know about the outcome, which may be nothing. Fails with what the disk says, and has then changed nothing.
std::string Repair(const Finding& finding, History& history, std::string_view candidate = {});

}  // namespace vatro
