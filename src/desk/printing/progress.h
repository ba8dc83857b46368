// SPDX-License-Identifier: MIT
//
// Shows the progress of papers in frmInfo, which stays open with its list until the user closes it.
#pragma once

#include <string_view>

namespace vatro {

/// Shows the window with this title.
void ShowProgress(std::string_view title);
/// Adds a step to the list of the window and paints it.
void AddProgress(std::string_view step);

}  // namespace vatro
