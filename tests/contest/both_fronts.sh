#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   both_fronts.sh GENERATOR SEED CONTACTS FRONT...
#
# Plays a random contest on each front, each with its own files. Every box, status bar and line must match the generator's,
# a reload must change no count, the summary must agree with the status bars of the ten logs, and all fronts must leave the
# same logs.
set -euo pipefail
export LC_ALL=C QT_QPA_PLATFORM=offscreen
generator=$1 seed=$2 contacts=$3
shift 3
[ $# -gt 0 ] || { echo "no front"; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$generator" "$seed" "$contacts" >"$work/contest.scn"
# One pair every hundred contacts, and one for each of the ten logs at the end.
wanted=$((contacts / 100 + 10))

# Counts the pairs of status bars in a played contest, and prints those that differ after their first panel.
pairs() {
    awk '
        /^# before reload / { number = $4; panels = ""; before = 1; after = 0 }
        /^# after reload /  { after = ($4 == number && panels != ""); before = 0 }
        /^> frmMain.sbStatusBar "/ {
            shown = $0
            sub(/^> frmMain.sbStatusBar "[^"]*" /, "", shown)
            if (before) { panels = shown; before = 0 }
            else if (after) {
                after = 0
                if (shown == panels && split(shown, parts, "\" \"") == 6) agreeing++
                else print "reload " number ": " panels " became " shown
            }
        }
        END { print agreeing + 0 " pairs" }' "$1"
}

# The total of the summary, and the totals of the ten logs' status bars at the end: multipliers, points, score.
total() { sed -n 's/^> |Total: *[0-9]* *\([0-9]*\) x *\([0-9]*\) = *\([0-9]*\)|$/\1 \2 \3/p' "$1"; }
panels() {
    awk '
        /^# after reload /  { wanted = 1 }
        /^> frmMain.sbStatusBar "/ && wanted { split($0, parts, "\" \""); points[++n] = parts[2]; mults[n] = parts[4]; wanted = 0 }
        END {
            for (i = n - 9; i <= n; i++) { p += points[i]; m += mults[i] }
            print m, p, m * p
        }' "$1"
}

fault=0
number=0
for front in "$@"; do
    number=$((number + 1))
    name=$(basename "$front")
    mkdir "$work/world$number"
    SECONDS=0
    (cd "$work" && "$front" --print --keep "world$number" contest.scn >"played$number.scn") || { echo "$name: exit $?"; fault=1; }
    echo "$name: $contacts contacts in $SECONDS s"
    diff -u "$work/contest.scn" "$work/played$number.scn" | head -60 || { echo "$name: another contest than the one worked out"; fault=1; }
    found=$(pairs "$work/played$number.scn")
    [ "$found" = "$wanted pairs" ] || { echo "$name: $wanted pairs of status bars wanted, found:"; echo "$found"; fault=1; }
    [ -n "$(total "$work/played$number.scn")" ] && [ "$(total "$work/played$number.scn")" = "$(panels "$work/played$number.scn")" ] ||
        { echo "$name: summary $(total "$work/played$number.scn"), status bars $(panels "$work/played$number.scn")"; fault=1; }
    logs=$(find "$work/world$number" -path '*/log/FD*.txt' | wc -l)
    # A short contest may not use all logs.
    [ "$logs" -eq 10 ] || [ "$contacts" -lt 1000 ] || { echo "$name: $logs logs, not ten"; fault=1; }
    if [ "$number" -gt 1 ]; then
        cmp "$work/played1.scn" "$work/played$number.scn" || fault=1
        diff -r "$work/world1/log" "$work/world$number/log" || fault=1
    fi
done
exit $fault
