#!/usr/bin/env bash
# Builds the program for Windows on Debian, into build/windows; installs what that needs.
set -euo pipefail
cd "$(dirname "$0")/../.."

tools/setup.sh windows
if ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" build/windows/CMakeCache.txt; then
  cmake --fresh --preset windows >/dev/null
fi
cmake --build --preset windows -- --quiet
