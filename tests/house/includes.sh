#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   includes.sh SRC
#
# Checks that no source outside src/qt and src/main.cpp includes a header of Qt or of the Qt front.
set -euo pipefail
export LC_ALL=C
cd "$1"

# <QString>, <QtCore/QString>, "QString", <qglobal.h>, "ui_frmMain.h", "qt/bind.h"
pattern='^[[:space:]]*#[[:space:]]*include[[:space:]]*(<(Qt[A-Za-z0-9]*/)?Q[A-Za-z0-9]+>|"(Qt[A-Za-z0-9]*/)?Q[A-Za-z0-9]+"|<q[a-z0-9_]+\.h>|"ui_|"(\.\./)?qt/)'

grep -rqE "$pattern" qt || { echo "the search finds no header of Qt in src/qt, where there must be some"; exit 1; }
if grep -rnE "$pattern" --include='*.cpp' --include='*.h' . | grep -vE '^\./(qt/|main\.cpp:)'; then
    echo "Qt is included outside src/qt and src/main.cpp"
    exit 1
fi
