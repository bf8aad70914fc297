#!/usr/bin/env bash
# Proves the Debian package as its user meets it, in a bare Debian 12: installed by the name of the
# file alone, started by an unprivileged user from the desktop entry, a turn played by presses,
# settings kept at the next start and over an upgrade, and nothing left behind but the user's own.
# Usage, as root: tests/package/prove.sh PACKAGE.deb [FOLDER-WITH-A-BARE-SYSTEM]
# Pictures of what was seen lie beside the package.
set -euo pipefail
# With mounts and processes of its own, which end with it.
[ -n "${TOMBRELLO_APART:-}" ] ||
  TOMBRELLO_APART=1 exec unshare --mount --propagation private --pid --fork --mount-proc "$0" "$@"

package=$(realpath "$1")
shots=$(dirname "$package")
work=$(mktemp -d /var/tmp/tombrello-XXXXXX)
root=$work/root
player=giocatore
settings=$root/home/$player/.local/share/tombrello/config.zvq
trap 'umount -l "$root/proc" "$root/dev" 2>/dev/null || true
      rm -rf --one-file-system "$work"' EXIT
. "$(dirname "$0")/playing.sh"

# A bare system.
say 'a bare Debian 12'
if [ -n "${2:-}" ]; then
  cp -a "$2" "$root"
else
  debootstrap --variant=minbase bookworm "$root" http://deb.debian.org/debian >"$work/log"
fi
cp /etc/resolv.conf "$root/etc/"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive \
  LC_ALL=C.UTF-8 "$@"; }
apt() { inside apt-get -q -y "$@" >>"$work/log" 2>&1 || { tail "$work/log" && fail "apt $*"; }; }
install_file() { # FILE
  cp "$1" "$root/root/"
  inside sh -c "cd /root && apt-get -q -y install ./$(basename "$1")" >>"$work/log" 2>&1 ||
    { tail "$work/log" && fail 'apt install'; }
  rm "$root/root/$(basename "$1")"
}
inside useradd -m "$player"
apt update
# But for the places of the package tools, of the running system, and of systemd, which libraries
# bring along.
list() {
  (cd "$root" && find . -regextype posix-extended -regex './(proc|dev|run|tmp|root)' -prune -o \
    -regex './var/(cache|log|lib/(apt|dpkg|private|systemd))' -prune -o \
    -regex './home/[^/]*/[.]cache' -prune -o ! -path ./etc/machine-id ! -path ./etc/mtab -print) |
    LC_ALL=C sort
}
list >"$work/before"

# The window fills the screen: the table has its own size, and stands some way down.
readonly down=55 felt=007000
press() { xdotool mousemove $(($1 - 1)) $((down + $2)) mousemove "$1" $((down + $2)) click "${3:-1}"; }
colour() { import -window root -crop "1x1+$1+$((down + $2))" -depth 8 txt:- | grep -o '#[0-9A-F]\{6\}' | tail -n 1 | tr -d '#'; }
shows_card() { [ "$(colour "$1" "$2")" != $felt ]; }
picture() { import -window root "$shots/proved-$1.png"; }

runs() { pgrep -x tombrello >/dev/null; }
window_stands() { xdotool search --onlyvisible --name '^Frassivo - Tombrello$' >/dev/null 2>&1; }
start() {
  chroot "--userspec=$player" "$root" env -i HOME="/home/$player" USER="$player" LANG=C.UTF-8 \
    PATH=/usr/local/bin:/usr/bin:/bin DISPLAY="$DISPLAY" \
    SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=/tmp/heard \
    gio launch /usr/share/applications/tombrello.desktop
  until_true 20 window_stands
  sleep 1
}
stop() {
  keys alt+F4
  until_true 10 eval '! runs'
}
# What is heard is written down; silence is zeros.
music_sounds() { [ "$(tr -d '\0' <"$root/tmp/heard" | head -c 100000 | wc -c)" -eq 100000 ]; }
# Leaving the music alone writes the settings: what had been read comes back, byte for byte.
expect_settings_kept() {
  cp "$settings" "$work/kept"
  rm "$settings.old" 2>/dev/null || true
  touch -d '2000-01-01' "$settings"
  start
  keys alt+m Return
  until_true 5 test "$settings" -nt "$root/etc/hostname"
  cmp "$settings" "$work/kept" || fail 'the settings have changed'
  stop
}

say 'installed by the name of the file alone'
install_file "$package"
inside /usr/games/tombrello --version
apt install --no-install-recommends libglib2.0-bin
say 'started from the desktop entry, a tune heard, a turn played'
start
picture opening
keys alt+m Down Return
until_true 20 music_sounds
keys alt+m Return
keys alt+s Right Return
play_turn picture turn
stop
[ "$(sed -n 6p "$settings" | tr -d ' \r')" = 0 ] || fail 'the rustle is not off'
sed -n 9p "$settings" | grep -q '[1-9]' || fail 'no deck was kept'
say 'settings kept at the next start'
expect_settings_kept

say 'shown by a Wayland compositor too, which here has no screen'
apt install --no-install-recommends weston
on_wayland() {
  chroot "--userspec=$player" "$root" env -i HOME="/home/$player" XDG_RUNTIME_DIR="/home/$player" \
    PATH=/usr/bin:/bin WAYLAND_DISPLAY=wayland-9 SDL_AUDIODRIVER=dummy "$@"
}
on_wayland weston --backend=headless-backend.so --socket=wayland-9 2>/dev/null >&2 &
until_true 20 test -S "$root/home/$player/wayland-9"
on_wayland WAYLAND_DEBUG=1 /usr/games/tombrello 2>"$work/wayland" &
game=$!
until_true 30 grep -q 'wl_surface@[0-9]*.attach(wl_buffer' "$work/wayland"
grep -q 'set_title("Frassivo - Tombrello")' "$work/wayland" || fail 'no window on Wayland'
grep -q 'set_app_id("tombrello")' "$work/wayland" || fail 'its window has no icon on Wayland'
kill "$(pgrep -x tombrello)"
wait $game || { tail -n 5 "$work/wayland" && fail 'does not end well on Wayland'; }
kill "$(pgrep -x weston)"
until_true 10 eval '! pgrep -x weston >/dev/null'
rm -f "$root/home/$player"/wayland-9*
apt purge weston

say 'upgraded from an older version, settings kept'
apt purge tombrello
dpkg-deb -R "$package" "$work/older"
sed -i 's/^Version: .*/Version: 0.9.0/' "$work/older/DEBIAN/control"
dpkg-deb -b "$work/older" "$work/tombrello_0.9.0_amd64.deb" >/dev/null
install_file "$work/tombrello_0.9.0_amd64.deb"
start
keys alt+s Right Down Return
stop
[ "$(sed -n 6p "$settings" | tr -d ' \r')" = 1 ] || fail 'the rustle is not on'
install_file "$package"
[ "$(inside dpkg-query -W -f='${Version}' tombrello)" != 0.9.0 ] || fail 'not upgraded'
expect_settings_kept

say 'nothing left but what is the own of the user'
apt purge --autoremove tombrello libglib2.0-bin
list >"$work/after"
LC_ALL=C comm -13 "$work/before" "$work/after" >"$work/new"
own=./home/$player/.local
printf '%s\n' "$own" "$own/share" "$own/share/tombrello" "$own/share/tombrello/config.zvq" |
  diff - "$work/new" || fail 'something was left'
[ -z "$(inside find /var/lib/dpkg/info -name 'tombrello*')" ] || fail 'dpkg still knows of it'
say 'all proved'
