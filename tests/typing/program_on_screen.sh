# SPDX-License-Identifier: MIT
#
# Sourced by the scripts in this folder: starts the program on a virtual screen with a window manager, and types with xdotool.
. "$(dirname "${BASH_SOURCE[0]}")/../skip.sh"

screen= manager= program=
# The program stores its settings when it ends, so its files are removed afterwards.
finish() {
    for process in $program $manager $screen; do
        kill "$process" 2>/dev/null && wait "$process" 2>/dev/null || true
    done
}
fail() {
    echo "$1"
    echo "windows: $(xdotool search --onlyvisible --name . getwindowname %@ 2>&1 | paste -s -d '|')"
    [ ! -s "$world/vatro.err" ] || cat "$world/vatro.err"
    exit 1
}

# start VATRO DATA MODE: starts the program in this mode with the tables of the directory DATA; its files are below $world.
start() {
    mkdir -p "$world/log" "$world/tables" "$world/config/vatro" "$world/run"
    chmod 700 "$world/run"
    cp "$2"/*.txt "$world/tables/"
    cat >"$world/config/vatro/vatro.ini" <<SETTINGS
[Settings]
gsLogLib=$world/log
MyCall=OZ1AB
LastOP=OZ1AB
Mode=$3
QsoMode=$3
VisInfo2002=False

[CW]
WPM=20
Tone=800
Tekst2=E

[Vindue]
Bredde=1160
Hojde=680
SETTINGS
    mkfifo "$world/display"
    # -noreset: without it the server restarts when its last client leaves, and may drop a client that is just connecting.
    Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -noreset 3>"$world/display" 2>"$world/vatro.err" &
    screen=$!
    read -r number <"$world/display" || fail "there is no screen"
    export DISPLAY=:$number
    openbox >/dev/null 2>&1 &
    manager=$!
    # A window shown while the window manager starts may stay invisible.
    for _ in $(seq 100); do
        xdotool get_num_desktops >/dev/null 2>&1 && break
        sleep 0.1
    done
    # The window manager sets this property before it looks for windows.
    sleep 1
    cd "$world/tables"
    env XDG_CONFIG_HOME="$world/config" XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$world/run}" QT_QPA_PLATFORM=xcb "$1" 2>"$world/vatro.err" &
    program=$!
    wait_for "$main" 30 || fail "the main window does not come"
    wait_for_focus "$main" || fail "the main window does not get the keys"
}

main='^Vatro OZ1AB$'
shown() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
# Waits up to this many seconds for a window of this caption.
wait_for() {
    local end=$((SECONDS + $2))
    while [ -z "$(shown "$1")" ]; do
        kill -0 "$program" 2>/dev/null || fail "the program has ended"
        [ $SECONDS -lt $end ] || return 1
    done
}
wait_until_gone() {
    local end=$((SECONDS + $2))
    while [ -n "$(shown "$1")" ]; do
        [ $SECONDS -lt $end ] || return 1
    done
}
wait_for_focus() {
    local end=$((SECONDS + 10))
    until [ "$(xdotool getwindowname "$(xdotool getwindowfocus 2>/dev/null)" 2>/dev/null | grep -c "$1")" = 1 ]; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.05
    done
}
# keys DELAY TEXT [KEY...]: types the text (a blank as Space) and then presses the keys, with DELAY milliseconds between them.
keys() {
    local delay=$1 text=$2 pressed=() i
    shift 2
    for ((i = 0; i < ${#text}; i++)); do
        case ${text:i:1} in
            ' ') pressed+=(space) ;;
            /) pressed+=(slash) ;;
            *) pressed+=("${text:i:1}") ;;
        esac
    done
    xdotool key --delay "$delay" "${pressed[@]}" "$@"
}
# The calls and numbers of a log, one contact per line.
calls() {
    [ ! -e "$world/log/$1" ] || cut -c7-21,36-39 "$world/log/$1" | sed -E 's/ *(....)$/ \1/'
}
# Waits until the log has these contacts.
expect() {
    local log=$1 want=$2 end=$((SECONDS + 10))
    until [ "$(calls "$log")" = "$want" ]; do
        kill -0 "$program" 2>/dev/null || fail "the program has ended"
        [ $SECONDS -lt $end ] || fail "$log: wanted
$want
but there is
$(calls "$log")"
        sleep 0.05
    done
}
