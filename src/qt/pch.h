// SPDX-License-Identifier: MIT
//
// What nearly every source of the window front includes, compiled once.
#pragma once

#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>
