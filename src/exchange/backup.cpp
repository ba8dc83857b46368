// SPDX-License-Identifier: MIT
#include "exchange/backup.h"

namespace vatro {

std::string gsBackupLib;

}  // namespace vatro
