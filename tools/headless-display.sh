# shellcheck shell=bash
# To be sourced: a virtual X server and a window manager, in which a script plays the trainer with a
# mouse, as a player would. The script keeps its files in $folder, which is removed when it ends. It
# sets $caller, the name in its messages, and may set $slack, how many times longer to wait on a busy
# machine.

folder=$(mktemp -d)
mkdir -m 700 "$folder"/{config,cache,data,run,state}
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

# Prints with the message what shows why: the lines that led here, the windows, and what the
# threads of each program wait for.
fail() {
    local i
    set +e
    {
        echo "$caller: $1"
        for ((i = 1; i < ${#FUNCNAME[@]}; i++)); do
            echo "    line ${BASH_LINENO[i - 1]} of ${BASH_SOURCE[i]##*/}, in ${FUNCNAME[i]}"
        done
        echo "Windows, the active one first:"
        timeout 10 xdotool getactivewindow getwindowname
        timeout 10 xdotool search --onlyvisible --name . getwindowname %@
        [ -z "${trainer:-}" ] || kill -0 "$trainer" 2>/dev/null || echo "The trainer has ended."
        ps -L -o pid,tid,stat,wchan:24,time,comm -p "$(IFS=, && echo "${helpers[*]}")"
        tail -n 40 "$folder"/*.log
    } 2>&1 | sed '2,$s/^/    /' >&2
    exit 1
}

# wait_for SECONDS WHAT COMMAND...: tries the command until it succeeds. A machine that was suspended
# in between still makes two tries for each second.
wait_for() {
    local patience=$(($1 * ${slack:-1})) what=$2
    local deadline=$((SECONDS + patience)) tries=$((2 * patience))
    shift 2
    until "$@"; do
        if ((--tries < 0 && SECONDS >= deadline)); then fail "$what did not happen in time."; fi
        sleep 0.1
    done
}

# Settings for the windows of the caller must not move or restyle this one.
unset WAYLAND_DISPLAY SESSION_MANAGER QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS \
    QT_FONT_DPI QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
# Without an address, the D-Bus library would start a bus. It forks to do so, and a program built
# with the address sanitizer can hang in the fork while its other threads allocate memory.
export DBUS_SESSION_BUS_ADDRESS=disabled:
export QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$folder/config XDG_CACHE_HOME=$folder/cache \
    XDG_DATA_HOME=$folder/data XDG_STATE_HOME=$folder/state XDG_RUNTIME_DIR=$folder/run \
    XAUTHORITY=$folder/authority

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

title="Jacks or Better Quillet"
exit_title="More Texas Hold'em Resources.."

# start_trainer PROGRAM ARGUMENT...: opens the table, whose window is $window.
start_trainer() {
    "$@" >>"$folder/trainer.log" 2>&1 &
    trainer=$!
    helpers+=("$trainer")
    wait_for 60 "The opening of the table" find_window "$title"
    measure_table
}

trainer_has_ended() {
    ! kill -0 "$trainer" 2>/dev/null
}

# find_window TITLE: its number is in $window afterwards.
find_window() {
    ! trainer_has_ended || fail "The trainer has ended."
    window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1)
    [ -n "$window" ]
}

measure_table() {
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
    [ "$WIDTH" -eq 800 ] || fail "The table is $WIDTH pixels wide, not 800."
    menu_height=$((HEIGHT - 514))
}

# Clicks at a position in the table.
click() {
    xdotool mousemove --window "$window" "$1" $((menu_height + $2)) click 1
}

click_deck() {
    click 253 160
}

# The cards are 96 x 130 pixels, with their top at 284.
card_left() {
    echo $(((400 + 1104 * $1) / 10))
}
