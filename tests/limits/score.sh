#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   score.sh VATRO-REPLAY
#
# The score of a log is multipliers times points in 32 bits. 4657 lines that end after 99 points are 4657 multipliers and
# 461,043 points, in all 2,147,077,251, which fits. One more line gives 2,147,999,436 and stops the program, on the summary, on
# the web page and on paper.
set -euo pipefail
replay=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# scenario LINES COMMAND [OUTPUT]
scenario() {
    echo 'file data/lande.txt'
    echo 'file data/refpfx.txt'
    echo 'file data/edr.txt'
    echo 'file data/operator.txt'
    echo 'file log/FD80mSSB.txt'
    awk -v lines="$1" 'BEGIN { for (i = 0; i < lines; ++i) printf "| %40s99\n", "" }'
    echo 'setting Settings gsLogLib log'
    echo 'setting Settings VisInfo2002 False'
    echo 'setting Settings Band 10m'
    echo 'start'
    echo "$2"
    [ -z "${3:-}" ] || echo "> $3"
}

for entry in mnuEfterSummary mnuFilerDanHtml mnuUdskrivSummary; do
    scenario 4657 "menu $entry" >"$work/fits.scn"
    scenario 4658 "menu $entry" 'error 6' >"$work/overflows.scn"
    "$replay" "$work/fits.scn" "$work/overflows.scn" || { echo "$entry"; exit 1; }
done
