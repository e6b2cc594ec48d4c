#!/bin/bash
# Runs play_by_screen_reader.py with a display and an accessibility bus of its own.
# Usage: play_by_screen_reader.sh PROGRAM
set -u

caller=play_by_screen_reader slack=3
. "$(dirname "$0")/../../tools/headless-display.sh"
export HOME=$folder LC_ALL=C.UTF-8 SDL_AUDIODRIVER=dummy QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start_display
dbus-run-session -- "$(dirname "$0")/play_by_screen_reader.py" "$1" 2>"$folder/errors.log" ||
    fail "The play failed."
