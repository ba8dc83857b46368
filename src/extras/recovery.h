// SPDX-License-Identifier: MIT
//
// Checks the log directory before the program reads it, for damage left by a power cut, by an older version of the program or by manual
// editing, and repairs it as the operator chooses.
//
// The search changes nothing. A repair deletes nothing either: every file that it replaces is first added to the history. A proposed
// repair can never lose a contact: it merges contacts, or keeps what is there.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "history.h"
#include "log_text.h"

namespace vatro {

/// The directories to check.
struct RecoveryPlaces {
    std::filesystem::path logs;
    /// The directory with the tables and the list of operators.
    std::filesystem::path tables;
    /// The log that the program will start with, such as "80mSSB". Used to guess the owner of a copy that could belong to several logs.
    /// May be empty.
    std::string firstLog;
    DateTime now;
};

/// One thing that is wrong in a directory, and what to do about it.
struct Finding {
    /// The proposed repair.
    enum class Action {
        /// Only informs the operator; there is nothing to repair.
        None,
        /// The log is missing, and FDkopi.txt becomes the log.
        CopyBecomesLog,
        /// Contacts in FDkopi.txt that the log lacks are merged into it.
        MergeCopy,
        /// FDkopi.txt is moved to the history.
        KeepCopy,
        /// The damaged end of the log is cut off.
        CutEnd,
        /// Contacts in a version of the history that the log lacks are merged into it.
        MergeVersion,
        /// The log stays as it is, and the newest version in the history is stored beside it under another name.
        PutBeside,
        /// The log is missing, and the newest version in the history becomes the log.
        Restore,
    };

    Action action = Action::None;
    /// Name of the file concerned, such as "FD80mSSB.txt".
    std::string file;
    /// What was found, in a sentence or two, and what the repair would do; both in the code page.
    std::string what;
    std::string proposal;
    /// Summary of the copy or version that was found, which may have more contacts than the log.
    LogSummary found;
    std::filesystem::path log;
    /// The file that a repair takes contacts from: the copy or the version.
    std::filesystem::path source;
    /// Whether the contacts were found in the second copy of the log.
    bool fromCopy = false;
    /// The logs that an FDkopi.txt may belong to if its contacts do not decide; the first one is proposed.
    std::vector<std::string> candidates;
};

/// Returns what was found, most serious first. Empty if the directory is in order.
std::vector<Finding> LookForDamage(const RecoveryPlaces& places, const History& history);

/// Performs the repair that the finding proposes. `candidate` is the log chosen for a copy whose owner is uncertain. Returns a message
/// for the operator about the outcome, which may be empty. Fails with the disk's failure, and has then changed nothing.
std::string Repair(const Finding& finding, History& history, std::string_view candidate = {});

}  // namespace vatro
