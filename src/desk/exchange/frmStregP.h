// SPDX-License-Identifier: MIT
//
// Calls that stand in the logs in more than one spelling, such as DL1ABC on one band and DL1ABC/P on another: a station with
// "/P" counts differently, and the suffix is easily forgotten. The window only shows what the ten logs held when it was opened;
// it changes none.
//
// Its list is sorted by itself and has two kinds of items:
//
//    1-15  base call                        1-15  base call
//   16-18  band, as "40m"                  16-27  "------------"
//   20-23  "CW  " or "SSB "
//   24-27  serial number sent
//   29-43  call as logged
//
// "-" sorts below the figures of the bands, so the line of dashes stands before the contacts of its call.
#pragma once

#include "forms.h"
#include "frame/log_file.h"

namespace vatro {

class FrmStregP : public Form {
public:
    FrmStregP();
    ListBox contacts;

    /// Fills the list in the steps below, before the eyes of the user.
    void Form_Load() override;
    void StoreState() override;

    /// The contacts of all ten logs, from the files.
    void IndlæsLogs();
    /// The contacts of one log. A log that cannot be read ends where it fails, without a word.
    void indlæslog(const LogId& log);
    /// Puts a line of dashes before the contacts of each base call. The first item is never looked at: a contact that stands
    /// there alone with its call gets none and stays on view, whatever its spelling. An empty list gets dashes without a call.
    /// Meant so.
    void IndsætBlanke();
    /// Removes the calls that have only one spelling, with their dashes. Needs what IndsætBlanke leaves behind.
    void FjernDubletter();
};

inline FormSlot<FrmStregP> frmStregP{"frmStregP"};

}  // namespace vatro
