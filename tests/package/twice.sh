#!/usr/bin/env bash
# Builds the Debian package twice, in two folders, at two times, under two locales, time zones and
# masks: both are to have the same bytes.
# Usage: tests/package/twice.sh
set -euo pipefail
cd "$(dirname "$0")/../.."
tools/setup.sh package
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export CCACHE_DISABLE=1 # or the second build would be the first one

(umask 022 && LC_ALL=C TZ=UTC tools/package.sh "$work/a") >/dev/null
localedef -i tr_TR -f UTF-8 "$work/tr_TR.UTF-8"
(umask 027 && LOCPATH=$work LC_ALL=tr_TR.UTF-8 TZ=Asia/Tokyo \
  NO_FAKE_STAT=1 faketime -f '+400d' tools/package.sh "$work/another-place-further-down") >/dev/null
cd "$work/a"
sha256sum ./*.deb ./*.tar.xz
for file in *.deb *.tar.xz; do cmp "$file" "../another-place-further-down/$file"; done
echo "twice: the same bytes"
