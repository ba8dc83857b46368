#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   typing_while_sending.sh VATRO DATA
#
# Types the next call while Morse is sent, and then stops the text: the fields keep what was typed. Uses its own sound system.
# Skipped if a program it needs is missing.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/program_on_screen.sh"
need Xvfb openbox xdotool pulseaudio pactl parec
if [ "${3:-}" != beside-sound ]; then exec "$here/../sound/with_sound_card.sh" "$here/$(basename "$0")" "$1" "$2" beside-sound; fi
world=$(mktemp -d)
trap 'finish; rm -rf "$world"' EXIT
start "$1" "$2" CW
sender='^CW TX$'

logged=
for delay in 0 40 180; do
    keys 20 "" F5
    wait_for "$sender" 10 || fail "$delay ms: nothing is sent"
    # The focus may not have arrived there yet.
    keys $delay "on4un 1$delay"
    wait_for_focus "$sender" || fail "$delay ms: the window that sends does not keep the keys"
    keys 20 "" Escape
    wait_until_gone "$sender" 5 || fail "$delay ms: Esc does not stop the text"
    wait_for_focus "$main"
    keys 20 "" Return
    logged+="ON4UN $(printf %04d "1$delay")
"
    expect FD80mCW.txt "${logged%$'\n'}"
done

# The text ends by itself just before Esc and Enter are pressed to stop it.
for key in Escape Return; do
    keys 20 "dl1we 8"
    keys 20 "" F6
    wait_for "$sender" 10 || fail "nothing is sent"
    wait_until_gone "$sender" 10 || fail "the text does not end"
    keys 0 "" $key
    sleep 0.6
    [ "$(calls FD80mCW.txt)" = "${logged%$'\n'}" ] || fail "$key right behind the text has logged"
    wait_for_focus "$main"
    keys 20 "" Return
    logged+="DL1WE 0008
"
    expect FD80mCW.txt "${logged%$'\n'}"
    sleep 0.6
done
kill -0 "$program" || fail "the program has ended"
