// SPDX-License-Identifier: MIT
//
// The very first start: proposes answers to the questions of the first page, and stores what the operator has answered.
#pragma once

namespace vatro {

/// At the very first start: shows the page, and stores its answers in the settings at once. Does nothing at any other start, or if another
/// copy of the program runs. Call as an event, before StartProgram.
void AskAtFirstStart();

}  // namespace vatro
