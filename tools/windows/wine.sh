#!/usr/bin/env bash
# Runs a Windows program under wine, for TOMBRELLO_WINE_SECONDS (300) at most.
# Usage: tools/windows/wine.sh PROGRAM [ARGUMENT...]
# Wine's own world is kept in WINEPREFIX, or else in the user's cache, and made when it is missing.
set -euo pipefail
export WINEPREFIX=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/tombrello/wine}
export WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d;winebus.sys,wineusb.sys,winehid.sys=d"
# The command named wine would ask for its other half first, which isn't needed.
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)

make_prefix() {
  mkdir -p "$WINEPREFIX"
  timeout 180 "$wine" wineboot -i </dev/null >/dev/null 2>&1
  # A crash is to end, not to ask.
  timeout 60 "$wine" reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f \
    </dev/null >/dev/null 2>&1
  timeout 60 wineserver -k -w || true
  touch "$WINEPREFIX/made"
}

if [ ! -e "$WINEPREFIX/made" ]; then
  mkdir -p "$(dirname "$WINEPREFIX")"
  exec 9>"$WINEPREFIX.lock"
  flock 9
  [ -e "$WINEPREFIX/made" ] || make_prefix 9>&-
  exec 9>&-
fi
[ $# -gt 0 ] || exit 0
exec timeout --kill-after=5 "${TOMBRELLO_WINE_SECONDS:-300}" "$wine" "$@"
