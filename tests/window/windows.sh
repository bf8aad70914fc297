#!/usr/bin/env bash
# Tries out under wine what tools/windows/build.sh has built: the rules, scenarios in the window by
# the tests of build/dev, a turn by accessible names, the installer. Wine's world is one of its own.
# Usage: tests/window/windows.sh
set -euo pipefail
cd "$(dirname "$0")/../.."
export WINEPREFIX=${WINEPREFIX:-$PWD/build/wine}
trap 'timeout 30 wineserver -k || true' EXIT

tools/windows/wine.sh # makes that world
ctest --preset windows
scenarios=(Shipped.OpensDealsAndCloses Table.AWholeHandFromTheDrawToTheNextDeal
           Shell.TheLastHandCanBeDealtAgain Sizes.ThePictureSurvivesThemAndMinimising
           Accessibility.ATurnIsPlayedByNamesAlone)
for scenario in "${scenarios[@]}"; do
  TOMBRELLO_WINDOWS=$PWD/build/windows timeout 300 build/dev/tests/window/tombrello-window-tests \
    --gtest_brief=1 --gtest_filter="$scenario" | tee build/windows/played
  grep -q '1 test .*ran' build/windows/played
done
timeout 600 tests/package/windows.sh build/windows/package/*-setup.exe
