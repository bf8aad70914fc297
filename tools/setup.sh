#!/usr/bin/env bash
# Installs the Debian packages that playing, checking, packaging or fuzzing needs, or building for
# Windows and trying that out under wine, if any are missing.
# Usage: tools/setup.sh play|check|package|fuzz|windows|wine
set -euo pipefail

packages=(g++ cmake ninja-build pkg-config qt6-base-dev libgl-dev libsdl2-dev libsdl2-mixer-dev
          libasound2-dev libdbus-1-dev libfluidsynth-dev libutfcpp-dev libagg-dev fonts-liberation
          fonts-urw-base35 timgm6mb-soundfont)
if [ "${1:-}" = check ]; then
  packages+=(libgtest-dev libbenchmark-dev libfluidsynth-dev clang-format clang-tidy xvfb openbox
             xdotool wmctrl imagemagick x11-utils xclip desktop-file-utils libglib2.0-bin dbus
             at-spi2-core gir1.2-atspi-2.0 python3-gi)
fi
if [ "${1:-}" = package ]; then
  packages+=(dpkg-dev debhelper lintian desktop-file-utils appstream libglib2.0-bin debootstrap
             faketime xvfb openbox xdotool imagemagick)
fi
if [ "${1:-}" = fuzz ]; then
  packages+=(clang)
fi
case "${1:-}" in
  windows | wine)
    packages=(g++ cmake ninja-build g++-mingw-w64-x86-64-posix libagg-dev libutfcpp-dev googletest nsis) ;;&
  wine) packages+=(wine wine64 xvfb openbox xdotool wmctrl imagemagick) ;;
esac

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
    missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "Missing packages; as root: apt-get install ${missing[*]}" >&2
    exit 1
  }
  as_root=(sudo)
fi
echo "Installing with apt: ${missing[*]}"
"${as_root[@]}" apt-get -q update >/dev/null ||
  echo "The lists of packages could not all be renewed; going on with what there is." >&2
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get -q install -y --no-install-recommends "${missing[@]}" >/dev/null </dev/null || {
  echo "Could not install; as root: apt-get install ${missing[*]}" >&2
  exit 1
}
