#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   typing.sh VATRO DATA
#
# Types like a tired operator: at the speed of a macro, fast, and slowly. The log must hold what was meant. Skipped if a program
# it needs is missing.
set -euo pipefail
. "$(dirname "$0")/program_on_screen.sh"
need Xvfb openbox xdotool
world=$(mktemp -d)
trap 'finish; rm -rf "$world"' EXIT
start "$1" "$2" SSB
question='^Bånd/modeskift$'
nought='^Modtaget rapport$'

logged80= logged20=
for delay in 0 40 180; do
    # The second Enter is a mistake, and the next call is typed at once.
    keys $delay "oz1abc 1$delay" Return Return o n 4 u n space 5 Return
    logged80+="OZ1ABC $(printf %04d "1$delay")
ON4UN 0005
"
    expect FD80mSSB.txt "${logged80%$'\n'}"

    # A call typed while a question is shown must answer it neither with Ja nor with Nej.
    keys $delay 20m Return o n 4 u n
    wait_for "$question" 5 || fail "$delay ms: no question"
    wait_for_focus "$question"
    sleep 0.5
    wait_for "$question" 1 || fail "$delay ms: a letter has answered the question"
    keys 20 "" Return
    wait_until_gone "$question" 5 || fail "$delay ms: Enter does not answer the question"
    wait_for_focus "$main"
    keys $delay "on4un 7" Return
    logged20+="ON4UN 0007
"
    expect FD20mSSB.txt "${logged20%$'\n'}"
    keys 20 80m Return
    wait_for_focus "$question" || fail "$delay ms: no question"
    sleep 0.3
    keys 20 "" alt+j
    wait_until_gone "$question" 5 || fail "$delay ms: Alt+J does not answer the question"
    wait_for_focus "$main"
done
[ "$(cut -c55-60 "$world"/log/*.txt | sort -u)" = "OZ1AB " ] || fail "another operator: $(cat "$world"/log/*.txt)"

# An Enter that bounces must not answer the question that it has opened.
keys 30 dl1we Return Return
wait_for "$nought" 5 || fail "no question about the number"
sleep 0.5
wait_for "$nought" 1 || fail "a second Enter has answered the question"
keys 20 "" Escape
wait_until_gone "$nought" 5 || fail "Esc does not answer the question"
wait_for_focus "$main"

# Pastes a selected number with the middle mouse button: only digits arrive.
keys 20 "" Escape
keys 20 dl1e9
window=$(shown "$main")
field() { # the middle of an entry field: fraction of the window's width in thousandths
    local WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
    echo $((WIDTH * $1 / 1000)) $((HEIGHT - 60))
}
xdotool key shift+Home
xdotool mousemove --window "$window" $(field 590) click 2
sleep 0.2
keys 20 "" Return
logged80+="DL1E9 0019"
expect FD80mSSB.txt "$logged80"

# Enter held down logs only once, and opens no box under which the next call would be typed.
keys 20 "sp1abc 3"
xdotool keydown Return
sleep 1.5
xdotool keyup Return
sleep 0.3
keys 20 "sp2abc 4" Return
expect FD80mSSB.txt "$logged80
SP1ABC 0003
SP2ABC 0004"
kill -0 "$program" || fail "the program has ended"
