#!/usr/bin/env bash
# A turn through the accessible tree alone, on a virtual screen and a session bus of its own.
# Usage: tests/accessibility/run.sh TOMBRELLO_QUICK
set -euo pipefail
quick=$(realpath "$1")
here=$(realpath "$(dirname "$0")")
folder=$(mktemp -d)
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp -noreset 2>/dev/null)
screen=$!
trap 'kill ${manager:-} $screen 2>/dev/null || true; rm -rf "$folder"' EXIT
read -r number <&3
export DISPLAY=:$number SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8 HOME=$folder XDG_RUNTIME_DIR=$folder
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1 NO_AT_BRIDGE=0
openbox >/dev/null 2>/dev/null &
manager=$!
timeout 110 dbus-run-session -- bash -c '
  '"'$quick' '$folder'"' 27 5 5 >/dev/null &
  game=$!
  status=0
  /usr/bin/python3 '"'$here/play_turn.py'"' || status=$?
  kill $game
  exit $status'
