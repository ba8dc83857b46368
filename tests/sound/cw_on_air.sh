#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   with_sound_card.sh cw_on_air.sh VATRO DATA WPM TEXT
#
# Starts the program on a virtual screen, in CW at this speed, with the tables of the directory DATA. Presses F5, records the
# output of the card, and has an independent decoder read it: the result must be TEXT. Skipped if a program it needs is missing.
set -euo pipefail
. "$(dirname "$0")/../skip.sh"
vatro=$1 data=$2 wpm=$3 text=$4
need Xvfb xdotool sox multimon-ng

mkdir -p "$HOME/log" "$HOME/tables" "$XDG_CONFIG_HOME/vatro"
cp "$data"/*.txt "$HOME/tables/"
cat >"$XDG_CONFIG_HOME/vatro/vatro.ini" <<SETTINGS
[Settings]
gsLogLib=$HOME/log
MyCall=OZ1AB
LastOP=OZ1AB
Mode=CW
QsoMode=CW
VisInfo2002=False

[CW]
WPM=$wpm
Tone=800
SETTINGS

screen= program= recorder=
# The program stores its settings when it ends, so its home is removed afterwards.
finish() {
    for process in $program $recorder $screen; do
        kill "$process" 2>/dev/null && wait "$process" 2>/dev/null || true
    done
}
trap finish EXIT
fail() {
    echo "$1"
    cat "$HOME/vatro.err"
    exit 1
}

# The server picks a free display number, and writes it when it is ready.
mkfifo "$HOME/display"
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -noreset 3>"$HOME/display" 2>"$HOME/vatro.err" &
screen=$!
read -r number <"$HOME/display" || fail "there is no screen"
export DISPLAY=:$number

cd "$HOME/tables"
QT_QPA_PLATFORM=xcb "$vatro" 2>"$HOME/vatro.err" &
program=$!
# Waits until a window of this caption is shown or gone.
shown() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
wait_for() {
    for _ in $(seq "$2"); do
        [ -z "$(shown "$1")" ] || return 0
        sleep 0.1
    done
    return 1
}
main='^Vatro OZ1AB$'
wait_for "$main" 200 || fail "the main window does not come"
# The screen has no window manager that would give the window the focus.
for _ in $(seq 50); do
    [ "$(xdotool getwindowfocus 2>/dev/null)" != "$(shown "$main")" ] || break
    xdotool windowfocus "$(shown "$main")" || true
    sleep 0.1
done

parec -d prove.monitor --format=s16le --rate=44100 --channels=1 --raw --latency-msec=50 >"$HOME/heard.raw" &
recorder=$!
sleep 0.5
xdotool key F5
wait_for '^CW TX$' 50 || fail "the window that sends does not come"
ended=
for _ in $(seq 600); do
    kill -0 "$program" || fail "the program has ended"
    if [ -z "$(shown '^CW TX$')" ]; then
        ended=yes
        break
    fi
    sleep 0.1
done
[ -n "$ended" ] || fail "the send does not come to an end"
sleep 1
kill "$recorder"
wait "$recorder" || true

# The decoder assumes half the sample rate, so it sees half the speed and half the pitch.
dot=$(((2400 + wpm / 2) / wpm))
read_=$(sox -t raw -e signed -b 16 -c 1 -r 44100 "$HOME/heard.raw" -t raw -e signed -b 16 -c 1 - pad 1 1 |
    multimon-ng -q -c -a MORSE_CW -y -d $dot -g $dot -t raw - | tr -d '\n' | sed 's/^ *//; s/ *$//')
echo "read: $read_"
[ "$read_" = "$text" ] || fail "sent: $text"
