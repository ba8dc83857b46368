// SPDX-License-Identifier: MIT
//
// Precompiled header with what nearly every source of the window front includes.
#pragma once

#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>
