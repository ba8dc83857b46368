#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   with_window_manager.sh openbox|xfwm4 COMMAND [ARGUMENT...]
#
# Runs the command on a virtual screen with only this window manager on it. HOME and the runtime directory are temporary; the
# output of the window manager is in $HOME/wm.log. Skipped if a program is missing.
set -euo pipefail
. "$(dirname "$0")/../skip.sh"
manager=$1
shift
need Xvfb xdotool xprop dbus-daemon "$manager"

world=$(mktemp -d)
screen= running= bus=
finish() {
    for process in $running $bus $screen; do
        kill "$process" 2>/dev/null && wait "$process" 2>/dev/null || true
    done
    rm -rf "$world"
}
trap finish EXIT
export HOME=$world/home XDG_RUNTIME_DIR=$world/run
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS XDG_CURRENT_DESKTOP SESSION_MANAGER
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"

# The server picks a free display number, and writes it when it is ready.
mkfifo "$world/display"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -noreset 3>"$world/display" 2>"$world/screen.log" &
screen=$!
read -r number <"$world/display" || { cat "$world/screen.log"; exit 1; }
export DISPLAY=:$number

case $manager in
    xfwm4)
        mkfifo "$world/address"
        dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$world/address" >"$world/bus.log" 2>&1 &
        bus=$!
        read -r address <"$world/address" || { cat "$world/bus.log"; exit 1; }
        DBUS_SESSION_BUS_ADDRESS=$address xfwm4 --compositor=off >"$HOME/wm.log" 2>&1 &
        ;;
    *) "$manager" >"$HOME/wm.log" 2>&1 & ;;
esac
running=$!
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    kill -0 "$running" 2>/dev/null || break
    sleep 0.1
done
xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id' || { echo "$manager does not start:"; cat "$HOME/wm.log"; exit 1; }
# The window manager sets this property before it looks for windows.
sleep 1

result=0
"$@" || result=$?
exit $result
