#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
#   with_sound_card.sh COMMAND [ARGUMENT...]
#
# Runs the command with its own sound system: PulseAudio with one silent card, whose output can be recorded from
# "prove.monitor". HOME and the runtime directory are temporary. Skipped if a program it needs is missing.
set -euo pipefail
. "$(dirname "$0")/../skip.sh"
need pulseaudio pactl parec

world=$(mktemp -d)
server=
finish() {
    [ -z "$server" ] || { kill "$server" 2>/dev/null && wait "$server" 2>/dev/null || true; }
    rm -rf "$world"
}
trap finish EXIT
export HOME=$world/home XDG_RUNTIME_DIR=$world/run PULSE_RUNTIME_PATH=$world/run/pulse
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share
export PULSE_SERVER=unix:$world/run/native
unset PULSE_COOKIE PULSE_SINK DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
mkdir -p "$HOME" "$PULSE_RUNTIME_PATH"
chmod 700 "$XDG_RUNTIME_DIR"

# The card plays samples unchanged: no resampling, no mixing to two channels, no volume.
pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no --disable-shm=yes --realtime=no --high-priority=no \
    --log-target="file:$world/server.log" \
    -L "module-native-protocol-unix auth-anonymous=1 socket=$world/run/native" \
    -L "module-null-sink sink_name=prove rate=44100 format=s16le channels=1 channel_map=mono norewinds=1" >/dev/null 2>&1 &
server=$!
for _ in $(seq 100); do
    pactl info >/dev/null 2>&1 && break
    kill -0 "$server" 2>/dev/null || { echo "the sound system does not start:"; cat "$world/server.log"; exit 1; }
    sleep 0.1
done
pactl info >/dev/null || { cat "$world/server.log"; exit 1; }

result=0
"$@" || result=$?
exit $result
