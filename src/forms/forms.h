// SPDX-License-Identifier: MIT
//
// All that a form of the program is made of: the form itself and every control.
#pragma once

#include "controls.h"
#include "form.h"
