#!/usr/bin/env bash
# Installs what is missing (Qt 6 and a font included), builds, and starts Zorvane.
# Arguments go to the game: a saved game (.zvn) to open or a math file (.mth) to play with.
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh game
cmake -S . -B build/release -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/release -j"$(nproc)" --target zorvane zorvane_data
exec build/release/bin/zorvane "$@"
