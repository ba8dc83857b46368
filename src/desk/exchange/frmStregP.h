// SPDX-License-Identifier: MIT
//
// Calls that are in the logs in more than one spelling, such as DL1ABC on one band and DL1ABC/P on another: a station with "/P"
// counts differently, and the suffix is easily forgotten. In spite of the window's name ("slash P") it shows any two spellings of a
// base call. It shows the logs as they were when it was opened and changes nothing.
//
// Its list sorts itself and has two kinds of items:
//
//    1-15  base call                        1-15  base call
//   16-18  band, as "40m"                  16-27  "------------"
//   20-23  "CW  " or "SSB "
//   24-27  serial number sent
//   29-43  call as logged
//
// "-" sorts before the digits with which bands begin, so the line of dashes comes before the contacts of its call.
#pragma once

#include <string>
#include <vector>

#include "forms.h"
#include "frame/log_file.h"

namespace vatro {

class FrmStregP : public Form {
public:
    FrmStregP();
    ListBox contacts;

    /// Fills the list in the steps below, while the user watches.
    void Form_Load() override;
    void StoreState() override;
    bool EscCloses() const override { return true; }

    /// Adds the contacts of all ten logs, read from the files.
    void IndlæsLogs();
    /// Returns the contacts of one log, as rows of the list. On a failure the log ends there without a message.
    static std::vector<std::string> indlæslog(const LogId& log);
    /// Puts a line of dashes before the contacts of each base call; the name says "insert blanks". The first item is skipped: if it is
    /// the only contact with its call, it gets no dashes and stays in the list. An empty list gets dashes without a call. Do not correct
    /// this: operators compare two such lists (docs/rules.md).
    void IndsætBlanke();
    /// Removes the calls that have only one spelling, with their dashes; the name says "remove duplicates" but has nothing to do with
    /// duplicate contacts. IndsætBlanke must have run before.
    void FjernDubletter();
};

inline FormSlot<FrmStregP> frmStregP{"frmStregP"};

}  // namespace vatro
