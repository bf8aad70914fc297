#!/usr/bin/env bash
# Judges what tools/package.sh has built: the policy of Debian, the entry, the metadata, and that
# no file tells where it was built.
# Usage: tests/package/check.sh [FOLDER], by default build/package
set -euo pipefail
folder=$(realpath "${1:-build/package}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

lintian -EvIL +pedantic --fail-on error,warning "$folder"/*.changes 2>"$work/said" || {
  cat "$work/said" >&2
  exit 1
}
mkdir "$work/files"
for package in "$folder"/*.deb; do
  dpkg-deb -R "$package" "$work/files/$(basename "$package" .deb)"
done
desktop-file-validate "$work"/files/*/usr/share/applications/*.desktop
appstreamcli validate --no-net "$work"/files/*/usr/share/metainfo/*.xml
# Debug information is compressed.
find "$work/files" -name '*.debug' -exec objcopy --decompress-debug-sections {} \;
find "$work/files" -name '*.gz' -exec gunzip {} +
for place in "$folder" "$PWD"; do
  ! grep -rl -- "$place" "$work/files" || { echo "tells $place" >&2 && exit 1; }
done
echo "check: no error, no warning, no place of this machine"
