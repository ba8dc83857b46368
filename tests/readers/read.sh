#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   read.sh adif VATRO-REPLAY MODULES
#   read.sh html VATRO-REPLAY
#   read.sh pdf VATRO-REPLAY VATRO-PRINT-PDF
#
# Plays the contest of contest.scn and has independent programs read its papers. The test is skipped if such a program is
# missing.
set -euo pipefail
. "$(dirname "$0")/../skip.sh"
here=$(cd "$(dirname "$0")" && pwd)
what=$1 replay=$2

case $what in
    adif)
        need node
        modules=$3
        for reader in adif-parser-ts tcadif; do
            [ -d "$modules/$reader" ] || skip "the npm package $reader is not in $modules; packaging/build-release puts it there"
        done ;;
    html) need node chromium ;;
    pdf) need pdftotext pdfinfo ;;
esac

world=$(mktemp -d)
trap 'rm -rf "$world"' EXIT
"$replay" --keep "$world" "$here/contest.scn"

case $what in
    adif) node "$here/adif.mjs" "$modules/.." "$world/log" "$world/log/vatro2026.adi" ;;
    html) node "$here/html.mjs" chromium "$world/log" "$world/log/vatro2026.htm" "$world" ;;
    pdf)
        "$3" "$world" "$world/papers.pdf"
        "$here/pdf.sh" "$world/log" "$world/papers.pdf" ;;
esac
