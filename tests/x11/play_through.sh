#!/bin/bash
# Plays the real program under an X server and a window manager of its own: a first start with an
# empty home, a hand by mouse, every preference by keyboard, every way out, later starts, and a
# death at a random moment. Usage: play_through.sh PROGRAM
set -u

program=$1
caller=play_through slack=3
. "$(dirname "$0")/../../tools/headless-display.sh"
export HOME=$folder SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
settings=$XDG_CONFIG_HOME/Quillet/settings.ini

# Nothing here leads to a page.
mkdir "$folder/bin"
printf '#!/bin/sh\necho "$@" >>"%s/opened"\n' "$folder" >"$folder/bin/xdg-open"
chmod +x "$folder/bin/xdg-open"
export PATH=$folder/bin:$PATH
start_display

active_is() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == "$1" ]]; }

start() {
    start_trainer "$program"
    wait_for 10 "the keyboard" active_is "$title"
}

click_card() { click $(($(card_left "$1") + 48)) 350; }

pixel() {
    import -silent -window "$window" -crop "1x1+$1+$(($2 + menu_height))" -depth 8 txt:- |
        grep -o '#[0-9A-F]\{6\}' | tail -1
}
# The chart row, 0 to 20, that has this colour; nothing when there is none.
row_coloured() {
    import -silent -window "$window" -crop "1x514+623+$menu_height" -depth 8 txt:- |
        awk -v colour="$1" -F '[,:]' 'index($0, colour) && $2 > 56 && $2 < 500 {
            print int(($2 - 12.4) / (488 / 23)) - 2; exit }'
}
row_is() { [[ $(row_coloured "$2") == "$1" ]]; }
any_row_is() { [[ -n $(row_coloured "$1") ]]; }

outline='#00FF00'
held() { [[ $(pixel $(($(card_left "$1") - 2)) 350) == "$outline" ]]; }
not_held() { ! held "$1"; }
# A card takes a hold only while a hand waits for the draw.
hand_waits() {
    click_card 4
    for _ in 1 2 3 4; do
        held 4 && { click_card 4; wait_for 5 "the hold to go" not_held 4; return 0; }
        sleep 0.05
    done
    return 1
}

place_of_window() {
    xdotool getwindowgeometry --shell "$window" | sed -n 's/^[XY]=//p' | paste -sd,
}
moved_from() { [[ $(place_of_window) != "$1" ]]; }
# The forced state has been seen and undone, and the window lies where it was.
is_back_at() {
    [[ $(place_of_window) == "$1" ]] && ! xprop -id "$window" _NET_WM_STATE | grep -qE 'FULL|MAXI'
}

keys() { xdotool key --clearmodifiers --delay 30 "$@"; }

# How many cards the play of each row keeps.
keeps=(5 5 4 5 4 5 5 3 4 4 2 3 4 2 4 2 3 2 2 1 0)

# Asks to draw with the holds named; succeeds when the draw is accepted.
draw_with() {
    local slot=
    for slot in $1; do click_card "$slot"; done
    [[ -z $slot ]] || wait_for 5 "the hold of card $slot" held "$slot"
    [[ -n $slot ]] || sleep 0.6 # two clicks on the deck at once are a double click, which is one
    click_deck
    [[ -z $slot ]] || wait_for 5 "the end of the holds" not_held "$slot"
    sleep 0.2 # the answer follows at once
    ! any_row_is '#FF0000'
}

# All five cards first, then, when those are refused, every hold of as many cards as the row keeps.
play_hand() {
    local row size mask slot chosen
    draw_with "0 1 2 3 4" && return
    row=$(row_coloured '#FF0000')
    size=${keeps[$row]}
    for mask in {0..31}; do
        chosen=
        for slot in 0 1 2 3 4; do ((mask >> slot & 1)) && chosen+="$slot "; done
        (($(wc -w <<<"$chosen") == size)) || continue
        draw_with "$chosen" && return
    done
    fail "no hold of $size cards was accepted for row $row"
}

setting_is() { grep -qx "$1=$2" "$settings" || fail "$1 is not $2: $(cat "$settings")"; }

open_preferences() {
    keys alt+g Down Return
    wait_for 10 "the preferences" active_is Preferences
}

save_preferences() {
    keys Return
    wait_for 10 "the main window again" active_is "$title"
}

