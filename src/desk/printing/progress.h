// SPDX-License-Identifier: MIT
//
// How papers show their progress: in frmInfo, which stays open, with what it lists, until the user closes it.
#pragma once

#include <string_view>

namespace vatro {

/// Shows the window under this title.
void ShowProgress(std::string_view title);
/// Adds a step to its list and paints it.
void AddProgress(std::string_view step);

}  // namespace vatro
