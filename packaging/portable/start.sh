#!/bin/sh
# Starts the game from the folder that this lies in. Before that, tells the desktop entry beside
# it where the folder is now, so that its icon shows and a copy of it in a menu works.
# Usage: start.sh [--entry | --entry-anywhere], which only write the entry: for this place, or
# for a folder that is about to travel.
set -u
home=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd) || exit 1
entry=$home/Tombrello.desktop

# What the entry has run: $1 is the folder that it was written for, $2 the entry's own place, a
# path or, from some desktops, an address with characters as %20. That place counts first.
finder='k=$2; f=;
  case $k in file://*) k=${k#file://};
    while case $k in *%*) ;; *) false ;; esac; do
      r=${k#*%}; c=${r%"${r#??}"}; f=$f${k%%%*}$(printf "\\$(printf %o 0x$c)"); k=${r#??};
    done ;;
  esac;
  f=$f$k; f=${f%/*}; [ -x "$f/tombrello" ] || f=$1; exec "$f/start.sh"'

# A value of an entry has its backslashes doubled. In a command, words stand in quotes, where
# four characters want a backslash before that, and a percent sign is written twice.
as_value() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }
as_word() { printf '%s' "$1" | tr '\n' ' ' | sed 's/[\\"`$]/\\&/g; s/%/%%/g; s/\\/\\\\/g'; }

write_entry() { # FOLDER ICON
  grep -v -e '^Exec=' -e '^Icon=' "$entry"
  printf 'Exec=sh -c "%s" sh "%s" %%k\n' "$(as_word "$finder")" "$(as_word "$1")"
  printf 'Icon=%s\n' "$(as_value "$2")"
}

# The new entry takes the old one's place whole. Where nothing can be written the old one stays.
refresh() {
  new=$(write_entry "$@") && [ "$new" != "$(cat "$entry")" ] || return 0
  printf '%s\n' "$new" >"$entry.new" && chmod 755 "$entry.new" && mv -f "$entry.new" "$entry"
}

case ${1:-} in
  --entry) refresh "$home" "$home/tombrello.png" ;;
  --entry-anywhere) refresh '' tombrello ;;
  *)
    refresh "$home" "$home/tombrello.png" 2>/dev/null
    exec "$home/tombrello" "$@"
    ;;
esac
