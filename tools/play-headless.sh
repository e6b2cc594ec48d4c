#!/bin/bash
# play-headless.sh PROGRAM PICTURE: plays on a virtual X server, as a player would with a mouse, and
# keeps a picture of the table. Reports any failure and ends with a non-zero code.
set -euo pipefail

program=$(readlink -f -- "$1")
picture=$2
caller=./play
. "$(dirname -- "$(readlink -f -- "$0")")/headless-display.sh"

# The place of each card, as ImageMagick writes it: 96 x 130 pixels.
card_places() {
    local slot
    for slot in 0 1 2 3 4; do
        echo "96x130+$(card_left "$slot")+$((menu_height + 284))"
    done
}

take_picture() {
    import -silent -window "$window" "$folder/table.png"
}

# Faces are mostly white; the table and the backs are not.
hand_lies_open() {
    local place
    take_picture
    for place in $(card_places); do
        convert "$folder/table.png" -crop "$place" +repage -colorspace Gray -threshold 95% \
            -format '%[fx:mean > 0.4]' info: | grep -qx 1 || return 1
    done
    hand=$(cards_seen)
}

# A hash of the last picture at each of the five places.
cards_seen() {
    local place
    for place in $(card_places); do
        convert "$folder/table.png" -crop "$place" +repage -format '%#' info:
    done
}

# Since the first hand: a draw replaces each card, or lays a pattern over it.
every_card_has_changed() {
    paste <(echo "$first_hand") <(cards_seen) | awk '$1 == $2 { exit 1 }'
}

hand_is_played() {
    hand_lies_open && every_card_has_changed
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

# Holds one set of cards after another until the coach accepts one. A refusal leaves the hand as it
# was dealt. The empty set comes first, because a second refusal of it would change no pixel.
play_the_hand() {
    local cards keys
    for cards in "" 12 13 14 15 23 24 25 34 35 45 1 2 3 4 5 1234 1235 1245 1345 2345 \
        123 124 125 134 135 145 234 235 245 345 12345; do
        if [ -n "$cards" ]; then
            mapfile -t keys < <(grep -o . <<<"$cards")
            xdotool key "${keys[@]}"
            wait_for 15 "The hold of cards" table_has_changed
            wait_for 15 "A pause after the hold" table_is_still
        fi
        click_deck
        wait_for 15 "An answer to a click on the deck" table_has_changed
        # Flights are paced by processor time, and other programs may be using the processor.
        wait_for 90 "A pause after a click on the deck" table_is_still
        ! every_card_has_changed || return 0
    done
    fail "The coach refused every hold."
}

choose_play_video_poker() {
    click 20 $((-menu_height / 2))
    wait_for 10 "The opening of the Game menu" game_menu_is_open
    click 40 14 # its first entry
}

game_menu_is_open() {
    xdotool search --onlyvisible --class quillet 2>/dev/null | grep -qvxF "$window"
}

end_with_exit() {
    local code=0
    xdotool key alt+F4
    # The settings are written to the disk first, which may be busy after a build.
    wait_for 60 "The exit screen" find_window "$exit_title"
    xdotool windowfocus "$window" key Return # its button "Exit"
    wait_for 15 "The end of the trainer" trainer_has_ended
    wait "$trainer" || code=$?
    [ $code -eq 0 ] || fail "The trainer ended with code $code."
}

start_display
start_trainer "$program"
wait_for 60 "The first deal" hand_lies_open
first_hand=$hand
choose_play_video_poker
wait_for 60 "The deal of another hand" another_hand_lies_open
wait_for 30 "The end of the deal" table_is_still
mkdir -p -- "$(dirname -- "$picture")"
cp "$folder/table.png" "$picture"
hand_lies_open
first_hand=$hand
play_the_hand
wait_for 90 "The end of the draw" hand_is_played
end_with_exit
echo "The trainer dealt, judged, drew and closed as it should. The table is in $picture."
