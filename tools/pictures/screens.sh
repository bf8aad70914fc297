#!/usr/bin/env bash
# Takes the pictures of the running game that the documentation shows: the game in its window on a
# virtual screen, with real presses. It plays itself what a hand needs.
# Usage: tools/pictures/screens.sh [CLOCK], which gives the cards. Needs xvfb, openbox, xdotool,
# imagemagick.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake --preset dev >/dev/null
cmake --build --preset dev --target tombrello-quick
folder=$(mktemp -d)
pictures=docs/pictures

exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1000x24 -nolisten tcp -noreset 2>/dev/null)
xvfb=$!
trap 'kill ${game:-} ${manager:-} $xvfb 2>/dev/null || true; rm -rf "$folder"' EXIT
read -r number <&3
export DISPLAY=:$number SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8 HOME=$folder XDG_RUNTIME_DIR=$folder
unset WAYLAND_DISPLAY
openbox 2>/dev/null &
manager=$!
sleep 1
build/dev/tests/window/tombrello-quick "$folder" "${1:-27}" 5 5 >"$folder/told" &
game=$!

# What the game told last under a name.
told() { tail -n 1 "$folder/told" | tr '\t' '\n' | sed -n "s/^$1=//p"; }
wait_for() {
  for ((tries = 0; tries < 200; ++tries)); do
    [ "$(told "$1")" = "$2" ] && return
    sleep 0.1
  done
  echo "in vain waited for $1 $2" >&2
  exit 1
}
# At a place of the table, in its own units, with a button of the mouse or none.
point() {
  local width height bar
  width=$(told width) bar=$(told bar)
  height=$(($(told height) - $(told line)))
  read -r x y < <(awk -v w="$width" -v h="$((height - bar))" -v b="$bar" -v x="$1" -v y="$2" \
    'BEGIN { s = w / 800 < h / 600 ? w / 800 : h / 600
             print int((w - 800 * s) / 2 + x * s), int(b + (h - 600 * s) / 2 + y * s) }')
  xdotool mousemove --window "$window" $((x - 1)) "$y" mousemove --window "$window" "$x" "$y"
  [ -z "${3:-}" ] || xdotool click "$3"
  sleep 0.2
}
slot() { point $((240 + 20 * $1)) 530 "$2"; }
take() {
  point 5 597
  sleep 0.5
  import -window "$window" -strip -define png:compression-level=9 "$pictures/screen-$1.png"
}

# Slots of three cards of a rank and different suits.
find_meld() {
  told hand1 | tr ',' '\n' | awk '
    { code = ($1 - 1) % 52; rank = code % 13; suit = int(code / 13)
      if (!((rank, suit) in seen)) { seen[rank, suit]; slots[rank] = slots[rank] " " NR
        if (++count[rank] == 3) { print slots[rank]; exit } } }'
}
play_turn() {
  local own
  point 430 300 1
  for own in $(find_meld); do slot "$own" 3; done
  point 300 440 1
  [ "$(told n | cut -d, -f1)" = 0 ] && return
  slot 1 1
}
is_over() { [ "$(told continue)" = 1 ]; }
wait_for_turn() {
  for ((tries = 0; tries < 200; ++tries)); do
    if is_over || { [ "$(told seat)" = 1 ] && [ "$(told drawn)" = 0 ]; }; then return; fi
    sleep 0.1
  done
}

wait_for maximised 1
wait_for front 1
window=$(xdotool search --onlyvisible --name '^Frassivo - Tombrello$' | head -n 1)
take opening
xdotool key alt+r
take rules
xdotool key alt+r
point 400 300 1
wait_for action 7
take draw
xdotool key alt+p n
wait_for dialog 1
take names
xdotool key Return
for card in 1 2 3 4; do
  point 400 300 1
  sleep 0.3
done
wait_for pile 1
for ((turn = 1; turn < 60; ++turn)); do
  wait_for_turn
  is_over && break
  [ "$turn" != 5 ] || { point 430 300 1 && take hand; }
  play_turn
done
sleep 1
take score
ls -l "$pictures"/screen-*.png
