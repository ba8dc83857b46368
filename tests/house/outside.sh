#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   outside.sh SOURCE BUILD CMAKE
#
# Checks that the rules can be used without the program: a separate project links the libraries of text, platform, rules and
# disk, counts ten logs, and prints the same total as the summary.
set -euo pipefail
source=$1 build=$2 cmake=$3
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

line() { printf '%-5s %-15s %-3s-0001 %-3s-0001 %2s %-10s OZ1AB      %-5s 05-09-26\r\n' "$1" "$2" "$3" "$3" "$4" "$5" "$6"; }
mkdir "$place/logs"
# Three contacts with two multipliers and 16 points, a duplicate, a note; then one contact with one multiplier and 6 points.
{
    line 13:00 DL1ABC 59 3 DL SSB
    line 13:01 DL2ABC 59 3 '' SSB
    printf 'NOTE: pause\r\n'
    line 13:02 DL1ABC 59 0 -DUPE- SSB
    line 13:03 OZ1ABC 59 10 OZ SSB
} >"$place/logs/FD80mSSB.txt"
line 13:04 W1ABC 599 6 K CW >"$place/logs/FD40mCW.txt"

"$cmake" -B "$place/build" -D VATRO="$build" -D CMAKE_BUILD_TYPE=Release "$source/tests/outside" >"$place/log" &&
    "$cmake" --build "$place/build" >>"$place/log" || { cat "$place/log"; exit 1; }
told=$("$place/build/total" "$place/logs")
expected='4 contacts, 3 x 22 = 66'
[ "$told" = "$expected" ] || { echo "told '$told' instead of '$expected'"; exit 1; }
