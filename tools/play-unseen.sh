#!/bin/bash
# play-unseen.sh PROGRAM PICTURE: plays on a virtual X server, as a player would with a mouse, and
# keeps a picture of the table. Whatever goes wrong is said and ends with a non-zero code.
set -euo pipefail

program=$(readlink -f -- "$1")
picture=$2
folder=$(mktemp -d)
mkdir -m 700 "$folder"/{config,cache,data,run}
helpers=()

clean_up() {
    local pid
    for pid in "${helpers[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf -- "$folder"
}
trap clean_up EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

fail() {
    echo "./play: $1" >&2
    sed 's/^/    /' "$folder"/*.log >&2
    exit 1
}

# wait_for SECONDS WHAT COMMAND...: tries the command until it succeeds.
wait_for() {
    local deadline=$((SECONDS + $1)) what=$2
    shift 2
    until "$@"; do
        [ $SECONDS -lt $deadline ] || fail "$what did not happen in time."
        sleep 0.2
    done
}

# What the caller has set for windows of its own must not shift or restyle this one.
unset WAYLAND_DISPLAY SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS QT_SCALE_FACTOR \
    QT_SCREEN_SCALE_FACTORS QT_FONT_DPI QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
export QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$folder/config XDG_CACHE_HOME=$folder/cache \
    XDG_DATA_HOME=$folder/data XDG_RUNTIME_DIR=$folder/run XAUTHORITY=$folder/authority

start_display() {
    local cookie number
    cookie=$(mcookie)
    touch "$XAUTHORITY" "$folder/display"
    # The server takes the cookie whatever its display number, which it finds for itself.
    xauth -q add :0 . "$cookie"
    Xvfb -displayfd 3 -auth "$XAUTHORITY" -screen 0 1024x768x24 -nolisten tcp -noreset \
        3>"$folder/display" >"$folder/xvfb.log" 2>&1 &
    helpers+=($!)
    wait_for 30 "The start of the virtual X server" grep -q . "$folder/display"
    number=$(cat "$folder/display")
    export DISPLAY=:$number
    [ "$number" = 0 ] || xauth -q add "$DISPLAY" . "$cookie"

    openbox --sm-disable >"$folder/openbox.log" 2>&1 &
    helpers+=($!)
    wait_for 30 "The start of the window manager" window_manager_runs
}

window_manager_runs() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# find_window TITLE: its number is in $window afterwards.
find_window() {
    kill -0 "$trainer" 2>/dev/null || fail "The trainer has ended."
    window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1)
    [ -n "$window" ]
}

measure_table() {
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
    [ "$WIDTH" -eq 800 ] || fail "The table is $WIDTH pixels wide, not 800."
    menu_height=$((HEIGHT - 514))
}

# The place of each card, as ImageMagick writes it: 96 x 130 pixels.
card_places() {
    local slot
    for slot in 0 1 2 3 4; do
        echo "96x130+$(((400 + 1104 * slot) / 10))+$((menu_height + 284))"
    done
}

take_picture() {
    import -silent -window "$window" "$folder/table.png"
}

# Faces are white for the most part; the table and the backs are not.
hand_lies_open() {
    local place
    take_picture
    for place in $(card_places); do
        convert "$folder/table.png" -crop "$place" +repage -colorspace Gray -threshold 95% \
            -format '%[fx:mean > 0.4]' info: | grep -qx 1 || return 1
    done
    hand=$(for place in $(card_places); do
        convert "$folder/table.png" -crop "$place" +repage -format '%#' info:
    done)
}

another_hand_lies_open() {
    hand_lies_open && [ "$hand" != "$first_hand" ]
}

table_has_changed() {
    cp "$folder/table.png" "$folder/before.png"
    take_picture
    ! cmp -s "$folder/table.png" "$folder/before.png"
}

table_is_still() {
    ! table_has_changed
}

click() {
    xdotool mousemove --window "$window" "$1" "$2" click 1
}

choose_play_video_poker() {
    local table=$window
    click 20 $((menu_height / 2))
    wait_for 10 "The opening of the Game menu" game_menu_is_open
    click 40 14 # its first entry
    window=$table
}

game_menu_is_open() {
    window=$(xdotool search --onlyvisible --class quillet 2>/dev/null | grep -vxF "$window" |
        tail -n 1)
    [ -n "$window" ]
}

end_with_exit() {
    local code=0
    xdotool key alt+F4
    # The settings are brought to the disk first, which may be busy with what was just built.
    wait_for 60 "The exit screen" find_window "More Texas Hold'em Resources\.\."
    xdotool windowfocus "$window" key Return # its button "Exit"
    wait_for 15 "The end of the trainer" trainer_has_ended
    wait "$trainer" || code=$?
    [ $code -eq 0 ] || fail "The trainer ended with code $code."
}

trainer_has_ended() {
    ! kill -0 "$trainer" 2>/dev/null
}

echo "Playing on a virtual display instead."
start_display
"$program" >"$folder/trainer.log" 2>&1 &
trainer=$!
helpers+=("$trainer")

wait_for 60 "The opening of the table" find_window "Jacks or Better Quillet"
measure_table
wait_for 60 "The first deal" hand_lies_open
first_hand=$hand
choose_play_video_poker
wait_for 60 "The deal of another hand" another_hand_lies_open
wait_for 30 "The end of the deal" table_is_still
mkdir -p -- "$(dirname -- "$picture")"
cp "$folder/table.png" "$picture"
# The coach either refuses the draw and lights a row, or cards are drawn.
click 253 $((menu_height + 162))
wait_for 15 "An answer to a click on the deck" table_has_changed
end_with_exit
echo "The trainer dealt, answered and closed as it should. The table is in $picture."
