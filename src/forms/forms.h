// SPDX-License-Identifier: MIT
//
// Everything that a form is made of: the Form class and all controls.
#pragma once

#include "controls.h"
#include "form.h"
