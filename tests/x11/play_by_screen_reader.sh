#!/bin/bash
# Runs play_by_screen_reader.py with an X server, a window manager and an accessibility bus of its
# own. Usage: play_by_screen_reader.sh PROGRAM
set -u

scratch=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
    wait 2>/dev/null
    rm -rf "$scratch"
}
trap cleanup EXIT

export HOME=$scratch XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch LC_ALL=C.UTF-8
export SDL_AUDIODRIVER=dummy QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE

exec {server}<> <(:)
Xvfb -displayfd "$server" -screen 0 1100x800x24 -nolisten tcp 2>"$scratch/xvfb.log" &
pids+=($!)
read -r -t 20 -u "$server" display || exit 1
export DISPLAY=:$display
openbox 2>"$scratch/openbox.log" &
pids+=($!)
dbus-run-session -- "$(dirname "$0")/play_by_screen_reader.py" "$1" 2>"$scratch/errors.log"
result=$?
((result == 0)) || cat "$scratch/errors.log" >&2
exit $result
