#!/usr/bin/env bash
# Reads rules/ and game/ with clang-tidy (its checks: .clang-tidy); any finding fails.
# Usage: tools/tidy.sh [SINCE]    with a commit, only what has changed since then
set -euo pipefail
cd "$(dirname "$0")/.."

tools/setup.sh check
[ -f build/dev/compile_commands.json ] || cmake --preset dev >/dev/null

# The sources that have changed, and those that include a changed header of their own folder.
changed() {
  git diff --name-only --diff-filter=d "$1" -- 'rules/*.cpp' 'game/*.cpp'
  git diff --name-only --diff-filter=d "$1" -- 'rules/*.h' 'game/*.h' | while read -r header; do
    grep -lF "\"${header#*/}\"" "${header%/*}"/*.cpp || true
  done
}

if [ $# -gt 0 ]; then changed "$1" | sort -u; else git ls-files 'rules/*.cpp' 'game/*.cpp'; fi |
  xargs -r -P "$(nproc)" -n 4 clang-tidy -p build/dev --quiet 2> >(grep -v 'warnings generated' >&2)
