#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   with_window_manager.sh MANAGER minimising.sh VATRO DATA
#
# Minimises and restores the program ten times, as the window frame and the task bar do. While it is minimised, the main window, the
# next number and the worked-before list are off the screen, and the contest call stays visible. When it is restored, all of
# them are where they were, and the main window has the focus. The positions stored at the end are those of the start.
set -euo pipefail
vatro=$1 data=$2

mkdir -p "$HOME/log" "$HOME/tables" "$XDG_CONFIG_HOME/vatro"
cp "$data"/*.txt "$HOME/tables/"
settings=$XDG_CONFIG_HOME/vatro/vatro.ini
cat >"$settings" <<SETTINGS
[Settings]
gsLogLib=$HOME/log
MyCall=OZ1AB
LastOP=OZ1AB
VisInfo2002=False
MainLeft=300
MainTop=300
B4Left=12000
B4Top=1500
B4Width=6000
B4Height=3000
QSOLeft=300
QSOTop=9000
QSOHeight=900
CallLeft=9000
CallTop=9000
CallHeight=750

[Vindue]
Saml=False
Bredde=920
Hojde=480
SETTINGS

program=
finish() { [ -z "$program" ] || { kill "$program" 2>/dev/null && wait "$program" 2>/dev/null || true; }; }
trap finish EXIT
fail() {
    echo "$1; on the screen:"
    for window in "${all[@]}"; do printf '  %-8s %s\n' "$(seen "$window")" "$window"; done
    cat "$HOME/vatro.err"
    exit 1
}

main='^Vatro OZ1AB$' number='^Næste QSO nr$' call='^Contest Call$' before='^Call check'
all=("$main" "$number" "$call" "$before")
window_of() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
seen() { if [ -n "$(window_of "$1")" ]; then echo shown; else echo hidden; fi; }
# The required state of the screen: "shown" or "hidden" for each window. It must be reached, and must then stay for $stays seconds.
stays=0.5
becomes() {
    local wanted="$*" now=
    for _ in $(seq 100); do
        now=$(for window in "${all[@]}"; do seen "$window"; done | xargs)
        [ "$now" != "$wanted" ] || break
        sleep 0.1
    done
    sleep $stays
    # Tries again if needed: the search finds nothing if any window closes at that moment.
    for _ in 1 2 3; do
        now=$(for window in "${all[@]}"; do seen "$window"; done | xargs)
        [ "$now" != "$wanted" ] || return 0
        sleep 0.2
    done
    fail "wanted: $wanted"
}
# Asks again for the same reason.
place_of() {
    local found=
    for _ in $(seq 50); do
        found=$(xdotool getwindowgeometry --shell "$(window_of "$1")" 2>/dev/null | grep -v 'WINDOW\|SCREEN' | xargs) || true
        [ -z "$found" ] || break
        sleep 0.1
    done
    echo "$found"
}
places() { for window in "${all[@]}"; do place_of "$window"; done; }

cd "$HOME/tables"
QT_QPA_PLATFORM=xcb "$vatro" 2>"$HOME/vatro.err" &
program=$!
becomes shown shown shown shown
first=$(places)
main_id=$(window_of "$main")

for round in $(seq 10); do
    # What creeps in from round to round does not depend on the time between them.
    [ "$round" -lt 3 ] || stays=0.1
    xdotool windowminimize "$main_id"
    becomes hidden hidden shown hidden
    xdotool windowactivate "$main_id"
    becomes shown shown shown shown
    [ "$(places)" = "$first" ] || fail "round $round: the windows have moved: $first -> $(places)"
    for _ in $(seq 50); do
        [ "$(xdotool getactivewindow 2>/dev/null)" != "$main_id" ] || break
        sleep 0.1
    done
    [ "$(xdotool getactivewindow)" = "$main_id" ] || fail "round $round: the main window has not got the keys"
    xdotool type DL1ABC
    xdotool key Escape
done

# The stored positions have not changed either.
stored() { grep -E '^(Main|B4|QSO|Call)(Left|Top|Height)=' "$settings" | sort; }
before_=$(stored)
xdotool key --clearmodifiers alt+F4
for _ in $(seq 100); do
    kill -0 "$program" 2>/dev/null || break
    sleep 0.1
done
kill -0 "$program" 2>/dev/null && fail "the program does not end"
program=
[ "$(stored)" = "$before_" ] || fail "the stored places have changed:
$before_
->
$(stored)"
