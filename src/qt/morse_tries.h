// SPDX-License-Identifier: MIT
//
// Tells after each command of the menu CW whether its text could be sent. The message that the sound card is missing comes only once;
// later commands do nothing that can be seen.
#pragma once

#include <functional>

namespace vatro {

class QtFront;

/// `told` is called after each such command; `sent` is false if the sound card is not ready.
void WatchMorseTries(QtFront& front, std::function<void(bool sent)> told);

}  // namespace vatro
