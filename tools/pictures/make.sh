#!/bin/sh
# Builds the tool and writes the contact sheets that the documentation shows.
set -eu
cd "$(dirname "$0")/../.."
cmake --preset release
cmake --build --preset release --target tombrello-pictures
build/release/tools/pictures/tombrello-pictures docs/pictures
