#!/usr/bin/env bash
# Reads rules/ and game/ with clang-tidy (its checks: .clang-tidy); any finding fails.
# Usage: tools/tidy.sh [SINCE]    with a commit, only what has changed since then
set -euo pipefail
cd "$(dirname "$0")/.."

tools/setup.sh check
[ -f build/dev/compile_commands.json ] || cmake --preset dev >/dev/null
if [ $# -gt 0 ]; then
  list=(git diff -z --name-only --diff-filter=d "$1" --)
else
  list=(git ls-files -z)
fi
"${list[@]}" 'rules/*.cpp' 'game/*.cpp' |
  xargs -0 -r -P "$(nproc)" -n 4 clang-tidy -p build/dev --quiet 2> >(grep -v 'warnings generated' >&2)