# A start in vain.
mkdir "${settings%/*}"
printf '[Preferences]\nprfPKBackFace=abc\n' >"$settings"
"$program" &
vain=$!
helpers+=("$vain")
wait_for 20 "the error box" wmctrl -F -c Quillet
wait "$vain" && fail "the program ended well after a start in vain"
rm "$settings"

# A first start.
start
[[ -e $settings ]] && fail "settings before the first end"
wait_for 25 "the first hand" hand_waits
any_row_is '#FFC0C0' || fail "the best play is not shown"
[[ $(pixel 211 160) == '#FFFFFF' ]] || fail "the deck is not seen"
[[ $(pixel 54 346) == '#FFFFFF' ]] || fail "the first card shows no face"
best=$(row_coloured '#FFC0C0')
((keeps[best] == 1)) && wrong="0 1" || wrong="0"
draw_with "$wrong" && fail "a hold of the wrong size was accepted"
row_is "$best" '#FF0000' || fail "the missed row is not row $best"
wait_for 5 "the hand again" hand_waits
play_hand
wait_for 25 "the hand dealt by itself" hand_waits

# Every preference, by keyboard.
open_preferences
keys Tab space Tab space Tab End Left Left Left
keys shift+Tab shift+Tab shift+Tab Right
keys Tab space Tab Down
keys shift+Tab shift+Tab Right
keys Tab Home Down Down Tab space
wait_for 10 "the colour chooser" active_is "Colour of the hold outline"
keys alt+h ctrl+a
xdotool type --delay 30 '#0080ff'
keys Return
wait_for 10 "the preferences again" active_is Preferences
keys Tab # from the button that opened the chooser to "Save"
save_preferences
outline='#0080FF'
wait_for 5 "the hand after the dialog" hand_waits
[[ -e $settings ]] && fail "settings were written before the end"

keys alt+g x
wait_for 10 "the exit screen" active_is "$exit_title"
setting_is prfSound False
setting_is prfAnimation False
setting_is prfScrollVal 997
setting_is prfAnimationDelay 3
setting_is prfPokerAutoDeal False
setting_is prfShowPokerPlay False
setting_is prfPKBackFace 55
setting_is prfCardOutlineColor 16744448
setting_is prfPKBackground vpokerwood.jpg
keys Return
wait_for 10 "the end" trainer_has_ended
wait "$trainer" || fail "the program ended with $?"
cp "$settings" "$folder/first.ini"

# A second start keeps them; the close box.
start
wait_for 10 "the first hand" hand_waits
any_row_is '#FFC0C0' && fail "the best play is shown against the setting"
keys alt+F4
wait_for 10 "the exit screen" active_is "$exit_title"
keys alt+F4
wait_for 10 "the end" trainer_has_ended
wait "$trainer" || fail "the program ended with $?"
cmp "$settings" "$folder/first.ini" || fail "the settings were not kept"

# Full screen and maximising are undone where the window was.
start
place=$(place_of_window)
xdotool windowmove "$window" 60 40
wait_for 5 "the move" moved_from "$place"
place=$(place_of_window)
for state in fullscreen maximized_vert,maximized_horz fullscreen; do
    wmctrl -i -r "$window" -b "add,$state"
    wait_for 10 "the end of $state" is_back_at "$place"
done

# A dialog, the window and the exit screen destroyed by another program.
open_preferences
xdotool windowclose "$(xdotool getactivewindow)"
wait_for 10 "the main window" active_is "$title"
xdotool windowclose "$window"
wait_for 10 "the exit screen" active_is "$exit_title"
xdotool windowclose "$(xdotool getactivewindow)"
wait_for 10 "the end" trainer_has_ended
wait "$trainer" || fail "the program ended with $?"

# A death at a random moment.
start
wait_for 10 "the first hand" hand_waits
open_preferences
keys Tab space
save_preferences
sleep "0.$((RANDOM % 9))"
kill -9 "$trainer"
wait "$trainer" 2>/dev/null
cmp "$settings" "$folder/first.ini" || fail "a killed program changed the settings"

[[ -e $folder/opened ]] && fail "a page was opened: $(cat "$folder/opened")"
[[ -s $folder/trainer.log ]] && fail "the program spoke: $(cat "$folder/trainer.log")"
echo "passed in $SECONDS s"
