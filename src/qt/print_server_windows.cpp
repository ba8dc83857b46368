// SPDX-License-Identifier: MIT
#include "print_server.h"

namespace vatro {

bool PrintServerAnswers() {
    // The system keeps the list of printers itself.
    return true;
}

}  // namespace vatro
