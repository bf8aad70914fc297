#!/usr/bin/env bash
# Measures how quick and how small the program is, and prints one table: turns, first paint, memory,
# an idle table, painting. Builds what it measures, the presets `play` and `release`.
# Usage: tools/measure/measure.sh [--peers]
# With --peers other card games are measured beside it; those that are missing are installed from
# Debian, so that has to be run as root.
# Needs xvfb, openbox, xdotool. What is timed wants a machine that does nothing else.
set -euo pipefail
cd "$(dirname "$0")/../.."
peers=()
[ "${1:-}" = --peers ] && peers=(pokerth aisleriot kpat)
if [ ${#peers[@]} -gt 0 ] && ! dpkg-query -W "${peers[@]}" >/dev/null 2>&1; then
  apt-get install -y --no-install-recommends "${peers[@]}" >&2
fi

benches=(tombrello-bench-{rules,table,pictures})
{
  cmake --preset play
  cmake --build --preset play
  cmake --preset release
  cmake --build --preset release --target "${benches[@]}" tombrello-first-paint
} >&2

folder=$(mktemp -d)
game='' xvfb='' manager=''
trap 'kill $game $manager $xvfb 2>/dev/null || true; rm -rf "$folder"' EXIT
cp -r build/play/{tombrello,tombrello-sound.so,music,sounds} "$folder"
printf ' %s \r\n' 1 >"$folder/config.zvq"
printf '%s\r\n' TU OVEST NORD EST >>"$folder/config.zvq"
printf ' %s \r\n' 0 0 100 >>"$folder/config.zvq" # no sound, no tune, cards of their usual size
export HOME=$folder XDG_RUNTIME_DIR=$folder LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY

row() { printf '%-50s %12s\n' "$1" "$2"; }

screen() {
  [ -z "$xvfb" ] || { kill $manager $xvfb; wait $manager $xvfb 2>/dev/null || true; }
  exec 3< <(exec Xvfb -displayfd 1 -screen 0 "$1x24" -nolisten tcp -noreset 2>/dev/null)
  xvfb=$!
  read -r number <&3
  export DISPLAY=:$number
  openbox >/dev/null 2>&1 &
  manager=$!
  sleep 1
}
start() {
  local line
  line=$(build/release/tools/measure/tombrello-first-paint "$1")
  game=${line##* } paint=${line%% *}
}
leave() {
  kill "$game" 2>/dev/null || true
  game=''
  sleep 1
}
# The median of five.
first_paint() {
  for _ in 1 2 3 4 5; do
    start "$2"
    echo "$paint"
    leave
  done >"$folder/paints" # no pipe: the trap must know the game
  row "first paint, $1" "$(sort -n "$folder/paints" | sed -n 3p) ms"
}

ticks() { awk '{print $14 + $15}' "/proc/$game/stat"; }
idle() {
  local before
  before=$(ticks)
  sleep 10
  row "idle for 10 s, $1" "$(($(ticks) - before)) ticks"
}
act() {
  xdotool key Tab
  sleep 0.3
  xdotool key Return
  sleep "$1"
}
# The picture, the draw for dealer, the deal, two turns of drawing and discarding.
play_into_hand() {
  sleep 1
  xdotool key Return
  sleep 1
  for _ in 1 2 3 4; do act 1.5; done
  sleep 20
  for _ in 1 2 3 4; do act 4; done
}

# The best of five runs, by the clock: a benchmark's name, a field, a factor and a unit.
results() {
  "build/release/bench/tombrello-bench-$1" --benchmark_format=json --benchmark_min_time=0.2 \
    --benchmark_repetitions=5 2>/dev/null >"$folder/$1.json"
}
best() {
  awk -v name="\"$2\"," -v field="\"$3\":" -v factor="$4" -v unit="$5" '
    $1 == "\"name\":" { here = $2 == name }
    here && $1 == field && (least == "" || $2 * factor < least) { least = $2 * factor }
    END { printf least < 10 ? "%.2f %s" : "%.0f %s", least, unit }' "$folder/$1.json"
}

results rules
row "computer turn, over whole hands" "$(best rules whole_hands turn 1e9 ns)"
row "  with the state checked after each turn" "$(best rules whole_hands_checked turn 1e9 ns)"
row "computer turn, from a dealt copy" "$(best rules from_a_dealt_copy turn 1e9 ns)"

screen 1920x1080
first_paint "1920x1080" "$folder/tombrello"
for peer in "${peers[@]}"; do
  first_paint "1920x1080, $peer" "$(dpkg -L "$peer" | grep -E '/(games|bin)/(pokerth|sol|kpat)$' | head -n 1)"
done
start "$folder/tombrello"
sleep 2
idle "opening"
play_into_hand
idle "in a hand"
row "memory in a hand without sound (PSS)" \
  "$(awk '/^Pss:/ { printf "%.1f MB", $2 / 1024 }' "/proc/$game/smaps_rollup")"
[ -z "${TOMBRELLO_SHOT:-}" ] || import -window root "$TOMBRELLO_SHOT"
leave
screen 3840x2160
first_paint "3840x2160" "$folder/tombrello"

results table
results pictures
for size in 1920/1080 3840/2160; do
  high=${size#*/}
  at="${size%/*}x$high"
  row "redraw of a fan, $at" "$(best table "redraw_fan/$size" real_time 1 us)"
  row "whole table, $at" "$(best table "whole_table/$size" real_time 1 us)"
  row "dealt card that takes the longest, $at" "$(best table "deal/$size" longest 1e3 ms)"
  row "108 card pictures, $at" "$(best pictures "all_cards/$high" real_time 1 ms)"
  row "opening picture, $at" "$(best pictures "opening_picture/$high" real_time 1 ms)"
done
