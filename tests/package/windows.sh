#!/usr/bin/env bash
# Proves the installer for Windows under wine: installed without a word, started from the menu
# entry, a turn played by presses, uninstalled with nothing left but the settings, and once more
# with the settings gone too, as the question of the uninstaller offers.
# Usage: tests/package/windows.sh SETUP.exe
set -euo pipefail
setup=$(realpath "$1")
wine=$(realpath "$(dirname "$0")/../../tools/windows/wine.sh")
export WINEPREFIX=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/tombrello/wine}
export TOMBRELLO_WINE_SECONDS=120 LC_ALL=C.UTF-8
work=$(mktemp -d)
. "$(dirname "$0")/playing.sh"
trap 'timeout 30 wineserver -k || true; kill $manager $screen; rm -rf "$work"' EXIT

window_of() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1 | grep .; }
stands() { window_of "$1" >/dev/null; }
# Where a point of the table is in the window, below its menu bar and above its line.
in_window() { # X Y
  eval "$(xdotool getwindowgeometry --shell "$window")"
  awk -v x="$1" -v y="$2" -v width="$WIDTH" -v height="$HEIGHT" 'BEGIN {
    bar = 20; high = height - bar - 24; scale = width / 800 < high / 600 ? width / 800 : high / 600
    printf "%d %d\n", (width - 800 * scale) / 2 + x * scale,
                      bar + (high - 600 * scale) / 2 + y * scale }'
}
press() {
  read -r x y < <(in_window "$1" "$2")
  xdotool mousemove --window "$window" $((x - 1)) "$y" mousemove --window "$window" "$x" "$y" click 1
}
shows_card() {
  read -r x y < <(in_window "$1" "$2")
  import -window "$window" -crop "1x1+$x+$y" -depth 8 txt:- >"$work/pixel" &&
    grep -q '#' "$work/pixel" && ! grep -q '#007000' "$work/pixel"
}

"$wine" cmd /c exit # its world is there
own=$(echo "$WINEPREFIX"/drive_c/users/*/AppData)
home=$own/Local/Programs/Tombrello
entry="$own/Roaming/Microsoft/Windows/Start Menu/Programs/Tombrello.lnk"
registered='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tombrello'
rm -rf "$home"
list() { (cd "$own" && find . -path ./Local/Temp -prune -o ! -path ./Local/Programs -print | LC_ALL=C sort); }
known() { "$wine" reg query "$registered" >/dev/null 2>&1; }
says_yes() { # to the question, whose own answer would be no
  keys alt+y && sleep 1 && [ ! -e "$home" ]
}
expect_left() { # what else than before
  ! known || fail 'Windows still knows of it'
  (cd "$own" && LC_ALL=C comm -13 "$work/before" <(list)) | diff <(printf '%s' "$1") - ||
    fail 'something else was left'
}
list >"$work/before"

say 'installed without a word'
"$wine" "$setup" /S
"$wine" reg query "$registered" /v DisplayVersion | grep -q "$(basename "$setup" | grep -o '[0-9][0-9.]*[0-9]')"
say 'started from the menu, a turn played'
"$wine" start /wait /unix "$entry" 2>/dev/null &
until_true 60 stands '^Frassivo - Tombrello$'
window=$(window_of '^Frassivo - Tombrello$')
sleep 1
play_turn
keys alt+F4
wait $! || fail 'it does not end well'
[ "$(wc -l <"$home/config.zvq")" = 113 ] || fail 'no deal was kept'

say 'nothing left but the settings'
cp "$home/config.zvq" "$work/kept"
"$wine" "$home/Uninstall.exe" /S
until_true 60 test ! -e "$home/Uninstall.exe"
until_true 60 eval '! known'
cmp "$home/config.zvq" "$work/kept"
expect_left './Local/Programs/Tombrello
./Local/Programs/Tombrello/config.zvq
'
say 'the settings found again, and gone when that is asked for'
"$wine" "$setup" /S
cmp "$home/config.zvq" "$work/kept"
"$wine" "$home/Uninstall.exe" &
until_true 60 stands 'Tombrello'
sleep 1
keys Return
until_true 60 says_yes
keys Return
until_true 60 eval '! known'
expect_left ''
say 'all proved'
