#!/bin/sh
# Tells the desktop entry beside it where this folder is now, so that it starts the game, its icon
# shows, and a copy of it in a menu works. The game has it done at each start.
# Usage: desktop-entry.sh [--anywhere], for a folder that is about to travel.
set -u
home=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd) || exit 1
entry=$home/Tombrello.desktop
icon=$home/tombrello.png
[ "${1:-}" != --anywhere ] || home='' icon=tombrello

# What the entry has run: $1 is the folder that it was written for, $2 the entry's own place: a
# path, an address with characters as %20, or nothing, as desktops differ. The game is where the
# entry lies, or where that was, or else in the current folder.
# shellcheck disable=SC2016
finder='k=$2; f=;
case $k in file://*) k=${k#file://};
while case $k in *%*) ;; *) false ;; esac; do
r=${k#*%}; c=${r%"${r#??}"}; f=$f${k%%%*}$(printf "\\$(printf %o 0x$c)"); k=${r#??};
done ;; esac;
f=$f$k;
for f in "${f%/*}" "$1" "$PWD"; do
[ ! -f "$f/tombrello" ] || exec "$f/tombrello"; done; exit 1'

# A value of an entry has its backslashes doubled. In a command, words stand in quotes, where
# four characters want a backslash before that, and a percent sign is written twice.
as_value() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }
as_word() { printf '%s' "$1" | sed 's/[\\"`$]/\\&/g; s/%/%%/g; s/\\/\\\\/g'; }
write_entry() {
  grep -v -e '^Exec=' -e '^Icon=' "$entry"
  printf 'Exec=sh -c "%s" sh "%s" %%k\n' "$(as_word "$(printf '%s' "$finder" | tr '\n' ' ')")" \
    "$(as_word "$home")"
  printf 'Icon=%s\n' "$(as_value "$icon")"
}

[ -f "$entry" ] || exit 0
# A line has no end in its middle.
[ "$(printf '%s' "$home" | wc -l)" -eq 0 ] || exit 0
# The new entry takes the old one's place whole. Where nothing can be written the old one stays.
new=$(write_entry) && [ "$new" != "$(cat "$entry")" ] || exit 0
{
  printf '%s\n' "$new" >"$entry.$$" && chmod 755 "$entry.$$" && mv -f "$entry.$$" "$entry"
} 2>/dev/null
