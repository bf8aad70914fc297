#!/usr/bin/env bash
# Measures what music costs the program, on a virtual screen and an audio device that plays into
# nothing in real time: processor time and memory before, with and after music.
# Usage: tools/measure/music.sh [PROGRAM]; builds nothing. Needs xvfb, openbox, xdotool.
set -euo pipefail
cd "$(dirname "$0")/../.."
folder=$(mktemp -d)
program=$(realpath "${1:-build/play/tombrello}")
cp -r "$(dirname "$program")"/{music,sounds,tombrello-sound.so} "$program" "$folder"

exec 3< <(Xvfb -displayfd 1 -screen 0 1024x768x24 2>/dev/null)
xvfb=$!
read -r number <&3
export DISPLAY=:$number SDL_AUDIODRIVER=dummy
openbox >/dev/null 2>&1 &
trap 'kill ${pid:-} %1 2>/dev/null; sleep 0.5; kill $xvfb; rm -rf "$folder"' EXIT
sleep 1
"$folder/$(basename "$program")" &
pid=$!
sleep 2

# The entries "Nessuna" and "MODO SEQUENZIALE", the first two of their menu.
choose() { xdotool key --delay 300 alt+m "$@" Return; }
ticks() { awk '{print $14 + $15}' "/proc/$pid/stat"; }
memory() { awk '/RssAnon/ {print $2}' "/proc/$pid/status"; }
measure() {
  local before
  before=$(ticks)
  sleep 20
  awk -v what="$1" -v ticks=$(($(ticks) - before)) -v rate="$(getconf CLK_TCK)" \
    -v memory="$(memory)" 'BEGIN {
      printf "%s: %.1f %% of a core over 20 s, %.1f MB\n", what, ticks * 5 / rate, memory / 1024 }'
}

xdotool mousemove 512 400 click 1
sleep 7  # the device rests after five seconds
measure "without music"
choose Down
sleep 1
measure "music"
choose
sleep 7
measure "after \"Nessuna\""
