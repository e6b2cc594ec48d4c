#!/bin/bash
# record-hand.sh PROGRAM PICTURE: plays the hand of known_table on a virtual X server, as a player
# would with a mouse, and writes what its window shows as an animated WebP picture: a deal, a wrong
# hold that is refused, the right one, the draw and the pay. See the target documentation_loop.
set -euo pipefail

program=$(readlink -f -- "$1")
picture=$2
caller=record-hand.sh
. "$(dirname -- "$(readlink -f -- "$0")")/headless-display.sh"

step=0.03 # seconds from one frame to the next
frames=() # the time at which each was taken, in microseconds
pointer_x=0 pointer_y=0
mkdir "$folder/frames"

now() {
    echo "${EPOCHREALTIME/[.,]/}"
}

# Takes one frame, together with the place of the pointer, which no picture of a window holds.
frame() {
    local file
    printf -v file '%s/frames/%04d' "$folder" ${#frames[@]}
    frames+=("$(now)")
    xwd -silent -id "$window" -out "$file.xwd"
    echo "$pointer_x $pointer_y" >"$file.pointer"
    last=$file.xwd
    sleep "$step"
}

still() {
    local i
    for ((i = 0; i < $1; i++)); do frame; done
}

# colour X Y: that of a pixel of the last frame, as the server keeps it: blue, green, red.
colour() {
    local head
    read -ra head < <(od -An -w80 -N 80 -t u4 --endian=big "$last")
    od -An -t x1 -N 3 -j $((head[0] + 12 * head[19] + $2 * head[12] + 4 * $1)) "$last" | tr -d ' '
}

# until_colour COLOUR X Y
until_colour() {
    local deadline=$((SECONDS + 30))
    until [ "$(colour "$2" "$3")" = "$1" ]; do
        [ $SECONDS -lt $deadline ] || fail "No $1 came to $2, $3."
        frame
    done
}

# go X Y FRAMES: moves the pointer there, slowly at both ends.
go() {
    local from_x=$pointer_x from_y=$pointer_y i part
    for ((i = 1; i <= $3; i++)); do
        part=$((i * i * (3 * $3 - 2 * i) * 1000 / ($3 * $3 * $3)))
        pointer_x=$((from_x + ($1 - from_x) * part / 1000))
        pointer_y=$((from_y + ($2 - from_y) * part / 1000))
        xdotool mousemove --window "$window" "$pointer_x" "$pointer_y"
        frame
    done
}

press() {
    xdotool click 1
    frame
}

hold() {
    go $((48 + $(card_left "$1"))) $((menu_height + 350)) 4
    press
}

press_deck() {
    go 253 $((menu_height + 200)) 5
    press
}

start_display
start_trainer "$program" "$folder/config"

white=ffffff green=00c000 red=0000ff
face=(500 $((menu_height + 350)))  # what is white on the fifth card, but not on its back
high_pair=(640 $((menu_height + 279))) # the chart's rows
full_house=(640 $((menu_height + 129)))

# One hand is played before, so that the last frame leads to the first.
frame
until_colour $white "${face[@]}"
hold 0
hold 3
press_deck
until_colour $green "${full_house[@]}"
still 20
press_deck
still 3
empty=$last
while cmp -s "$empty" "$last"; do frame; done
first=$((${#frames[@]} - 1)) # the cards begin to fly
until_colour $white "${face[@]}"
still 1
hold 0
hold 1
hold 3
press_deck
until_colour $red "${high_pair[@]}"
still 20
hold 0
hold 3
press_deck
until_colour $green "${full_house[@]}"
still 26
frames+=("$(now)")

count=$((${#frames[@]} - 1))
arguments=()
for ((i = first; i < count; i++)); do
    printf -v file '%s/frames/%04d' "$folder" "$i"
    read -r x y <"$file.pointer"
    convert "xwd:$file.xwd" -fill white -stroke black -draw "translate $x,$y
        polygon 0,0 0,17 4,13.4 6.8,19.6 9.6,18.4 6.8,12.4 12,12" "$file.png"
    arguments+=(-d $(((frames[i + 1] - frames[i]) / 1000)) "$file.png")
done
img2webp -loop 0 -kmin 1000 -kmax 1001 -lossy -q 85 -m 6 "${arguments[@]}" -o "$picture" \
    >"$folder/img2webp.log" 2>&1 || fail "The picture could not be written."
echo "$picture: $(((frames[count] - frames[first]) / 1000)) ms, $(stat -c %s "$picture") bytes"
