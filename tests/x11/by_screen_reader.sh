#!/bin/bash
# Runs a play of this folder with a display and an accessibility bus of its own.
# Usage: by_screen_reader.sh PLAY PROGRAM
set -u

caller=by_screen_reader slack=3
. "$(dirname "$0")/../../tools/headless-display.sh"
export HOME=$folder LC_ALL=C.UTF-8 SDL_AUDIODRIVER=dummy QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
    PYTHONDONTWRITEBYTECODE=1
start_display
dbus-run-session -- "$(dirname "$0")/$1.py" "$2" 2>"$folder/errors.log" ||
    fail "The play failed."
