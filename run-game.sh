#!/usr/bin/env bash
# Installs what is missing, builds, and starts Zorvane.
# Until the game window lands, the main program is the headless driver playing the demo.
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh
cmake -S . -B build/release -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/release -j"$(nproc)"
exec build/release/bin/zorvane-sim --seed 2026 build/release/bin/demo.txt "$@"
