#!/usr/bin/env bash
# Builds the Debian package, by dpkg-buildpackage in a copy of the sources: what git keeps, as it
# lies here, or all that an unpacked source archive holds.
# Usage: tools/package.sh [FOLDER], by default build/package; the package lies there at the end.
set -euo pipefail
cd "$(dirname "$0")/.."
umask 022 # of whoever builds, nothing shows

tools/setup.sh package
version=$(sed -n 's/^project(tombrello VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
maintainer=$(sed -n 's/^Maintainer: //p' packaging/debian/control)
mkdir -p "${1:-build/package}"
out=$(cd "${1:-build/package}" && pwd)
tree=$out/tombrello-$version

files() {
  if [ -e .git ]; then
    git ls-files -z
  else
    find . -path ./build -prune -o -type f -print0
  fi
}

# Each version of the change log becomes an entry of the package's.
sign() { printf '\n -- %s  %s\n' "$maintainer" "$(LC_ALL=C date -u -R -d "$1")"; }
changelog() {
  local line date=
  while IFS= read -r line; do
    case $line in
      '## '[0-9]*)
        [ -z "$date" ] || { sign "$date" && echo; }
        line=${line#\#\# }
        date=${line#*(} date=${date%)}
        printf 'tombrello (%s) stable; urgency=medium\n\n' "${line%% *}"
        ;;
      '- '*) printf '  * %s\n' "${line#- }" ;;
      '  '*) printf '  %s\n' "$line" ;;
    esac
  done <CHANGELOG.md
  sign "$date"
}

rm -rf "$tree"
mkdir "$tree"
files | tar -c --null --mode=u=rwX,go=rX -T - | tar -x -C "$tree"
cp -a packaging/debian "$tree/debian"
changelog >"$tree/debian/changelog"
[ "$(dpkg-parsechangelog -l "$tree/debian/changelog" -S Version)" = "$version" ] || {
  echo "CHANGELOG.md doesn't begin with version $version" >&2
  exit 1
}
(cd "$tree" && dpkg-buildpackage --no-sign) >"$out/build.log" 2>&1 || {
  tail -n 30 "$out/build.log" | cut -c 1-200 >&2
  exit 1
}
rm -rf "$tree"
ls -l "$out"/*.deb
