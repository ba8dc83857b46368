// SPDX-License-Identifier: MIT
//
// Tells the operator that the last contact is on the disk, and when a file could not be written. The program empties the entry fields
// when a contact is logged, so this is the only place where the operator still sees what became of it.
#pragma once

#include <string>
#include <string_view>

#include "datetime.h"
#include "lamp.h"

namespace vatro {

class LastContact {
public:
    /// A line has been appended to a log and is on the disk. `universal` is the time of this moment. Notes change nothing.
    void Saved(std::string_view line, const DateTime& universal);
    /// A line of a log has been corrected, and the log is on the disk. Notes change nothing.
    void Corrected(std::string_view line, const DateTime& universal);
    /// A file could not be written, or a log on the disk is not the one that the program has read. `why` is a short reason in the code
    /// page. Shown until the next contact is saved or corrected.
    void Failed(std::string_view file, std::string_view why);

    /// Something else that the operator has just done and should see confirmed. Shown until the next contact is saved; does not hide a
    /// failure.
    void Tell(std::string_view text, std::string_view tip);

    Lamp Shown() const { return lamp_; }

private:
    Lamp lamp_;
};

}  // namespace vatro
