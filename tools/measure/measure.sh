#!/usr/bin/env bash
# Measures the program on a virtual screen: time to the first paint, processor time of an idle
# table over ten seconds, memory.
# Usage: tools/measure/measure.sh [PROGRAM]; builds nothing. Needs xvfb, openbox, xdotool.
set -euo pipefail
cd "$(dirname "$0")/../.."
program=$(realpath "${1:-build/play/tombrello}")
first_paint=build/dev/tools/measure/tombrello-first-paint

exec 3< <(Xvfb -displayfd 1 -screen 0 1920x1080x24 2>/dev/null)
xvfb=$!
read -r number <&3
export DISPLAY=:$number
openbox 2>/dev/null &
trap 'kill %1 $xvfb ${pid:-} 2>/dev/null' EXIT
sleep 1

for run in 1 2 3 4 5; do
  line=$($first_paint "$program")
  pid=${line##* }
  echo "first paint: ${line%,*}"
  [ "$run" = 5 ] || { kill "$pid"; sleep 0.7; }
done

ticks() { awk '{print $14 + $15}' "/proc/$pid/stat"; }
idle() {
  local before
  before=$(ticks)
  sleep 10
  echo "$1: $(($(ticks) - before)) ticks of $(getconf CLK_TCK) a second in 10 s"
}
sleep 2
idle "idle at the opening picture"
xdotool mousemove 960 540 click 1
sleep 1
idle "idle in the draw for dealer"
grep -E 'VmRSS|RssAnon' "/proc/$pid/status"
