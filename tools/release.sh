#!/usr/bin/env bash
# Makes a release: sets the version, proves it, and writes what is handed on, with its sums, into
# build/release-VERSION: sources, Debian package, portable folder, and what Windows gets.
# Usage: tools/release.sh VERSION, with a heading "## VERSION (YYYY-MM-DD)" on top in CHANGELOG.md
set -euo pipefail
cd "$(dirname "$0")/.."

refuse() { echo "release: $*" >&2 && exit 1; }
version=${1:-}
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ && $# -eq 1 ]] || refuse 'usage: tools/release.sh X.Y.Z'
[ -z "$(git status --porcelain)" ] || refuse 'the tree holds what is not committed'
heading=$(grep -m 1 '^## ' CHANGELOG.md)
[[ $heading =~ ^"## $version ("([0-9]{4}-[0-9]{2}-[0-9]{2})\)$ ]] ||
  refuse "CHANGELOG.md begins with '$heading', not with '## $version (YYYY-MM-DD)'"
SOURCE_DATE_EPOCH=$(date -u -d "${BASH_REMATCH[1]}" +%s)
export SOURCE_DATE_EPOCH
[ "$SOURCE_DATE_EPOCH" -le "$(date +%s)" ] || refuse "the date of $version lies ahead"

sed -i "s/^project(tombrello VERSION [0-9.]*/project(tombrello VERSION $version/" CMakeLists.txt
git diff --quiet || git commit -qam "Version $version"
.ci/run

out=$PWD/build/release-$version
rm -rf "$out"
mkdir -p "$out"
pack() { # NAME FOLDER...: an archive with nothing in it of this machine or moment
  tar -c --sort=name --owner=0 --group=0 --numeric-owner --mode=u=rwX,go=rX \
    --mtime="@$SOURCE_DATE_EPOCH" -C "$out" "${@:2}" | gzip -n9 >"$out/$1"
  rm -rf "${out:?}/$2"
}

echo '== sources'
git archive --prefix="tombrello-$version/" HEAD | tar -x -C "$out"
pack "tombrello-$version.tar.gz" "tombrello-$version"

echo '== Debian package'
tools/package.sh "$out/debian"
tests/package/check.sh "$out/debian"
mv "$out/debian/tombrello_${version}_$(dpkg --print-architecture).deb" "$out"
rm -r "$out/debian"

echo '== portable folder'
cmake --install build/play --strip --prefix "$out/Tombrello" >/dev/null
"$out/Tombrello/desktop-entry.sh" --anywhere
! grep -rl -e "$PWD" "$out/Tombrello" || refuse 'the portable folder tells where it was built'
pack "tombrello-$version-linux-$(uname -m).tar.gz" Tombrello

echo '== Windows'
tools/windows/build.sh
tools/windows/package.sh >/dev/null
mv build/windows/package/*.zip build/windows/package/*.exe "$out"

cd "$out"
sums=$(sha256sum -- *)
echo "$sums" | tee SHA256SUMS
echo "Released in build/release-$version; to mark it: git tag -a v$version -m 'Version $version'"
