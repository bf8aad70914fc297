#!/usr/bin/env bash
# The desktop entry of the portable folder starts the game from a folder of any name, and after a
# move. The game here is a script that tells that it was started.
set -euo pipefail
sources=$(cd "$(dirname "$0")/../.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

fail() { echo "entry: $*" >&2 && exit 1; }
make_game() { # FOLDER
  mkdir -p "$1"
  cp "$sources/packaging/desktop-entry.sh" "$1"
  grep -v @ "$sources/packaging/tombrello.desktop.in" >"$1/Tombrello.desktop"
  printf '#!/bin/sh\nprintf %%s "$0" >%s\n' "$folder/started" >"$1/tombrello"
  chmod +x "$1/tombrello"
  "$1/desktop-entry.sh"
}
expect_start() { # HOME
  for _ in {1..50}; do [ ! -s "$folder/started" ] && sleep 0.1; done
  [ "$(cat "$folder/started" 2>&1)" = "$1/tombrello" ] || fail "not started in $1"
  rm -f "$folder/started"
}
# As a desktop does: a value of its own quoting, of which what is left is the shell's.
launch() { # ENTRY WHAT-IS-TOLD-OF-ITS-PLACE
  local command
  command=$(sed -n 's/^Exec=//p' "$1" | sed 's/\\\\/\\/g; s/%%/%/g')
  eval "${command% %k} \"\$2\""
}
as_address() { # PATH
  local i
  printf 'file://'
  for ((i = 0; i < ${#1}; ++i)); do
    case ${1:i:1} in
      [a-zA-Z0-9/.]) printf '%s' "${1:i:1}" ;;
      *) printf '%s' "${1:i:1}" | od -An -tx1 | tr -d '\n' | tr ' ' % ;;
    esac
  done
}

odd='perché  "no"? L'\''è al 100%k, $HOME `date` \n \\ a;b&c|d<e>(f) #[x] %20 ~'
export LC_ALL=C.UTF-8
cd /
make_game "$folder/qui"
[ -z "$(find "$folder/qui" -name 'Tombrello.desktop?*')" ] || fail 'left something behind'
mv "$folder/qui" "$folder/$odd"
home=$folder/$odd
entry=$home/Tombrello.desktop

launch "$entry" "$entry"
expect_start "$home"
launch "$entry" "$(as_address "$entry")"
expect_start "$home"
(cd "$home" && gio launch Tombrello.desktop)
expect_start "$home"

"$home/desktop-entry.sh"
desktop-file-validate "$entry"
[ -x "$entry" ] || fail 'an entry that may not be run is not trusted'
[ "$(sed -n 's/^Icon=//p' "$entry" | sed 's/\\\\/\\/g')" = "$home/tombrello.png" ] || fail icon
mkdir "$folder/menu"
cp "$entry" "$folder/menu"
gio launch "$folder/menu/Tombrello.desktop"
expect_start "$home"

"$home/desktop-entry.sh" --anywhere
desktop-file-validate "$entry"
! grep -q "$folder" "$entry" || fail 'tells where it was made'
launch "$entry" "$entry"
expect_start "$home"
