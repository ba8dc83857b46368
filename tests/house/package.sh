#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   package.sh ROOT
#
# Runs the checkers of the desktop entry, the metainfo and the manual pages. Skipped if a checker is missing and the others find
# nothing.
set -euo pipefail
. "$(dirname "$0")/../skip.sh"
cd "$1/packaging"
fault=0
missing=
have() {
    command -v "$1" >/dev/null && return
    missing+=" $1"
    return 1
}
if have desktop-file-validate; then
    told=$(desktop-file-validate dk.vatro.Vatro.desktop 2>&1) || fault=1
    # The checker does not fail for hints, but they count as faults here.
    [ -z "$told" ] || { echo "$told"; fault=1; }
fi
if have appstreamcli; then
    appstreamcli validate --no-net --strict dk.vatro.Vatro.metainfo.xml || fault=1
fi
if have man; then
    for page in *.1; do
        told=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings=w -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null) || fault=1
        [ -z "$told" ] || { echo "$page: $told"; fault=1; }
    done
fi
[ $fault = 0 ] || exit 1
[ -z "$missing" ] || skip "not installed:$missing"
