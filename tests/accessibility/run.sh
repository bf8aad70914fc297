#!/usr/bin/env bash
# A turn through the accessible tree alone, on a virtual screen: by a session bus of its own, or
# under wine where the game is one for Windows.
# Usage: tests/accessibility/run.sh TOMBRELLO_QUICK
set -euo pipefail
quick=$(realpath "$1")
here=$(realpath "$(dirname "$0")")
wine=$here/../../tools/windows/wine.sh
export WINEPREFIX=${WINEPREFIX:-$HOME/.cache/tombrello/wine}
folder=$(mktemp -d)
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp -noreset 2>/dev/null)
screen=$!
trap 'kill ${manager:-} $screen 2>/dev/null || true; rm -rf "$folder"' EXIT
read -r number <&3
export DISPLAY=:$number SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8 HOME=$folder XDG_RUNTIME_DIR=$folder
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1 NO_AT_BRIDGE=0
openbox >/dev/null 2>/dev/null &
manager=$!

if [[ $quick == *.exe ]]; then
  "$wine" "$quick" "$folder" 27 5 5 >/dev/null 2>&1 &
  status=0
  TOMBRELLO_WINE_SECONDS=110 "$wine" "$(dirname "$quick")/../accessibility/tombrello-turn.exe" ||
    status=$?
  timeout 30 wineserver -k
  exit $status
fi
timeout 110 dbus-run-session -- bash -c '
  '"'$quick' '$folder'"' 27 5 5 >/dev/null &
  game=$!
  status=0
  /usr/bin/python3 '"'$here/play_turn.py'"' || status=$?
  kill $game
  exit $status'
